// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/filesupport/Dir.h"

namespace lumcore::filesupport::system {

// Where this library lies on disk, with links resolved. An empty Dir where the system does not say.
Dir LibraryDir();

}  // namespace lumcore::filesupport::system
