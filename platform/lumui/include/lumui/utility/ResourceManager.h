// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "lumcore/Strings.h"
#include "lumui/Export.h"
#include "lumui/ui/OSTypes.h"

namespace lumui::utility {

// Finds the resources that are built into one module, by name and type ("xml", "png", "svg") and
// without regard to case. It keeps nothing but the module's handle and may go at any time. A module
// whose resources are damaged makes every operation throw a config::Error with its name.
class LUMUI_API ResourceManager {
 public:
  // See lumui/ui/ModuleHandle.h. A module without resources, or null, has none to find.
  explicit ResourceManager(HINSTANCE inModule) : mModule(inModule) {}

  HINSTANCE GetModule() const { return mModule; }

  bool HasBinary(const lumcore::UTF16String& inName, const char* inType) const;
  // False, and no bytes, if there is no such resource: for what may be absent.
  bool GetBinary(const lumcore::UTF16String& inName, const char* inType,
                 std::vector<unsigned char>& outBytes) const;
  // For what must be there: throws a config::Error that names the module, the name and the type.
  std::vector<unsigned char> GetRequiredBinary(const lumcore::UTF16String& inName,
                                               const char* inType) const;

 private:
  HINSTANCE mModule;
};

}  // namespace lumui::utility
