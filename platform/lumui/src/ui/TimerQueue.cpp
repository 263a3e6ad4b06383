// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/TimerQueue.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>
#include <utility>

#include "lumcore/debug/Contract.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumui/ui/UI_Node.h"
#include "ui/EventGate.h"

namespace lumui::ui {

namespace {

double SteadySeconds() {
  using Seconds = std::chrono::duration<double>;
  return Seconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

}  // namespace

void TimerQueue::Install(UI_Node& inNode, unsigned int inID, double inSeconds) {
  LUM_INPUT_CONTRACT(inSeconds > 0 && std::isfinite(inSeconds));
  Remove(inNode, inID);
  mTimers.insert(Timer{Now() + inSeconds, mNextSerial++, inSeconds, &inNode, inID});
  Arm();
}

bool TimerQueue::Remove(UI_Node& inNode, unsigned int inID) {
  const auto found = std::find_if(mTimers.begin(), mTimers.end(), [&](const Timer& inTimer) {
    return inTimer.node == &inNode && inTimer.id == inID;
  });
  if (found == mTimers.end()) return false;
  mTimers.erase(found);
  Arm();
  return true;
}

void TimerQueue::RemoveAll(UI_Node& inNode) {
  for (auto at = mTimers.begin(); at != mTimers.end();) {
    at = at->node == &inNode ? mTimers.erase(at) : std::next(at);
  }
  Arm();
}

void TimerQueue::SetVirtual(bool inVirtual) {
  LUM_INPUT_CONTRACT(inVirtual != mVirtual);
  const double before = Now();
  mVirtual = inVirtual;
  mVirtualNow = 0;
  ShiftAll(Now() - before);
  Arm();
}

void TimerQueue::Advance(double inSeconds) {
  LUM_INPUT_CONTRACT(mVirtual && !mAdvancing && inSeconds >= 0);
  const lumcore::utility::StScopedValue<bool> advancing(mAdvancing, true);
  const double limit = mVirtualNow + inSeconds;
  Fire(limit);
  mVirtualNow = limit;
}

void TimerQueue::timerEvent(QTimerEvent*) {
  killTimer(std::exchange(mQtTimer, 0));
  Fire(Now());
  Arm();
}

double TimerQueue::Now() const {
  return mVirtual ? mVirtualNow : SteadySeconds();
}

// A timer is back in the queue and Qt's is armed before the node is told, so that the node may
// remove it, start it anew, or open a modal loop in which timers run.
void TimerQueue::Fire(double inLimit) {
  while (!mTimers.empty() && mTimers.begin()->due <= inLimit) {
    Timer timer = *mTimers.begin();
    mTimers.erase(mTimers.begin());
    if (mVirtual) mVirtualNow = timer.due;
    timer.due += timer.interval;
    // A loop that was held up for long makes up for no more than one of the missed times.
    if (!mVirtual) timer.due = std::max(timer.due, inLimit + timer.interval / 2);
    mTimers.insert(timer);
    Arm();
    const boost::intrusive_ptr<UI_Node> node = timer.node->GetRefCount() > 0 ? timer.node : nullptr;
    EventGate::Get()->RunGuarded([&] { timer.node->UI_DoTimerNotify(timer.id); });
  }
}

void TimerQueue::ShiftAll(double inSeconds) {
  std::set<Timer> shifted;
  for (Timer timer : mTimers) {
    timer.due += inSeconds;
    shifted.insert(timer);
  }
  mTimers.swap(shifted);
}

void TimerQueue::Arm() {
  if (mQtTimer != 0) killTimer(std::exchange(mQtTimer, 0));
  if (mVirtual || mHeld || mTimers.empty()) return;
  const double wait = std::ceil((mTimers.begin()->due - Now()) * 1000);
  const double longest = std::numeric_limits<int>::max();
  mQtTimer = startTimer(static_cast<int>(std::clamp(wait, 0.0, longest)), Qt::PreciseTimer);
}

}  // namespace lumui::ui
