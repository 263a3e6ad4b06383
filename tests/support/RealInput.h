// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>

#include "lumui/ui/OS_Event.h"
#include "lumui/ui/OS_Window.h"

namespace test_support {

// Keys and pointer of a real display, moved by another process while this program's loop runs. When
// a window manager has shown, placed and activated a window is found out by doing: something
// harmless is done over and over until it comes in as it should. From then on each step is done
// once and waited for; nothing waits for time. F11 and F12 are kept from the window: they are sent
// behind other things, to see those come.
class RealInput {
 public:
  // Moves the pointer over the place and gives the window the keys.
  RealInput(lumui::ui::OS_Window& inWindow, int inX, int inY);
  ~RealInput();
  RealInput(const RealInput&) = delete;
  RealInput& operator=(const RealInput&) = delete;

  // The tool's word for a place of the window.
  std::string At(int inX, int inY) const;
  // Returns when the window has got what the tool sent. A press, and what comes behind it, may take
  // longer: a window manager may look at it first.
  void Send(const std::string& inActions);
  // Over and over, for what does no harm twice.
  static void SendUntil(const std::string& inActions, const std::function<bool()>& inCondition);
  // Only runs the tool, from any thread.
  static void RunTool(const std::string& inActions);
  // The condition is looked at whenever everything that came has been handled and answered.
  static void RunUntil(const std::function<bool()>& inCondition);

 private:
  bool Look(const lumui::ui::OS_Event& inEvent);

  lumui::ui::OS_Window& mWindow;
  lumui::ui::OS_Event mLastMove;
  bool mHasKeys = false;
  int mKeysBack = 0;
};

}  // namespace test_support
