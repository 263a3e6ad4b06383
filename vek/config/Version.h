// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "vek/config/Export.h"

namespace vek::config {

// The version of the framework as hosts show it.
VEK_API lumcore::UTF16String GetVersionString();

}  // namespace vek::config
