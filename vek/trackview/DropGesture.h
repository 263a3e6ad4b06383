// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/shared_ptr.hpp>

#include "vek/trackview/Types.h"

namespace lumui::datatransfer {
class OS_ReceiveData;
}

namespace vek::trackview {

class PlatformView;

// The drag over a platform view: it holds the tracker that serves it, if any, and the interface
// that the tracker has. Apart from the view's mouse gesture; nobody is told the news of its steps.
//
// An operation of the tracker may open a loop of its own in which the drag ends, or another one
// enters. The drag that is over keeps its tracker until the operation returns.
class DropGesture {
 public:
  DropGesture();
  ~DropGesture();  // without EndTracking
  DropGesture(const DropGesture&) = delete;
  DropGesture& operator=(const DropGesture&) = delete;

  // Points are local. The bool is whether a tracker serves the drag; if not, outEffect stays.
  bool Enter(PlatformView& inView, const Point& inLocalPoint,
             lumui::datatransfer::OS_ReceiveData& inData, int& outEffect);
  bool Over(PlatformView& inView, const Point& inLocalPoint,
            lumui::datatransfer::OS_ReceiveData& inData, int& outEffect);
  void Leave(PlatformView& inView);
  bool Drop(PlatformView& inView, const Point& inLocalPoint,
            lumui::datatransfer::OS_ReceiveData& inData, int& outEffect);
  // The track view goes: the drag goes on without a tracker.
  void DeleteTracker();
  // The tracker first, then its interface.
  void DeleteAll();

 private:
  struct Drag;
  class StStep;

  boost::shared_ptr<Drag> mDrag;
};

}  // namespace vek::trackview
