// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "lumcore/Export.h"

namespace lumcore {

// The language that the program speaks with its user.
class LUMCORE_API Locale {
 public:
  // "de_DE", or "de" where no country is known: what SetApplicationLanguage was given, else what
  // the system is set to. "en" where the system says nothing. Chosen once, at the first call.
  static std::string ApplicationLangauge();
  // Empty brings the system's back.
  static void SetApplicationLanguage(const std::string& inLanguage);
};

}  // namespace lumcore
