// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/geom/Point.h"
#include "lumui/Export.h"
#include "lumui/utility/OS_Menu.h"

namespace lumui::ui {

class UI_Node;

// Opens the menu at a point of the node, in the coordinates in which the node draws, and returns
// when it has closed: the id of what was chosen, or 0. A node outside a window opens none. The node
// may be gone afterwards.
LUMUI_API unsigned UI_DoContextMenu(const utility::OS_Menu& inMenu, UI_Node& inNode,
                                    const lumcore::geom::PointT<float>& inPoint);

}  // namespace lumui::ui
