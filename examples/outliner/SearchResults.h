// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "LinesPane.h"
#include "OutlineRow.h"
#include "TextSearch.h"

namespace outliner {

class OutlineDocument;

// The rows that a search has found: of each the text and, below it, what was found in its note or
// where the row stands, with the matches marked. The row that is selected alone is the present one.
class SearchResults final : public LinesView {
 public:
  using ChooseFunction = std::function<void(OutlineRow::Id, bool inIsFinal)>;

  SearchResults();

  void SetChooseFunction(ChooseFunction inChoose) { mChoose = std::move(inChoose); }
  // The document is borrowed until the next call; null for none.
  void Show(const OutlineDocument* inDocument, const SearchTerm& inTerm,
            std::vector<OutlineRow::Id> inRows);
  // The same rows of the same document, after the selection has changed.
  void ShowSelection();
  void Forget() { mDocument = nullptr; }

  const std::vector<OutlineRow::Id>& GetRows() const { return mRows; }
  std::size_t GetPresent() const { return mPresent; }  // a place among the rows, or kNoLine

 private:
  std::size_t CountLines() const override { return mDocument ? mRows.size() : 0; }
  std::size_t GetPresentLine() const override { return mPresent; }
  void DrawLine(lumui::drawbot::Drawbot& ioDrawbot, std::size_t inLine, const Rect& inPlace,
                bool inIsLit) const override;
  lumcore::UTF16String TextOfLine(std::size_t inLine) const override;
  lumcore::UTF16String NameOfList() const override;
  lumcore::UTF16String TextOfNoLines() const override;
  void Choose(std::size_t inLine, bool inIsFinal) override;

  const OutlineRow* FindRow(std::size_t inLine) const;  // null for one that has gone
  lumcore::UTF16String PathOf(const OutlineRow& inRow) const;

  ChooseFunction mChoose;
  const OutlineDocument* mDocument = nullptr;
  std::unique_ptr<TextSearch> mSearch;
  std::vector<OutlineRow::Id> mRows;
  std::size_t mPresent = kNoLine;
};

using SearchResultsPane = LinesPane<SearchResults>;

}  // namespace outliner
