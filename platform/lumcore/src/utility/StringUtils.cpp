// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/utility/StringUtils.h"

#include <unicode/ucasemap.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <vector>

#include "lumcore/config/ThrowError.h"
#include "utility/AppendUTF16.h"

namespace lumcore::utility {

namespace {

constexpr UChar32 kReplacementCharacter = 0xFFFD;

// ICU's UTF-16 unit is char16_t, ours unsigned short: the same size, range and representation.
static_assert(sizeof(UChar) == sizeof(unsigned short) && std::is_unsigned_v<UChar>);

const UChar* AsICU(const UTF16String& inText) {
  return reinterpret_cast<const UChar*>(inText.data());
}

UChar* AsICU(UTF16String& inText) {
  return reinterpret_cast<UChar*>(inText.data());
}

int32_t CheckedLength(std::size_t inLength) {
  if (inLength > static_cast<std::size_t>(std::numeric_limits<int32_t>::max() / 4)) {
    config::ThrowError("$$$/lumcore/utility/Error/TextTooLong=A text is too long to be converted.");
  }
  return static_cast<int32_t>(inLength);
}

template <class String>
String EncodeUTF8(const UTF16String& inText) {
  const auto isASCII = [](unsigned short inUnit) { return inUnit < 0x80; };
  if (std::all_of(inText.begin(), inText.end(), isASCII)) {
    return String(inText.begin(), inText.end());
  }
  String result;
  const int32_t length = CheckedLength(inText.size());
  // Three bytes are the most that one UTF-16 unit comes to.
  result.resize(static_cast<std::size_t>(length) * 3);
  int32_t written = 0;
  UErrorCode status = U_ZERO_ERROR;
  u_strToUTF8WithSub(reinterpret_cast<char*>(result.data()), static_cast<int32_t>(result.size()),
                     &written, AsICU(inText), length, kReplacementCharacter, nullptr, &status);
  result.resize(static_cast<std::size_t>(written));
  return result;
}

// The shape of ICU's case operations once locale and options are bound.
template <class Map>
UTF16String MapCase(const UTF16String& inText, Map inMap) {
  const int32_t length = CheckedLength(inText.size());
  UTF16String result(inText.size(), 0);
  UErrorCode status = U_ZERO_ERROR;
  int32_t needed = inMap(AsICU(result), length, AsICU(inText), length, &status);
  if (status == U_BUFFER_OVERFLOW_ERROR) {
    result.resize(static_cast<std::size_t>(needed));
    status = U_ZERO_ERROR;
    needed = inMap(AsICU(result), needed, AsICU(inText), length, &status);
  }
  result.resize(static_cast<std::size_t>(needed));
  return result;
}

bool IsDigit(unsigned short inUnit) {
  return inUnit >= '0' && inUnit <= '9';
}

// Appends what is ASCII at the front and says how much that is. A text that grows by pieces is not
// filled with zeroes first.
std::size_t AppendASCII(std::string_view inText, UTF16String& ioText) {
  constexpr std::size_t kPiece = 64;
  unsigned short piece[kPiece];
  if (inText.size() > kPiece) ioText.reserve(ioText.size() + inText.size());
  std::size_t at = 0;
  while (at < inText.size()) {
    const std::string_view bytes = inText.substr(at, kPiece);
    // Without a way out, so that the machine takes many at a time.
    unsigned any = 0;
    for (std::size_t unit = 0; unit < bytes.size(); ++unit) {
      piece[unit] = static_cast<unsigned char>(bytes[unit]);
      any |= piece[unit];
    }
    std::size_t count = bytes.size();
    if (any >= 0x80) {
      const auto isOther = [](unsigned short inUnit) { return inUnit >= 0x80; };
      count = static_cast<std::size_t>(std::find_if(piece, piece + count, isOther) - piece);
    }
    ioText.append(piece, count);
    at += count;
    if (count < bytes.size()) break;
  }
  return at;
}

}  // namespace

void AppendUTF16(std::string_view inUTF8, UTF16String& ioText) {
  // Most text is ASCII, and for that ICU's general road is long.
  const std::size_t plain = AppendASCII(inUTF8, ioText);
  if (plain == inUTF8.size()) return;
  const std::string_view others = inUTF8.substr(plain);
  const std::size_t before = ioText.size();
  const int32_t length = CheckedLength(others.size());
  // One UTF-16 unit is the most that one byte comes to.
  ioText.resize(before + others.size());
  int32_t written = 0;
  UErrorCode status = U_ZERO_ERROR;
  u_strFromUTF8WithSub(AsICU(ioText) + before, length, &written, others.data(), length,
                       kReplacementCharacter, nullptr, &status);
  ioText.resize(before + static_cast<std::size_t>(written));
}

UTF16String ToUTF16(std::string_view inUTF8) {
  UTF16String result;
  AppendUTF16(inUTF8, result);
  return result;
}

UTF16String ToUTF16(const UTF8String& inUTF8) {
  return ToUTF16(std::string_view(reinterpret_cast<const char*>(inUTF8.data()), inUTF8.size()));
}

UTF8String ToUTF8(const UTF16String& inText) {
  return EncodeUTF8<UTF8String>(inText);
}

UTF8String ToUTF8(std::string_view inUTF8) {
  return ToUTF8(ToUTF16(inUTF8));
}

std::string ToStdString(const UTF16String& inText) {
  return EncodeUTF8<std::string>(inText);
}

std::string ToStdString(const UTF8String& inText) {
  return ToStdString(ToUTF16(inText));
}

UTF16String ToUpperCase(const UTF16String& inText) {
  return MapCase(inText, [](UChar* outText, int32_t inCapacity, const UChar* inFrom,
                            int32_t inLength, UErrorCode* ioStatus) {
    return u_strToUpper(outText, inCapacity, inFrom, inLength, "", ioStatus);
  });
}

UTF16String ToLowerCase(const UTF16String& inText) {
  // Most texts are ASCII, and ICU's way is a long one for those.
  const auto isPlain = [](unsigned short inUnit) { return inUnit < 0x80; };
  if (std::all_of(inText.begin(), inText.end(), isPlain)) {
    UTF16String lower = inText;
    for (unsigned short& unit : lower) {
      if (unit >= 'A' && unit <= 'Z') unit = static_cast<unsigned short>(unit + ('a' - 'A'));
    }
    return lower;
  }
  return MapCase(inText, [](UChar* outText, int32_t inCapacity, const UChar* inFrom,
                            int32_t inLength, UErrorCode* ioStatus) {
    return u_strToLower(outText, inCapacity, inFrom, inLength, "", ioStatus);
  });
}

UTF16String FoldCase(const UTF16String& inText) {
  return MapCase(inText, [](UChar* outText, int32_t inCapacity, const UChar* inFrom,
                            int32_t inLength, UErrorCode* ioStatus) {
    return u_strFoldCase(outText, inCapacity, inFrom, inLength, U_FOLD_CASE_DEFAULT, ioStatus);
  });
}

UTF16String ReplaceInString(const UTF16String& inText,
                            std::initializer_list<UTF16String> inArguments) {
  UTF16String result;
  result.reserve(inText.size());
  for (std::size_t at = 0; at < inText.size();) {
    std::size_t number = 0;
    std::size_t taken = 0;  // characters of the placeholder, 0 for none
    if (inText[at] == '@') {
      for (std::size_t digit = at + 1; digit < inText.size() && IsDigit(inText[digit]); ++digit) {
        const std::size_t longer = number * 10 + (inText[digit] - '0');
        if (longer >= inArguments.size()) break;
        number = longer;
        taken = digit + 1 - at;
      }
    }
    if (taken == 0) {
      result += inText[at++];
    } else {
      result += *(inArguments.begin() + number);
      at += taken;
    }
  }
  return result;
}

}  // namespace lumcore::utility
