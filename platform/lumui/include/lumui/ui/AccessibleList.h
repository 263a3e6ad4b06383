// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>

#include "lumui/Export.h"
#include "lumui/ui/Accessible.h"

namespace lumui::ui {

// For a node that draws things without others in them: rows of a list, the keys of a keyboard. The
// things are counted from 0 and asked for by their numbers; a number means whatever stands there
// now. The node that draws holds one, and outlives it.
class LUMUI_API AccessibleList : public AccessibleItems {
 public:
  using Index = std::optional<std::size_t>;

  explicit AccessibleList(UI_Node& inNode) : mNode(inNode) {}

  // Tells that one has changed, or with nothing that all have.
  void Notify(AccessibleChange inChange, Index inItem = std::nullopt);

  int GetChildCount(const AccessibleID& inParent) const final;
  AccessibleID GetChild(const AccessibleID& inParent, int inIndex) const final;
  AccessibleID GetParent(const AccessibleID& inItem) const final;
  int GetIndex(const AccessibleID& inItem) const final;
  bool Describe(const AccessibleID& inItem, AccessibleItem& outItem) const final;
  AccessibleID GetAt(const lumcore::geom::PointT<float>& inPosition) const final;
  AccessibleID GetFocus() const final;
  bool Perform(const AccessibleID& inItem, AccessibleAction inAction) final;

 protected:
  virtual std::size_t DoCount() const = 0;
  virtual AccessibleItem DoDescribe(std::size_t inItem) const = 0;
  virtual Index DoFindAt(const lumcore::geom::PointT<float>& inPosition) const = 0;
  // The one that the keys work on, while the node has the keyboard.
  virtual Index DoFindFocus() const = 0;
  // One of the actions that the thing has. False if it was not done.
  virtual bool DoPerform(std::size_t inItem, AccessibleAction inAction) = 0;

 private:
  AccessibleID IDOf(Index inItem) const;
  Index IndexOf(const AccessibleID& inItem) const;

  UI_Node& mNode;
};

}  // namespace lumui::ui
