// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/ui/OSTypes.h"

namespace lumui::utility {

// Each throws a config::Error that names the module's file.
[[noreturn]] void ThrowMissingResource(HINSTANCE inModule, const lumcore::UTF16String& inName,
                                       const lumcore::UTF16String& inType);
[[noreturn]] void ThrowDamagedContainer(HINSTANCE inModule, const char* inCause);

}  // namespace lumui::utility
