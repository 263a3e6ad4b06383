// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/workspace/src/NodeOutline.h"

#include <algorithm>

#include "lumcore/utility/ScopedValue.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/ui/OS_Window.h"
#include "vek/workspace/NodeListing.h"

namespace vek::workspace {

namespace {

using lumcore::geom::RectT;
using lumui::ui::UI_Node;

constexpr float kWidth = 2;  // in units
// Not of the theme: it has to be told apart from whatever the theme draws.
constexpr lumui::drawbot::ColorRGBA kColor(1.0f, 0.2f, 0.45f);

// What can be seen of it: a list shows a part of a node that is scrolled halfway out, and none of
// one that is farther away. A node without a size still has its place.
RectT<int> SeenRect(const UI_Node& inNode) {
  RectT<int> rect = NodeListing::RectInWindow(inNode);
  rect.width = std::max(rect.width, 1);
  rect.height = std::max(rect.height, 1);
  const UI_Node* above = inNode.UI_GetParentNode();
  // The window itself shows nothing outside of it.
  for (; above && above->UI_GetParentNode(); above = above->UI_GetParentNode())
    rect = rect.Intersection(NodeListing::RectInWindow(*above));
  return rect;
}

}  // namespace

class NodeOutline::Bar : public lumui::ui::UI_SubView {
 public:
  Bar() { UI_SetDisabled(true); }
  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override {
    inDrawbot->FillRect(inDrawbot->GetClipBounds(), kColor);
  }
};

NodeOutline::NodeOutline() {
  for (auto& bar : mBars)
    bar = new Bar;
}

NodeOutline::~NodeOutline() {
  Show(nullptr);
}

bool NodeOutline::IsPart(const UI_Node& inNode) {
  return dynamic_cast<const Bar*>(&inNode) != nullptr;
}

void NodeOutline::Show(const UI_Node* inNode) {
  const lumcore::utility::StScopedValue<bool> changing(mIsChanging, true);
  lumui::ui::OS_Window* const window =
      inNode && inNode->UI_IsShown() ? inNode->UI_GetWindowNode() : nullptr;
  const RectT<int> rect = window ? SeenRect(*inNode) : RectT<int>();
  if (rect.IsEmpty()) {
    for (const auto& bar : mBars) {
      if (UI_Node* const parent = bar->UI_GetParentNode()) parent->UI_RemoveChild(bar.get());
    }
    return;
  }
  const float x = static_cast<float>(rect.x);
  const float y = static_cast<float>(rect.y);
  const float width = static_cast<float>(rect.width);
  const float height = static_cast<float>(rect.height);
  const RectT<float> rects[] = {
      RectT<float>(x, y, width, kWidth), RectT<float>(x, y + height - kWidth, width, kWidth),
      RectT<float>(x, y, kWidth, height), RectT<float>(x + width - kWidth, y, kWidth, height)};
  // Behind all other children, and so in front of them.
  const std::size_t last = window->UI_GetChildCount() - 1;
  const bool isInFront = window->UI_GetChild(last) == mBars.back().get();
  for (std::size_t i = 0; i < mBars.size(); ++i) {
    mBars[i]->UI_SetLocalRectF(rects[i]);
    if (!isInFront) window->UI_AddChild(mBars[i]);
  }
}

}  // namespace vek::workspace
