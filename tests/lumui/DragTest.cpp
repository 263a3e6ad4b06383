// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <memory>
#include <stdexcept>

#include "DragNode.h"
#include "lumui/datatransfer/OS_DropTarget.h"
#include "lumui/datatransfer/OS_ReceiveData.h"
#include "lumui/datatransfer/OS_SendData.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/drawbot/Surface.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Executor.h"

namespace lumui::test {

namespace {

using testing::ForeignDrag;
class Drags : public UITest {
 protected:
  // "a" at (10, 10) holds "b" at (20, 20), each half as large as what is around it; "c" is on the
  // right.
  Drags() {
    mTarget.Attach(*mWindow);
    mA = Add("a", *mWindow, Rect(10, 10, 100, 80));
    mB = Add("b", *mA, Rect(20, 20, 40, 40));
    mC = Add("c", *mWindow, Rect(150, 10, 40, 80));
    mDrag.reset(new ForeignDrag(*mWindow, kDropCopy | kDropMove));
    mDrag->AddText(U16("word"));
    App().PumpPendingEvents();
  }
  DragNode* Add(const char* inName, ui::UI_Node& inParent, const Rect& inRect) {
    auto* const node = new DragNode(inName, [this](const std::string& inWord) { Log(inWord); });
    node->UI_SetLocalRectF(inRect);
    inParent.UI_AddChild(node);
    return node;
  }
  std::string Move(float inX, float inY) {
    const int effect = mDrag->Move(Point(inX, inY));
    return TakeLog() + "=" + std::to_string(effect);
  }
  std::string Drop(float inX, float inY) {
    const int effect = mDrag->Drop(Point(inX, inY));
    return TakeLog() + "=" + std::to_string(effect);
  }

  boost::intrusive_ptr<ui::OS_Window> mWindow = MakeWindow();
  datatransfer::OS_DropTarget mTarget;
  DragNode *mA, *mB, *mC;
  std::unique_ptr<ForeignDrag> mDrag;
};

}  // namespace

TEST_F(Drags, GoToTheInnermostThatServesThem) {
  EXPECT_EQ(Move(5, 5), "=0");
  EXPECT_EQ(Move(15, 15), "a:enter@5,5=1");
  EXPECT_EQ(Move(40, 40), "a:leave b:enter@10,10=1");
  mB->mEffect = 0;  // serves, and would do nothing here
  EXPECT_EQ(Move(41, 40), "b:over@11,10=0");
  mB->mEffect = kNotServed;
  mA->mEffect = kDropMove;
  EXPECT_EQ(Move(42, 40), "b:over@12,10 a:enter@32,30=2");
  EXPECT_EQ(Move(43, 40), "b:over@13,10 a:over@33,30=2");
  mB->mEffect = kDropLink;  // the source does not allow it
  EXPECT_EQ(Move(44, 40), "b:over@14,10 a:leave=0");
  EXPECT_EQ(Drop(44, 40), "b:leave=0");
  mB->mEffect = kNotServed;
  EXPECT_EQ(Move(45, 40), "b:enter@15,10 a:enter@35,30 b:over@15,10 a:over@35,30=2");
  EXPECT_EQ(Drop(45, 40), "b:leave a:drop@35,30=2");
  // A drop where no move has been enters first.
  Move(5, 5);
  mC->mEffect = kDropCopy | kDropMove;  // the source proposes one
  EXPECT_EQ(Drop(160, 20), "c:enter@10,10 c:drop@10,10=1");
  mC->UI_SetDisabled(true);
  mA->mWants = false;
  EXPECT_EQ(Move(160, 20) + Move(15, 15), "=0=0");
}

TEST_F(Drags, KeepTheOrderWhenNodesComeAndGo) {
  Move(15, 15);
  DragNode* const top = Add("top", *mWindow, Rect(0, 0, 200, 100));
  EXPECT_EQ(Drop(15, 15), "a:leave top:enter@15,15 top:drop@15,15=1");
  Move(15, 15);
  top->UI_Show(false);
  EXPECT_EQ(TakeLog(), "top:leave");
  EXPECT_EQ(Move(15, 15), "a:enter@5,5=1");
  const boost::intrusive_ptr<DragNode> kept = mA;
  mWindow->UI_RemoveChild(mA);
  EXPECT_EQ(TakeLog(), "a:leave");
  EXPECT_EQ(Drop(15, 15), "=0");
  // In its own step, in which its last reference goes.
  mC->mLogDestruction = true;
  mC->mOn["over"] = [&](OS_ReceiveData&) { mWindow->UI_RemoveChild(mC); };
  EXPECT_EQ(Move(160, 20), "c:enter@10,10 c:over@10,10 c:leave ~c=0");
  EXPECT_EQ(Drop(160, 20), "=0");
  mWindow->UI_AddChild(mA);
  Move(15, 15);
  mWindow->UI_DestroyWindow();
  EXPECT_EQ(TakeLog(), "a:leave");
}

TEST_F(Drags, EndOnceAlsoWhereHandlersThrowAndSourcesVanish) {
  for (const char* step : {"enter", "over", "drop", "leave"}) {
    mA->mOn = {{step, [step](OS_ReceiveData&) { throw std::runtime_error(step); }}};
    Move(15, 15);
    Move(16, 15);
    Drop(16, 15);
    Move(15, 15);
    Move(5, 5);
    EXPECT_NE(TakeErrors().find(step), std::string::npos);
    TakeLog();
  }
  mA->mOn.clear();
  Move(15, 15);
  mDrag.reset(new ForeignDrag(*mWindow));
  EXPECT_EQ(Move(16, 15), "a:leave a:enter@6,5=1");
  // The next drag comes while the drop of this one is handled.
  mA->mOn["drop"] = [&](OS_ReceiveData&) {
    mA->mOn.clear();
    ForeignDrag other(*mWindow);
    other.Move(Point(17, 15));
    other.Leave();
  };
  EXPECT_EQ(Drop(16, 15), "a:drop@6,5 a:enter@7,5 a:over@7,5 a:leave=1");
}

TEST_F(Drags, SayWhatBecomesOfAReading) {
  mDrag.reset(new ForeignDrag(*mWindow));
  mDrag->AddBytes("text/plain;charset=utf-8", std::string("a\xC3\xA9\xFF", 4));
  mDrag->AddBytes("application/x-big", std::string(1000, 'x'));
  mDrag->AddBytes("application/x-none", "");
  mDrag->AddBytes("text/uri-list",
                  "https://example.org/x\r\nfile:///tmp/a%20b\r\nfile://elsewhere/tmp/c\r\n");
  int checks = 0;
  mA->mOn["drop"] = [&](OS_ReceiveData& inData) {
    ++checks;
    lumcore::UTF16String text;
    EXPECT_EQ(inData.ReadText(text), ReadResult::kIllFormed);
    EXPECT_EQ(lumcore::utility::ToStdString(text), "a\xC3\xA9\xEF\xBF\xBD");
    EXPECT_EQ(inData.ReadText(text, 3), ReadResult::kTooLarge);
    EXPECT_TRUE(text.empty());
    std::string bytes = "old";
    EXPECT_EQ(inData.ReadBytes("application/x-big", bytes, 999), ReadResult::kTooLarge);
    EXPECT_EQ(bytes, "");
    EXPECT_EQ(inData.ReadBytes("application/x-big", bytes, 1000), ReadResult::kRead);
    EXPECT_EQ(bytes.size(), 1000u);
    EXPECT_EQ(inData.ReadBytes("application/x-none", bytes), ReadResult::kNothingCame);
    EXPECT_EQ(inData.ReadBytes("application/x-other", bytes), ReadResult::kNotOffered);
    std::vector<lumcore::UTF16String> files;
    EXPECT_EQ(inData.ReadFiles(files), ReadResult::kRead);
    ASSERT_EQ(files.size(), 1u);
    EXPECT_EQ(lumcore::utility::ToStdString(files[0]), "/tmp/a b");
  };
  Move(15, 15);
  Drop(15, 15);
  EXPECT_EQ(checks, 1);
}

namespace {

class OwnDrags : public Drags {
 protected:
  // Drags from "a" with these acts of the user, of which each comes in the drag's own loop.
  std::string DragFromA(const std::vector<std::function<void()>>& inActs, int inEffects) {
    int effect = -1;
    mA->mOnMouse = [&](const ui::MouseEvent& inEvent) {
      if (inEvent.GetAction() != ui::PointerEvent::kActionPress) return;
      datatransfer::OS_SendData data(inEvent.GetOSEvent());
      data.AddText(U16("w\xC3\xB6rd"));
      data.AddFiles({U16("/tmp/x")});
      data.AddBytes("application/x-row", "old");
      data.AddBytesOnDemand("application/x-row", [&] { return Made(); });
      const auto surface = mWindow->UI_GetDrawSupplier()->NewSurface(30, 12);
      data.SetDragImage(surface->MakeImage(), Point(4, 4));
      for (const auto& act : inActs)
        Manager().GetExecutor()->Post(act);
      effect = data.SendByDrag(inEffects, kDropMove);
    };
    testing::PressMouse(*mWindow, Point(15, 15));
    mA->mOnMouse = nullptr;
    App().PumpPendingEvents();
    return TakeLog() + "=" + std::to_string(effect);
  }
  std::string Made() {
    if (mMakeFails) throw std::runtime_error("make");
    return "row";
  }

  bool mMakeFails = false;
};

}  // namespace

TEST_F(OwnDrags, GoTheSameRoadAndTellTheSender) {
  mB->mWants = false;
  mC->mEffect = kDropMove;
  mC->mOn["drop"] = [&](OS_ReceiveData& inData) {
    EXPECT_TRUE(inData.IsFromThisProgram());
    lumcore::UTF16String text;
    std::vector<lumcore::UTF16String> files;
    std::string bytes;
    inData.ReadText(text);
    inData.ReadFiles(files);
    inData.ReadBytes("application/x-row", bytes);
    Log(Text(lumcore::utility::ToUTF8(text)) + "," + std::to_string(files.size()) + "," + bytes);
  };
  const auto Move = [&](float inX) {
    return [=] { testing::MoveMouse(*mWindow, Point(inX, 15)); };
  };
  const auto Release = [&](float inX) {
    return [=] { testing::ReleaseMouse(*mWindow, Point(inX, 15)); };
  };
  EXPECT_EQ(DragFromA({Move(16), Move(160), Release(160)}, kDropCopy | kDropMove),
            "a:press@5,5 a:enter@6,5 a:over@6,5 a:leave c:enter@10,5 c:drop@10,5 "
            "w\xC3\xB6rd,1,row=2");
  const std::string moved = "a:press@5,5 c:enter@10,5 c:over@10,5 ";
  mMakeFails = true;
  EXPECT_EQ(DragFromA({Move(160), Release(160)}, kDropMove),
            moved + "c:drop@10,5 w\xC3\xB6rd,1,=2");
  EXPECT_EQ(TakeErrors(), "make");
  EXPECT_EQ(DragFromA({Move(160), Release(160)}, kDropCopy), moved + "c:leave=0");
  const ui::KeyboardCode escape(ui::KeyboardCode::kEscape);
  EXPECT_EQ(DragFromA({Move(160), [&] { testing::TapKey(*mWindow, escape); }}, kDropMove),
            moved + "c:leave=0");
  testing::ReleaseMouse(*mWindow, Point(15, 15));
}

}  // namespace lumui::test
