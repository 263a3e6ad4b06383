// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "lumcore/Strings.h"
#include "lumcore/geom/Point.h"
#include "lumcore/geom/Rect.h"
#include "lumui/Export.h"

namespace lumui::ui {

class UI_Node;

// A thing that a node draws by itself, for those who do not see it: the node's own number for it
// and the part of the node that knows the number. Without an owner it is the node itself.
struct AccessibleID {
  const void* owner = nullptr;
  std::uint64_t value = 0;

  bool IsNode() const { return owner == nullptr; }
  friend bool operator==(const AccessibleID& inA, const AccessibleID& inB) {
    return inA.owner == inB.owner && inA.value == inB.value;
  }
};

enum class AccessibleRole {
  kTree,
  kTreeItem,
  kList,
  kListItem,
  kTable,
  kRow,
  kCell,
  kColumnHeader,
  kGroup,
  kGraphic,
  kText,
  kButton,
};

// Summed in AccessibleItem::states. One that is out of view is so by its rectangle.
enum AccessibleState : unsigned {
  kAccessibleSelectable = 1,
  kAccessibleSelected = 2,
  kAccessibleFocusable = 4,
  kAccessibleFocused = 8,
  kAccessibleExpandable = 16,
  kAccessibleExpanded = 32,
  kAccessibleDisabled = 64,
};

// Summed in AccessibleItem::actions.
enum AccessibleAction : unsigned {
  kAccessiblePress = 1,
  kAccessibleExpand = 2,
  kAccessibleCollapse = 4,
  kAccessibleSelect = 8,
  kAccessibleShow = 16,  // scroll it into view
};

struct AccessibleItem {
  AccessibleRole role = AccessibleRole::kGroup;
  lumcore::UTF16String name;
  lumcore::UTF16String description;
  lumcore::UTF16String value;
  lumcore::geom::RectT<float>
      rect;       // as the node draws, so in a scroll view in content coordinates
  int level = 0;  // in a tree, from 1; 0 for none
  unsigned states = 0;
  unsigned actions = 0;
};

// What a node tells of the things that it draws: a tree of items, made on demand, so that a view of
// very many costs only what is asked for. Ids are asked about also when their items have gone. The
// node owns it and outlives every question. Throwing is no answer.
class LUMUI_API AccessibleItems {
 public:
  virtual ~AccessibleItems();

  virtual int GetChildCount(const AccessibleID& inParent) const = 0;
  // The node itself where there is none.
  virtual AccessibleID GetChild(const AccessibleID& inParent, int inIndex) const = 0;
  virtual AccessibleID GetParent(const AccessibleID& inItem) const = 0;
  virtual int GetIndex(const AccessibleID& inItem) const = 0;  // in its parent; -1 for gone
  // False if the item has gone.
  virtual bool Describe(const AccessibleID& inItem, AccessibleItem& outItem) const = 0;
  virtual AccessibleID GetAt(const lumcore::geom::PointT<float>& inPosition) const = 0;
  virtual AccessibleID GetFocus() const = 0;
  // False if it was not done.
  virtual bool Perform(const AccessibleID& inItem, AccessibleAction inAction) = 0;

 protected:
  AccessibleItems() = default;
};

enum class AccessibleChange {
  kItems,      // others have come or gone, below this one
  kFocus,      // this one has it now
  kSelection,  // it was selected, or no more
  kState,      // expanded, disabled
  kName,
};

// Tells those who read the screen, if anybody does. Cheap if not.
LUMUI_API void NotifyAccessibleChange(UI_Node& inNode, AccessibleChange inChange,
                                      const AccessibleID& inItem);

}  // namespace lumui::ui
