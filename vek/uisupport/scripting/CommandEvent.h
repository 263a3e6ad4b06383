// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumscripting/ScriptDefinition.h"
#include "lumscripting/ScriptEventObject.h"
#include "vek/config/Export.h"

namespace vek::scripting {

// Tells scripts that a command is about to be invoked. They hear it later, when the command may
// have run.
class VEK_API CommandEvent : public lumscripting::ScriptEventObject {
 public:
  CommandEvent();
  ~CommandEvent() override;

  static lumscripting::ScriptDefinition MakeDefinition();

  // From the registry, which is asked on the user interface thread while this thread waits. A
  // command that is not registered leaves the texts empty.
  void Fill(int inCommand);

 protected:
  lumscripting::ScriptValue DoGetProperty(const lumcore::UTF16String& inName) const override;

 private:
  lumcore::UTF16String mName;
  lumcore::UTF16String mTitle;
  lumcore::UTF16String mDescription;
};

}  // namespace vek::scripting
