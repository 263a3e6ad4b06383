// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/app/AppInitArgs.h"

namespace vek::app {

AppInitArgs::AppInitArgs()
    : applicationInstance(nullptr),
      resourceInstance(nullptr),
      windowClassName(nullptr),
      menuResourceID(0),
      iconResourceID(0),
      windowTitle(nullptr),
      showMainWindow(true),
      designAppTheme(false) {}

}  // namespace vek::app
