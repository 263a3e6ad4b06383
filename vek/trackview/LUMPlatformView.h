// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <set>

#include "lumui/ui/UI_SubView.h"
#include "vek/config/Export.h"
#include "vek/trackview/DropGesture.h"
#include "vek/trackview/Gesture.h"
#include "vek/trackview/PlatformView.h"

namespace lumui::controls {
class UI_InteractiveControlChangedMessage;
class UI_ScrollView;
}  // namespace lumui::controls
namespace lumui::ui {
class AccessibleItems;
struct OS_Event;
}  // namespace lumui::ui

namespace vek::trackview {

// The platform view on the node layer: the content of a scroll view, which is the nearest one
// around it, or a plain node without one. Every event of the node enters the track view here. It is
// held by reference, and stays until the event in which it is dropped has been handled; a gesture
// that runs then ends by the capture's end, and one without a capture goes without its end.
//
// Exceptions of overlays and trackers pass through to the node layer.
class VEK_API LUMPlatformView : public lumui::ui::UI_SubView, public PlatformView {
 public:
  LUMPlatformView();
  // Deletes the trackers and then the track view, while their calls are still answered.
  ~LUMPlatformView() override;

  void UI_SetLocalRectF(const Rect& inRect) override;
  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override;
  bool UI_DoMouseEvent(lumui::ui::UI_Node* inNode, const lumui::ui::MouseEvent& inEvent) override;
  // The cursor is for the tracker that hovers, in the move that follows.
  bool UI_DoCursor(lumui::ui::UI_Node* inNode, const lumui::ui::MouseEvent& inEvent) override;
  // System keys are left to the window.
  bool UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                          const lumui::ui::KeyboardEvent& inEvent) override;
  bool UI_WantsKeyboardFocus() const override;
  void UI_DoTimerNotify(unsigned int inTimerID) override;
  void UI_FocusChanged(int inReason) override;
  bool UI_DoMouseWheel(lumui::ui::UI_Node* inNode, const lumui::ui::WheelEvent& inEvent) override;
  // What the overlays offer that are AccessibleOverlays, the nearest first.
  lumui::ui::AccessibleItems* UI_GetAccessibleItems() override;
  // Drags go to the trackers of the overlays that want them; positions are local.
  bool UI_WantsDragDropEvents() const override;
  bool UI_HandleDragEnter(Point inPosition, lumui::datatransfer::OS_ReceiveData& inData,
                          int& ioEffect) override;
  bool UI_HandleDragOver(Point inPosition, lumui::datatransfer::OS_ReceiveData& inData,
                         int& ioEffect) override;
  void UI_HandleDragLeave(lumui::datatransfer::OS_ReceiveData& inData) override;
  bool UI_HandleDrop(Point inPosition, lumui::datatransfer::OS_ReceiveData& inData,
                     int& ioEffect) override;

  virtual void UpdateNow();
  // What the scroll view shows, in local space. Not TrackView::LocalArea, which goes through data.
  virtual Rect LocalArea() const;
  // Shows what a press would do where the pointer was last, as a move does. For hosts, after the
  // content has changed under the pointer. Nothing in the middle of a gesture.
  virtual void DoNonMouseTrack(bool inOnlyIfInside);
  // UTF-16. -1 and null take the interface's own size and font.
  virtual float MeasureStringWidth(const unsigned short* inText, int inLength,
                                   const unsigned short* inFontName, float inFontSize) const;

  using PlatformView::DataPos;
  void GlobalToLocal(Point& ioPoint) const override;
  void LocalToGlobal(Point& ioPoint) const override;
  void InvalidateDataRect(const Rect& inDataRect) override;
  void ValidateDataRect(const Rect& inDataRect) override;
  Point DataSize() const override;
  Point DataPos() const override;
  unsigned char GetClickCount() override;
  const lumui::drawbot::SupplierInterface* GetDrawSupplier() const override;
  void DisplayResized(bool inRedraw) override;
  void StartTimer(unsigned int inTimerID, float inInterval) override;
  void StopTimer(unsigned int inTimerID) override;
  std::auto_ptr<lumui::datatransfer::OS_SendDataBase> GetSendData() override;
  bool IsTracking() const override;

  // Whether the Tab key stops here; it does at start. A press takes the focus in either case.
  void SetWantsKeyboardFocus(bool inWants) { mWantsKeyboardFocus = inWants; }
  // Who takes the focus on a press in place of this view, as a list does for its header. Null, as
  // at start, for this view; a node that goes is taken away before.
  void SetFocusTaker(UI_Node* inNode) { mFocusTaker = inNode; }
  // Whether Ctrl and the wheel zoom, within the scale range; they scroll at start. What is under
  // the pointer stays there as far as the content reaches.
  void SetZoomsByWheel(bool inZooms) { mZoomsByWheel = inZooms; }
  // Null but while one is handled.
  const lumui::ui::MouseEvent* GetCurrentMouseEvent() const { return mCurrentMouseEvent; }

 private:
  friend class LUMTrackerCapture;
  friend class PlatformScrollView;
  class StCurrentEvent;

  void DoDataPos(const Point& inDataPoint, bool inFlag) override;

  void ButtonDownHelper(Modifiers inModifiers, const Point& inDataPoint,
                        const lumui::ui::MouseEvent& inEvent);
  void ScrollBarChanged(lumui::controls::UI_InteractiveControlChangedMessage* inMessage);
  Point NotePointer(const lumui::ui::MouseEvent& inEvent);
  void ShowContextMenu(const Point& inLocalPoint);
  void ZoomAt(const Point& inLocalPoint, float inFactor);

  lumui::controls::UI_ScrollView* FindScrollView() const;
  Point GetScrollOrigin() const;  // (0, 0) without a scroll view
  Point ToData(const Point& inLocalPoint) const;

  unsigned char mClickCount = 1;
  [[maybe_unused]] bool mReserved = false;
  bool mWantsKeyboardFocus = true;
  bool mRightButtonPending = false;
  const lumui::ui::MouseEvent* mCurrentMouseEvent = nullptr;
  Gesture mGesture;
  const lumui::ui::OS_Event* mCurrentOSEvent = nullptr;
  Point mLastDataPoint;
  Modifiers mLastModifiers;
  DropGesture mDropGesture;
  std::set<unsigned int> mTimers;  // that run
  const std::unique_ptr<lumui::ui::AccessibleItems> mAccessibleItems;
  bool mZoomsByWheel = false;
  UI_Node* mFocusTaker = nullptr;
};

}  // namespace vek::trackview
