// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/trackview/LUMTrackerCapture.h"

#include <cmath>

#include "lumui/ui/UI_NodeManager.h"
#include "vek/trackview/LUMPlatformView.h"
#include "vek/trackview/StCurrentEvent.h"

namespace vek::trackview {

namespace {

using lumui::ui::MouseEvent;

constexpr float kMenuSlop = 4;  // local units that a right click may move on either axis

}  // namespace

LUMTrackerCapture::LUMTrackerCapture(LUMPlatformView& inView, const MouseEvent& inPress,
                                     bool inRouteRightButton)
    : InputCapture(&inView),
      mView(&inView),
      mLastEvent(inPress),
      mPressPosition(inPress.GetPosition()),
      mRouteRightButton(inRouteRightButton),
      mRightButtonPending(inView.mRightButtonPending) {}

LUMTrackerCapture::~LUMTrackerCapture() = default;

void LUMTrackerCapture::DoEnd() {
  const lumcore::utility::StKeepAlive keepAlive(*this);
  mView->mGesture.End(*mView, mLastEvent.GetModKey(), mView->ToData(mLastEvent.GetPosition()));
}

// What it answers true for must not reach the view as well.
bool LUMTrackerCapture::DoMouseEvent(const MouseEvent& inEvent) {
  const lumcore::utility::StKeepAlive keepAlive(*this);
  const LUMPlatformView::StCurrentEvent current(*mView, inEvent);
  mLastEvent = inEvent;
  const Point dataPoint = mView->NotePointer(inEvent);
  switch (inEvent.GetAction()) {
    case MouseEvent::kActionRelease:
      return Release(inEvent);
    case MouseEvent::kActionMove:
      mView->mGesture.Move(*mView, inEvent.GetModKey(), dataPoint);
      return true;
    case MouseEvent::kActionLeave:
      if (mView->GetTrackView()) mView->GetTrackView()->MouseExitEvent();
      return true;
    default:
      return false;
  }
}

// The menu comes when the tracker has ended.
bool LUMTrackerCapture::Release(const MouseEvent& inEvent) {
  const bool right = inEvent.IsButton(MouseEvent::kRightButton);
  if (!right && !inEvent.IsButton(MouseEvent::kLeftButton)) return false;
  lumui::ui::UI_NodeManager::Get(true)->EndInputCapture(false);
  const Point moved = inEvent.GetPosition() - mPressPosition;
  if (right && std::abs(moved.x) <= kMenuSlop && std::abs(moved.y) <= kMenuSlop) {
    mView->ShowContextMenu(inEvent.GetPosition());
  }
  return true;
}

}  // namespace vek::trackview
