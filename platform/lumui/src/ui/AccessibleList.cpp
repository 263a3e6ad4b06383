// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/AccessibleList.h"

namespace lumui::ui {

using lumcore::geom::PointT;

AccessibleID AccessibleList::IDOf(Index inItem) const {
  return inItem && *inItem < DoCount() ? AccessibleID{this, *inItem} : AccessibleID();
}

AccessibleList::Index AccessibleList::IndexOf(const AccessibleID& inItem) const {
  const bool isHere = inItem.owner == this && inItem.value < DoCount();
  return isHere ? Index(static_cast<std::size_t>(inItem.value)) : std::nullopt;
}

void AccessibleList::Notify(AccessibleChange inChange, Index inItem) {
  NotifyAccessibleChange(mNode, inChange, IDOf(inItem));
}

int AccessibleList::GetChildCount(const AccessibleID& inParent) const {
  return inParent.IsNode() ? static_cast<int>(DoCount()) : 0;
}

AccessibleID AccessibleList::GetChild(const AccessibleID& inParent, int inIndex) const {
  return inParent.IsNode() && inIndex >= 0 ? IDOf(static_cast<std::size_t>(inIndex))
                                           : AccessibleID();
}

AccessibleID AccessibleList::GetParent(const AccessibleID&) const {
  return {};
}

int AccessibleList::GetIndex(const AccessibleID& inItem) const {
  const Index item = IndexOf(inItem);
  return item ? static_cast<int>(*item) : -1;
}

bool AccessibleList::Describe(const AccessibleID& inItem, AccessibleItem& outItem) const {
  const Index item = IndexOf(inItem);
  if (item) outItem = DoDescribe(*item);
  return item.has_value();
}

AccessibleID AccessibleList::GetAt(const PointT<float>& inPosition) const {
  return IDOf(DoFindAt(inPosition));
}

AccessibleID AccessibleList::GetFocus() const {
  return IDOf(DoFindFocus());
}

bool AccessibleList::Perform(const AccessibleID& inItem, AccessibleAction inAction) {
  const Index item = IndexOf(inItem);
  return item && DoPerform(*item, inAction);
}

}  // namespace lumui::ui
