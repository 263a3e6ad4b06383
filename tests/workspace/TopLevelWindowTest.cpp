// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/workspace/TopLevelWindowT.h"

#include <gtest/gtest.h>

#include "lumui/controls/UI_TextEdit.h"
#include "lumui/datatransfer/OS_ReceiveData.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/UI_DragDropHandler.h"
#include "support/EventLog.h"
#include "uisupport/KeyFixture.h"
#include "vek/workspace/Workspace.h"

namespace {

using lumui::controls::UI_TextEdit;
using lumui::datatransfer::OS_ReceiveData;
using lumui::ui::UI_SubView;
using vek::workspace::TopLevelWindowT;
using vek::workspace::Workspace;
using Pointer = TopLevelWindowT<lumworkspace::workspace::TopLevelWindow>;
using Touch = TopLevelWindowT<lumworkspace::workspace::TouchTopLevelWindow>;
using Rect = lumcore::geom::RectT<int>;

TEST(TopLevelWindows, AreMadeNowOrLater) {
  Workspace workspace(nullptr);
  const Rect rect(30, 40, 300, 200);
  const boost::intrusive_ptr<Touch> later(
      new Touch(&workspace, false, &rect, nullptr, true, false));
  EXPECT_EQ(later->UI_GetHandle(), nullptr);
  later->ConstructWindow(&rect);
  EXPECT_NE(later->UI_GetHandle(), nullptr);
  const boost::intrusive_ptr<Touch> frameless(
      new Touch(&workspace, false, &rect, nullptr, true, true));
  EXPECT_EQ(later->UI_GetWindowStyleFlags() & ~frameless->UI_GetWindowStyleFlags(), 0xC40000u);
  workspace.CreateMainTopLevelWindow(nullptr);
  lumworkspace::workspace::TopLevelWindow* const main = workspace.GetMainTopLevelWindow();
  EXPECT_NE(dynamic_cast<Pointer*>(main), nullptr);
  EXPECT_EQ(main->UI_GetNodeForID(lumcore::utility::ToUTF8("MainWindow")), main);
  Pointer::SetSupportsMegaZoom(true);
  EXPECT_TRUE(main->CanMegaZoom());
  EXPECT_FALSE(later->CanMegaZoom());
  Pointer::SetSupportsMegaZoom(false);
}

class Logger : public lumui::ui::UI_DragDropHandler {
 public:
  Logger(std::string inName, std::string& outLog) : mName(std::move(inName)), mLog(outLog) {}
  bool UI_WantsDragDropEvents() const override { return true; }
  bool UI_HandleDragEnter(Position inAt, OS_ReceiveData&, int&) override {
    return Note("enter", inAt);
  }
  bool UI_HandleDragOver(Position inAt, OS_ReceiveData&, int&) override {
    return Note("over", inAt);
  }
  bool UI_HandleDrop(Position inAt, OS_ReceiveData& inData, int&) override {
    Note("drop", inAt);
    std::vector<lumcore::UTF16String> files;
    EXPECT_EQ(inData.ReadFiles(files), lumui::datatransfer::ReadResult::kRead);
    mLog += lumcore::utility::ToStdString(files.back()) + " ";
    return true;
  }

 private:
  bool Note(const char* inWhat, Position inAt) {
    mLog += mName + ":" + inWhat + "@" + std::to_string(static_cast<int>(inAt.x)) + " ";
    return true;
  }

  std::string mName;
  std::string& mLog;
};

TEST(TopLevelWindows, OfferDropsToTheFallback) {
  Workspace workspace(nullptr);
  const Rect rect(30, 40, 300, 200);
  const boost::intrusive_ptr<Pointer> window(
      new Pointer(&workspace, false, &rect, nullptr, false, false));
  window->ConstructWindow(&rect);
  window->UI_Show(true);
  lumui::testing::ProcessEvents();
  std::string log;
  const auto drop = [&] {
    log.clear();
    const int effect = lumui::testing::DropOnWindow(
        *window, {250, 50}, {lumcore::utility::ToUTF16("/tmp/a b.txt")}, {});
    return log + std::to_string(effect);
  };
  EXPECT_EQ(drop(), "0");
  boost::shared_ptr<lumui::ui::UI_DragDropHandler> fallback(new Logger("window", log));
  window->SetDragDropFallbackHandler(fallback);
  EXPECT_EQ(drop(), "window:enter@0 window:over@0 window:over@250 window:drop@250 /tmp/a b.txt 1");
  window->UI_DestroyWindow();
}

class WindowKeys : public KeyFixture {
 protected:
  WindowKeys() {
    mHandler.mEnabled = {1, 2};
    vek::uisupport::CommandHandlerBase::SetDefaultCommandHandler(&mHandler);
    Map(1, Char('X'));
    Map(2, KeyboardCode(KeyboardCode::kF1));
  }
  ~WindowKeys() override { vek::uisupport::CommandHandlerBase::SetDefaultCommandHandler(nullptr); }

  test_support::EventLog mLog;
  ContextHandler mHandler{mLog, ""};
};

TEST_F(WindowKeys, ReachTheKeyMapUnlessTheyBeganWithinATextField) {
  Workspace workspace(nullptr);
  workspace.CreateMainTopLevelWindow(nullptr);
  lumworkspace::workspace::TopLevelWindow& main = *workspace.GetMainTopLevelWindow();
  const boost::intrusive_ptr<UI_SubView> plain(new UI_SubView);
  const boost::intrusive_ptr<UI_TextEdit> field(new UI_TextEdit);
  const boost::intrusive_ptr<UI_SubView> within(new UI_SubView);
  main.UI_AddChild(plain);
  main.UI_AddChild(field);
  field->UI_AddChild(within);
  main.UI_Show(true);
  lumui::testing::ActivateWindow(&main);
  const auto type = [&](lumui::ui::UI_Node& inNode) {
    mLog.Take();
    EXPECT_TRUE(inNode.UI_SetKeyboardFocus(lumui::ui::kFocusOther));
    lumui::testing::TypeText(main, lumcore::utility::ToUTF16("x"));
    lumui::testing::TapKey(main, KeyboardCode(KeyboardCode::kF1));
    return mLog.Take();
  };
  EXPECT_EQ(type(*plain), "ask1 run1 ask2 run2");
  EXPECT_EQ(lumcore::utility::ToStdString(field->GetText()), "");
  EXPECT_EQ(type(*field), "ask2 run2");
  EXPECT_EQ(lumcore::utility::ToStdString(field->GetText()), "x");
  EXPECT_EQ(type(*within), "");
}

}  // namespace
