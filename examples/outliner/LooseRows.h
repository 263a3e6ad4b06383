// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "OutlineTree.h"
#include "lumcore/Strings.h"
#include "lumcore/filesupport/File.h"

namespace outliner {

class OutlineDocument;

// A row apart from any outline, as it travels from one to another.
struct LooseRow {
  std::size_t depth = 1;  // at most one more than that of the row before it
  lumcore::UTF16String text;
  std::vector<std::pair<lumcore::UTF16String, lumcore::UTF16String>> attributes;  // without text
};
using LooseRows = std::vector<LooseRow>;  // in document order

// A row for each line that is not blank; what is indented further is below what stands before it.
LooseRows RowsOfText(const lumcore::UTF16String& inText);
// The rows of an outline below one with its title. Throws what ReadOpml throws.
LooseRows RowsOfFile(const lumcore::filesupport::File& inFile);
// The selected branches.
LooseRows RowsOfSelection(OutlineDocument& inDocument);

// A line for each row, indented with tabs.
lumcore::UTF16String TextOfRows(const LooseRows& inRows);
// The bytes of a file of its own.
std::string OpmlOfRows(const LooseRows& inRows);
// Rows that the tree knows, though they are not in it yet.
OutlineTree::Rows MakeRows(OutlineTree& ioTree, const LooseRows& inRows);

}  // namespace outliner
