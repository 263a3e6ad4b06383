// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/utility/Encoding.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/ucnv_err.h>
#include <unicode/utf16.h>

#include <memory>

#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"

namespace lumcore::utility {

namespace {

using Converter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

Converter Open(const std::string& inEncoding) {
  UErrorCode status = U_ZERO_ERROR;
  Converter converter(ucnv_open(inEncoding.c_str(), &status), &ucnv_close);
  if (U_SUCCESS(status)) {
    ucnv_setFromUCallBack(converter.get(), UCNV_FROM_U_CALLBACK_ESCAPE, UCNV_ESCAPE_XML_HEX,
                          nullptr, nullptr, &status);
  }
  if (U_FAILURE(status)) {
    throw config::Error(ReplaceInString(
        config::Localizer::Get()->GetLocalizedString(
            "$$$/lumcore/utility/Error/UnknownEncoding=The encoding \"@0\" is not known."),
        {ToUTF16(inEncoding)}));
  }
  return converter;
}

// Lone surrogates would become references, which XML forbids for them.
UTF16String WellFormed(const UTF16String& inText) {
  constexpr unsigned short kReplacementCharacter = 0xFFFD;
  UTF16String text = inText;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!U16_IS_SURROGATE(text[at])) continue;
    if (U16_IS_LEAD(text[at]) && at + 1 < text.size() && U16_IS_TRAIL(text[at + 1])) {
      ++at;
    } else {
      text[at] = kReplacementCharacter;
    }
  }
  return text;
}

}  // namespace

std::string ToEncoding(const UTF16String& inText, std::string_view inEncoding) {
  const std::string encoding(inEncoding);
  if (ucnv_compareNames(encoding.c_str(), "UTF-8") == 0) return ToStdString(inText);
  const Converter converter = Open(encoding);
  const UTF16String text = WellFormed(inText);
  const auto* source = reinterpret_cast<const UChar*>(text.data());
  const UChar* const sourceEnd = source + text.size();
  std::string result(text.size() + 64, '\0');
  std::size_t written = 0;
  for (;;) {
    UErrorCode status = U_ZERO_ERROR;
    char* target = result.data() + written;
    ucnv_fromUnicode(converter.get(), &target, result.data() + result.size(), &source, sourceEnd,
                     nullptr, true, &status);
    written = static_cast<std::size_t>(target - result.data());
    if (U_SUCCESS(status)) break;
    if (status != U_BUFFER_OVERFLOW_ERROR)
      config::ThrowError(
          "$$$/lumcore/utility/Error/CannotEncode=A text cannot be written in its encoding.");
    result.resize(result.size() * 2);
  }
  result.resize(written);
  return result;
}

}  // namespace lumcore::utility
