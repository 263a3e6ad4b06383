// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "lumui/ui/Accessible.h"
#include "vek/trackview/AccessibleOverlay.h"

namespace vek::trackview {

class PlatformView;

// The items of all overlays of a view as the children of its node, and their places in local space.
// An item names its overlay, which may be no more when it is asked for.
class ViewItems : public lumui::ui::AccessibleItems {
 public:
  explicit ViewItems(const PlatformView& inView) : mView(inView) {}
  ~ViewItems() override = default;

  int GetChildCount(const lumui::ui::AccessibleID& inParent) const override;
  lumui::ui::AccessibleID GetChild(const lumui::ui::AccessibleID& inParent,
                                   int inIndex) const override;
  lumui::ui::AccessibleID GetParent(const lumui::ui::AccessibleID& inItem) const override;
  int GetIndex(const lumui::ui::AccessibleID& inItem) const override;
  bool Describe(const lumui::ui::AccessibleID& inItem,
                lumui::ui::AccessibleItem& outItem) const override;
  lumui::ui::AccessibleID GetAt(const Point& inPosition) const override;
  lumui::ui::AccessibleID GetFocus() const override;
  bool Perform(const lumui::ui::AccessibleID& inItem,
               lumui::ui::AccessibleAction inAction) override;

 private:
  std::vector<AccessibleOverlay*> GetOverlays() const;
  AccessibleOverlay* OverlayOf(const lumui::ui::AccessibleID& inItem) const;  // null for none

  const PlatformView& mView;
};

}  // namespace vek::trackview
