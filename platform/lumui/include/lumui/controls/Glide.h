// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <deque>

#include "lumcore/geom/Point.h"
#include "lumui/Export.h"

namespace lumui::controls {

// How a view that is flicked goes on when the fingers have left it: it begins with their speed and
// loses a constant share of it in each moment. It counts in units of the view and in seconds, and
// knows no clock: whoever moves the view tells it the times of the fingers, and asks for steps.
class LUMUI_API Glide {
 public:
  using Way = lumcore::geom::PointT<double>;

  static constexpr double kStep = 1.0 / 60;  // seconds

  // The fingers have moved by so much.
  void Follow(const Way& inWay, double inTime);
  // The fingers have gone. True if they were fast enough for the view to go on.
  bool Release(double inTime);
  void Stop();
  bool IsRunning() const { return mSpeed != Way(); }
  // The way of the next step; none when it has come to rest.
  Way Step();

 private:
  struct Part {
    double time;
    Way way;
  };

  std::deque<Part> mParts;  // the last ones of the fingers
  Way mSpeed;               // units in a second
};

}  // namespace lumui::controls
