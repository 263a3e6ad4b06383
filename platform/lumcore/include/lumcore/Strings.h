// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "lumcore/memory/STLAllocator.h"

namespace lumcore {

// User text: UTF-16 code units. Ill-formed text may stand in a string; the conversions in
// lumcore/utility/StringUtils.h turn it into U+FFFD.
using UTF16String = std::basic_string<unsigned short, std::char_traits<unsigned short>,
                                      STLAllocator<unsigned short>>;

// Keys, names and file contents: UTF-8 code units.
using UTF8String =
    std::basic_string<unsigned char, std::char_traits<unsigned char>, STLAllocator<unsigned char>>;

}  // namespace lumcore
