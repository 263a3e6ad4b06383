// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/workspace/Workspace.h"

#include <gtest/gtest.h>

#include <string>

#include "lumcore/config/ThrowError.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumworkspace/workspace/TopLevelWindow.h"

namespace {

using lumworkspace::workspace::TopLevelWindow;
using lumworkspace::workspace::Workspace;
using Rect = lumcore::geom::RectT<int>;
using WindowP = boost::intrusive_ptr<TopLevelWindow>;

std::string sMessages;

void LogDestruction(lumui::ui::OS_Event* ioEvent) {
  if (ioEvent->message == lumui::ui::kMessageDestroy) sMessages += "destroyed;";
}

class Windows : public testing::Test {
 protected:
  Windows() { sMessages.clear(); }

  Workspace mWorkspace{lumui::drawbot::GetDefaultSupplier()};
};

TEST_F(Windows, MainWindowIsMadeOnceAndGoesOnAPermittedClose) {
  mWorkspace.CreateMainTopLevelWindow(&LogDestruction);
  EXPECT_THROW(mWorkspace.CreateMainTopLevelWindow(&LogDestruction), lumcore::config::Error);
  const WindowP main = mWorkspace.GetMainTopLevelWindow();
  ASSERT_TRUE(main && main->IsMain());
  main->UI_DoClose();
  EXPECT_EQ(mWorkspace.GetMainTopLevelWindow(), nullptr);
  EXPECT_EQ(main->UI_GetHandle(), nullptr);
  EXPECT_EQ(sMessages, "destroyed;");
}

TEST_F(Windows, OnlyChildrenAreLetGo) {
  const WindowP child = mWorkspace.CreateTopLevelWindow(false, nullptr);
  const WindowP stranger = mWorkspace.CreateTopLevelWindow(false, nullptr);
  mWorkspace.AddChild(child);
  EXPECT_FALSE(mWorkspace.ChildRequestRemove(stranger));
  EXPECT_TRUE(mWorkspace.ChildRequestRemove(child));
  EXPECT_FALSE(mWorkspace.ChildRequestRemove(child));
  EXPECT_TRUE(mWorkspace.GetTopLevelWindows().empty());
  // A window that is no child closes on its own account.
  ASSERT_NE(stranger->UI_GetHandle(), nullptr);
  stranger->UI_DoClose();
  EXPECT_EQ(stranger->UI_GetHandle(), nullptr);
}

TEST_F(Windows, WorkspaceThatGoesTakesTheNativeWindowsWithIt) {
  WindowP kept;
  {
    Workspace workspace(lumui::drawbot::GetDefaultSupplier());
    workspace.CreateMainTopLevelWindow(&LogDestruction);
    kept = workspace.GetMainTopLevelWindow();
  }
  EXPECT_EQ(kept->UI_GetHandle(), nullptr);
  EXPECT_EQ(sMessages, "destroyed;");
}

// The offscreen platform has one screen of 800 by 800 at the origin.
TEST_F(Windows, AreBroughtBackOntoAPresentScreen) {
  struct Case {
    Rect wanted;
    Rect placed;
  };
  const Case cases[] = {
      {Rect(50, 60, 300, 200), Rect(50, 60, 300, 200)},
      {Rect(690, 60, 300, 200), Rect(690, 60, 300, 200)},      // sticks out, but can be grabbed
      {Rect(710, 60, 300, 200), Rect(500, 60, 300, 200)},      // 90 units to grab are too few
      {Rect(50, -30, 300, 200), Rect(50, 0, 300, 200)},        // the title bar is above the screen
      {Rect(5000, 3000, 300, 200), Rect(500, 600, 300, 200)},  // on a screen that is gone
      {Rect(-4000, 10, 2000, 900), Rect(0, 0, 800, 800)},      // larger than the screen
  };
  for (const Case& each : cases) {
    const WindowP window = mWorkspace.CreateTopLevelWindow(false, &each.wanted);
    const auto& actual = window->UI_GetLocalRectF();
    EXPECT_EQ(Rect(static_cast<int>(actual.x), static_cast<int>(actual.y),
                   static_cast<int>(actual.width), static_cast<int>(actual.height)),
              each.placed)
        << each.wanted.x << ' ' << each.wanted.y << " became " << actual.x << ' ' << actual.y;
    window->UI_DestroyWindow();
  }
}

}  // namespace
