// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumcore/proplist/PropList.h"

namespace lumcore::proplist {

// The list that a file holds. Throws xml::ParseError, with inName in the place of the path.
PropList ReadXML(const UTF8String& inBytes, const UTF16String& inName);

}  // namespace lumcore::proplist
