// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <cstdint>
#include <set>

namespace lumui::ui {

class UI_Node;

// All timers of all nodes, in the order in which they fall due, on one timer of Qt. The clock is
// the system's steady one, or a virtual one that a test moves.
class TimerQueue : private QObject {
 public:
  TimerQueue() = default;

  void Install(UI_Node& inNode, unsigned int inID, double inSeconds);
  bool Remove(UI_Node& inNode, unsigned int inID);  // false if there is none
  void RemoveAll(UI_Node& inNode);

  void SetVirtual(bool inVirtual);
  bool IsVirtual() const { return mVirtual; }
  void Advance(double inSeconds);
  // No timer fires while they are held; those that were due then do so afterwards.
  void SetHeld(bool inHeld) {
    mHeld = inHeld;
    Arm();
  }
  double GetVirtualTime() const { return mVirtualNow; }

 private:
  struct Timer {
    double due;            // seconds of the clock
    std::uint64_t serial;  // order of installing
    double interval;
    UI_Node* node;
    unsigned int id;
    bool operator<(const Timer& inOther) const {
      return due != inOther.due ? due < inOther.due : serial < inOther.serial;
    }
  };

  void timerEvent(QTimerEvent* inEvent) override;
  double Now() const;
  void Fire(double inLimit);
  void ShiftAll(double inSeconds);
  void Arm();

  std::set<Timer> mTimers;
  std::uint64_t mNextSerial = 0;
  int mQtTimer = 0;  // 0 for none
  bool mVirtual = false;
  bool mAdvancing = false;
  bool mHeld = false;
  double mVirtualNow = 0;
};

}  // namespace lumui::ui
