// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <cstdlib>
#include <sstream>
#include <thread>

#include "UITest.h"
#include "lumui/ui/InputCapture.h"

// The same road with a real window system and a window manager at its other end: input comes from
// another process.
namespace lumui::test {

namespace {

using ui::KeyboardCode;

int sCloses = 0;

void RefuseClose(ui::OS_Event* ioEvent) {
  if (ioEvent->message != ui::kMessageClose) return;
  ++sCloses;
  ioEvent->result = 0;
}

class DragCapture : public ui::InputCapture {
 public:
  DragCapture(ui::UI_Node* inNode, std::function<void(const std::string&)> inLog)
      : InputCapture(inNode), mLog(std::move(inLog)) {}
  void DoEnd() override { mLog(HasBeenCancelled() ? "cancelled" : "ended"); }
  bool DoMouseEvent(const ui::MouseEvent& inEvent) override {
    if (inEvent.GetAction() != ui::PointerEvent::kActionRelease) return true;
    std::ostringstream text;
    text << "dropped@" << inEvent.GetPosition().x << "," << inEvent.GetPosition().y;
    mLog(text.str());
    ui::UI_NodeManager::Get(true)->EndInputCapture(false);
    return true;
  }

 private:
  std::function<void(const std::string&)> mLog;
};

class RealDisplay : public UITest {
 protected:
  // A window of 200 by 100 with a node at (10, 10), in front and with the keyboard.
  RealDisplay() {
    mNode = new RecordingNode("node", [this](const std::string& inWord) {
      if (inWord != "node:down(12)" && inWord != "node:up(12)") Log(inWord);
    });
    mNode->UI_SetLocalRectF(Rect(10, 10, 100, 60));
    mNode->mTakes = true;
    mNode->mOnKey = [this](const ui::KeyboardEvent& inEvent) {
      const bool last = inEvent.GetCode() == kLastKey && inEvent.IsActionKeyUp();
      if (last) App().Quit();
    };
    mWindow = new ui::OS_Window(&RefuseClose);
    mWindow->UI_SetLocalRectF(Rect(300, 200, 200, 100));
    mWindow->UI_AddChild(mNode);
    mNode->UI_SetKeyboardFocus(ui::kFocusOther);
    mWindow->UI_Activate();
    App().SetIdleFunction([this] {
      if (mWindow->UI_IsActive()) App().Quit();
    });
    App().Run();
    App().SetIdleFunction(nullptr);
    TakeLog();
  }

  // Runs the tool that sends input, with a last key behind, and our loop until that key has come.
  void Send(const std::string& inActions) {
    std::thread tool([&] {
      const std::string command = "xdotool " + inActions + " key F12";
      if (std::system(command.c_str()) != 0) App().Quit(1);
    });
    EXPECT_EQ(App().Run(), 0);
    tool.join();
  }
  // A window manager that looks at clicks first may pass them on behind the last key: a few more
  // keys give it time, and the log is judged when it is complete or when it stays wrong.
  std::string Sent(const std::string& inActions, const std::string& inExpected) {
    Send(inActions);
    std::string log = TakeLog();
    for (int round = 0; round < kRounds && log != inExpected; ++round) {
      Send("");
      const std::string more = TakeLog();
      if (!more.empty()) log += (log.empty() ? "" : " ") + more;
    }
    return log;
  }
  void ExpectLog(const std::string& inActions, const std::string& inExpected) {
    EXPECT_EQ(Sent(inActions, inExpected), inExpected) << inActions;
  }
  std::string At(int inX, int inY) {
    const Rect& place = mWindow->UI_GetLocalRectF();
    return "mousemove " + std::to_string(static_cast<int>(place.x) + inX) + " " +
           std::to_string(static_cast<int>(place.y) + inY);
  }

  static constexpr int kRounds = 20;
  const KeyboardCode kLastKey{0x12};
  boost::intrusive_ptr<ui::OS_Window> mWindow;
  boost::intrusive_ptr<RecordingNode> mNode;
};

}  // namespace

TEST_F(RealDisplay, KeysComeOnceAndAreNamedByTheirCaps) {
  EXPECT_FALSE(App().IsHeadless());
  ExpectLog("key e", "node:down(80000045) node:char(80000065) node:up(80000045)");
  ExpectLog("keydown shift keydown 1 keyup 1 keyup shift",
            "node:down(32+2) node:down(80000031+2) node:char(80000021+2) node:up(80000031+2) "
            "node:up(32)");
  ExpectLog("keydown ctrl keydown c keyup c keyup ctrl",
            "node:down(31+4) node:down(80000043+4) node:up(80000043+4) node:up(31)");
  ExpectLog("key KP_Add key KP_Left key Left",
            "node:down(c000002b) node:char(8000002b) node:up(c000002b) node:down(4000002a) "
            "node:up(4000002a) node:down(2a) node:up(2a)");
}

TEST_F(RealDisplay, ClicksWheelsAndDragsComeOnce) {
  ExpectLog(At(30, 30) + " click 1", "node:press@20,20 node:release@20,20");
  ExpectLog(At(31, 30) + " click --repeat 2 --delay 20 3",
            "node:press@21,20 node:release@21,20 node:press2@21,20 node:release@21,20");
  ExpectLog(At(30, 31) + " click 5", "node:wheel(0,1)@20,21");
  mNode->mOnMouse = [this](const ui::MouseEvent& inEvent) {
    if (inEvent.GetAction() != ui::PointerEvent::kActionPress) return;
    Manager().BeginInputCapture(
        new DragCapture(mNode.get(), [this](const std::string& inWord) { Log(inWord); }));
  };
  ExpectLog(At(30, 30) + " mousedown 1 " + At(60, 40) + " " + At(-100, -90) + " mouseup 1",
            "node:press@20,20 dropped@-110,-100 ended");
}

TEST_F(RealDisplay, WindowManagersCloseIsARequest) {
  sCloses = 0;
  Send("key alt+F4");
  for (int round = 0; round < kRounds && sCloses == 0; ++round)
    Send("");
  EXPECT_EQ(sCloses, 1);
  EXPECT_NE(mWindow->UI_GetHandle(), nullptr);
}

}  // namespace lumui::test
