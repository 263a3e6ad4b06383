// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "OutlineTree.h"
#include "lumcore/Strings.h"
#include "lumcore/filesupport/File.h"

namespace outliner {

// Reads an OPML file of version 1.0 or 2.0 with all that stands in it, known or not. Throws
// FileError for a file that cannot be read, and xml::ParseError with the place for one that is not
// well-formed or no OPML.
std::unique_ptr<OutlineTree> ReadOpml(const lumcore::filesupport::File& inFile);
// inName stands in error texts.
std::unique_ptr<OutlineTree> ReadOpml(const lumcore::UTF8String& inBytes,
                                      const lumcore::UTF16String& inName);

}  // namespace outliner
