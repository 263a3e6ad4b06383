// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "OutlineRow.h"
#include "TextPool.h"
#include "lumcore/Strings.h"

namespace outliner {

// What a file has around its rows, as markup, and how its bytes are made. Nothing of it is edited.
struct OutlineEnvelope {
  lumcore::UTF16String before;  // up to the start tag of the body, which still lacks its ">"
  lumcore::UTF16String after;   // from behind the body's end tag
  lumcore::UTF16String title;   // plain text; empty where the head has none
  std::string encoding;         // as a converter is asked for, with the byte order where it has one
  std::string byteOrderMark;    // the bytes in front of the text, mostly none
  bool endsLinesWithCR = false;
};

// The white space of rows that have none of their own: a new line and indentation for each level,
// or nothing at all in a file that is written without.
struct OutlineLayout {
  lumcore::UTF16String rowStart;  // in front of a row of the first level
  lumcore::UTF16String unit;      // added for each level
  lumcore::UTF16String bodyEnd;   // in front of the body's end tag
};

// The rows of an outline and all else that its file holds: pure data, with neither selection nor
// undo. The root stands for the body; it is never shown and has the number 0.
//
// The tree owns the rows that are in it. Calls keep the pointers that others hold valid; only who
// gets rows out of RemoveRows may end them.
class OutlineTree {
 public:
  using Rows = std::vector<std::unique_ptr<OutlineRow>>;

  // Markup number 0 is no markup: the layout decides what stands there. Number 1 is the empty text.
  static constexpr TextPool::Id kByLayout = 0;
  static constexpr TextPool::Id kNothing = 1;

  OutlineTree();  // an empty outline in UTF-8 with an empty title

  OutlineRow& GetRoot() { return *mRoot; }
  const OutlineRow& GetRoot() const { return *mRoot; }
  // Null for a row that is not in the tree now.
  OutlineRow* FindRow(OutlineRow::Id inId) const;

  // Whether it is a row of the tree now, other than the root. One that has gone may be asked about:
  // only the address is looked at. Asked often, it costs a search in all addresses.
  bool Contains(const OutlineRow* inRow) const;

  // All rows but the root in document order. The list is made anew after rows have come, gone or
  // moved, and stays as it is until then.
  const std::vector<OutlineRow*>& GetLines() const;
  std::size_t GetLine(const OutlineRow& inRow) const;  // its place in that list
  // Another one each time that the list is another.
  std::uint64_t GetShapeVersion() const { return mShape; }
  // Behind the last row below inRow, in that list.
  std::size_t GetEndLine(const OutlineRow& inRow) const;

  // A row with a number of its own that is not in the tree yet.
  std::unique_ptr<OutlineRow> NewRow(const lumcore::UTF16String& inText);
  // The same with rows below it that are not in the tree yet either.
  std::unique_ptr<OutlineRow> NewRow(const lumcore::UTF16String& inText, Rows inBelow);
  // Puts rows, with what is below them, in front of the child numbered inIndex.
  void InsertRows(OutlineRow& inParent, std::size_t inIndex, Rows inRows);
  Rows RemoveRows(OutlineRow& inParent, std::size_t inIndex, std::size_t inCount);
  // To another place under the same parent, where the first of them then has the number inNewIndex.
  // It costs what lies between, while removing and inserting cost the length of the list.
  void MoveRowsWithin(OutlineRow& inParent, std::size_t inIndex, std::size_t inCount,
                      std::size_t inNewIndex);

  // Called after other rows stand below a row, or stand there in another order: by the three
  // operations above, with the row that they are below. It must not throw.
  using ChangeFunction = std::function<void(const OutlineRow& inParent)>;
  void SetChangeFunction(ChangeFunction inChanged) { mChanged = std::move(inChanged); }

  // Characters that XML does not allow become U+FFFD.
  void SetText(OutlineRow& inRow, const lumcore::UTF16String& inText);
  void SetLeading(OutlineRow& inRow, TextPool::Id inMarkup) { inRow.mLeading = inMarkup; }
  void SetTrailing(OutlineRow& inRow, TextPool::Id inMarkup) { inRow.mTrailing = inMarkup; }

  // For reading: a new last child, and its attributes in order; `text` itself is set by SetText.
  OutlineRow& AppendRow(OutlineRow& inParent);
  void AddAttribute(OutlineRow& inRow, TextPool::Id inName, lumcore::UTF16String inValue);
  void SetTextPlace(OutlineRow& inRow, std::size_t inPlace);
  void MarkTextMissing(OutlineRow& inRow);

  // An attribute as it stands in a row, or as it could: without a value it is not there.
  struct AttributeState {
    std::optional<lumcore::UTF16String> value;
    std::size_t place = kLastPlace;  // among the row's attributes, the text not counted
    bool isBeforeText = false;
  };
  static constexpr std::size_t kLastPlace = static_cast<std::size_t>(-1);
  // Gives the row's attribute of that name the other state, and tells the one that it had: done
  // twice, all is as it was. A new attribute comes where the state says, and a place beyond the end
  // is the end. Characters that XML does not allow become U+FFFD.
  void ExchangeAttribute(OutlineRow& inRow, const lumcore::UTF16String& inName,
                         AttributeState& ioState);

  // Null where the row has none of that name.
  const lumcore::UTF16String* FindAttribute(const OutlineRow& inRow, TextView inName) const;

  TextPool& GetNames() { return mNames; }
  const TextPool& GetNames() const { return mNames; }
  TextPool& GetMarkup() { return mMarkup; }
  // The markup itself, with the layout's in the place of number 0. inDepth is the row's.
  void AppendLeading(const OutlineRow& inRow, std::size_t inDepth,
                     lumcore::UTF16String& outText) const;
  void AppendTrailing(const OutlineRow& inRow, std::size_t inDepth,
                      lumcore::UTF16String& outText) const;
  // Whether the markup holds more than white space.
  bool IsForeign(TextPool::Id inMarkup) const;

  OutlineEnvelope& GetEnvelope() { return mEnvelope; }
  const OutlineEnvelope& GetEnvelope() const { return mEnvelope; }
  // Finds the layout that the file was written in, and frees the rows that keep to it from white
  // space of their own. Called once, when all rows are read.
  void AdoptLayout();

 private:
  OutlineRow::Extras& Extras(OutlineRow& inRow);
  void SetInTree(OutlineRow& inRow, bool inPresent);
  void RowsChanged(const OutlineRow& inParent);
  void AppendLayout(std::size_t inDepth, lumcore::UTF16String& outText) const;
  void FindLayout();
  // All of the markup, or where it is foreign, its last line as far as that is white space.
  bool FindWhiteSpace(TextPool::Id inMarkup, lumcore::UTF16String& outText) const;

  ChangeFunction mChanged;
  std::unique_ptr<OutlineRow> mRoot;
  std::vector<OutlineRow*> mRowsById;  // null for a row that is out of the tree
  TextPool mNames;
  TextPool mMarkup;
  OutlineEnvelope mEnvelope;
  OutlineLayout mLayout;
  mutable std::vector<OutlineRow*> mLines;
  mutable bool mLinesKnown = true;
  std::uint64_t mShape = 0;
  // Sorted, once they are asked for often enough since rows have come or gone; else empty.
  mutable std::vector<const OutlineRow*> mAddresses;
  mutable int mAddressQuestions = 0;
};

}  // namespace outliner
