// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "lumcore/Export.h"
#include "lumcore/Strings.h"

namespace lumcore::config {

// Turns a key with its default, "$$$/vek/area/Name=English text", into the text for the user. The
// base class knows no catalogue: it answers with the text behind the first '=', which is empty
// where there is none.
class LUMCORE_API Localizer {
 public:
  Localizer();
  virtual ~Localizer();
  Localizer(const Localizer&) = delete;
  Localizer& operator=(const Localizer&) = delete;

  // The process's localizer, made on first use.
  static Localizer* Get();
  // Puts another one in place. Null brings the one without catalogues back.
  static void Set(std::unique_ptr<Localizer> inLocalizer);

  UTF16String GetLocalizedString(const char* inKey) const;

 private:
  virtual UTF16String DoGetLocalizedString(const char* inKey) const;
};

}  // namespace lumcore::config
