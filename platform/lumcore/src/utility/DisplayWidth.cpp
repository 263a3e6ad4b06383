// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/utility/DisplayWidth.h"

#include <unicode/uchar.h>
#include <unicode/utf16.h>

#include <cstdint>

namespace lumcore::utility {

namespace {

std::size_t WidthOf(UChar32 inCharacter) {
  constexpr std::uint32_t kWithoutWidth = U_GC_MN_MASK | U_GC_ME_MASK | U_GC_CF_MASK | U_GC_CC_MASK;
  if ((U_GET_GC_MASK(inCharacter) & kWithoutWidth) != 0) return 0;
  const auto width =
      static_cast<UEastAsianWidth>(u_getIntPropertyValue(inCharacter, UCHAR_EAST_ASIAN_WIDTH));
  return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

}  // namespace

std::size_t GetDisplayWidth(const UTF16String& inText) {
  std::size_t width = 0;
  for (std::size_t at = 0; at < inText.size();) {
    UChar32 character = 0;
    U16_NEXT(inText.data(), at, inText.size(), character);
    width += WidthOf(character);
  }
  return width;
}

}  // namespace lumcore::utility
