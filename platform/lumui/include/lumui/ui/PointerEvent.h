// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/geom/Point.h"
#include "lumui/Export.h"
#include "lumui/ui/ModifierKeys.h"
#include "lumui/ui/OS_Event.h"

namespace lumui::ui {

// What the pointer did, as the node that is asked sees it: the position is in that node's local
// coordinates, or in content coordinates if the node is the content of a scroll view. It is a plain
// value; a copy stays good after the event.
class LUMUI_API PointerEvent {
 public:
  enum Action {
    kActionNone = 0,
    kActionPress = 1,
    kActionRelease = 2,
    kActionMove = 3,
    kActionWheel = 4,
    kActionLeave = 5,  // the pointer has left the node; the position is the last one known
  };
  enum Button : unsigned {
    kNoButton = 0,
    kLeftButton = 1,
    kMiddleButton = 2,
    kRightButton = 4,
    kExtraButton = 8
  };

  PointerEvent() = default;
  PointerEvent(Action inAction, unsigned inButtons, ModifierKeys inModifiers,
               const lumcore::geom::PointT<float>& inPosition, int inClickCount,
               const OS_Event& inOSEvent)
      : mAction(inAction),
        mButtons(inButtons),
        mModifiers(inModifiers),
        mPosition(inPosition),
        mClickCount(inClickCount),
        mOSEvent(inOSEvent) {}

  Action GetAction() const { return mAction; }
  // A press or release: the button that went down or up. A move or leave: any of the buttons held.
  bool IsButton(unsigned inButton) const { return (mButtons & inButton) != 0; }
  ModifierKeys GetModKey() const { return mModifiers; }
  const lumcore::geom::PointT<float>& GetPosition() const { return mPosition; }
  // 2 for the second press of a double click, else 1.
  int GetClickCount() const { return mClickCount; }
  // The message behind the event; never null, alive as long as this event object.
  const OS_Event* GetOSEvent() const { return &mOSEvent; }

 private:
  Action mAction = kActionNone;
  unsigned mButtons = 0;
  ModifierKeys mModifiers;
  lumcore::geom::PointT<float> mPosition;
  int mClickCount = 1;
  OS_Event mOSEvent;
};

// The mouse's events. Touch and pen come as the mouse that the system makes of them.
class LUMUI_API MouseEvent : public PointerEvent {
 public:
  using PointerEvent::PointerEvent;
};

// A turn of the wheel, in notches with fractions: a fine wheel or a touch pad sends many small
// parts. A positive x is to the right, a positive y is downward: the direction in which the view
// moves over its content. A touch pad also says how far in units of the view, so that the content
// keeps to the fingers, and when they come and go.
class LUMUI_API WheelEvent : public PointerEvent {
 public:
  WheelEvent() = default;
  WheelEvent(ModifierKeys inModifiers, const lumcore::geom::PointT<float>& inPosition,
             const lumcore::geom::PointT<float>& inNotches, const OS_Event& inOSEvent)
      : PointerEvent(kActionWheel, kNoButton, inModifiers, inPosition, 1, inOSEvent),
        mNotches(inNotches) {}

  // Fingers on a touch pad; of a wheel there is none of it. The momentum is what the system itself
  // lets follow when the fingers have gone.
  enum class Touch : unsigned char { kNone, kBegin, kMove, kEnd, kMomentum };

  const lumcore::geom::PointT<float>& GetNotches() const { return mNotches; }
  Touch GetTouch() const { return mTouch; }
  // The way in units of the view; nothing where only the notches are known.
  const lumcore::geom::PointT<float>& GetWay() const { return mWay; }
  // Seconds of a clock of the input's own, for the time between two events.
  double GetTime() const { return mTime; }
  void SetTouch(Touch inTouch, const lumcore::geom::PointT<float>& inWay, double inTime) {
    mTouch = inTouch;
    mWay = inWay;
    mTime = inTime;
  }

 private:
  lumcore::geom::PointT<float> mNotches;
  lumcore::geom::PointT<float> mWay;
  Touch mTouch = Touch::kNone;
  double mTime = 0;
};

}  // namespace lumui::ui
