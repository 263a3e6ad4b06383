// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumscripting/Export.h"
#include "lumscripting/ScriptValue.h"

namespace lumscripting {

// One event on its way to the listeners of scripts. It is made, filled, read and destroyed on the
// script thread. Its properties and constants stand in the definition under which it is registered
// with the ScriptRegistry; scripts also see "type", the event's type, and "target", the object at
// which it is aimed.
class LUMSCRIPTING_API ScriptEventObject {
 public:
  virtual ~ScriptEventObject();
  ScriptEventObject(const ScriptEventObject&) = delete;
  ScriptEventObject& operator=(const ScriptEventObject&) = delete;

  ScriptValue GetProperty(const lumcore::UTF16String& inName) const {
    return DoGetProperty(inName);
  }

 protected:
  ScriptEventObject();

  // Asked once for each property of the definition.
  virtual ScriptValue DoGetProperty(const lumcore::UTF16String& inName) const = 0;
};

}  // namespace lumscripting
