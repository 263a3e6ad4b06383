// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>
#include <string>

#include "lumcore/Export.h"
#include "lumcore/Strings.h"

namespace lumcore::config {

// A failure that carries a text for the user. what() is that text in UTF-8.
class LUMCORE_API Error : public std::exception {
 public:
  explicit Error(const UTF16String& inText);
  ~Error() override;

  const char* what() const noexcept override;
  const UTF16String& GetText() const;

 private:
  UTF16String mText;
  std::string mWhat;
};

// Throws an Error with the localised text of the key.
[[noreturn]] LUMCORE_API void ThrowError(const char* inKey);

}  // namespace lumcore::config
