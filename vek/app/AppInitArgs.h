// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/ui/OSTypes.h"
#include "vek/config/Export.h"

namespace vek::app {

// What the host says of itself when it starts. Plain data; the texts are borrowed and live as long
// as the application.
struct VEK_API AppInitArgs {
  AppInitArgs();

  HINSTANCE applicationInstance;   // to be set
  HINSTANCE resourceInstance;      // to be set: the module of icons and resources
  const wchar_t* windowClassName;  // to be set
  int menuResourceID;              // to be set
  int iconResourceID;              // to be set
  const wchar_t* windowTitle;      // null: the class name is the title
  bool showMainWindow;             // true
  bool designAppTheme;             // false
};

}  // namespace vek::app
