// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "UITest.h"

#include <exception>
#include <sstream>

namespace lumui::test {

namespace {

std::string At(const Point& inPoint) {
  std::ostringstream text;
  text << inPoint.x << "," << inPoint.y;
  return text.str();
}

}  // namespace

UITest::UITest() {
  App().SetErrorFunction([this](const std::exception_ptr& inError) {
    try {
      std::rethrow_exception(inError);
    } catch (const std::exception& exception) {
      mErrors += std::string(mErrors.empty() ? "" : " | ") + exception.what();
    }
  });
}

UITest::~UITest() {
  Manager().EndInputCapture(true);
  App().SetEventSteps(nullptr, nullptr);
  App().SetIdleFunction(nullptr);
  App().SetShortcutClaim(nullptr);
  App().PumpPendingEvents();
  App().SetErrorFunction(nullptr);
  EXPECT_EQ(mErrors, "");
}

void UITest::Log(const std::string& inWord) {
  if (!mLog.empty()) mLog += " ";
  mLog += inWord;
}

boost::intrusive_ptr<ui::OS_Window> UITest::MakeWindow(ui::OSEventFunction inFunction) {
  const boost::intrusive_ptr<ui::OS_Window> window(new ui::OS_Window(inFunction));
  window->UI_SetLocalRectF(Rect(40, 30, 200, 100));
  window->UI_Show(true);
  lumui::testing::ActivateWindow(window.get());
  // Where no node of a test lies: the pointer stands where the test before has left it.
  lumui::testing::MoveMouse(*window, Point(199, 99));
  App().PumpPendingEvents();
  return window;
}

RecordingNode::~RecordingNode() {
  if (mLogDestruction) mLog("~" + mName);
}

// "name<origin:press@x,y" where the event began in another node.
bool RecordingNode::UI_DoMouseEvent(ui::UI_Node* inNode, const ui::MouseEvent& inEvent) {
  static const char* const kNames[] = {"none", "press", "release", "move", "wheel", "leave"};
  const bool quiet = inEvent.GetAction() == ui::PointerEvent::kActionMove ||
                     inEvent.GetAction() == ui::PointerEvent::kActionLeave;
  if (!quiet || mLogMoves) {
    const std::string origin = inNode == this ? "" : "<" + Text(inNode->UI_GetNodeID());
    const std::string clicks = inEvent.GetClickCount() == 2 ? "2" : "";
    mLog(mName + origin + ":" + kNames[inEvent.GetAction()] + clicks + "@" +
         At(inEvent.GetPosition()));
  }
  const bool takes = mTakes;
  if (mOnMouse) mOnMouse(inEvent);
  return takes;
}

bool RecordingNode::UI_DoMouseWheel(ui::UI_Node* inNode, const ui::WheelEvent& inEvent) {
  const std::string origin = inNode == this ? "" : "<" + Text(inNode->UI_GetNodeID());
  mLog(mName + origin + ":wheel(" + At(inEvent.GetNotches()) + ")@" + At(inEvent.GetPosition()));
  return mTakes;
}

// "name:down(code)" with the code in hexadecimal, a "+" before the modifiers and "r" for a repeat.
bool RecordingNode::UI_DoKeyboardEvent(ui::UI_Node* inNode, const ui::KeyboardEvent& inEvent) {
  static const char* const kNames[] = {"none", "down", "up", "char"};
  std::ostringstream text;
  text << mName << (inNode == this ? "" : "<" + Text(inNode->UI_GetNodeID())) << ":"
       << kNames[inEvent.GetAction()] << "(" << std::hex << inEvent.GetCode().GetValue(true);
  if (!inEvent.GetModKey().IsEmpty()) text << "+" << int(inEvent.GetModKey().GetBits());
  text << (inEvent.IsRepeat() ? "r" : "") << ")";
  mLog(text.str());
  const bool takes = mTakes;
  if (mOnKey) mOnKey(inEvent);
  return takes;
}

bool RecordingNode::UI_DoPrePointerEvent(const ui::MouseEvent& inEvent) {
  mLog(mName + ":pre@" + At(inEvent.GetPosition()));
  return mTakes;
}

void RecordingNode::UI_DoTimerNotify(unsigned int inTimerID) {
  mLog(mName + ":timer" + std::to_string(inTimerID));
  const auto onTimer = mOnTimer;
  if (onTimer) onTimer(inTimerID);
}

void RecordingNode::UI_FocusChanged(int inReason) {
  mLog(mName + (UI_HasKeyboardFocus() ? ":focus" : ":blur") + std::to_string(inReason));
}

std::string Text(const lumcore::UTF8String& inText) {
  return lumcore::utility::ToStdString(inText);
}

}  // namespace lumui::test
