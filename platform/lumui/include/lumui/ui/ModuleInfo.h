// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/Export.h"

namespace lumui::ui {

// A module's entry in the module table. It enters the table when it is made and leaves it when it
// is destroyed; the module that makes it owns it. A copy is an entry of its own.
class LUMUI_API ModuleInfo {
 public:
  ModuleInfo(const ModuleInfo&);
  ModuleInfo& operator=(const ModuleInfo&) = default;

  // What a module does once the connection with the window system stands. An entry made after that
  // is initialised by whoever makes it.
  virtual void Initialize() = 0;

  // Initialises the entries in the order in which they entered, those that a call of it enters
  // included. The application object calls it at the end of its construction.
  static void InitializeAll();

 protected:
  ModuleInfo();
  virtual ~ModuleInfo();
};

}  // namespace lumui::ui
