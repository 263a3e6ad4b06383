// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <optional>

#include "support/RealInput.h"
#include "trackview/RealView.h"

namespace {

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

}  // namespace
