// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "xml/UTF8Document.h"

#include <expat.h>
#include <unicode/ucnv.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <limits>
#include <memory>
#include <vector>

#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/Parser.h"

namespace lumcore::xml {

namespace {

using Converter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

constexpr std::string_view kDeclarationStart = "<?xml";

// What the first bytes alone tell.
struct Signature {
  std::string_view bytes;
  const char* encoding;
  bool isMark;     // not part of the text
  bool isCertain;  // whatever the declaration says
};

// Longer ones stand before those that they begin with.
const Signature kSignatures[] = {
    {{"\xFF\xFE\0\0", 4}, "UTF-32LE", true, true},
    {{"\0\0\xFE\xFF", 4}, "UTF-32BE", true, true},
    {{"<\0\0\0", 4}, "UTF-32LE", false, true},
    {{"\0\0\0<", 4}, "UTF-32BE", false, true},
    {{"\xEF\xBB\xBF", 3}, "UTF-8", true, true},
    {{"\xFF\xFE", 2}, "UTF-16LE", true, true},
    {{"\xFE\xFF", 2}, "UTF-16BE", true, true},
    {{"<\0", 2}, "UTF-16LE", false, true},
    {{"\0<", 2}, "UTF-16BE", false, true},
    // "<?xm" in EBCDIC: enough to read the name of the member of that family.
    {{"\x4C\x6F\xA7\x94", 4}, "ibm-37", false, false},
};

struct Place {
  std::size_t line = 1;
  std::size_t column = 1;
};

Place PlaceBehind(const std::vector<UChar>& inText, std::size_t inCount) {
  Place place;
  for (std::size_t at = 0; at < inCount; ++at) {
    const bool isLineEnd =
        inText[at] == '\n' || (inText[at] == '\r' && (at + 1 == inCount || inText[at + 1] != '\n'));
    if (isLineEnd) {
      ++place.line;
      place.column = 1;
    } else if (!U16_IS_TRAIL(inText[at]) && inText[at] != '\r') {
      ++place.column;
    }
  }
  return place;
}

UTF16String Text(const char* inKey, std::initializer_list<UTF16String> inArguments) {
  return utility::ReplaceInString(config::Localizer::Get()->GetLocalizedString(inKey), inArguments);
}

bool IsSpace(char inByte) {
  return inByte == ' ' || inByte == '\t' || inByte == '\r' || inByte == '\n';
}

bool IsEncodingName(std::string_view inName) {
  const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
  const auto isOther = [](char c) {
    return (c >= '0' && c <= '9') || c == '.' || c == '_' || c == '-';
  };
  return !inName.empty() && isLetter(inName.front()) &&
         std::all_of(inName.begin(), inName.end(),
                     [&](char c) { return isLetter(c) || isOther(c); });
}

// The name that the declaration gives, within inText. Empty where none is given, and where the
// declaration is wrong in a way that the parser will report better.
std::string_view DeclaredEncoding(std::string_view inText) {
  if (inText.substr(0, kDeclarationStart.size()) != kDeclarationStart) return {};
  const std::string_view declaration = inText.substr(0, inText.find("?>"));
  const std::size_t label = declaration.find("encoding");
  if (label == declaration.npos || !IsSpace(declaration[label - 1])) return {};
  std::size_t at = label + std::string_view("encoding").size();
  const auto skipSpace = [&] {
    while (at < declaration.size() && IsSpace(declaration[at]))
      ++at;
  };
  skipSpace();
  if (at >= declaration.size() || declaration[at] != '=') return {};
  ++at;
  skipSpace();
  if (at >= declaration.size() || (declaration[at] != '"' && declaration[at] != '\'')) return {};
  const std::size_t end = declaration.find(declaration[at], at + 1);
  if (end == declaration.npos) return {};
  const std::string_view name = declaration.substr(at + 1, end - at - 1);
  return IsEncodingName(name) ? name : std::string_view();
}

Converter Open(const std::string& inEncoding) {
  UErrorCode status = U_ZERO_ERROR;
  Converter converter(ucnv_open(inEncoding.c_str(), &status), &ucnv_close);
  if (U_FAILURE(status)) return Converter(nullptr, &ucnv_close);
  ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  return converter;
}

UTF16String InvalidBytes(UConverter* inConverter) {
  char bytes[16];
  int8_t count = sizeof bytes;
  UErrorCode status = U_ZERO_ERROR;
  ucnv_getInvalidChars(inConverter, bytes, &count, &status);
  std::string text;
  for (int8_t at = 0; U_SUCCESS(status) && at < count; ++at) {
    char digits[4];
    std::snprintf(digits, sizeof digits, "%02X", static_cast<unsigned>(bytes[at]) & 0xFF);
    text.append(text.empty() ? "" : " ").append(digits);
  }
  return utility::ToUTF16(text);
}

// All of inBytes in UTF-16.
std::vector<UChar> Decode(std::string_view inBytes, const std::string& inEncoding,
                          const UTF16String& inName) {
  const Converter converter = Open(inEncoding);
  std::vector<UChar> text(inBytes.size() + 16);
  std::size_t written = 0;
  const char* source = inBytes.data();
  const char* const sourceEnd = source + inBytes.size();
  for (;;) {
    UErrorCode status = U_ZERO_ERROR;
    UChar* target = text.data() + written;
    ucnv_toUnicode(converter.get(), &target, text.data() + text.size(), &source, sourceEnd, nullptr,
                   true, &status);
    written = static_cast<std::size_t>(target - text.data());
    if (status == U_BUFFER_OVERFLOW_ERROR) {
      text.resize(text.size() * 2);
      continue;
    }
    if (U_SUCCESS(status)) break;
    const Place place = PlaceBehind(text, written);
    throw ParseError(
        inName, place.line, place.column,
        Text("$$$/lumcore/xml/Error/IllFormed=the bytes @0 are no character in the encoding \"@1\"",
             {InvalidBytes(converter.get()), utility::ToUTF16(inEncoding)}));
  }
  text.resize(written);
  return text;
}

std::string Encode(const std::vector<UChar>& inText) {
  // Three bytes are the most that one unit comes to, and ICU counts them in 32 bits.
  constexpr std::size_t kMostUnits = std::numeric_limits<int32_t>::max() / 4;
  std::string result;
  for (std::size_t at = 0; at < inText.size();) {
    std::size_t count = std::min(inText.size() - at, kMostUnits);
    if (at + count < inText.size() && U16_IS_LEAD(inText[at + count - 1])) --count;
    const std::size_t old = result.size();
    result.resize(old + count * 3);
    int32_t written = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToUTF8WithSub(result.data() + old, static_cast<int32_t>(count * 3), &written,
                       inText.data() + at, static_cast<int32_t>(count), 0xFFFD, nullptr, &status);
    result.resize(old + static_cast<std::size_t>(written));
    at += count;
  }
  return result;
}

const Signature* FindSignature(std::string_view inBytes) {
  for (const Signature& signature : kSignatures) {
    if (inBytes.substr(0, signature.bytes.size()) == signature.bytes) return &signature;
  }
  return nullptr;
}

// The declaration of a document whose first bytes are no ASCII, in ASCII.
std::string ReadDeclaration(std::string_view inBytes, const char* inEncoding) {
  constexpr std::size_t kMostBytes = 512;
  return Encode(Decode(inBytes.substr(0, kMostBytes), inEncoding, UTF16String()));
}

}  // namespace

UTF8Document::UTF8Document(std::string_view inBytes, const UTF16String& inName) : mBytes(inBytes) {
  const Signature* signature = FindSignature(mBytes);
  if (signature && signature->isMark) mBytes.remove_prefix(signature->bytes.size());
  std::string encoding;
  if (signature && signature->isCertain) {
    encoding = signature->encoding;
  } else {
    const std::string declaration = signature ? ReadDeclaration(mBytes, signature->encoding)
                                              : std::string(mBytes.substr(0, mBytes.find('>')));
    const std::string_view declared = DeclaredEncoding(declaration);
    encoding = declared;
    if (!declared.empty() && !Open(encoding)) {
      const auto before = static_cast<std::size_t>(declared.data() - declaration.data());
      const UTF16String lead = utility::ToUTF16(std::string_view(declaration).substr(0, before));
      const Place place = PlaceBehind(std::vector<UChar>(lead.begin(), lead.end()), lead.size());
      throw ParseError(
          inName, place.line, place.column,
          Text("$$$/lumcore/xml/Error/UnknownEncoding=the encoding \"@0\" is not known",
               {utility::ToUTF16(encoding)}));
    }
  }
  if (encoding.empty() || ucnv_compareNames(encoding.c_str(), "UTF-8") == 0) return;

  mConverted = Encode(Decode(mBytes, encoding, inName));
  // A declaration that is read in the encoding it names says the same again, or it lied.
  const bool hasDeclaration = !(signature && signature->isCertain);
  if (hasDeclaration && mConverted.compare(0, kDeclarationStart.size(), kDeclarationStart) != 0) {
    throw ParseError(inName, 1, 1, utility::ToUTF16(XML_ErrorString(XML_ERROR_INCORRECT_ENCODING)));
  }
  mBytes = mConverted;
}

}  // namespace lumcore::xml
