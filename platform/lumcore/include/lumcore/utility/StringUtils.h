// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "lumcore/Export.h"
#include "lumcore/Strings.h"

namespace lumcore::utility {

// Conversions. Ill-formed input (a lone surrogate, a broken or overlong UTF-8 sequence) becomes
// U+FFFD and never throws.
LUMCORE_API UTF16String ToUTF16(std::string_view inUTF8);
LUMCORE_API UTF16String ToUTF16(const UTF8String& inUTF8);
LUMCORE_API UTF8String ToUTF8(const UTF16String& inText);
LUMCORE_API UTF8String ToUTF8(std::string_view inUTF8);
// UTF-8 in a std::string, for paths, streams and exception texts.
LUMCORE_API std::string ToStdString(const UTF16String& inText);
LUMCORE_API std::string ToStdString(const UTF8String& inText);

// Full case mapping without a locale: the length may change ("ß" becomes "SS").
LUMCORE_API UTF16String ToUpperCase(const UTF16String& inText);
LUMCORE_API UTF16String ToLowerCase(const UTF16String& inText);
// Full default case folding: two texts that differ only in case fold to the same text.
LUMCORE_API UTF16String FoldCase(const UTF16String& inText);

// Replaces the placeholders @0, @1, ... in inText by the arguments, in one walk from the front:
// text that an argument brings in is not searched again. A placeholder without an argument stays.
// The longest number that has an argument is taken.
LUMCORE_API UTF16String ReplaceInString(const UTF16String& inText,
                                        std::initializer_list<UTF16String> inArguments);

}  // namespace lumcore::utility
