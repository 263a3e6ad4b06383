// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <optional>
#include <string>

#include "DragNode.h"
#include "lumui/datatransfer/OS_DropTarget.h"
#include "lumui/datatransfer/OS_SendData.h"
#include "support/DragPartner.h"
#include "support/RealInput.h"

// Drags between two programs, by the window system's own road.
namespace lumui::test {

namespace {

using test_support::DragPartner;
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
    mPartner.emplace();
  }

  void DragFromPartnerToNode() {
    mMoves = 0;
    mPartner->DragTo(mInput->At(30, 30) + " " + mInput->At(31, 30),
                     [&] { return mMoves > DragPartner::kAnswered; });
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
    return mPartner->TakeFrom(mInput->At(30, 30), [&] { return mEffect != -1; });
  }
  void Log(const std::string& inWord) {
    if (inWord.find("node:over") == 0) ++mMoves;
    UITest::Log(inWord);
  }

  boost::intrusive_ptr<ui::OS_Window> mWindow;
  datatransfer::OS_DropTarget mTarget;
  DragNode* mNode = nullptr;
  std::optional<RealInput> mInput;
  std::optional<DragPartner> mPartner;
  int mMoves = 0;
  int mEffect = -1;
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
  EXPECT_EQ(mPartner->WaitForLine(), "sent 2");
  const std::string log = TakeLog();
  EXPECT_EQ(log.find("node:enter@2"), 0u) << log;
  EXPECT_EQ(log.substr(log.rfind(' '), 12), " node:drop@2") << log;
}

TEST_F(DragsAcrossPrograms, DoNoHarmWhenTheSourceVanishes) {
  DragFromPartnerToNode();
  mPartner->Kill();
  std::string log;
  // A last move may still come before, and nothing behind it.
  RealInput::RunUntil([&] {
    log += TakeLog() + " ";
    return log.find("node:leave") != std::string::npos;
  });
  RealInput::RunTool("mouseup 1");
  mPartner.emplace();
  DragFromPartnerToNode();
  log += TakeLog();
  const auto left = log.find("node:leave");
  EXPECT_EQ(log.rfind("node:leave"), left) << log;
  EXPECT_EQ(log.find("node:enter@", left), log.rfind("node:enter@")) << log;
  EXPECT_EQ(log.find("node:enter@"), 0u) << log;
  RealInput::RunTool("mouseup 1");
  EXPECT_EQ(mPartner->WaitForLine(), "sent 1");
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
