// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <cstdlib>
#include <functional>
#include <thread>

#include "trackview/RealView.h"

namespace {

using test_support::RealView;
namespace tv = vek::trackview;

// Whole gestures as another program's pointer makes them.
class ViewOnADisplay : public RealView {
 protected:
  ViewOnADisplay() {
    mWindow->UI_SetLocalRectF(lumcore::geom::RectT<float>(300, 200, 200, 100));
    mWindow->UI_Activate();
    RunUntil([&] { return mWindow->UI_IsActive(); });
  }
  void RunUntil(const std::function<bool()>& inCondition) {
    App().SetIdleFunction([&] {
      if (inCondition()) App().Quit();
    });
    App().Run();
    App().SetIdleFunction(nullptr);
  }
  // "@60,70" is a data point, for xdotool the place on the screen where it was at the start. The
  // log, up to the first thing that contains the end.
  std::string Send(std::string inActions, const std::string& inEnd) {
    mLog.Take();
    for (auto at = inActions.find('@'); at != std::string::npos; at = inActions.find('@')) {
      int x = 0;
      int y = 0;
      int length = 0;
      EXPECT_EQ(std::sscanf(inActions.c_str() + at, "@%d,%d%n", &x, &y, &length), 2);
      const auto& place = mWindow->UI_GetLocalRectF();
      const tv::Point point = At(static_cast<float>(x), static_cast<float>(y)) + place.Origin();
      inActions.replace(at, static_cast<std::size_t>(length),
                        "mousemove " + std::to_string(static_cast<int>(point.x)) + " " +
                            std::to_string(static_cast<int>(point.y)));
    }
    std::thread tool([&] { EXPECT_EQ(std::system(("xdotool " + inActions).c_str()), 0); });
    std::string log;
    RunUntil([&] {
      const std::string more = mLog.Take();
      if (!more.empty()) log += (log.empty() ? "" : " ") + more;
      return log.find(inEnd) != std::string::npos;
    });
    tool.join();
    return log;
  }
};

TEST_F(ViewOnADisplay, FollowsADragBeyondTheWindowsEdge) {
  Send("@60,70", "hover@60,70 ~tracker");
  const std::string log = Send("mousedown 1 @70,70 @-90,75 mouseup 1", "~tracker");
  EXPECT_EQ(log.find("v:acquire@60,70 begin@60,70 news0 "), 0u) << log;
  // Moves on the way may come as one.
  EXPECT_NE(log.find("v:exit continue@-90,75 news1 end@-90,75 news2 ~tracker"), std::string::npos)
      << log;
}

TEST_F(ViewOnADisplay, OpensTheMenuAtARightClick) {
  Send("@60,70", "hover@60,70 ~tracker");
  EXPECT_EQ(Send("click 3", "v:menu"),
            "v:acquire@60,70 begin@60,70 news0 end@60,70 news2 ~tracker v:menu@120,140");
}

TEST_F(ViewOnADisplay, ScrollsByTheWheel) {
  Send("@60,70", "hover@60,70 ~tracker");
  View().NotifyWhenDataPosChanged(tv::PlatformView::PositionListener(
      new boost::function<void(tv::PlatformView*)>([&](tv::PlatformView* inView) {
        mLog.Add("at" + test_support::AsText(inView->DataPos()));
      })));
  EXPECT_EQ(Send("click 5", "at"), "at50,90");
}

}  // namespace
