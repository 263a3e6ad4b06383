// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <optional>

#include "lumui/datatransfer/OS_DropTarget.h"
#include "support/DragPartner.h"
#include "support/RealInput.h"
#include "trackview/RealView.h"
#include "vek/trackview/TrackerDragAndDropInterface.h"

namespace {

using lumui::ui::kDropCopy;
using lumui::ui::kDropMove;
using test_support::DragPartner;
using test_support::RealInput;
using test_support::RealView;
namespace tv = vek::trackview;

// Whole gestures as another program's pointer makes them.
class ViewOnADisplay : public RealView {
 protected:
  ViewOnADisplay() {
    mWindow->UI_SetLocalRectF(lumcore::geom::RectT<float>(300, 200, 200, 100));
    mWindow->UI_Activate();
    mInput.emplace(*mWindow, 31, 40);
    mInput->Send(Places("@60,70"));
    mLog.Take();
  }
  // "@60,70" is a data point, for the tool the place in the window where it was at the start.
  std::string Places(std::string inActions) {
    for (auto at = inActions.find('@'); at != std::string::npos; at = inActions.find('@')) {
      int x = 0;
      int y = 0;
      int length = 0;
      EXPECT_EQ(std::sscanf(inActions.c_str() + at, "@%d,%d%n", &x, &y, &length), 2);
      const tv::Point point = At(static_cast<float>(x), static_cast<float>(y));
      inActions.replace(at, static_cast<std::size_t>(length),
                        mInput->At(static_cast<int>(point.x), static_cast<int>(point.y)));
    }
    return inActions;
  }
  // The log, up to the first thing that contains the end.
  std::string Send(const std::string& inActions, const std::string& inEnd) {
    mInput->Send(Places(inActions));
    return WaitFor(inEnd);
  }
  std::string WaitFor(const std::string& inEnd) {
    std::string log;
    RealInput::RunUntil([&] {
      const std::string more = mLog.Take();
      if (!more.empty()) log += (log.empty() ? "" : " ") + more;
      return log.find(inEnd) != std::string::npos;
    });
    return log;
  }

  std::optional<RealInput> mInput;
};

TEST_F(ViewOnADisplay, FollowsADragBeyondTheWindowsEdge) {
  const std::string log = Send("mousedown 1 @70,70 @-90,75 mouseup 1", "~tracker");
  EXPECT_EQ(log.find("v:acquire@60,70 begin@60,70 news0 "), 0u) << log;
  // Moves on the way may come as one.
  EXPECT_NE(log.find("v:exit continue@-90,75 news1 end@-90,75 news2 ~tracker"), std::string::npos)
      << log;
}

TEST_F(ViewOnADisplay, OpensTheMenuAtARightClick) {
  EXPECT_EQ(Send("click 3", "v:menu"),
            "v:acquire@60,70 begin@60,70 news0 end@60,70 news2 ~tracker v:menu@120,140");
}

TEST_F(ViewOnADisplay, ScrollsAndZoomsByTheWheel) {
  View().NotifyWhenDataPosChanged(tv::PlatformView::PositionListener(
      new boost::function<void(tv::PlatformView*)>([&](tv::PlatformView* inView) {
        mLog.Add("at" + test_support::AsText(inView->DataPos()));
      })));
  EXPECT_EQ(Send("click 5", "at"), "at50,90");
  EXPECT_EQ(Send("keydown ctrl click 4 keyup ctrl", "at"), "v:key at50,60 v:key");
  View().SetZoomsByWheel(true);
  EXPECT_EQ(Send("keydown ctrl click 4 keyup ctrl", "at"), "v:key at52,62 v:key");
  EXPECT_EQ(Track().GetCoordScale(), 2.5f);
}

class ViewDragsOnADisplay : public ViewOnADisplay {
 protected:
  ViewDragsOnADisplay() { mTarget.Attach(*mWindow); }
  // Moves are taken from then on.
  void DragIn(DragPartner& ioPartner) {
    mMoves = 0;
    for (const char* const step : {"continue", "end"})
      mScript[step] = [&] { ++mMoves, mOverlay->mDrag->SetDropEffect(kDropMove); };
    mOverlay->mTakes = true;
    ioPartner.DragTo(Places("@60,70 @61,70"), [&] { return mMoves > DragPartner::kAnswered; });
    mLog.Take();
  }

  lumui::datatransfer::OS_DropTarget mTarget;
  int mMoves = 0;
};

// The view is as it was before, though the source has never said that its drag has left.
TEST_F(ViewDragsOnADisplay, EndWithASourceThatIsKilled) {
  DragPartner partner;
  DragIn(partner);
  partner.Kill();
  const std::string log = WaitFor("~tracker");
  EXPECT_NE(log.find("abandoned@0,0 ~tracker"), std::string::npos) << log;
  mScript.clear();
  RealInput::RunTool("mouseup 1");
  EXPECT_EQ(Send("@65,75 mousedown 1 @70,70 mouseup 1", "news2 ~tracker").find("abandoned"),
            std::string::npos);
  DragPartner next;
  DragIn(next);
  RealInput::RunTool("mouseup 1");
  const std::string dropped = WaitFor("~tracker");
  EXPECT_NE(dropped.find("end. ~tracker"), std::string::npos) << dropped;
  EXPECT_EQ(next.WaitForLine(), "sent 2");
}

// What may be done, what is preferred, with what the other program takes it, what it then says, and
// what we hear of it.
TEST_F(ViewDragsOnADisplay, GoOutWithTheEffectsThatAreAllowed) {
  constexpr int kBoth = kDropCopy | kDropMove;
  const struct {
    int allowed, preferred;
    const char* takes;
    const char* said;
    int effect;
  } kCases[] = {
      {kBoth, kDropMove, "", "got word|file:///tmp/a||2", kDropMove},
      {kBoth, kDropMove, "copy", "got word|file:///tmp/a||1", kDropCopy},
      {kDropCopy, kDropMove, "", "got word|file:///tmp/a||1", kDropCopy},
  };
  for (const auto& row : kCases) {
    DragPartner partner(row.takes);
    int effect = -1;
    mScript["continue"] = [&] {
      mScript.clear();
      mLog.Take();
      const auto data = View().GetSendData();
      data->AddText(lumcore::utility::ToUTF16("word"));
      data->AddFiles({lumcore::utility::ToUTF16("/tmp/a")});
      effect = data->SendByDrag(row.allowed, row.preferred);
    };
    EXPECT_EQ(partner.TakeFrom(Places("@60,70"), [&] { return effect != -1; }), row.said);
    EXPECT_EQ(effect, row.effect) << row.said;
    // The gesture has ended where the drag began, and nothing of it comes behind.
    const std::string log = Take();
    EXPECT_EQ(log.find("end@"), 0u) << log;
    EXPECT_NE(log.find("news2 continue. ~tracker"), std::string::npos) << log;
    EXPECT_EQ(log.find("TRACKING"), std::string::npos) << log;
  }
}

}  // namespace
