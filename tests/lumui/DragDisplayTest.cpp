// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <mutex>
#include <thread>

#include "DragNode.h"
#include "lumui/datatransfer/OS_DropTarget.h"
#include "lumui/datatransfer/OS_SendData.h"
#include "lumui/ui/Executor.h"

// Drags between two programs, by the window system's own road.
namespace lumui::test {

namespace {

void Send(const std::string& inActions) {
  EXPECT_EQ(std::system(("xdotool " + inActions).c_str()), 0) << inActions;
}

class DragsAcrossPrograms : public UITest {
 protected:
  DragsAcrossPrograms() {
    mNode = new DragNode("node", [this](const std::string& inWord) { Log(inWord); });
    mNode->UI_SetLocalRectF(Rect(10, 10, 100, 60));
    mNode->mTakes = true;
    mWindow = new ui::OS_Window;
    mWindow->UI_SetLocalRectF(Rect(300, 200, 200, 100));
    mWindow->UI_AddChild(mNode);
    mWindow->UI_Activate();
    RunUntil([&] { return mWindow->UI_IsActive(); });
    mTarget.Attach(*mWindow);
    StartPartner();
  }
  ~DragsAcrossPrograms() override { EndPartner(); }

  void StartPartner() {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    mPartner = fork();
    ASSERT_NE(mPartner, -1);
    if (mPartner == 0) {
      dup2(ends[1], STDOUT_FILENO);
      execl(LUMUI_DRAG_PARTNER, LUMUI_DRAG_PARTNER, static_cast<char*>(nullptr));
      _exit(1);
    }
    close(ends[1]);
    mReader = std::thread([this, input = ends[0]] { ReadLines(input); });
    EXPECT_EQ(WaitForLine(), "ready");
  }
  void EndPartner() {
    kill(mPartner, SIGKILL);
    waitpid(mPartner, nullptr, 0);
    mReader.join();
  }
  void ReadLines(int inInput) {
    std::FILE* const file = fdopen(inInput, "r");
    char line[200];
    while (std::fgets(line, sizeof line, file)) {
      const std::lock_guard<std::mutex> lock(mMutex);
      mLine = line;
      mLine.pop_back();
      Manager().GetExecutor()->Post([] {});
    }
    std::fclose(file);
  }
  std::string TakeLine() {
    const std::lock_guard<std::mutex> lock(mMutex);
    return std::exchange(mLine, std::string());
  }
  std::string WaitForLine() {
    std::string line;
    RunUntil([&] { return !(line = TakeLine()).empty(); });
    return line;
  }
  // The condition is looked at whenever everything that came has been handled and answered.
  void RunUntil(const std::function<bool()>& inCondition) {
    App().SetIdleFunction([&] {
      if (inCondition()) App().Quit();
    });
    App().Run();
    App().SetIdleFunction(nullptr);
  }
  // In the window's coordinates.
  std::string At(int inX, int inY) {
    const Rect& place = mWindow->UI_GetLocalRectF();
    return "mousemove " + std::to_string(static_cast<int>(place.x) + inX) + " " +
           std::to_string(static_cast<int>(place.y) + inY);
  }
  void DragFromPartnerToNode() {
    // A move that comes while the last one is being answered may be lost.
    std::atomic<bool> isOver{false};
    std::thread tool([&] {
      // So may a press that comes while the window manager is busy with the new window.
      for (int round = 0; !isOver; ++round) {
        if (round % 100 == 0) Send("mouseup 1 mousemove 60 60 mousedown 1 mousemove 80 80");
        Send(At(30, 30) + " " + At(31, 30));
      }
    });
    RunUntil([&] { return mLast.find("over@2") != std::string::npos; });
    isOver = true;
    tool.join();
  }
  // What the partner says of the drop.
  std::string DragOut(bool inWithFiles) {
    mEffect = -1;
    mNode->mOnMouse = [=](const ui::MouseEvent& inEvent) {
      if (inEvent.GetAction() != ui::PointerEvent::kActionPress) return;
      datatransfer::OS_SendData data(inEvent.GetOSEvent());
      if (inWithFiles) data.AddText(U16("w\xC3\xB6rd"));
      if (inWithFiles) data.AddFiles({U16("/tmp/a b")});
      data.AddBytesOnDemand("application/x-row", [] { return std::string("row"); });
      mEffect = data.SendByDrag(kDropCopy | kDropMove, kDropMove);
    };
    std::string got;
    std::thread tool([&] {
      Send(At(30, 30) + " mousedown 1 " + At(40, 40));
      while (TakeLine() != "entered")
        Send("mousemove 60 60 mousemove 61 60");
      Send("mouseup 1");
    });
    RunUntil([&] { return mEffect != -1; });
    tool.join();
    return WaitForLine();
  }
  void Log(const std::string& inWord) {
    mLast = inWord;
    UITest::Log(inWord);
  }

  boost::intrusive_ptr<ui::OS_Window> mWindow;
  datatransfer::OS_DropTarget mTarget;
  DragNode* mNode = nullptr;
  std::string mLast;
  int mEffect = -1;

 private:
  pid_t mPartner = -1;
  std::thread mReader;
  std::mutex mMutex;
  std::string mLine;
};

}  // namespace

TEST_F(DragsAcrossPrograms, ComeWithTheirDataAndTellTheSource) {
  mNode->mEffect = kDropMove;
  mNode->mOn["drop"] = [&](OS_ReceiveData& inData) {
    EXPECT_FALSE(inData.IsFromThisProgram());
    EXPECT_EQ(inData.GetAllowedEffects(), kDropCopy | kDropMove);
    lumcore::UTF16String text;
    std::vector<lumcore::UTF16String> files;
    std::string bytes;
    EXPECT_EQ(inData.ReadText(text), ReadResult::kRead);
    EXPECT_EQ(lumcore::utility::ToStdString(text), "w\xC3\xB6rd");
    EXPECT_EQ(inData.ReadFiles(files), ReadResult::kRead);
    EXPECT_EQ(lumcore::utility::ToStdString(files.at(0)), "/tmp/a b");
    EXPECT_EQ(inData.ReadBytes("application/x-big", bytes), ReadResult::kRead);
    EXPECT_EQ(bytes, std::string(3 << 20, 'x'));
  };
  DragFromPartnerToNode();
  Send("mouseup 1");
  EXPECT_EQ(WaitForLine(), "sent 2");
  const std::string log = TakeLog();
  EXPECT_EQ(log.find("node:enter@2"), 0u) << log;
  EXPECT_EQ(log.substr(log.rfind(' '), 12), " node:drop@2") << log;
}

TEST_F(DragsAcrossPrograms, DoNoHarmWhenTheSourceVanishes) {
  DragFromPartnerToNode();
  EndPartner();
  Send("mouseup 1");
  TakeLog();
  StartPartner();
  mLast.clear();
  DragFromPartnerToNode();
  const std::string log = TakeLog();
  EXPECT_EQ(log.find("node:leave node:enter@"), 0u) << log;
  Send("mouseup 1");
  EXPECT_EQ(WaitForLine(), "sent 1");
}

TEST_F(DragsAcrossPrograms, GoOutAndHearWhatBecameOfThem) {
  EXPECT_EQ(DragOut(true), "got w\xC3\xB6rd|file:///tmp/a b|row|2");
  EXPECT_EQ(mEffect, kDropMove);
}

// Another program may take a drag on its way and refuse the drop; what was to be moved stays.
TEST_F(DragsAcrossPrograms, AreNotMovedWhereTheDropIsRefused) {
  EXPECT_EQ(DragOut(false), "got refused");
  EXPECT_EQ(mEffect, ui::kDropNone);
}

}  // namespace lumui::test
