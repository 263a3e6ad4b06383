// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "lumcore/Export.h"
#include "lumcore/filesupport/Dir.h"

namespace lumcore::filesupport {

enum class UserDir { kDesktop, kDocuments };

// Where the user keeps such things, as the desktop says it, or else in the folder "Desktop" or
// "Documents" of his home. A folder that is not there is made. Nothing where that fails.
LUMCORE_API std::optional<Dir> FindUserDir(UserDir inWhich);

}  // namespace lumcore::filesupport
