// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "lumcore/Strings.h"

namespace lumcore::utility {

// Appends the text in UTF-16, as ToUTF16 does, without memory of its own.
void AppendUTF16(std::string_view inUTF8, UTF16String& ioText);

}  // namespace lumcore::utility
