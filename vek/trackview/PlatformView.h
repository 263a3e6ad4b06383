// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>
#include <list>
#include <memory>

#include "lumui/datatransfer/OS_SendData.h"
#include "vek/config/Export.h"
#include "vek/trackview/TrackView.h"
#include "vek/trackview/Types.h"

namespace lumui::drawbot {
class SupplierInterface;
}

namespace vek::trackview {

// The window side of a track view, which it owns: where the content stands, what is to be drawn
// anew, timers, clicks. All that a track view and its overlays know of the window system is here.
class VEK_API PlatformView {
 public:
  using PositionListener = boost::shared_ptr<boost::function<void(PlatformView*)>>;

  PlatformView();
  // A subclass whose operations overlays may call in their destructors takes the track view away
  // in its own destructor, as here they are gone.
  virtual ~PlatformView();
  PlatformView(const PlatformView&) = delete;
  PlatformView& operator=(const PlatformView&) = delete;

  // Between local space and that of the top-level window.
  virtual void GlobalToLocal(Point& ioPoint) const = 0;
  virtual void LocalToGlobal(Point& ioPoint) const = 0;
  virtual void InvalidateDataRect(const Rect& inDataRect) = 0;
  virtual void ValidateDataRect(const Rect& inDataRect) = 0;
  virtual Point DataSize() const = 0;         // what is visible, in data units
  virtual Point DataPos() const = 0;          // the data point at the top left of the view
  virtual unsigned char GetClickCount() = 0;  // of the last press
  virtual const lumui::drawbot::SupplierInterface* GetDrawSupplier() const = 0;
  // The content has another size, or lies otherwise.
  virtual void DisplayResized(bool inRedraw) = 0;
  virtual void StartTimer(unsigned int inTimerID, float inInterval) = 0;  // seconds
  virtual void StopTimer(unsigned int inTimerID) = 0;
  // For a drag that begins with the event that is being handled.
  virtual std::auto_ptr<lumui::datatransfer::OS_SendDataBase> GetSendData() = 0;
  virtual bool IsTracking() const = 0;

  TrackView* GetTrackView() const { return mTrackView; }
  // Takes it over and deletes the one before. Not in the middle of a gesture (a contract).
  void SetTrackView(std::auto_ptr<TrackView>& ioTrackView);

  // Moves the view and calls the position listeners, also where it stays. The flag asks for drawing
  // before it returns. Whoever overrides the reading DataPos brings this one in by a using.
  void DataPos(const Point& inDataPoint, bool inFlag);
  // Follows another view on the axes that are told, and calls the listeners of this one.
  void DependantDataPosChanged(PlatformView* inOther, bool inTakeX, bool inTakeY);
  // The function is called in the order of adding with the view that has moved. Its holder clears
  // it to unsubscribe. While it runs it is not called again for this view, so that views that
  // follow each other come to rest; it may destroy the view. What it throws goes to the mover.
  void NotifyWhenDataPosChanged(PositionListener inListener);

  // Kept for hosts; presses of all buttons go through trackers in either case.
  void RouteRightButtonThroughTracker(bool inRoute) { mRouteRightButton = inRoute; }

 protected:
  bool RoutesRightButtonThroughTracker() const { return mRouteRightButton; }
  // Whether the view empties its listeners' functions when it dies; not so at start.
  void SetEmptiesPositionListeners(bool inEmpties) { mEmptiesListeners = inEmpties; }
  void CallPositionListeners();
  // Called when another track view takes the place of this one.
  void SetBeforeTrackViewGoes(const boost::function<void()>& inFunction) {
    mBeforeTrackViewGoes = inFunction;
  }

 private:
  struct ListenerCall;

  virtual void DoDataPos(const Point& inDataPoint, bool inFlag) = 0;

  bool mRouteRightButton = false;
  TrackView* mTrackView = nullptr;  // owned
  std::list<PositionListener> mPositionListeners;
  bool mEmptiesListeners = false;
  ListenerCall* mInnermostCall = nullptr;
  boost::function<void()> mBeforeTrackViewGoes;
};

}  // namespace vek::trackview
