// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <vector>

#include "OutlineRow.h"
#include "OutlineTree.h"
#include "lumcore/Strings.h"

namespace outliner {

class OutlineDocument;

// The names that files give to the attributes that the program knows.
namespace attributes {

const lumcore::UTF16String& Text();
const lumcore::UTF16String& Type();
const lumcore::UTF16String& Created();
const lumcore::UTF16String& Link();
const lumcore::UTF16String& Note();

}  // namespace attributes

// Edits of what rows are made of. Each posts one deed, and undoing it selects the rows again; where
// nothing would be another, nothing is posted. All texts here have lines that end with '\n',
// however the file ends them. What posting throws reaches the caller, with the outline as it was.
namespace edits {

// The row's own text for the name of that; empty where it has no such attribute.
lumcore::UTF16String GetAttribute(const OutlineDocument& inDocument, const OutlineRow& inRow,
                                  TextView inName);
bool HasAttribute(const OutlineDocument& inDocument, const OutlineRow& inRow, TextView inName);
// Whether a new attribute may have the name: files with it can be read everywhere.
bool CanBeAttribute(const OutlineDocument& inDocument, const lumcore::UTF16String& inName);

// The value goes to each of the rows; none takes the attribute away, and makes a text empty. Lines
// end as they did in the value before. The selection stays.
void SetAttribute(OutlineDocument& ioDocument, const std::vector<OutlineRow*>& inRows,
                  const lumcore::UTF16String& inName,
                  const std::optional<lumcore::UTF16String>& inValue);
// Gives an empty one to those of the rows that have none of that name.
void AddAttribute(OutlineDocument& ioDocument, const std::vector<OutlineRow*>& inRows,
                  const lumcore::UTF16String& inName);

// The row's note. An empty one is none.
lumcore::UTF16String GetNote(const OutlineDocument& inDocument, const OutlineRow& inRow);
void SetNote(OutlineDocument& ioDocument, OutlineRow& ioRow, const lumcore::UTF16String& inNote);

// Another text, another note or both for a row.
struct NewTexts {
  OutlineRow::Id row;
  std::optional<lumcore::UTF16String> text;
  std::optional<lumcore::UTF16String> note;
};
// All of them as one deed of that name. The selection stays.
void SetTexts(OutlineDocument& ioDocument, const std::vector<NewTexts>& inTexts,
              const lumcore::UTF16String& inDeedName);

}  // namespace edits

}  // namespace outliner
