// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"

namespace outliner {

// The text of a key, "$$$/outliner/Place/Name=English", in the user's language.
inline lumcore::UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

template <class Number>
lumcore::UTF16String NumberText(Number inNumber) {
  return lumcore::utility::ToUTF16(std::to_string(inNumber));
}

}  // namespace outliner
