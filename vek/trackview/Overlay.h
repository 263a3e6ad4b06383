// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <memory>

#include "vek/config/Export.h"
#include "vek/trackview/Tracker.h"
#include "vek/trackview/Types.h"

namespace lumui::drawbot {
class Drawbot;
}
namespace lumui::ui {
class KeyboardEvent;
class Theme;
class UI_Node;
}  // namespace lumui::ui

namespace vek::trackview {

class TrackerDragAndDropInterface;

// A layer of a track view, which owns it: it draws, takes keys, double clicks, menus and timers,
// and says whether it wants the pointer. The base operations take part in nothing. From any of its
// operations an overlay may be removed, itself too: it is out of the stack at once, and lives until
// its own call returns.
class VEK_API Overlay {
 public:
  // Lower ones are nearer the user: asked first and drawn last. Hosts cast their own numbers.
  enum LayerType : int { kLayerDefault = 1 };

  // Timers fire in every state.
  enum State : int {
    kStateActive = 0,
    kStateNoDraw = 1,
    kStateNoEvents = 2,
    kStateOff = 3,
  };

  Overlay(LayerType inLayer, const State& inState);
  virtual ~Overlay();
  Overlay(const Overlay&) = delete;
  Overlay& operator=(const Overlay&) = delete;

  LayerType Layer() const { return mLayer; }
  State GetState() const { return mState; }

  // In data space: inDataRect is what needs drawing, the drawbot is in local space.
  virtual void DoImageRect(const Rect& inDataRect, lumui::drawbot::Drawbot& inDrawbot,
                           boost::intrusive_ptr<lumui::ui::Theme> inTheme) const;
  // True takes the event, and no overlay behind is asked.
  virtual bool DoDoubleClick(Modifiers inModifiers, const Point& inDataPoint);
  // The point is in local space, since it is the node that places the menu.
  virtual bool DoContextMenu(const Point& inLocalPoint, lumui::ui::UI_Node& inNode);
  // A tracker takes the gesture. inHover: no button is down, and the tracker is only for feedback.
  // inDragAndDrop is null but for drags.
  virtual std::auto_ptr<Tracker> DoAcquireTracker(const Point& inDataPoint, bool inHover,
                                                  TrackerDragAndDropInterface* inDragAndDrop);
  virtual bool DoKeyEvent(const lumui::ui::KeyboardEvent& inEvent);
  // The timer goes on until it is stopped.
  virtual void DoTimerEvent(unsigned int inTimerID);
  virtual void DoGainedKeyFocus();
  virtual void DoLostKeyFocus();
  virtual void DoViewActivation();
  virtual void DoViewPortResized();
  // The pointer has left the view while a button was held.
  virtual void MouseExitEvent();
  virtual bool DoWantsDragDropEvents() const;
  // Asks for no drawing.
  virtual void SetState(const State& inState);

 private:
  const LayerType mLayer;
  State mState;
};

}  // namespace vek::trackview
