// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/app/OS_AppBase.h"
#include "vek/uisupport/CommandHandler.h"

namespace vek::app {

// The one application of the process, and the end of every command chain. A second one throws
// before it touches anything of the first.
class VEK_API App : public OS_AppBase, public uisupport::CommandHandler {
 public:
  ~App() override;

  static App* GetApp();  // null while there is none

 protected:
  App();
};

}  // namespace vek::app
