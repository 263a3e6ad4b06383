// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <stdexcept>
#include <string>

#include "UITest.h"

namespace lumui::test {

namespace {

namespace input = lumui::testing;
using ui::KeyboardCode;
using ui::ModifierKeys;

// A window with a node "a" at (10, 10) that holds "b" at (5, 5) of it.
class EventGate : public UITest {
 protected:
  EventGate() {
    const auto log = [this](const std::string& inWord) { Log(inWord); };
    mA = new RecordingNode("a", log);
    mB = new RecordingNode("b", log);
    mA->UI_SetLocalRectF(Rect(10, 10, 100, 60));
    mB->UI_SetLocalRectF(Rect(5, 5, 50, 20));
    mA->UI_AddChild(mB);
    mWindow->UI_SetNodeID("window");
    mWindow->UI_AddChild(mA);
    input::MoveMouse(*mWindow, Point(20, 20));
  }

  void LogMessages() {
    App().SetEventSteps(
        [this](const ui::OS_Event& inEvent) {
          Log("pre" + std::to_string(inEvent.message));
          return true;
        },
        [this](const ui::OS_Event& inEvent) { Log("post" + std::to_string(inEvent.message)); });
  }

  boost::intrusive_ptr<ui::OS_Window> mWindow = MakeWindow();
  boost::intrusive_ptr<RecordingNode> mA;
  boost::intrusive_ptr<RecordingNode> mB;
};

}  // namespace

TEST_F(EventGate, RunsPreStepDispatchAndPostStepOnceForEachEvent) {
  LogMessages();
  mB->mTakes = true;
  mB->UI_SetKeyboardFocus(ui::kFocusOther);
  TakeLog();
  input::MoveMouse(*mWindow, Point(21, 20));
  EXPECT_EQ(TakeLog(), "pre512 post512");
  input::MoveMouse(*mWindow, Point(20, 20));
  TakeLog();
  input::ClickMouse(*mWindow, Point(20, 20));
  EXPECT_EQ(TakeLog(), "pre513 b:press@5,5 post513 pre514 b:release@5,5 post514");
  input::TurnWheel(*mWindow, Point(20, 20), Point(0, 0.5f));
  EXPECT_EQ(TakeLog(), "pre522 b:wheel(0,0.5)@5,5 post522");
  input::TapKey(*mWindow, KeyboardCode(KeyboardCode::kHome));
  EXPECT_EQ(TakeLog(), "pre256 b:down(24) post256 pre257 b:up(24) post257");
  input::RequestClose(*mWindow);
  EXPECT_EQ(TakeLog(), "pre16 b:blur0 pre2 post2 post16");
}

TEST_F(EventGate, ConsumedEventsReachNoNodeAndNoPostStep) {
  mB->UI_SetKeyboardFocus(ui::kFocusOther);
  App().SetEventSteps(
      [this](const ui::OS_Event& inEvent) {
        Log("pre" + std::to_string(inEvent.message));
        return false;
      },
      [this](const ui::OS_Event&) { Log("post"); });
  TakeLog();
  input::PressMouse(*mWindow, Point(20, 20));
  input::PressKey(*mWindow, KeyboardCode(0x80000041));
  input::RequestClose(*mWindow);
  EXPECT_EQ(TakeLog(), "pre513 pre256 pre16");
  EXPECT_NE(mWindow->UI_GetHandle(), nullptr);
  App().SetEventSteps(nullptr, nullptr);
  input::ReleaseMouse(*mWindow, Point(20, 20));
}

TEST_F(EventGate, ThrowingStepsLetTheEventThroughAndAreReported) {
  App().SetEventSteps([](const ui::OS_Event&) -> bool { throw std::runtime_error("pre"); },
                      [](const ui::OS_Event&) { throw std::runtime_error("post"); });
  mB->mTakes = true;
  input::PressMouse(*mWindow, Point(20, 20));
  EXPECT_EQ(TakeLog(), "b:press@5,5");
  EXPECT_EQ(TakeErrors(), "pre | post");
  App().SetEventSteps(nullptr, nullptr);
  input::ReleaseMouse(*mWindow, Point(20, 20));
}

TEST_F(EventGate, AsksAncestorsWithTheNodeInWhichTheEventBegan) {
  mB->UI_SetKeyboardFocus(ui::kFocusOther);
  TakeLog();
  input::PressMouse(*mWindow, Point(20, 20));
  EXPECT_EQ(TakeLog(), "b:press@5,5 a<b:press@10,10");
  input::ReleaseMouse(*mWindow, Point(20, 20));
  TakeLog();
  input::TurnWheel(*mWindow, Point(21, 22), Point(1, 0));
  EXPECT_EQ(TakeLog(), "b:wheel(1,0)@6,7 a<b:wheel(1,0)@11,12");
  input::PressKey(*mWindow, KeyboardCode(0x80000041), ModifierKeys(ui::kModShift));
  EXPECT_EQ(TakeLog(),
            "b:down(80000041+2) a<b:down(80000041+2) b:char(80000041+2) a<b:char(80000041+2)");
  input::PressMouse(*mWindow, Point(100, 60));
  EXPECT_EQ(TakeLog(), "a:press@90,50");
  input::ReleaseMouse(*mWindow, Point(100, 60));
}

TEST_F(EventGate, DisabledNodesLeaveEventsToTheirParents) {
  mB->UI_SetDisabled(true);
  mA->mTakes = true;
  input::ClickMouse(*mWindow, Point(20, 20));
  EXPECT_EQ(TakeLog(), "a<b:press@10,10 a<b:release@10,10");
}

TEST_F(EventGate, DoubleClickIsOnePressWithTwoClicks) {
  mB->mTakes = true;
  LogMessages();
  input::DoubleClickMouse(*mWindow, Point(20, 20), ui::PointerEvent::kRightButton);
  EXPECT_EQ(TakeLog(),
            "pre516 b:press@5,5 post516 pre517 b:release@5,5 post517 "
            "pre518 b:press2@5,5 post518 pre517 b:release@5,5 post517");
}

TEST_F(EventGate, HeldKeysRepeatAsPressesAlone) {
  LogMessages();
  mB->UI_SetKeyboardFocus(ui::kFocusOther);
  mB->mTakes = true;
  TakeLog();
  const KeyboardCode down(KeyboardCode::kDownArrow);
  input::PressKey(*mWindow, down);
  input::PressKey(*mWindow, down, ModifierKeys(), true);
  input::PressKey(*mWindow, down, ModifierKeys(), true);
  input::ReleaseKey(*mWindow, down);
  EXPECT_EQ(TakeLog(),
            "pre256 b:down(2d) post256 pre256 b:down(2dr) post256 pre256 b:down(2dr) post256 "
            "pre257 b:up(2d) post257");
}

TEST_F(EventGate, TypesCharactersButNoControlCharacters) {
  mB->UI_SetKeyboardFocus(ui::kFocusOther);
  mB->mTakes = true;
  TakeLog();
  for (const auto code : {KeyboardCode::kReturn, KeyboardCode::kEscape, KeyboardCode::kBackspace,
                          KeyboardCode::kDelete}) {
    input::PressKey(*mWindow, KeyboardCode(code));
  }
  input::PressKey(*mWindow, KeyboardCode(0x80000043), ModifierKeys(ui::kModCommand));
  EXPECT_EQ(TakeLog(), "b:down(4) b:down(6) b:down(2) b:down(23) b:down(80000043+4)");
  input::TypeText(*mWindow, U16("e É"));
  EXPECT_EQ(TakeLog(),
            "b:down(80000045) b:char(80000065) b:up(80000045) b:down(1) b:char(80000020) b:up(1) "
            "b:down(800000c9+2) b:char(800000c9+2) b:up(800000c9+2)");
  // One event for each UTF-16 unit, also from an input method, which sends no keys.
  input::CommitInputMethodText(*mWindow, U16("日\xF0\x9F\x8C\xB3"));
  EXPECT_EQ(TakeLog(), "b:char(800065e5) b:char(8000d83c) b:char(8000df33)");
}

TEST_F(EventGate, ThirdLevelCharactersAndNamelessKeysAreNoChords) {
  mB->UI_SetKeyboardFocus(ui::kFocusOther);
  mB->mTakes = true;
  std::string claims;
  App().SetShortcutClaim([&](const ui::KeyboardEvent& inEvent) {
    claims += std::to_string(inEvent.GetCode().GetValue(true) & 0xFFFF) + " ";
    return false;
  });
  Manager().EnableMnemonics();
  TakeLog();
  const ModifierKeys both(ui::kModCommand | ui::kModAlt);
  const struct {
    std::uint32_t key;
    ModifierKeys modifiers;
    const char* text;
    const char* log;
  } kRows[] = {
      {0x80000051, both, "@", "b:down(80000040) b:char(80000040)"},
      {0x80000031, both, "1", "b:down(80000031+14)"},
      {0x80000051, both, "\x11", "b:down(80000051+14)"},
      {0x80000051, ModifierKeys(ui::kModCommand), "q", "b:down(80000051+4)"},
      {0, ModifierKeys(), "", ""},
      {0, ModifierKeys(), "\xF0\x9F\x8C\xB3", "b:char(8000d83c) b:char(8000df33)"},
  };
  for (const auto& row : kRows) {
    input::PressTypingKey(*mWindow, KeyboardCode(row.key), row.modifiers, U16(row.text));
    EXPECT_EQ(TakeLog(), row.log) << row.key << " " << row.text;
  }
  EXPECT_EQ(claims, "64 49 81 81 ");
}

TEST_F(EventGate, AltMakesSystemMessages) {
  LogMessages();
  TakeLog();
  input::TapKey(*mWindow, KeyboardCode(0x80000046), ModifierKeys(ui::kModAlt));
  EXPECT_EQ(TakeLog(), "pre260 post260 pre262 post262 pre261 post261");
}

TEST_F(EventGate, KeyThatBecameACommandTypesNothing) {
  mB->UI_SetKeyboardFocus(ui::kFocusOther);
  mB->mTakes = true;
  mB->mOnKey = [](const ui::KeyboardEvent& inEvent) { ui::FlushPostActionKeyEvents(inEvent); };
  TakeLog();
  input::PressKey(*mWindow, KeyboardCode(0x80000046));
  EXPECT_EQ(TakeLog(), "b:down(80000046)");
  mB->mOnKey = nullptr;
  input::PressKey(*mWindow, KeyboardCode(0x80000046));
  EXPECT_EQ(TakeLog(), "b:down(80000046) b:char(80000066)");
}

TEST_F(EventGate, ExceptionsOfNodesAreReportedAndTakeTheEvent) {
  mB->mOnMouse = [](const ui::MouseEvent&) { throw std::runtime_error("node"); };
  input::PressMouse(*mWindow, Point(20, 20));
  EXPECT_EQ(TakeLog(), "b:press@5,5");
  EXPECT_EQ(TakeErrors(), "node");
  mB->mOnMouse = nullptr;
  input::ReleaseMouse(*mWindow, Point(20, 20));
}

TEST_F(EventGate, NodesMayGoInTheMiddleOfTheirOwnEvent) {
  mB->mLogDestruction = mA->mLogDestruction = true;
  mB->mOnMouse = [this](const ui::MouseEvent&) {
    mWindow->UI_RemoveChild(mA.get());
    mA.reset();
    mB.reset();
    Log("gone");
  };
  input::PressMouse(*mWindow, Point(20, 20));
  // The event ends with its node: nobody else is asked.
  EXPECT_EQ(TakeLog(), "b:press@5,5 ~a gone ~b");
  input::ReleaseMouse(*mWindow, Point(20, 20));
  EXPECT_EQ(TakeLog(), "");
}

TEST_F(EventGate, WindowsMayGoInTheMiddleOfTheirOwnEvent) {
  LogMessages();
  mB->UI_SetKeyboardFocus(ui::kFocusOther);
  mB->mOnKey = [this](const ui::KeyboardEvent&) { mWindow->UI_DestroyWindow(); };
  TakeLog();
  input::PressKey(*mWindow, KeyboardCode(0x80000046));
  App().PumpPendingEvents();
  // The nodes stay, and the key types nothing into them.
  EXPECT_EQ(TakeLog(), "pre256 b:down(80000046) b:blur0 pre2 post2 post256");
  EXPECT_EQ(mWindow->UI_GetHandle(), nullptr);
}

// The press is under way while the queue is pumped: what it has destroyed goes when it is over.
TEST_F(EventGate, PumpingLeavesWhatTheRunningEventStillUses) {
  mB->mOnMouse = [this](const ui::MouseEvent& inEvent) {
    if (inEvent.GetAction() != ui::PointerEvent::kActionPress) return;
    mWindow->UI_DestroyWindow();
    App().PumpPendingEvents();
  };
  for (const auto button : {ui::PointerEvent::kLeftButton, ui::PointerEvent::kRightButton}) {
    const QPointer<QWidget> widget = QApplication::activeWindow();
    ASSERT_NE(widget, nullptr);
    input::PressMouse(*mWindow, Point(20, 20), button);
    EXPECT_EQ(mWindow->UI_GetHandle(), nullptr);
    App().PumpPendingEvents();
    EXPECT_EQ(widget, nullptr);
    const lumcore::geom::RectT<int> rect(40, 30, 200, 100);
    mWindow->UI_ConstructWindow(&rect);
    mWindow->UI_Show(true);
    input::ActivateWindow(mWindow.get());
    App().PumpPendingEvents();
    input::ReleaseMouse(*mWindow, Point(199, 99), button);
  }
}

TEST_F(EventGate, PrePointerEventsComeBeforeThePressAndMaySwallowIt) {
  const auto log = [this](const std::string& inWord) { Log(inWord); };
  const boost::intrusive_ptr<RecordingNode> first(new RecordingNode("first", log));
  const boost::intrusive_ptr<RecordingNode> elsewhere(new RecordingNode("elsewhere", log));
  mWindow->UI_AddChild(first);
  first->UI_SetWantsPrePointerEvents(true);
  elsewhere->UI_SetWantsPrePointerEvents(true);
  mB->UI_SetWantsPrePointerEvents(true);
  mB->mTakes = true;
  input::PressMouse(*mWindow, Point(20, 20));
  EXPECT_EQ(TakeLog(), "first:pre@20,20 b:pre@20,20");
  input::ReleaseMouse(*mWindow, Point(20, 20));
  mB->UI_SetWantsPrePointerEvents(false);
  TakeLog();
  input::ClickMouse(*mWindow, Point(20, 20));
  EXPECT_EQ(TakeLog(), "first:pre@20,20 b:press@5,5 b:release@5,5");
}

TEST_F(EventGate, PointerThatMovesOnLeavesTheNode) {
  input::MoveMouse(*mWindow, Point(150, 80));
  mA->mLogMoves = mB->mLogMoves = mA->mTakes = mB->mTakes = true;
  input::MoveMouse(*mWindow, Point(20, 20));
  input::MoveMouse(*mWindow, Point(100, 60));
  input::MoveMouse(*mWindow, Point(150, 80));
  EXPECT_EQ(TakeLog(), "b:move@5,5 b:leave@5,5 a:move@90,50 a:leave@90,50");
}

TEST_F(EventGate, CursorIsAskedOfTheAncestorsAndFallsBackToTheArrow) {
  class CursorNode : public ui::UI_SubView {
   public:
    bool UI_DoCursor(ui::UI_Node*, const ui::MouseEvent& inEvent) override {
      if (inEvent.GetPosition().x > 50) return false;
      ui::UI_NodeManager::Get(true)->SetCursor(ui::CursorShape::kCross);
      return true;
    }
  };
  const boost::intrusive_ptr<CursorNode> outer(new CursorNode);
  outer->UI_SetLocalRectF(Rect(0, 0, 150, 100));
  mWindow->UI_RemoveChild(mA.get());
  outer->UI_AddChild(mA);
  mWindow->UI_AddChild(outer);
  input::MoveMouse(*mWindow, Point(21, 20));
  EXPECT_EQ(Manager().GetCursor(), ui::CursorShape::kCross);
  input::MoveMouse(*mWindow, Point(60, 20));
  EXPECT_EQ(Manager().GetCursor(), ui::CursorShape::kArrow);
  // The move itself may still set one, as trackers do.
  mA->mOnMouse = [this](const ui::MouseEvent&) { Manager().SetCursor(ui::CursorShape::kHand); };
  input::MoveMouse(*mWindow, Point(61, 60));
  EXPECT_EQ(Manager().GetCursor(), ui::CursorShape::kHand);
}

TEST_F(EventGate, ShortcutClaimSeesTheChordBeforeMenusDo) {
  Manager().EnableMnemonics();
  App().SetShortcutClaim([this](const ui::KeyboardEvent& inEvent) {
    Log("claim" + std::to_string(inEvent.GetCode().GetCharacter()));
    return true;
  });
  mB->UI_SetKeyboardFocus(ui::kFocusOther);
  TakeLog();
  input::PressKey(*mWindow, KeyboardCode(0x80000046), ModifierKeys(ui::kModAlt));
  EXPECT_EQ(TakeLog().substr(0, 25), "claim70 b:down(80000046+1");
}

}  // namespace lumui::test
