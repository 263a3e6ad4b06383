// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumworkspace/Export.h"

namespace lumworkspace::workspace {

// Which commands have a dot and no check mark for their mark, in every menu of the process. None
// has one at first. For the user interface thread.
LUMWORKSPACE_API void SetCommandCheckStyle(int inCommand, bool inRadio);
LUMWORKSPACE_API bool IsCommandCheckStyleRadio(int inCommand);

}  // namespace lumworkspace::workspace
