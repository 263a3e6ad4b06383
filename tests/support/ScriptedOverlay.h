// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>

#include "lumui/ui/Theme.h"
#include "support/RecordingPlatformView.h"
#include "vek/trackview/Overlay.h"

namespace test_support {

// Tells each of its steps, "hover" for the beginning of one that hovers, then does what the test
// has put down for the step.
class ScriptedTracker : public tv::Tracker {
 public:
  using Script = std::map<std::string, std::function<void()>>;

  ScriptedTracker(tv::TrackView* inView, EventLog& inLog, Script& inScript)
      : Tracker(inView, false, false), mLog(inLog), mScript(inScript) {}
  ~ScriptedTracker() override { mLog.Add("~tracker"); }

  void BeginTracking(tv::Modifiers inModifiers, const tv::Point& inPoint, bool inHover) override {
    Step(inHover ? "hover" : "begin", inModifiers, inPoint);
  }
  void ContinueTracking(tv::Modifiers inModifiers, const tv::Point& inPoint) override {
    Step("continue", inModifiers, inPoint);
  }
  void EndTracking(tv::Modifiers inModifiers, const tv::Point& inPoint, bool inCompleted) override {
    Step(inCompleted ? "end" : "abandoned", inModifiers, inPoint);
  }

 private:
  void Step(const std::string& inStep, tv::Modifiers inModifiers, const tv::Point& inPoint) {
    mLog.Add(inStep + "@" + AsText(inPoint) +
             (inModifiers.IsEmpty() ? "" : "+" + std::to_string(inModifiers.GetBits())));
    const auto found = mScript.find(inStep);
    if (found == mScript.end()) return;
    const auto action = found->second;
    action();
    mLog.Add(inStep + ".");
  }

  EventLog& mLog;
  Script& mScript;
};

// Tells what it is asked as "name:what", does what the test has put down for it, and answers
// mTakes.
class ScriptedOverlay : public tv::Overlay {
 public:
  ScriptedOverlay(std::string inName, EventLog& inLog, int inState = 0, int inLayer = 1)
      : Overlay(static_cast<LayerType>(inLayer), static_cast<State>(inState)),
        mName(std::move(inName)),
        mLog(inLog) {}
  ~ScriptedOverlay() override { mLog.Add("~" + mName); }

  static ScriptedOverlay* Install(tv::TrackView& ioView, ScriptedOverlay* inOverlay,
                                  bool inOnTop = false) {
    std::auto_ptr<Overlay> overlay(inOverlay);
    ioView.InstallOverlay(overlay, inOnTop);
    return inOverlay;
  }

  void DoImageRect(const tv::Rect& inRect, lumui::drawbot::Drawbot&,
                   boost::intrusive_ptr<lumui::ui::Theme>) const override {
    Does("draw", inRect);
  }
  bool DoDoubleClick(tv::Modifiers, const tv::Point& inAt) override { return Does("double", inAt); }
  bool DoContextMenu(const tv::Point& inAt, lumui::ui::UI_Node&) override {
    return Does("menu", inAt);
  }
  std::auto_ptr<tv::Tracker> DoAcquireTracker(const tv::Point& inPoint, bool inHover,
                                              tv::TrackerDragAndDropInterface* inDrag) override {
    mDrag = inDrag;
    Does(inHover ? "acquire?" : "acquire", inPoint);
    return std::auto_ptr<tv::Tracker>(mMakeTracker ? mMakeTracker() : nullptr);
  }
  bool DoKeyEvent(const lumui::ui::KeyboardEvent&) override { return Does("key"); }
  void DoTimerEvent(unsigned int) override { Does("timer"); }
  void DoGainedKeyFocus() override { Does("focus"); }
  void DoLostKeyFocus() override { Does("blur"); }
  void DoViewActivation() override { Does("active"); }
  void DoViewPortResized() override { Does("port"); }
  void MouseExitEvent() override { Does("exit"); }
  bool DoWantsDragDropEvents() const override { return Does("drops"); }

  bool mTakes = false;
  tv::TrackerDragAndDropInterface* mDrag = nullptr;  // of the tracker that was asked for last
  std::map<std::string, std::function<void()>> mOn;
  std::function<tv::Tracker*()> mMakeTracker;

 private:
  template <class... Place>
  bool Does(const std::string& inWhat, const Place&... inPlace) const {
    mLog.Add(mName + ":" + inWhat + (std::string() + ... + ("@" + AsText(inPlace))));
    const auto found = mOn.find(inWhat);
    if (found != mOn.end()) found->second();
    return mTakes;
  }

  const std::string mName;
  EventLog& mLog;
};

}  // namespace test_support
