// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "lumui/ui/Accessible.h"
#include "vek/config/Export.h"
#include "vek/trackview/Types.h"

namespace vek::trackview {

class TrackView;

// What an overlay that derives from it as well tells of the things that it draws, for those who do
// not see them: a tree of items under ids of its own, asked for on demand. Id 0 is the overlay
// itself, whose children are its outermost items. Rectangles are in data space.
//
// A tree of rows says for each its level and whether it is expandable, expanded, selected and has
// the focus, gives it the actions for that, and offers the cells of its columns as its children.
//
// An overlay that takes no events, or is not drawn, is not asked.
class VEK_API AccessibleOverlay {
 public:
  using ID = std::uint64_t;
  static constexpr ID kRoot = 0;

  virtual ~AccessibleOverlay();

  virtual int GetAccessibleChildCount(ID inParent) const = 0;
  // inIndex is below the count.
  virtual ID GetAccessibleChild(ID inParent, int inIndex) const = 0;
  virtual ID GetAccessibleParent(ID inItem) const = 0;
  virtual int GetAccessibleIndex(ID inItem) const = 0;  // in its parent; -1 for one that has gone
  // False for one that has gone.
  virtual bool DescribeAccessible(ID inItem, lumui::ui::AccessibleItem& outItem) const = 0;
  // The innermost there; kRoot for none.
  virtual ID GetAccessibleAt(const Point& inDataPoint) const = 0;
  // The item with the keyboard, while the view has it; kRoot for none, as the base answers.
  virtual ID GetAccessibleFocus() const;
  // One of the actions that the item has. False if it was not done, as the base answers.
  virtual bool PerformAccessible(ID inItem, lumui::ui::AccessibleAction inAction);

 protected:
  AccessibleOverlay() = default;
  AccessibleOverlay(const AccessibleOverlay&) = default;
  AccessibleOverlay& operator=(const AccessibleOverlay&) = default;

  // Tells that an item of this overlay, which stands in inView, has changed. kRoot stands for all.
  void NotifyAccessible(const TrackView& inView, lumui::ui::AccessibleChange inChange,
                        ID inItem) const;
};

}  // namespace vek::trackview
