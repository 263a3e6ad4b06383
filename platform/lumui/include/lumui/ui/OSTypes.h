// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

// The vocabulary of window messages. On Windows the system's own headers give the types; elsewhere
// this one does, with the same names and sizes, so that code which handles messages is the same.
#if defined(_WIN32)
#include "lumui/ui/OSTypes_win.h"
#else
struct HWND__;
struct HMENU__;
struct HINSTANCE__;
using HWND = HWND__*;
using HMENU = HMENU__*;
using HINSTANCE = HINSTANCE__*;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
#endif

namespace lumui::ui {

// Message numbers of OS_Event.
constexpr unsigned kMessageDestroy = 2;
constexpr unsigned kMessageClose = 16;
constexpr unsigned kMessageQueryEndSession = 17;
constexpr unsigned kMessageEraseBackground = 20;
constexpr unsigned kMessageEndSession = 22;
constexpr unsigned kMessageDisplayChange = 126;
constexpr unsigned kMessageKeyDown = 256;
constexpr unsigned kMessageKeyUp = 257;
constexpr unsigned kMessageChar = 258;
constexpr unsigned kMessageSysKeyDown = 260;  // with Alt held
constexpr unsigned kMessageSysKeyUp = 261;
constexpr unsigned kMessageSysChar = 262;
constexpr unsigned kMessageCommand = 273;
constexpr unsigned kMessageInitMenuPopup = 279;
constexpr unsigned kMessageMouseMove = 512;
constexpr unsigned kMessageLeftDown = 513;
constexpr unsigned kMessageLeftUp = 514;
constexpr unsigned kMessageLeftDoubleClick = 515;
constexpr unsigned kMessageRightDown = 516;
constexpr unsigned kMessageRightUp = 517;
constexpr unsigned kMessageRightDoubleClick = 518;
constexpr unsigned kMessageMiddleDown = 519;
constexpr unsigned kMessageMiddleUp = 520;
constexpr unsigned kMessageMiddleDoubleClick = 521;
constexpr unsigned kMessageMouseWheel = 522;
constexpr unsigned kMessageExtraDown = 523;
constexpr unsigned kMessageExtraUp = 524;
constexpr unsigned kMessageExtraDoubleClick = 525;
constexpr unsigned kMessageMouseHWheel = 526;
constexpr unsigned kMessageMouseLeave = 675;

}  // namespace lumui::ui
