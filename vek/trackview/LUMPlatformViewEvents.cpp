// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <cmath>

#include "lumcore/utility/ScopedValue.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/PointerEvent.h"
#include "lumui/ui/UI_NodeManager.h"
#include "vek/trackview/LUMPlatformView.h"
#include "vek/trackview/LUMTrackerCapture.h"
#include "vek/trackview/StCurrentEvent.h"

namespace vek::trackview {

namespace {

using lumcore::utility::StKeepAlive;
using lumui::ui::MouseEvent;
using lumui::ui::UI_NodeManager;

constexpr int kDoubleClick = 2;
constexpr float kZoomANotch = 1.25f;

// Whether the button of the press is held now.
bool IsHeld(const MouseEvent& inPress) {
  return inPress.IsButton(UI_NodeManager::Get(true)->GetHeldButtons());
}

}  // namespace

bool LUMPlatformView::UI_DoMouseEvent(lumui::ui::UI_Node* inNode, const MouseEvent& inEvent) {
  const StKeepAlive keepAlive(*this);
  const StCurrentEvent current(*this, inEvent);
  if (inNode != this) return false;
  const Point dataPoint = NotePointer(inEvent);
  switch (inEvent.GetAction()) {
    case MouseEvent::kActionPress:
      ButtonDownHelper(inEvent.GetModKey(), dataPoint, inEvent);
      return true;
    case MouseEvent::kActionRelease:
      mRightButtonPending = false;
      if (inEvent.IsButton(MouseEvent::kRightButton)) ShowContextMenu(inEvent.GetPosition());
      return false;
    case MouseEvent::kActionMove:
      mGesture.Move(*this, inEvent.GetModKey(), dataPoint);
      return true;
    default:
      return false;
  }
}

Point LUMPlatformView::NotePointer(const MouseEvent& inEvent) {
  mLastDataPoint = ToData(inEvent.GetPosition());
  mLastModifiers = inEvent.GetModKey();
  return mLastDataPoint;
}

void LUMPlatformView::ShowContextMenu(const Point& inLocalPoint) {
  if (GetTrackView()) GetTrackView()->ContextMenu(inLocalPoint, *this);
}

void LUMPlatformView::ButtonDownHelper(Modifiers inModifiers, const Point& inDataPoint,
                                       const MouseEvent& inEvent) {
  const bool wasHeld = IsHeld(inEvent);
  if (inEvent.GetClickCount() == kDoubleClick && GetTrackView() &&
      GetTrackView()->DoubleClick(inModifiers, inDataPoint)) {
    return;
  }
  UI_Node& taker = mFocusTaker ? *mFocusTaker : *this;
  if (!taker.UI_HasKeyboardFocus()) taker.UI_SetKeyboardFocus(lumui::ui::kFocusPointer);
  mClickCount = static_cast<unsigned char>(inEvent.GetClickCount());
  if (!mGesture.Begin(*this, inModifiers, inDataPoint)) return;
  // Also without a tracker: the release of the right button is the capture's.
  const boost::intrusive_ptr<LUMTrackerCapture> capture(
      new LUMTrackerCapture(*this, inEvent, RoutesRightButtonThroughTracker()));
  UI_NodeManager* const manager = UI_NodeManager::Get(true);
  manager->BeginInputCapture(capture);
  // A box that the tracker opened has had the release, so no other one will come.
  if (wasHeld && !IsHeld(inEvent) && capture->IsRunning()) manager->EndInputCapture(false);
}

bool LUMPlatformView::UI_DoCursor(lumui::ui::UI_Node*, const MouseEvent&) {
  return false;
}

bool LUMPlatformView::UI_DoKeyboardEvent(lumui::ui::UI_Node*,
                                         const lumui::ui::KeyboardEvent& inEvent) {
  const unsigned message = inEvent.GetOSEvent()->message;
  if (message == lumui::ui::kMessageSysKeyDown || message == lumui::ui::kMessageSysChar) {
    return false;
  }
  return GetTrackView() && GetTrackView()->KeyEvent(inEvent);
}

bool LUMPlatformView::UI_WantsKeyboardFocus() const {
  return mWantsKeyboardFocus;
}

void LUMPlatformView::UI_DoTimerNotify(unsigned int inTimerID) {
  const StKeepAlive keepAlive(*this);
  if (GetTrackView() && GetTrackView()->TimerEvent(inTimerID)) return;
  // One of a track view that another has replaced; nobody else knows of it.
  if (mTimers.count(inTimerID) != 0) StopTimer(inTimerID);
}

void LUMPlatformView::UI_FocusChanged(int inReason) {
  const StKeepAlive keepAlive(*this);
  if (UI_HasKeyboardFocus() && GetTrackView()) GetTrackView()->ViewActivation();
  UI_SubView::UI_FocusChanged(inReason);
}

bool LUMPlatformView::UI_DoMouseWheel(lumui::ui::UI_Node* inNode,
                                      const lumui::ui::WheelEvent& inEvent) {
  const StKeepAlive keepAlive(*this);
  const bool zooms =
      mZoomsByWheel && GetTrackView() && inEvent.GetModKey().Has(lumui::ui::kModCommand);
  if (!zooms) return UI_SubView::UI_DoMouseWheel(inNode, inEvent);
  ZoomAt(inEvent.GetPosition(), std::pow(kZoomANotch, -inEvent.GetNotches().y));
  return true;
}

void LUMPlatformView::ZoomAt(const Point& inLocalPoint, float inFactor) {
  TrackView& trackView = *GetTrackView();
  const Point inView = inLocalPoint - GetScrollOrigin();
  const float old = trackView.GetCoordScale();
  Point local = ToData(inLocalPoint);
  trackView.SetCoordScale(old * inFactor, true, Point(-1, -1));
  if (trackView.GetCoordScale() == old) return;
  trackView.DataToLocal(local);
  DataPos(ToData(local - inView), true);
  InvalidateDataRect(trackView.DataArea());
}

void LUMPlatformView::DoNonMouseTrack(bool inOnlyIfInside) {
  const StKeepAlive keepAlive(*this);
  if (!GetTrackView() || mGesture.HasTracker()) return;
  Rect area = LocalArea();
  GetTrackView()->LocalToData(area);
  if (inOnlyIfInside && !area.Contains(mLastDataPoint)) return;
  mGesture.Hover(*this, mLastModifiers, mLastDataPoint);
}

bool LUMPlatformView::UI_WantsDragDropEvents() const {
  const StKeepAlive keepAlive(*this);
  return GetTrackView() && GetTrackView()->WantsDragDropEvents();
}

bool LUMPlatformView::UI_HandleDragEnter(Point inPosition,
                                         lumui::datatransfer::OS_ReceiveData& inData,
                                         int& ioEffect) {
  const StKeepAlive keepAlive(*this);
  return mDropGesture.Enter(*this, inPosition, inData, ioEffect);
}

bool LUMPlatformView::UI_HandleDragOver(Point inPosition,
                                        lumui::datatransfer::OS_ReceiveData& inData,
                                        int& ioEffect) {
  const StKeepAlive keepAlive(*this);
  return mDropGesture.Over(*this, inPosition, inData, ioEffect);
}

void LUMPlatformView::UI_HandleDragLeave(lumui::datatransfer::OS_ReceiveData&) {
  const StKeepAlive keepAlive(*this);
  mDropGesture.Leave(*this);
}

bool LUMPlatformView::UI_HandleDrop(Point inPosition, lumui::datatransfer::OS_ReceiveData& inData,
                                    int& ioEffect) {
  const StKeepAlive keepAlive(*this);
  return mDropGesture.Drop(*this, inPosition, inData, ioEffect);
}

std::auto_ptr<lumui::datatransfer::OS_SendDataBase> LUMPlatformView::GetSendData() {
  return std::auto_ptr<lumui::datatransfer::OS_SendDataBase>(
      new lumui::datatransfer::OS_SendData(mCurrentOSEvent));
}

bool LUMPlatformView::IsTracking() const {
  return mGesture.HasTracker();
}

void LUMPlatformView::ScrollBarChanged(lumui::controls::UI_InteractiveControlChangedMessage*) {
  const StKeepAlive keepAlive(*this);
  CallPositionListeners();
}

}  // namespace vek::trackview
