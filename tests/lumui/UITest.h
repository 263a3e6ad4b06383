// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "lumcore/Strings.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/ui/PointerEvent.h"
#include "lumui/ui/UI_NodeManager.h"
#include "lumui/ui/UI_SubView.h"

namespace lumui::test {

inline lumcore::UTF16String U16(std::string_view inText) {
  return lumcore::utility::ToUTF16(inText);
}

using Rect = lumcore::geom::RectT<float>;
using Point = lumcore::geom::PointT<float>;

// One application for all tests of the program, on a platform without a display. Every test starts
// with an empty log, without steps and functions in the application, and fails if an exception
// reached the error function that it did not expect.
class UITest : public ::testing::Test {
 protected:
  UITest();
  ~UITest() override;

  // Words separated by blanks.
  void Log(const std::string& inWord);
  std::string TakeLog() { return std::exchange(mLog, std::string()); }
  std::string TakeErrors() { return std::exchange(mErrors, std::string()); }

  ui::Application& App() { return *ui::Application::Get(); }
  ui::UI_NodeManager& Manager() { return *ui::UI_NodeManager::Get(true); }
  // Shown, in front, 200 by 100.
  boost::intrusive_ptr<ui::OS_Window> MakeWindow(ui::OSEventFunction inFunction = nullptr);

 private:
  std::string mLog;
  std::string mErrors;
};

// Tells what happens to it through a function, as "name:what", and answers as it is told.
class RecordingNode : public ui::UI_SubView {
 public:
  using LogFunction = std::function<void(const std::string&)>;

  RecordingNode(std::string inName, LogFunction inLog)
      : mName(std::move(inName)), mLog(std::move(inLog)) {
    UI_SetNodeID(mName.c_str());
  }
  ~RecordingNode() override;

  bool UI_DoMouseEvent(ui::UI_Node* inNode, const ui::MouseEvent& inEvent) override;
  bool UI_DoMouseWheel(ui::UI_Node* inNode, const ui::WheelEvent& inEvent) override;
  bool UI_DoKeyboardEvent(ui::UI_Node* inNode, const ui::KeyboardEvent& inEvent) override;
  bool UI_DoPrePointerEvent(const ui::MouseEvent& inEvent) override;
  void UI_DoTimerNotify(unsigned int inTimerID) override;
  void UI_FocusChanged(int inReason) override;

  bool mTakes = false;
  bool mLogMoves = false;
  bool mLogDestruction = false;
  std::function<void(const ui::MouseEvent&)> mOnMouse;
  std::function<void(const ui::KeyboardEvent&)> mOnKey;
  std::function<void(unsigned int)> mOnTimer;

 private:
  std::string mName;
  LogFunction mLog;
};

std::string Text(const lumcore::UTF8String& inText);

}  // namespace lumui::test
