// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/Export.h"
#include "lumui/ui/OSTypes.h"

namespace lumui::ui {

// Window frames, by handle: what an application wants of a window before there is one. A frame has
// a title, a style, a size, and from its class an icon and a menu. It shows nothing; a window that
// takes it (see OS_Window::UI_TakeFrame) has its handle from then on, and the frame is gone.
class LUMUI_API OS_Frame {
 public:
  struct Class {
    const wchar_t* name = nullptr;
    HINSTANCE resources = nullptr;  // the module that the icon and the menu come from
    // 0 for none; else the image resource "ICON_<number>" of the module, PNG or SVG. A module
    // without it gives the window the system's icon.
    int iconID = 0;
    int menuID = 0;  // 0 for none; else the window gets a bar without items
  };

  // What a frame is, for the window that takes it.
  struct Description {
    lumcore::UTF16String title;
    unsigned style = 0;  // as in OS_Window::UI_SetWindowStyleFlags
    int width = 0;       // without the frame, as the height; 0 or less leaves it to the system
    int height = 0;
    HINSTANCE resources = nullptr;
    int iconID = 0;
    int menuID = 0;
  };

  OS_Frame() = delete;

  // False for a null or empty name. A name that is registered again stands for the new class.
  static bool Register(const Class& inClass);
  // Null for a class that is not registered. A null title is an empty one.
  static HWND Create(const wchar_t* inClassName, const wchar_t* inTitle, unsigned inStyle,
                     int inWidth, int inHeight);
  // False for a handle that is no frame, or no more.
  static bool GetDescription(HWND inFrame, Description& outDescription);
  // All frames that no window has taken, and all classes.
  static void ForgetAll();
};

}  // namespace lumui::ui
