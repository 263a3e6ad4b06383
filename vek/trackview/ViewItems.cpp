// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/trackview/ViewItems.h"

#include "vek/trackview/PlatformView.h"

namespace vek::trackview {

using lumui::ui::AccessibleID;

namespace {

AccessibleID Named(const AccessibleOverlay* inOverlay, AccessibleOverlay::ID inItem) {
  return inItem == AccessibleOverlay::kRoot ? AccessibleID() : AccessibleID{inOverlay, inItem};
}

}  // namespace

std::vector<AccessibleOverlay*> ViewItems::GetOverlays() const {
  std::vector<AccessibleOverlay*> overlays;
  if (!mView.GetTrackView()) return overlays;
  for (Overlay* const overlay : mView.GetTrackView()->GetOverlays()) {
    auto* const accessible = dynamic_cast<AccessibleOverlay*>(overlay);
    if (accessible && overlay->GetState() == Overlay::kStateActive) overlays.push_back(accessible);
  }
  return overlays;
}

AccessibleOverlay* ViewItems::OverlayOf(const AccessibleID& inItem) const {
  for (AccessibleOverlay* const overlay : GetOverlays())
    if (overlay == inItem.owner) return overlay;
  return nullptr;
}

int ViewItems::GetChildCount(const AccessibleID& inParent) const {
  if (!inParent.IsNode()) {
    const AccessibleOverlay* const overlay = OverlayOf(inParent);
    return overlay ? overlay->GetAccessibleChildCount(inParent.value) : 0;
  }
  int count = 0;
  for (const AccessibleOverlay* const overlay : GetOverlays())
    count += overlay->GetAccessibleChildCount(AccessibleOverlay::kRoot);
  return count;
}

AccessibleID ViewItems::GetChild(const AccessibleID& inParent, int inIndex) const {
  if (!inParent.IsNode()) {
    const AccessibleOverlay* const overlay = OverlayOf(inParent);
    return overlay ? Named(overlay, overlay->GetAccessibleChild(inParent.value, inIndex))
                   : AccessibleID();
  }
  int index = inIndex;
  for (const AccessibleOverlay* const overlay : GetOverlays()) {
    const int count = overlay->GetAccessibleChildCount(AccessibleOverlay::kRoot);
    if (index < count)
      return Named(overlay, overlay->GetAccessibleChild(AccessibleOverlay::kRoot, index));
    index -= count;
  }
  return AccessibleID();
}

AccessibleID ViewItems::GetParent(const AccessibleID& inItem) const {
  const AccessibleOverlay* const overlay = OverlayOf(inItem);
  return overlay ? Named(overlay, overlay->GetAccessibleParent(inItem.value)) : AccessibleID();
}

int ViewItems::GetIndex(const AccessibleID& inItem) const {
  int before = 0;
  for (const AccessibleOverlay* const overlay : GetOverlays()) {
    if (overlay == inItem.owner) {
      const int index = overlay->GetAccessibleIndex(inItem.value);
      const bool outermost = overlay->GetAccessibleParent(inItem.value) == AccessibleOverlay::kRoot;
      return index < 0 || !outermost ? index : before + index;
    }
    before += overlay->GetAccessibleChildCount(AccessibleOverlay::kRoot);
  }
  return -1;
}

bool ViewItems::Describe(const AccessibleID& inItem, lumui::ui::AccessibleItem& outItem) const {
  const AccessibleOverlay* const overlay = OverlayOf(inItem);
  if (!overlay || !overlay->DescribeAccessible(inItem.value, outItem)) return false;
  mView.GetTrackView()->DataToLocal(outItem.rect);
  return true;
}

AccessibleID ViewItems::GetAt(const Point& inPosition) const {
  for (const AccessibleOverlay* const overlay : GetOverlays()) {
    Point point = inPosition;
    mView.GetTrackView()->LocalToData(point);
    const AccessibleID item = Named(overlay, overlay->GetAccessibleAt(point));
    if (!item.IsNode()) return item;
  }
  return AccessibleID();
}

AccessibleID ViewItems::GetFocus() const {
  for (const AccessibleOverlay* const overlay : GetOverlays()) {
    const AccessibleID item = Named(overlay, overlay->GetAccessibleFocus());
    if (!item.IsNode()) return item;
  }
  return AccessibleID();
}

bool ViewItems::Perform(const AccessibleID& inItem, lumui::ui::AccessibleAction inAction) {
  AccessibleOverlay* const overlay = OverlayOf(inItem);
  return overlay && overlay->PerformAccessible(inItem.value, inAction);
}

}  // namespace vek::trackview
