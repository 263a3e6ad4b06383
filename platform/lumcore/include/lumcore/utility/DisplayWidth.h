// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

#include "lumcore/Export.h"
#include "lumcore/Strings.h"

namespace lumcore::utility {

// How many columns a text takes where each character has one, as in a terminal: wide characters of
// East Asia and pictures take two, accents that stand on another character and what is invisible
// none.
LUMCORE_API std::size_t GetDisplayWidth(const UTF16String& inText);

}  // namespace lumcore::utility
