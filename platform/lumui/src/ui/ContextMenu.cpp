// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/ContextMenu.h"

#include <cmath>

#include "lumui/controls/UI_ScrollView.h"
#include "lumui/ui/OS_Menu.h"
#include "lumui/ui/OS_Window.h"

namespace lumui::ui {

using IntPoint = lumcore::geom::PointT<int>;

unsigned UI_DoContextMenu(const utility::OS_Menu& inMenu, UI_Node& inNode,
                          const lumcore::geom::PointT<float>& inPoint) {
  OS_Window* const window = inNode.UI_GetWindowNode();
  if (!window || !window->UI_GetHandle()) return 0;
  const auto* const scroll = dynamic_cast<controls::UI_ScrollView*>(inNode.UI_GetParentNode());
  const bool isScrolled = scroll && scroll->GetContentNode() == &inNode;
  const auto offset = isScrolled ? scroll->GetOffset() : lumcore::geom::PointT<double>();
  IntPoint point(static_cast<int>(std::lround(inPoint.x - offset.x)),
                 static_cast<int>(std::lround(inPoint.y - offset.y)));
  inNode.UI_LocalToGlobal(point);
  window->UI_WindowToScreen(point);
  return OS_Menu::TrackPopup(inMenu.GetHandle(), *window, point);
}

}  // namespace lumui::ui
