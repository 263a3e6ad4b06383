// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/Glide.h"

#include <algorithm>
#include <cmath>

namespace lumui::controls {

namespace {

// Seconds. What the fingers did before says nothing of how they left.
constexpr double kMemory = 0.1;
// Two moves in one moment are no speed.
constexpr double kLeastTime = 0.008;
// Units in a second: slower fingers have set the view down, and a slower view has come to rest.
constexpr double kLeastFlick = 60;
constexpr double kRest = 12;
constexpr double kMostSpeed = 20000;
// Seconds in which the speed goes down to a third; touch screens have made this one customary.
constexpr double kDecay = 0.325;

double LengthOf(const Glide::Way& inWay) {
  return std::hypot(inWay.x, inWay.y);
}

}  // namespace

void Glide::Follow(const Way& inWay, double inTime) {
  mSpeed = Way();
  mParts.push_back({inTime, inWay});
  while (mParts.front().time < inTime - kMemory)
    mParts.pop_front();
}

bool Glide::Release(double inTime) {
  while (!mParts.empty() && mParts.front().time < inTime - kMemory)
    mParts.pop_front();
  if (mParts.empty()) return false;
  // The first part is of the time before it.
  const double start = mParts.front().time;
  Way way;
  for (auto part = mParts.begin() + 1; part != mParts.end(); ++part)
    way = way + part->way;
  const double time = std::max(kLeastTime, mParts.back().time - start);
  mParts.clear();
  mSpeed = Way(std::clamp(way.x / time, -kMostSpeed, kMostSpeed),
               std::clamp(way.y / time, -kMostSpeed, kMostSpeed));
  if (LengthOf(mSpeed) < kLeastFlick) mSpeed = Way();
  return IsRunning();
}

void Glide::Stop() {
  mParts.clear();
  mSpeed = Way();
}

Glide::Way Glide::Step() {
  static const double kShare = std::exp(-kStep / kDecay);
  const Way way(mSpeed.x * kStep, mSpeed.y * kStep);
  mSpeed = Way(mSpeed.x * kShare, mSpeed.y * kShare);
  if (LengthOf(mSpeed) < kRest) mSpeed = Way();
  return way;
}

}  // namespace lumui::controls
