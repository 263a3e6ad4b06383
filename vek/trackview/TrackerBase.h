// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/utility/Flags.h"

namespace vek::trackview {

// What a gesture tells the one that tracks it. The only instance is that of Tracker.
template <class PointT>
class TrackerBase {
 public:
  virtual ~TrackerBase() = default;
  TrackerBase(const TrackerBase&) = delete;
  TrackerBase& operator=(const TrackerBase&) = delete;

  // inHover: no button is down. Such a tracker shows what a press would do, and dies at once.
  virtual void BeginTracking(lumcore::utility::Flags<unsigned char> inModifiers,
                             const PointT& inDataPoint, bool inHover) = 0;
  virtual void ContinueTracking(lumcore::utility::Flags<unsigned char> inModifiers,
                                const PointT& inDataPoint) = 0;
  // inCompleted is false where a drag has left the view; the point says nothing then. A mouse
  // gesture that is cut short ends completed, where the pointer was last.
  virtual void EndTracking(lumcore::utility::Flags<unsigned char> inModifiers,
                           const PointT& inDataPoint, bool inCompleted) = 0;

 protected:
  TrackerBase() = default;
};

}  // namespace vek::trackview
