// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <list>
#include <memory>

#include "vek/config/Export.h"
#include "vek/messaging/Broadcaster.h"
#include "vek/trackview/Overlay.h"
#include "vek/trackview/Tracker.h"
#include "vek/trackview/TrackerChangeMessage.h"
#include "vek/trackview/Types.h"

namespace vek::trackview {

class PlatformView;

// The logical surface of one scrollable, zoomable view: how its content lies in the view, the stack
// of overlays that draw it and take its events, and their timers. It knows nothing of windows. The
// platform view owns it, outlives it, feeds it events and is all that it has to do with the screen.
//
// An overlay may install and remove overlays in the middle of a call. What overlays throw goes to
// the caller of the operation; the overlays behind it are not asked then.
class VEK_API TrackView {
 public:
  // The scale starts at 1, whatever the limits say.
  TrackView(PlatformView& inPlatformView, bool inCentering, float inScaleMin, float inScaleMax);
  virtual ~TrackView();
  TrackView(const TrackView&) = delete;
  TrackView& operator=(const TrackView&) = delete;

  // In place. A factor or scale of 0 makes LocalToData yield infinities.
  void DataToLocal(Point& ioPoint) const;
  void DataToLocal(Rect& ioRect) const;
  void LocalToData(Point& ioPoint) const;
  void LocalToData(Rect& ioRect) const;
  void DataToGlobal(Point& ioPoint) const;  // rounded to whole units of the window

  const Point& DataSize() const;
  Rect DataArea() const;   // the visible part, in data space
  Rect LocalArea() const;  // the visible part, in local space
  // The far corner of the content in local space, so with the offset in it.
  Point LocalSize() const;
  const Point& GetCoordOffset() const;  // local position of data (0, 0)
  const Point& GetCoordFactor() const;
  float GetCoordScale() const;
  float CoordinateScaleMin() const;
  float CoordinateScaleMax() const;

  // Does all the work also if the size is the old one.
  void ResizeDataSize(const Point& inSize, bool inRedraw);
  // Whether content that is smaller than the view lies in its middle.
  void SetCentering(bool inCentering);
  // The scale stays as it is, also where it is outside. With crossed limits the minimum wins.
  void SetCoordScaleRange(float inMin, float inMax);
  // The anchor is the data point that comes to the middle of the view; exactly (-1, -1) is none.
  // Where the limited scale is the old one nothing happens, to the position neither.
  void SetCoordScale(float inScale, bool inRedraw, const Point& inAnchor);
  // The same for the factors of the two axes, which have no limits.
  void SetCoordFactor(const Point& inFactor, bool inRedraw, const Point& inAnchor);

  // Move the view as little as brings the thing in. False if it was in view; a thing at the far
  // edge is not, though the position that is asked for may be the old one. Of a rectangle that is
  // too large the near edges are shown. The flag goes to PlatformView::DataPos.
  bool RevealPointIfNotInView(const Point& inDataPoint, bool inScrollFlag);
  bool RevealRectIfNotInView(const Rect& inDataRect, bool inScrollFlag);

  // Takes the overlay over and places it ahead of the others of its layer, or behind them.
  void InstallOverlay(std::auto_ptr<Overlay>& ioOverlay, bool inOnTop);
  // Stops its timers and deletes it. One that is not in the stack is left alone.
  void RemoveOverlay(Overlay* inOverlay);
  std::list<Overlay*> GetOverlays() const;  // as events go; drawing goes the other way

  // For the platform view. Points are in data space but for the menu's.
  std::auto_ptr<Tracker> AcquireTracker(const Point& inDataPoint, bool inHover,
                                        TrackerDragAndDropInterface* inDragAndDrop);
  bool DoubleClick(Modifiers inModifiers, const Point& inDataPoint);
  bool ContextMenu(const Point& inLocalPoint, lumui::ui::UI_Node& inNode);
  bool KeyEvent(const lumui::ui::KeyboardEvent& inEvent);
  bool WantsDragDropEvents() const;
  void GainedKeyFocus();
  void LostKeyFocus();
  void ViewActivation();
  void ViewPortResized();
  void MouseExitEvent();
  void ImageRect(const Rect& inDataRect, lumui::drawbot::Drawbot& inDrawbot,
                 boost::intrusive_ptr<lumui::ui::Theme> inTheme) const;
  bool TimerEvent(unsigned int inTimerID);  // false if it is none of this view

  // Seconds. Ids are unique in the process and start at 1. The timer repeats until it is stopped or
  // its overlay is removed.
  unsigned int StartTimerForOverlay(Overlay* inOverlay, float inInterval);
  // Another overlay's timer is left alone.
  void StopTimerForOverlay(Overlay* inOverlay, unsigned int inTimerID);
  void StopAllTimersForOverlay(Overlay* inOverlay);

  PlatformView& GetPlatformView() const;
  // Of this view; it tells each step of a mouse gesture.
  messaging::Broadcaster<TrackerChangeMessage>* GetTrackerBroadcaster();

 protected:
  // Where data (0, 0) lies, in local space. Asked whenever the content, the mapping or the view has
  // another size.
  virtual void CalculateCoordOffset(Point& outOffset) const;

 private:
  struct Record;

  Point GetMultiplier() const;
  void MappingChanged(bool inRedraw);
  void CenterOn(const Point& inAnchor);
  template <class Call>
  bool AskOverlays(const Call& inCall) const;
  template <class Call>
  void TellOverlays(const Call& inCall) const;

  Record* mRecord;  // owned
};

}  // namespace vek::trackview
