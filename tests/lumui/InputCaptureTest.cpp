// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/InputCapture.h"

#include <stdexcept>

#include "UITest.h"
#include "lumui/dialogs/MessageDialog.h"

namespace lumui::test {

namespace {

namespace input = lumui::testing;

class RecordingCapture : public ui::InputCapture {
 public:
  RecordingCapture(ui::UI_Node* inNode, std::function<void(const std::string&)> inLog)
      : InputCapture(inNode), mLog(std::move(inLog)) {}

  void DoEnd() override {
    mLog(HasBeenCancelled() ? "cancelled" : "ended");
    if (mOnEnd) mOnEnd();
  }
  bool DoMouseEvent(const ui::MouseEvent& inEvent) override {
    static const char* const kNames[] = {"none", "press", "release", "move", "wheel", "leave"};
    mLog(std::string(kNames[inEvent.GetAction()]) + "@" +
         std::to_string(static_cast<int>(inEvent.GetPosition().x)));
    if (inEvent.GetAction() == ui::PointerEvent::kActionRelease && mEndsAtRelease) {
      ui::UI_NodeManager::Get(true)->EndInputCapture(false);
    }
    return true;
  }

  bool mEndsAtRelease = true;
  std::function<void()> mOnEnd;

 private:
  std::function<void(const std::string&)> mLog;
};

// A node at x 10, and a press in it that begins a capture.
class Capture : public UITest {
 protected:
  Capture() {
    mNode = new RecordingNode("node", [this](const std::string& inWord) { Log(inWord); });
    mNode->mLogMoves = true;
    mNode->UI_SetLocalRectF(Rect(10, 10, 100, 60));
    mWindow->UI_AddChild(mNode);
    input::MoveMouse(*mWindow, Point(20, 20));
    mNode->mOnMouse = [this](const ui::MouseEvent& inEvent) {
      if (inEvent.GetAction() == ui::PointerEvent::kActionPress) Begin();
    };
    mNode->mTakes = true;
    TakeLog();
  }

  void Begin() {
    mCapture =
        new RecordingCapture(mNode.get(), [this](const std::string& inWord) { Log(inWord); });
    Manager().BeginInputCapture(mCapture);
  }
  // The capture is over however it was lost, it told so once, and a release does not tell it again.
  void ExpectLost(const std::function<void()>& inCause, const std::string& inLog = "cancelled") {
    input::PressMouse(*mWindow, Point(20, 20));
    TakeLog();
    inCause();
    EXPECT_EQ(TakeLog(), inLog);
    EXPECT_FALSE(mCapture->IsRunning());
    EXPECT_TRUE(mCapture->HasBeenCancelled());
    if (mWindow->UI_GetHandle()) input::ReleaseMouse(*mWindow, Point(20, 20));
    EXPECT_EQ(TakeLog().find("cancelled"), std::string::npos);
  }

  boost::intrusive_ptr<ui::OS_Window> mWindow = MakeWindow();
  boost::intrusive_ptr<RecordingNode> mNode;
  boost::intrusive_ptr<RecordingCapture> mCapture;
};

}  // namespace

TEST_F(Capture, SeesEverythingUntilTheReleaseAlsoOutsideTheWindow) {
  input::PressMouse(*mWindow, Point(20, 20));
  input::MoveMouse(*mWindow, Point(50, 20));
  input::PressMouse(*mWindow, Point(50, 20), ui::PointerEvent::kRightButton);
  input::MoveMouse(*mWindow, Point(-400, 20));
  input::MoveMouse(*mWindow, Point(-401, 20));
  input::MoveMouse(*mWindow, Point(50, 20));
  input::ReleaseMouse(*mWindow, Point(50, 20));
  EXPECT_EQ(TakeLog(),
            "node:press@10,10 move@40 press@40 leave@-410 move@-410 move@-411 move@40 "
            "release@40 ended");
  // Afterwards the node gets its own events again, the last release among them.
  input::ReleaseMouse(*mWindow, Point(50, 20), ui::PointerEvent::kRightButton);
  input::MoveMouse(*mWindow, Point(51, 20));
  EXPECT_EQ(TakeLog(), "node:release@40,10 node:move@41,10");
}

TEST_F(Capture, EndsOnceWhateverEndsIt) {
  ExpectLost([&] { mNode->UI_Show(false); });
  mNode->UI_Show(true);
  ExpectLost([&] { mNode->UI_SetDisabled(true); });
  mNode->UI_SetDisabled(false);
  ExpectLost([&] { mWindow->UI_RemoveChild(mNode.get()); });
  mWindow->UI_AddChild(mNode);
  ExpectLost([&] { Manager().EndInputCapture(true); });
  ExpectLost([&] { input::ActivateWindow(nullptr); });
  input::ActivateWindow(mWindow.get());
  ExpectLost([&] { mWindow->UI_Show(false); });
  mWindow->UI_Show(true);
  ExpectLost([&] { mWindow->UI_DestroyWindow(); });
}

TEST_F(Capture, ModalBoxTakesItAway) {
  dialogs::SetDialogAnswerer([](const dialogs::MessageDialogArgs&) { return 0; });
  ExpectLost([&] {
    dialogs::MessageDialogArgs args;
    args.text = U16("text");
    args.owner = mWindow.get();
    dialogs::RunMessageDialog(args);
  });
  dialogs::SetDialogAnswerer(nullptr);
}

TEST_F(Capture, EndHookMayBeginAnotherAndThrow) {
  input::PressMouse(*mWindow, Point(20, 20));
  TakeLog();
  boost::intrusive_ptr<RecordingCapture> first = mCapture;
  first->mOnEnd = [&] {
    Begin();
    Log("again");
    throw std::runtime_error("end hook");
  };
  input::ReleaseMouse(*mWindow, Point(20, 20));
  EXPECT_EQ(TakeLog(), "release@10 ended again");
  EXPECT_EQ(TakeErrors(), "end hook");
  EXPECT_EQ(Manager().GetInputCapture(), mCapture.get());
  EXPECT_NE(mCapture, first);
  Manager().EndInputCapture(false);
  EXPECT_EQ(TakeLog(), "ended");
}

TEST_F(Capture, SecondOneCancelsTheFirst) {
  input::PressMouse(*mWindow, Point(20, 20));
  TakeLog();
  const auto first = mCapture;
  Begin();
  EXPECT_EQ(TakeLog(), "cancelled");
  EXPECT_TRUE(first->HasBeenCancelled());
  input::ReleaseMouse(*mWindow, Point(20, 20));
  EXPECT_EQ(TakeLog(), "release@10 ended");
}

TEST_F(Capture, ForANodeThatIsNotSeenEndsAtOnce) {
  mNode->UI_Show(false);
  TakeLog();
  Begin();
  EXPECT_EQ(TakeLog(), "cancelled");
  EXPECT_EQ(Manager().GetInputCapture(), nullptr);
}

}  // namespace lumui::test
