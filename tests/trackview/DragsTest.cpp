// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <memory>
#include <stdexcept>

#include "lumui/datatransfer/OS_DropTarget.h"
#include "lumui/datatransfer/OS_ReceiveData.h"
#include "lumui/ui/Executor.h"
#include "trackview/RealView.h"
#include "vek/trackview/TrackerDragAndDropInterface.h"

namespace {

using lumui::testing::ForeignDrag;
using lumui::ui::kDropCopy;
using lumui::ui::kDropMove;
using test_support::RealView;
namespace tv = vek::trackview;

class ViewDrags : public RealView {
 protected:
  ViewDrags() {
    mOverlay->mTakes = true;
    mTarget.Attach(*mWindow);
    mDrag.AddText(lumcore::utility::ToUTF16("word"));
    for (const char* step : {"begin", "continue", "end"}) {
      mScript[step] = [this] {
        lumcore::UTF16String text;
        mOverlay->mDrag->GetReceiveData()->ReadText(text);
        mLog.Add(lumcore::utility::ToStdString(text));
        if (mEffect >= 0) mOverlay->mDrag->SetDropEffect(static_cast<unsigned>(mEffect));
      };
    }
    mScript["abandoned"] = [this] {
      mLog.Add(mOverlay->mDrag->GetReceiveData() ? "data" : "none");
    };
  }
  std::string Shown(int inEffect) {
    std::string log = " " + mLog.Take();
    const std::string asked = " v:drops";
    for (auto at = log.find(asked); at != std::string::npos; at = log.find(asked))
      log.erase(at, asked.size());
    return log.substr(log.empty() ? 0 : 1) + "=" + std::to_string(inEffect);
  }
  std::string Move(float inX, float inY) { return Shown(mDrag.Move(At(inX, inY))); }
  std::string Drop(float inX, float inY) { return Shown(mDrag.Drop(At(inX, inY))); }
  std::string Leave() {
    mDrag.Leave();
    return Take();
  }

  lumui::datatransfer::OS_DropTarget mTarget;
  ForeignDrag mDrag{*mWindow, kDropCopy | kDropMove};
  int mEffect = kDropMove;
};

TEST_F(ViewDrags, AreServedByTrackersInDataUnits) {
  EXPECT_EQ(Move(60, 70),
            "v:acquire@60,70 begin@60,70 word begin. continue@60,70 word continue.=2");
  EXPECT_FALSE(View().IsTracking());
  mEffect = -1;  // each step begins with no effect
  EXPECT_EQ(Move(61, 70), "continue@61,70 word continue.=0");
  mEffect = kDropCopy;
  Move(62, 70);
  EXPECT_EQ(Drop(62, 70), "end@62,70 word end. ~tracker=1");
  Move(60, 70);
  mLog.Take();
  EXPECT_EQ(Leave(), "abandoned@0,0 none abandoned. ~tracker");
  // Scrolled in the middle of a drag.
  Move(60, 70);
  View().DataPos(tv::Point(0, 10), true);
  EXPECT_EQ(Move(60, 70), "continue@10,20 word continue.=1");
  Leave();
}

TEST_F(ViewDrags, GiveAnOverlayOneChance) {
  const auto make = std::exchange(mOverlay->mMakeTracker, nullptr);
  EXPECT_EQ(Move(60, 70), "v:acquire@60,70=0");
  mOverlay->mMakeTracker = make;
  EXPECT_EQ(Move(61, 70), "=0");
  EXPECT_EQ(Drop(61, 70), "=0");
  mOverlay->mTakes = false;
  EXPECT_EQ(Move(60, 70), "=0");
}

TEST_F(ViewDrags, RunBesideAMouseGesture) {
  auto script = std::exchange(mScript, {});
  Do("pl60,70");
  mLog.Take();
  std::swap(script, mScript);
  Move(60, 70);
  Drop(60, 70);
  EXPECT_TRUE(View().IsTracking());
  mScript.clear();
  Do("rl60,70");
  EXPECT_EQ(Take(), "end@60,70 news2 ~tracker");
}

TEST_F(ViewDrags, LeaveNothingBehindWhenAStepThrowsOrTheViewChanges) {
  const struct {
    const char* step;
    std::string log;
  } kCases[] = {
      {"begin", "v:acquire@60,70 begin@60,70 ~tracker=0"},
      {"continue",
       "v:acquire@60,70 begin@60,70 continue@60,70 continue@61,70 abandoned@0,0 ~tracker=0"},
      {"end",
       "v:acquire@60,70 begin@60,70 word begin. continue@60,70 word continue. "
       "continue@61,70 word continue. end@61,70 ~tracker=0"},
  };
  for (const auto& row : kCases) {
    const auto script = mScript;
    if (row.step != std::string("end")) mScript.clear();
    mScript[row.step] = [&] { throw std::runtime_error(row.step); };
    mDrag.Move(At(60, 70));
    mDrag.Move(At(61, 70));
    EXPECT_EQ(Shown(mDrag.Drop(At(61, 70))), row.log);
    EXPECT_NE(TakeErrors().find(row.step), std::string::npos);
    mScript = script;
  }
  // The drag ends in the loop of a step, with the tracker still in its operation.
  mScript["continue"] = [&] { mDrag.Leave(); };
  EXPECT_EQ(Move(60, 70),
            "v:acquire@60,70 begin@60,70 word begin. continue@60,70 abandoned@0,0 none abandoned. "
            "continue. ~tracker=0");
  mScript.erase("continue");
  // Another track view takes the place of this one.
  Move(60, 70);
  mLog.Take();
  std::auto_ptr<tv::TrackView> next(new tv::TrackView(View(), false, 1, 1));
  View().SetTrackView(next);
  EXPECT_EQ(mLog.Take(), "~tracker ~v");
  EXPECT_EQ(Move(61, 70) + Drop(61, 70), "=0=0");
  // The view goes, and the drag was in it.
  Build();
  mOverlay->mTakes = true;
  mScript.clear();
  Move(60, 70);
  mLog.Take();
  mWindow->UI_RemoveChild(std::exchange(mScroll, nullptr).get());
  App().PumpPendingEvents();
  EXPECT_EQ(mLog.Take(), "abandoned@0,0 ~tracker ~v");
}

// Out of one gesture into the same view: the gesture ends as the drag begins.
TEST_F(ViewDrags, BeginInAGesture) {
  int effect = -1;
  const auto script = std::exchange(mScript, {});
  mScript["continue"] = [&] {
    mScript.clear();
    const auto data = View().GetSendData();
    data->AddText(lumcore::utility::ToUTF16("own"));
    Manager().GetExecutor()->Post([&] { mScript = script, Do("m-70,70"); });
    Manager().GetExecutor()->Post([&] { Do("rl70,70"); });
    effect = data->SendByDrag(kDropCopy | kDropMove, kDropCopy);
  };
  Park();
  Do("pl60,70 m-62,70");
  App().PumpPendingEvents();
  EXPECT_EQ(Shown(effect),
            "v:acquire@60,70 begin@60,70 news0 continue@62,70 end@62,70 news2 v:acquire@70,70 "
            "begin@70,70 own begin. continue@70,70 own continue. end@70,70 own end. ~tracker "
            "continue. ~tracker=2");
}

}  // namespace
