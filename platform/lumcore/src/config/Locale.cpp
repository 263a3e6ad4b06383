// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/Locale.h"

#include <unicode/uloc.h>

namespace lumcore {

namespace {

std::string& ChosenLanguage() {
  static std::string sLanguage;
  return sLanguage;
}

// ICU reads the user's locale also where the system has none of that name installed.
std::string SystemLanguage() {
  const char* const locale = uloc_getDefault();
  char language[ULOC_LANG_CAPACITY] = {};
  char country[ULOC_COUNTRY_CAPACITY] = {};
  UErrorCode status = U_ZERO_ERROR;
  uloc_getLanguage(locale, language, sizeof language, &status);
  uloc_getCountry(locale, country, sizeof country, &status);
  if (U_FAILURE(status) || !*language) return "en";
  return *country ? std::string(language) + "_" + country : language;
}

}  // namespace

std::string Locale::ApplicationLangauge() {
  if (!ChosenLanguage().empty()) return ChosenLanguage();
  static const std::string* const sSystem = new std::string(SystemLanguage());
  return *sSystem;
}

void Locale::SetApplicationLanguage(const std::string& inLanguage) {
  ChosenLanguage() = inLanguage;
}

}  // namespace lumcore
