// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include "lumcore/Export.h"
#include "lumcore/Strings.h"

namespace lumcore::utility {

// The bytes of a text in any encoding that ICU has a converter for, without a byte order mark as
// long as the name says the order ("UTF-16LE"). A character that the encoding lacks becomes a
// reference of XML, "&#x20AC;"; ill-formed text becomes U+FFFD first. Throws config::Error for an
// encoding that is not known.
LUMCORE_API std::string ToEncoding(const UTF16String& inText, std::string_view inEncoding);

}  // namespace lumcore::utility
