// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "DragNode.h"
#include "lumui/datatransfer/OS_DropTarget.h"
#include "lumui/datatransfer/OS_SendData.h"
#include "lumui/ui/Executor.h"
#include "support/RealInput.h"

// Drags between two programs, by the window system's own road.
namespace lumui::test {

namespace {

using test_support::RealInput;

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
    mInput.emplace(*mWindow, 29, 30);
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
      mLines.emplace_back(line);
      mLines.back().pop_back();
      Manager().GetExecutor()->Post([] {});
    }
    std::fclose(file);
  }
  // The next thing that the partner said, empty if it has said nothing more.
  std::string TakeLine() {
    const std::lock_guard<std::mutex> lock(mMutex);
    if (mLines.empty()) return "";
    std::string line = std::move(mLines.front());
    mLines.pop_front();
    return line;
  }
  // Without what it says of the pointer.
  std::string WaitForLine() {
    std::string line;
    RealInput::RunUntil([&] {
      do
        line = TakeLine();
      while (line == "pointer" || line == "over");
      return !line.empty();
    });
    return line;
  }
  int CountSaid(const std::string& inLine) {
    int count = 0;
    for (std::string line = TakeLine(); !line.empty(); line = TakeLine())
      if (line == inLine) ++count;
    return count;
  }
  // A source lets a drag go if the button comes up before its target has answered. It tells the
  // target of another move only when it has had the answer to the one before.
  void DragFromPartnerToNode() {
    RealInput::SendUntil("mousemove 61 60 mousemove 60 60",
                         [&] { return CountSaid("pointer") != 0; });
    RealInput::RunTool("mousedown 1");
    EXPECT_EQ(WaitForLine(), "pressed");
    mMoves = 0;
    RealInput::SendUntil(mInput->At(30, 30) + " " + mInput->At(31, 30),
                         [&] { return mMoves > kAnswered; });
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
    std::thread tool([&] {
      RealInput::RunTool(mInput->At(30, 30) + " mousedown 1");
      for (int overs = 0; overs <= kAnswered; overs += CountSaid("over"))
        RealInput::RunTool("mousemove 60 60 mousemove 61 60");
      RealInput::RunTool("mouseup 1");
    });
    RealInput::RunUntil([&] { return mEffect != -1; });
    tool.join();
    return WaitForLine();
  }
  void Log(const std::string& inWord) {
    if (inWord.find("node:over") == 0) ++mMoves;
    UITest::Log(inWord);
  }

  static constexpr int kAnswered = 2;

  boost::intrusive_ptr<ui::OS_Window> mWindow;
  datatransfer::OS_DropTarget mTarget;
  DragNode* mNode = nullptr;
  std::optional<RealInput> mInput;
  int mMoves = 0;
  int mEffect = -1;

 private:
  pid_t mPartner = -1;
  std::thread mReader;
  std::mutex mMutex;
  std::deque<std::string> mLines;
};

}  // namespace

TEST_F(DragsAcrossPrograms, ComeWithTheirDataAndTellTheSource) {
  mNode->mEffect = kDropMove;
  bool isDropped = false;
  mNode->mOn["drop"] = [&](OS_ReceiveData& inData) {
    isDropped = true;
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
  RealInput::RunTool("mouseup 1");
  // The other program may be through with its drag before we get the drop.
  RealInput::RunUntil([&] { return isDropped; });
  EXPECT_EQ(WaitForLine(), "sent 2");
  const std::string log = TakeLog();
  EXPECT_EQ(log.find("node:enter@2"), 0u) << log;
  EXPECT_EQ(log.substr(log.rfind(' '), 12), " node:drop@2") << log;
}

TEST_F(DragsAcrossPrograms, DoNoHarmWhenTheSourceVanishes) {
  DragFromPartnerToNode();
  EndPartner();
  RealInput::RunTool("mouseup 1");
  TakeLog();
  StartPartner();
  DragFromPartnerToNode();
  const std::string log = TakeLog();
  // A last move of the first source may still come before.
  const auto left = log.find("node:leave node:enter@");
  EXPECT_NE(left, std::string::npos) << log;
  EXPECT_EQ(log.find("node:leave"), left) << log;
  EXPECT_EQ(log.rfind("node:leave"), left) << log;
  EXPECT_EQ(log.rfind("node:enter"), log.find("node:enter")) << log;
  RealInput::RunTool("mouseup 1");
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
