// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/app/src/MenuState.h"

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

#include "lumui/testing/Menus.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/InputCapture.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/ui/UI_NodeManager.h"
#include "lumworkspace/workspace/CommandCheckStyle.h"
#include "support/MenuText.h"
#include "vek/uisupport/CommandHandler.h"
#include "vek/uisupport/KeyCommandManager.h"
#include "vek/uisupport/PlatformMenu.h"

namespace vek::app {
namespace {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;
using test_support::MenuText;
using uisupport::AppendItem;

// Knows the commands that it has an answer for: '+' for enabled, '*' for checked, then the text.
class AnsweringHandler : public uisupport::CommandHandler {
 public:
  std::map<int, std::string> mAnswers;

 protected:
  bool DoHandleCommand(int) override { return false; }
  bool DoCommandEnabled(int inCommand, bool& outEnabled, bool& outChecked,
                        UTF16String& outTitle) override {
    const auto found = mAnswers.find(inCommand);
    if (found == mAnswers.end()) return false;
    std::string text = found->second;
    const auto take = [&](char inMark) {
      const bool there = !text.empty() && text[0] == inMark;
      if (there) text.erase(0, 1);
      return there;
    };
    if (take('!')) throw std::runtime_error("handler");
    outEnabled = take('+');
    outChecked = take('*');
    outTitle = ToUTF16(text);
    return true;
  }
};

class MenuState : public testing::Test {
 protected:
  MenuState() {
    uisupport::KeyCommandManager::Reset();
    mHandler.SetAsCurrentCommandHandler(true);
  }
  ~MenuState() override {
    uisupport::DestroyPlatformMenu(mMenu);
    uisupport::KeyCommandManager::Reset();
  }
  std::string Update(bool inShortcuts, bool inDisable = false, int inFirst = 0) {
    UpdateMenuState(mMenu, inShortcuts, inDisable, inFirst);
    return MenuText(mMenu);
  }

  AnsweringHandler mHandler;
  const HMENU mMenu = uisupport::CreatePlatformMenu(true);
};

void MapKey(int inCommand, char inKey) {
  uisupport::KeyCommandManager::Get().AddKeyMapping(
      inCommand,
      lumui::ui::KeyboardCode::CreateFromKeyboardChar(static_cast<unsigned short>(inKey), false),
      uisupport::KeyCommandManager::Modifiers(lumui::ui::kModCommand),
      lumui::ui::KeyboardEvent::kActionKeyDown, nullptr, false, false);
}

}  // namespace

TEST_F(MenuState, ItemsSayWhatTheChainSays) {
  lumworkspace::workspace::SetCommandCheckStyle(4, true);
  AppendItem(mMenu, ToUTF16("Plain"), 1, false);
  AppendItem(mMenu, ToUTF16("Undo\tF9"), 2, false);
  AppendItem(mMenu, ToUTF16("Wrap\tstale\tmore"), 3, false);
  AppendItem(mMenu, ToUTF16("Left"), 4, false);
  AppendItem(mMenu, ToUTF16("Unknown\tF8"), 5, false);
  uisupport::AppendSeparator(mMenu, 0);
  uisupport::CheckItem(mMenu, 4, true);
  mHandler.mAnswers = {{0, "+never"}, {1, ""}, {2, "+Undo Typing\tF7"}, {3, "+*"}, {4, "*"}};
  MapKey(2, 'Z');
  MapKey(4, 'L');
  EXPECT_EQ(Update(true),
            "~Plain=1 | Undo Typing\tCtrl+Z=2 | *Wrap=3 | ~(*)Left\tCtrl+L=4 | *Unknown\tF8=5 | "
            "---=0");
  // What is no radio command any more has a check mark again.
  lumworkspace::workspace::SetCommandCheckStyle(4, false);
  mHandler.mAnswers[3] = "+";
  EXPECT_EQ(Update(false), "~Plain=1 | Undo Typing=2 | Wrap=3 | ~*Left=4 | *Unknown\tF8=5 | ---=0");
}

TEST_F(MenuState, UnansweredCommandsAreDisabledFromTheThresholdOn) {
  for (const unsigned id : {999u, 1000u, 61439u, 61440u, 61536u, 61824u, 61825u})
    AppendItem(mMenu, ToUTF16("i"), id, false);
  uisupport::AppendSubMenu(mMenu, ToUTF16("s"), 2000);
  for (unsigned i = 0; i < 8; ++i)
    uisupport::CheckItem(mMenu, i, true);
  const std::string before = MenuText(mMenu);
  EXPECT_EQ(Update(true, false, 0), before);
  EXPECT_EQ(Update(true, true, 1000),
            "*i=999 | ~i=1000 | ~i=61439 | *i=61440 | *i=61536 | *i=61824 | ~i=61825 | *s=2000>");
}

TEST_F(MenuState, LongTextsAreReadUpToALimit) {
  mHandler.mAnswers = {{1, "+"}, {2, "+" + std::string(600, 'b')}};
  AppendItem(mMenu, UTF16String(600, 'a'), 1, false);
  AppendItem(mMenu, UTF16String(600, 'a'), 2, false);
  EXPECT_EQ(Update(true), std::string(511, 'a') + "=1 | " + std::string(600, 'b') + "=2");
}

TEST_F(MenuState, NoMenuAndThrowingHandlersAreTheCallersToSee) {
  UpdateMenuState(nullptr, true, true, 0);
  AppendItem(mMenu, ToUTF16("a"), 1, false);
  AppendItem(mMenu, ToUTF16("b"), 2, false);
  mHandler.mAnswers = {{1, ""}, {2, "!"}};
  EXPECT_THROW(UpdateMenuState(mMenu, true, true, 0), std::runtime_error);
  EXPECT_EQ(MenuText(mMenu), "~a=1 | b=2");
}

TEST_F(MenuState, OpenMenusShowItAndGesturesEnd) {
  static HMENU sUpdated;
  const boost::intrusive_ptr<lumui::ui::OS_Window> window(
      new lumui::ui::OS_Window([](lumui::ui::OS_Event* ioEvent) {
        if (ioEvent->message != lumui::ui::kMessageInitMenuPopup) return;
        sUpdated = reinterpret_cast<HMENU>(ioEvent->wParam);
        ReleaseInputCapture();
        EXPECT_EQ(lumui::ui::UI_NodeManager::Get(true)->GetInputCapture(), nullptr);
        UpdateMenuState(sUpdated, true, false, 0);
      }));
  window->UI_Show(true);
  lumui::testing::ActivateWindow(window.get());
  const boost::intrusive_ptr<lumui::ui::InputCapture> capture(
      new lumui::ui::InputCapture(window.get()));
  lumui::ui::UI_NodeManager::Get(true)->BeginInputCapture(capture);
  mHandler.mAnswers = {{1, ""}, {2, "+*Two"}};
  AppendItem(mMenu, ToUTF16("a"), 1, false);
  AppendItem(mMenu, ToUTF16("b"), 2, false);
  lumui::ui::OS_Menu::PopUp(mMenu, *window, {10, 10});
  EXPECT_EQ(lumcore::utility::ToStdString(lumui::testing::MenuAsText(nullptr)), "~a | *Two");
  EXPECT_TRUE(capture->HasBeenCancelled());
  lumui::testing::CloseMenus(*window);
  window->UI_DestroyWindow();
}

}  // namespace vek::app
