// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>

#include "outliner/OutlineDocument.h"
#include "outliner/OutlineTree.h"

namespace tests {

// Reads bytes under the name "o.opml".
std::unique_ptr<outliner::OutlineTree> Read(const std::string& inBytes);

// An outline in one line: "a [b c*] d" is a row "a" with "b" and "c" below it, of which "c" is
// selected, and a row "d". An empty text is shown as "-".
std::string Show(outliner::OutlineDocument& inDocument);
std::unique_ptr<outliner::OutlineDocument> MakeDocument(const std::string& inOutline);
// Selects the rows of these texts, "b d".
void Select(outliner::OutlineDocument& ioDocument, const std::string& inTexts);
// The first row with the text; null where there is none.
outliner::OutlineRow* FindRow(outliner::OutlineDocument& inDocument, const std::string& inText);

}  // namespace tests
