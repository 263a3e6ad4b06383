// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "lumcore/Strings.h"
#include "lumcore/geom/Point.h"
#include "lumcore/geom/Rect.h"
#include "vek/config/Export.h"

namespace lumui::ui {
class OS_Window;
class UI_Node;
}  // namespace lumui::ui

namespace vek::workspace {

// The nodes of windows in words, for the view debugger and for whoever else wants to print them.
class VEK_API NodeListing {
 public:
  NodeListing() = delete;

  enum Column { kClass, kID, kRectangle, kVisible, kEnabled, kFocus, kWants, kColumns };

  struct Entry {
    const lumui::ui::UI_Node* node = nullptr;
    int depth = 0;                            // 0 for a window
    std::vector<lumcore::UTF16String> texts;  // by Column
  };

  // Localised.
  static std::vector<lumcore::UTF16String> GetColumnTitles();
  // Of all windows with a native part: each node before those it holds, in their order. A node that
  // inLeaveOut is true of is left out, with what it holds.
  static std::vector<Entry> OfAllWindows(bool (*inLeaveOut)(const lumui::ui::UI_Node&) = nullptr);
  // A line for each, indented by two blanks a level, below a line of the titles; tabs between.
  static lumcore::UTF16String AsText(const std::vector<Entry>& inEntries);

  // Whether a window has it. It may be any pointer.
  static bool IsLive(const lumui::ui::UI_Node* inNode);
  // In the coordinates of its window.
  static lumcore::geom::RectT<int> RectInWindow(const lumui::ui::UI_Node& inNode);
  // The innermost node there that is shown, the one in front where several meet; null for none. In
  // screen coordinates.
  static lumui::ui::UI_Node* FindAt(const lumcore::geom::PointT<int>& inOnScreen,
                                    bool (*inLeaveOut)(const lumui::ui::UI_Node&) = nullptr);
};

}  // namespace vek::workspace
