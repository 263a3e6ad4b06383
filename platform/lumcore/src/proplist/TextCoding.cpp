// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "proplist/TextCoding.h"

#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include "lumcore/utility/StringUtils.h"

namespace lumcore::proplist {

namespace {

constexpr UChar32 kEscape = 0xFDD0;
constexpr std::size_t kDigits = 4;

void AppendHex(unsigned inNumber, std::size_t inLeastDigits, std::string& ioXML) {
  constexpr unsigned kBitsOfDigit = 4;
  std::size_t digits = 1;
  while (digits < inLeastDigits || inNumber >> (digits * kBitsOfDigit) != 0)
    ++digits;
  while (digits-- > 0)
    ioXML += "0123456789ABCDEF"[inNumber >> (digits * kBitsOfDigit) & 0xF];
}

// inUnit is a UTF-16 unit, or a byte.
void AppendEscape(unsigned inUnit, std::string& ioXML) {
  ioXML += "&#xFDD0;";
  AppendHex(inUnit, kDigits, ioXML);
}

bool IsInXML(UChar32 inCharacter) {
  if (inCharacter < 0x20) return inCharacter == '\t' || inCharacter == '\n' || inCharacter == '\r';
  return !U_IS_SURROGATE(inCharacter) && inCharacter != 0xFFFE && inCharacter != 0xFFFF;
}

// False for what needs the escape. Line ends are references, as the parser would change them.
bool AppendCharacter(UChar32 inCharacter, std::string& ioXML) {
  if (!IsInXML(inCharacter) || inCharacter == kEscape) return false;
  switch (inCharacter) {
    case '&':
      ioXML += "&amp;";
      break;
    case '<':
      ioXML += "&lt;";
      break;
    case '>':
      ioXML += "&gt;";
      break;
    default:
      if (inCharacter >= 0x20 && inCharacter < 0x7F) {
        ioXML += static_cast<char>(inCharacter);
      } else {
        ioXML += "&#x";
        AppendHex(static_cast<unsigned>(inCharacter), 1, ioXML);
        ioXML += ';';
      }
  }
  return true;
}

// The unit that is escaped at inAt; -1 where none is. Digits are those that AppendEscape writes.
int EscapedUnit(const UTF16String& inText, std::size_t inAt) {
  if (inText[inAt] != kEscape || inText.size() - inAt <= kDigits) return -1;
  int unit = 0;
  for (std::size_t at = inAt + 1; at <= inAt + kDigits; ++at) {
    const int digit = inText[at];
    if (digit >= '0' && digit <= '9') {
      unit = unit * 16 + digit - '0';
    } else if (digit >= 'A' && digit <= 'F') {
      unit = unit * 16 + digit - 'A' + 10;
    } else {
      return -1;
    }
  }
  return unit;
}

}  // namespace

void AppendXML(const UTF16String& inText, std::string& ioXML) {
  for (std::size_t at = 0; at < inText.size();) {
    UChar32 character = 0;
    U16_NEXT(inText.data(), at, inText.size(), character);
    if (!AppendCharacter(character, ioXML)) AppendEscape(static_cast<unsigned>(character), ioXML);
  }
}

void AppendXML(const UTF8String& inText, std::string& ioXML) {
  for (std::size_t at = 0; at < inText.size();) {
    std::size_t start = at;
    UChar32 character = 0;
    U8_NEXT(inText.data(), at, inText.size(), character);
    if (character >= 0 && AppendCharacter(character, ioXML)) continue;
    for (; start < at; ++start)
      AppendEscape(inText[start], ioXML);
  }
}

UTF16String DecodeText(const UTF16String& inText) {
  if (inText.find(kEscape) == inText.npos) return inText;
  UTF16String result;
  for (std::size_t at = 0; at < inText.size(); ++at) {
    const int unit = EscapedUnit(inText, at);
    result += unit < 0 ? inText[at] : static_cast<unsigned short>(unit);
    if (unit >= 0) at += kDigits;
  }
  return result;
}

UTF8String DecodeBytes(const UTF16String& inText) {
  constexpr int kLargestByte = 0xFF;
  if (inText.find(kEscape) == inText.npos) return utility::ToUTF8(inText);
  UTF8String result;
  UTF16String plain;
  for (std::size_t at = 0; at < inText.size(); ++at) {
    const int byte = EscapedUnit(inText, at);
    if (byte < 0 || byte > kLargestByte) {
      plain += inText[at];
      continue;
    }
    result += utility::ToUTF8(plain);
    plain.clear();
    result += static_cast<unsigned char>(byte);
    at += kDigits;
  }
  return result += utility::ToUTF8(plain);
}

}  // namespace lumcore::proplist
