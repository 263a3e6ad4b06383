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
class ScriptedTracker : public vek::trackview::Tracker {
 public:
  using Script = std::map<std::string, std::function<void()>>;

  ScriptedTracker(vek::trackview::TrackView* inView, EventLog& inLog, Script& inScript)
      : Tracker(inView, false, false), mLog(inLog), mScript(inScript) {}
  ~ScriptedTracker() override { mLog.Add("~tracker"); }

  void BeginTracking(vek::trackview::Modifiers inModifiers, const vek::trackview::Point& inPoint,
                     bool inHover) override {
    Step(inHover ? "hover" : "begin", inModifiers, inPoint);
  }
  void ContinueTracking(vek::trackview::Modifiers inModifiers,
                        const vek::trackview::Point& inPoint) override {
    Step("continue", inModifiers, inPoint);
  }
  void EndTracking(vek::trackview::Modifiers inModifiers, const vek::trackview::Point& inPoint,
                   bool inCompleted) override {
    Step(inCompleted ? "end" : "abandoned", inModifiers, inPoint);
  }

 private:
  void Step(const std::string& inStep, vek::trackview::Modifiers inModifiers,
            const vek::trackview::Point& inPoint) {
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
class ScriptedOverlay : public vek::trackview::Overlay {
 public:
  using Point = vek::trackview::Point;

  ScriptedOverlay(std::string inName, EventLog& inLog, int inState = 0, int inLayer = 1)
      : Overlay(static_cast<LayerType>(inLayer), static_cast<State>(inState)),
        mName(std::move(inName)),
        mLog(inLog) {}
  ~ScriptedOverlay() override { mLog.Add("~" + mName); }

  static ScriptedOverlay* Install(vek::trackview::TrackView& ioView, ScriptedOverlay* inOverlay,
                                  bool inOnTop = false) {
    std::auto_ptr<Overlay> overlay(inOverlay);
    ioView.InstallOverlay(overlay, inOnTop);
    return inOverlay;
  }

  void DoImageRect(const vek::trackview::Rect& inRect, lumui::drawbot::Drawbot&,
                   boost::intrusive_ptr<lumui::ui::Theme>) const override {
    Does("draw", "@" + AsText(inRect));
  }
  bool DoDoubleClick(vek::trackview::Modifiers, const Point& inPoint) override {
    return Does("double", "@" + AsText(inPoint));
  }
  bool DoContextMenu(const Point& inPoint, lumui::ui::UI_Node&) override {
    return Does("menu", "@" + AsText(inPoint));
  }
  std::auto_ptr<vek::trackview::Tracker> DoAcquireTracker(
      const Point& inPoint, bool inHover, vek::trackview::TrackerDragAndDropInterface*) override {
    Does("acquire", (inHover ? "?" : "") + std::string("@") + AsText(inPoint));
    return std::auto_ptr<vek::trackview::Tracker>(mMakeTracker ? mMakeTracker() : nullptr);
  }
  bool DoKeyEvent(const lumui::ui::KeyboardEvent&) override { return Does("key"); }
  void DoTimerEvent(unsigned int) override { Does("timer"); }
  void DoGainedKeyFocus() override { Does("focus"); }
  void DoLostKeyFocus() override { Does("blur"); }
  void DoViewActivation() override { Does("active"); }
  void DoViewPortResized() override { Does("port"); }
  void MouseExitEvent() override { Does("exit"); }
  bool DoWantsDragDropEvents() const override { return Does("drops"); }

  const std::string& Name() const { return mName; }

  bool mTakes = false;
  std::map<std::string, std::function<void()>> mOn;
  std::function<vek::trackview::Tracker*()> mMakeTracker;

 private:
  bool Does(const std::string& inWhat, const std::string& inDetail = std::string()) const {
    mLog.Add(mName + ":" + inWhat + inDetail);
    const auto found = mOn.find(inWhat);
    if (found != mOn.end()) found->second();
    return mTakes;
  }

  const std::string mName;
  EventLog& mLog;
};

}  // namespace test_support
