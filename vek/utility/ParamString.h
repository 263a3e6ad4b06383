// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "lumcore/Strings.h"
#include "vek/config/Export.h"

namespace vek::utility {

// Puts each parameter that is not null in the place of the first "^1" to "^4" of its number, in
// that order: a later one may replace a marker that an earlier one has brought in.
VEK_API void ParamString(std::string& ioText, const std::string* inP1, const std::string* inP2,
                         const std::string* inP3, const std::string* inP4);
VEK_API void ParamString(lumcore::UTF16String& ioText, const lumcore::UTF16String* inP1,
                         const lumcore::UTF16String* inP2, const lumcore::UTF16String* inP3,
                         const lumcore::UTF16String* inP4);

}  // namespace vek::utility
