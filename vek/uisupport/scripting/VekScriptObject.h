// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumscripting/ScriptObject.h"
#include "vek/config/Export.h"

namespace vek::scripting {

// The object "Command" of scripts: asks the command chain and executes through it, and holds a
// constant COMMAND_... for each command that is registered when it is made. In the constants' names
// dots are underscores and all is upper case, and of two commands with one such name the one with
// the greater id stays. The library registers it with the script system by itself, so that each
// ScriptRunner makes one with its first script.
//
// It stands at an event's target too: a host gives it out in CommandHandler::EnableScriptEvents.
class VEK_API VekScriptObject : public lumscripting::ScriptObject {
 public:
  VekScriptObject();
  ~VekScriptObject() override;

 private:
  void AddCommandFunctions();
  void AddCommandConstants();
};

}  // namespace vek::scripting
