// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "lumcore/Strings.h"
#include "lumui/ui/OSTypes.h"

namespace lumui::utility {

// The resources of all loaded modules.
struct ResourceRegistry {
  struct Found {
    bool isFound;
    std::string_view bytes;  // lives as long as the module
  };
  // Of several containers of a module the first that has the resource answers. Throws a
  // config::Error for a container that is damaged.
  static Found Find(HINSTANCE inModule, const lumcore::UTF16String& inName,
                    const lumcore::UTF16String& inType);
};

}  // namespace lumui::utility
