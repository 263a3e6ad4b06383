// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "SearchResults.h"

#include <algorithm>

#include "AttributeEdits.h"
#include "MarkedText.h"
#include "OutlineDocument.h"
#include "Palette.h"
#include "Surrogates.h"
#include "Texts.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;
using lumui::drawbot::ColorRGBA;
using lumui::drawbot::Drawbot;
using Rect = lumcore::geom::RectT<float>;

namespace {

constexpr float kLineHeight = 42;
constexpr float kMargin = 12;
constexpr float kTextTop = 3;
constexpr float kTextHeight = 19;
constexpr float kPathTop = 21;
constexpr float kPathHeight = 17;
constexpr float kTextSize = 13;
constexpr float kPathSize = 11;
constexpr float kMarkAlpha = 0.3f;
// A match that begins further behind than this is shown with so much of what stands before it.
constexpr std::size_t kFarMatch = 32;
constexpr std::size_t kBeforeMatch = 12;

// From a little before the first match, with an ellipsis for what is left out.
UTF16String Shortened(const UTF16String& inText, const TextSearch& inSearch) {
  const auto matches = inSearch.FindAll(inText);
  if (matches.empty() || matches.front().start <= kFarMatch) return inText;
  std::size_t from = matches.front().start - kBeforeMatch;
  if (IsTrailSurrogate(inText[from])) ++from;  // not the second half of a character
  return ToUTF16("\xE2\x80\xA6") + inText.substr(from);
}

}  // namespace

SearchResults::SearchResults() : LinesView(kLineHeight) {
  UI_SetNodeID("SearchList");
}

void SearchResults::Show(const OutlineDocument* inDocument, const SearchTerm& inTerm,
                         std::vector<OutlineRow::Id> inRows) {
  mDocument = inDocument;
  mSearch = std::make_unique<TextSearch>(inTerm);
  mRows = std::move(inRows);
  ShowSelection();
}

void SearchResults::ShowSelection() {
  mPresent = kNoLine;
  if (const OutlineRow* const row = mDocument ? mDocument->GetOnlySelectedRow() : nullptr) {
    const auto found = std::find(mRows.begin(), mRows.end(), row->GetId());
    if (found != mRows.end()) mPresent = static_cast<std::size_t>(found - mRows.begin());
  }
  LinesChanged();
}

const OutlineRow* SearchResults::FindRow(std::size_t inLine) const {
  return mDocument ? mDocument->GetTree().FindRow(mRows[inLine]) : nullptr;
}

UTF16String SearchResults::PathOf(const OutlineRow& inRow) const {
  UTF16String path;
  for (const OutlineRow* row = inRow.GetParent(); row && row->GetParent(); row = row->GetParent()) {
    if (!path.empty()) path = ToUTF16(" \xE2\x80\xBA ") + path;
    path = row->GetText() + path;
  }
  return path;
}

UTF16String SearchResults::TextOfLine(std::size_t inLine) const {
  const OutlineRow* const row = FindRow(inLine);
  return row ? row->GetText() : UTF16String();
}

UTF16String SearchResults::NameOfList() const {
  return Localized("$$$/outliner/Search/Results=Rows that were found");
}

UTF16String SearchResults::TextOfNoLines() const {
  return {};
}

// What it does may take the list away.
void SearchResults::Choose(std::size_t inLine, bool inIsFinal) {
  const ChooseFunction choose = mChoose;
  if (choose) choose(mRows[inLine], inIsFinal);
}

// A row that goes leaves its line blank until the search is made again.
void SearchResults::DrawLine(Drawbot& ioDrawbot, std::size_t inLine, const Rect& inPlace,
                             bool inIsLit) const {
  const OutlineRow* const row = FindRow(inLine);
  if (!row) return;
  const float width = std::max(0.0f, inPlace.width - 2 * kMargin);
  const auto mark = inIsLit ? palette::SelectionInk() : palette::Accent();
  const TextInks inks{inIsLit ? palette::SelectionInk() : palette::RowInk(),
                      mark.WithAlpha(kMarkAlpha)};
  const TextInks faint{inIsLit ? palette::SelectionInk() : palette::FaintInk(), inks.mark};
  ioDrawbot.FillRect({kMargin, inPlace.Bottom() - 1, width, 1}, palette::Guide());
  const auto& supplier = *ioDrawbot.GetSupplier();
  DrawMarkedText(ioDrawbot, Shortened(row->GetText(), *mSearch), *mSearch,
                 supplier.NewFont(nullptr, kTextSize), inks,
                 {kMargin, inPlace.y + kTextTop, width, kTextHeight});
  const Rect below(kMargin, inPlace.y + kPathTop, width, kPathHeight);
  const auto small = supplier.NewFont(nullptr, kPathSize);
  const UTF16String note = edits::GetNote(*mDocument, *row);
  if (mSearch->IsIn(note)) {
    DrawMarkedText(ioDrawbot, Shortened(note, *mSearch), *mSearch, small, faint, below);
  } else {
    ioDrawbot.DrawStringInRect(PathOf(*row), small, faint.text, below,
                               lumui::drawbot::TextAlignment::kLeft,
                               lumui::drawbot::TextTruncation::kMiddle);
  }
}

}  // namespace outliner
