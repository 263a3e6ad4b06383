// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/config/ThrowError.h"

#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"

namespace lumcore::config {

Error::Error(const UTF16String& inText) : mText(inText), mWhat(utility::ToStdString(inText)) {}

Error::~Error() = default;

const char* Error::what() const noexcept {
  return mWhat.c_str();
}

const UTF16String& Error::GetText() const {
  return mText;
}

void ThrowError(const char* inKey) {
  throw Error(Localizer::Get()->GetLocalizedString(inKey));
}

}  // namespace lumcore::config
