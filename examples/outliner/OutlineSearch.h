// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <vector>

#include "OutlineRow.h"
#include "TextSearch.h"
#include "lumcore/Strings.h"

namespace outliner {

class OutlineDocument;

// What the user looks for, and what is to stand in its place: kept as long as the program runs.
struct SearchWish {
  SearchTerm term;
  lumcore::UTF16String replacement;
};

// The search in the rows of an outline: in their texts and their notes.
namespace search {

bool IsInRow(const OutlineDocument& inDocument, const OutlineRow& inRow,
             const TextSearch& inSearch);
// In document order.
std::vector<OutlineRow::Id> FindRows(const OutlineDocument& inDocument, const TextSearch& inSearch);
// The next one behind the selection, or before it, and around the end of the outline; null where
// there is none. A row that is selected alone comes last.
OutlineRow* FindNext(const OutlineDocument& inDocument, const TextSearch& inSearch, bool inForward);
// Replaces all that is found in these rows as one deed, and tells in how many rows it was.
std::size_t Replace(OutlineDocument& ioDocument, const std::vector<OutlineRow::Id>& inRows,
                    const TextSearch& inSearch, const lumcore::UTF16String& inReplacement);

}  // namespace search

}  // namespace outliner
