// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "lumcore/Strings.h"

// Texts as they stand in a file of property lists, in ASCII: markup as the predefined entities,
// what is no printable ASCII as character references. XML has no reference for a control character,
// a lone surrogate, U+FFFE, U+FFFF or a byte that is no UTF-8. Such a unit is written as U+FDD0,
// which Unicode reserves for use within a program, and four hexadecimal digits; U+FDD0 itself
// likewise.
namespace lumcore::proplist {

void AppendXML(const UTF16String& inText, std::string& ioXML);
void AppendXML(const UTF8String& inText, std::string& ioXML);

// Back from what the parser gives, which has resolved references and entities.
UTF16String DecodeText(const UTF16String& inText);
UTF8String DecodeBytes(const UTF16String& inText);

}  // namespace lumcore::proplist
