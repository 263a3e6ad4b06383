// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineTree.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>

#include "MarkupText.h"
#include "lumcore/utility/StringUtils.h"

namespace outliner {

using lumcore::UTF16String;

namespace {

// Rows deeper than this are indented no further by the layout: the white space of a chain of rows
// would else grow with the square of its length.
constexpr std::size_t kDeepestIndent = 64;

UTF16String Text(const char* inText) {
  return lumcore::utility::ToUTF16(inText);
}

// Calls inVisit for the row and all below it, in document order, without recursion.
template <class Visit>
void VisitRows(OutlineRow& inTop, Visit inVisit) {
  OutlineRow* row = &inTop;
  while (row) {
    inVisit(*row);
    if (row->GetChildCount() > 0) {
      row = row->GetChild(0);
      continue;
    }
    while (row != &inTop && row->GetIndex() + 1 == row->GetParent()->GetChildCount()) {
      row = row->GetParent();
    }
    row = row == &inTop ? nullptr : row->GetParent()->GetChild(row->GetIndex() + 1);
  }
}

bool IsWhiteSpace(TextView inText) {
  return std::all_of(inText.begin(), inText.end(), [](unsigned short inUnit) {
    return inUnit == ' ' || inUnit == '\t' || inUnit == '\n';
  });
}

bool StartsWith(TextView inText, TextView inStart) {
  return inText.substr(0, inStart.size()) == inStart;
}

}  // namespace

OutlineTree::OutlineTree() {
  mMarkup.Intern(Text("by layout"));  // holds number 0, and is never looked at
  mMarkup.Intern(UTF16String());
  mRoot.reset(new OutlineRow(0));
  mRowsById.push_back(mRoot.get());
  mEnvelope.before = Text(
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<opml version=\"2.0\">\n  <head>\n"
      "    <title/>\n  </head>\n  <body");
  mEnvelope.after = Text("\n</opml>\n");
  mEnvelope.encoding = "UTF-8";
  FindLayout();
}

OutlineRow* OutlineTree::FindRow(OutlineRow::Id inId) const {
  return inId < mRowsById.size() ? mRowsById[inId] : nullptr;
}

bool OutlineTree::Contains(const OutlineRow* inRow) const {
  constexpr int kFewQuestions = 16;
  if (mAddresses.empty() && ++mAddressQuestions <= kFewQuestions) {
    return std::find(mRowsById.begin() + 1, mRowsById.end(), inRow) != mRowsById.end();
  }
  if (mAddresses.empty()) {
    mAddresses.assign(GetLines().begin(), GetLines().end());
    std::sort(mAddresses.begin(), mAddresses.end(), std::less<const OutlineRow*>());
  }
  return std::binary_search(mAddresses.begin(), mAddresses.end(), inRow,
                            std::less<const OutlineRow*>());
}

const std::vector<OutlineRow*>& OutlineTree::GetLines() const {
  if (!mLinesKnown) {
    mLines.clear();
    mLines.reserve(mRowsById.size());
    VisitRows(*mRoot, [this](OutlineRow& inRow) {
      if (&inRow == mRoot.get()) return;
      inRow.mLine = static_cast<std::uint32_t>(mLines.size());
      mLines.push_back(&inRow);
    });
    mLinesKnown = true;
  }
  return mLines;
}

std::size_t OutlineTree::GetLine(const OutlineRow& inRow) const {
  GetLines();
  return inRow.mLine;
}

std::size_t OutlineTree::GetEndLine(const OutlineRow& inRow) const {
  const OutlineRow* row = &inRow;
  while (row->GetParent() && row->GetIndex() + 1 == row->GetParent()->GetChildCount()) {
    row = row->GetParent();
  }
  if (!row->GetParent()) return GetLines().size();
  return GetLine(*row->GetParent()->GetChild(row->GetIndex() + 1));
}

std::unique_ptr<OutlineRow> OutlineTree::NewRow(const UTF16String& inText) {
  std::unique_ptr<OutlineRow> row(new OutlineRow(static_cast<OutlineRow::Id>(mRowsById.size())));
  mRowsById.push_back(nullptr);
  SetText(*row, inText);
  return row;
}

std::unique_ptr<OutlineRow> OutlineTree::NewRow(const UTF16String& inText, Rows inBelow) {
  auto row = NewRow(inText);
  for (const auto& below : inBelow)
    below->mParent = row.get();
  row->mChildren = std::move(inBelow);
  return row;
}

OutlineRow& OutlineTree::AppendRow(OutlineRow& inParent) {
  std::unique_ptr<OutlineRow> row(new OutlineRow(static_cast<OutlineRow::Id>(mRowsById.size())));
  row->mParent = &inParent;
  row->mIndex = static_cast<std::uint32_t>(inParent.mChildren.size());
  mRowsById.push_back(row.get());
  mLinesKnown = false;
  ++mShape;
  mAddresses.clear();
  inParent.mChildren.push_back(std::move(row));
  return *inParent.mChildren.back();
}

void OutlineTree::InsertRows(OutlineRow& inParent, std::size_t inIndex, Rows inRows) {
  const auto at = inParent.mChildren.begin() + static_cast<std::ptrdiff_t>(inIndex);
  const auto first = inParent.mChildren.insert(at, std::make_move_iterator(inRows.begin()),
                                               std::make_move_iterator(inRows.end()));
  for (std::size_t row = 0; row < inRows.size(); ++row) {
    OutlineRow& inserted = *first[static_cast<std::ptrdiff_t>(row)];
    inserted.mParent = &inParent;
    SetInTree(inserted, true);
  }
  RowsChanged(inParent);
}

OutlineTree::Rows OutlineTree::RemoveRows(OutlineRow& inParent, std::size_t inIndex,
                                          std::size_t inCount) {
  const auto first = inParent.mChildren.begin() + static_cast<std::ptrdiff_t>(inIndex);
  const auto last = first + static_cast<std::ptrdiff_t>(inCount);
  Rows rows(std::make_move_iterator(first), std::make_move_iterator(last));
  inParent.mChildren.erase(first, last);
  for (const auto& row : rows) {
    row->mParent = nullptr;
    SetInTree(*row, false);
  }
  RowsChanged(inParent);
  return rows;
}

void OutlineTree::MoveRowsWithin(OutlineRow& inParent, std::size_t inIndex, std::size_t inCount,
                                 std::size_t inNewIndex) {
  const auto at = [&](std::size_t inPlace) {
    return inParent.mChildren.begin() + static_cast<std::ptrdiff_t>(inPlace);
  };
  if (inNewIndex < inIndex) {
    std::rotate(at(inNewIndex), at(inIndex), at(inIndex + inCount));
  } else {
    std::rotate(at(inIndex), at(inIndex + inCount), at(inNewIndex + inCount));
  }
  const std::size_t end = std::max(inIndex, inNewIndex) + inCount;
  for (std::size_t index = std::min(inIndex, inNewIndex); index < end; ++index)
    inParent.mChildren[index]->mIndex = static_cast<std::uint32_t>(index);
  RowsChanged(inParent);
}

void OutlineTree::RowsChanged(const OutlineRow& inParent) {
  mLinesKnown = false;
  ++mShape;
  mAddresses.clear();
  mAddressQuestions = 0;
  if (mChanged) mChanged(inParent);
}

void OutlineTree::SetInTree(OutlineRow& inRow, bool inPresent) {
  VisitRows(inRow, [&](OutlineRow& inBelow) {
    mRowsById[inBelow.GetId()] = inPresent ? &inBelow : nullptr;
  });
}

void OutlineTree::SetText(OutlineRow& inRow, const UTF16String& inText) {
  inRow.mText = CleanText(inText);
}

void OutlineTree::AddAttribute(OutlineRow& inRow, TextPool::Id inName, UTF16String inValue) {
  Extras(inRow).attributes.push_back({inName, std::move(inValue)});
}

void OutlineTree::ExchangeAttribute(OutlineRow& inRow, const UTF16String& inName,
                                    AttributeState& ioState) {
  auto& extras = Extras(inRow);
  auto& attributes = extras.attributes;
  const TextPool::Id name = mNames.Intern(inName);
  const auto found = std::find_if(attributes.begin(), attributes.end(),
                                  [&](const auto& inEach) { return inEach.name == name; });
  AttributeState old;
  if (found != attributes.end()) {
    const auto place = static_cast<std::size_t>(found - attributes.begin());
    old = {std::move(found->value), place, place < extras.textPlace};
  }
  if (!ioState.value) {
    if (!old.value) return;
    attributes.erase(found);
    if (old.isBeforeText) --extras.textPlace;
  } else if (old.value) {
    found->value = CleanText(*ioState.value);
  } else {
    const std::size_t place = std::min(ioState.place, attributes.size());
    attributes.insert(attributes.begin() + static_cast<std::ptrdiff_t>(place),
                      {name, CleanText(*ioState.value)});
    if (ioState.isBeforeText) ++extras.textPlace;
  }
  ioState = std::move(old);
}

void OutlineTree::SetTextPlace(OutlineRow& inRow, std::size_t inPlace) {
  Extras(inRow).textPlace = static_cast<std::uint32_t>(inPlace);
}

void OutlineTree::MarkTextMissing(OutlineRow& inRow) {
  Extras(inRow).textMissing = true;
}

OutlineRow::Extras& OutlineTree::Extras(OutlineRow& inRow) {
  if (!inRow.mExtras) inRow.mExtras = std::make_unique<OutlineRow::Extras>();
  return *inRow.mExtras;
}

const UTF16String* OutlineTree::FindAttribute(const OutlineRow& inRow, TextView inName) const {
  TextPool::Id name = 0;
  if (inRow.GetAttributeCount() == 0 || !mNames.Find(inName, name)) return nullptr;
  for (const auto& attribute : inRow.mExtras->attributes) {
    if (attribute.name == name) return &attribute.value;
  }
  return nullptr;
}

void OutlineTree::AppendLeading(const OutlineRow& inRow, std::size_t inDepth,
                                UTF16String& outText) const {
  if (inRow.mLeading == kByLayout) {
    AppendLayout(inDepth, outText);
  } else {
    outText += mMarkup.Get(inRow.mLeading);
  }
}

void OutlineTree::AppendTrailing(const OutlineRow& inRow, std::size_t inDepth,
                                 UTF16String& outText) const {
  if (inRow.mTrailing != kByLayout) {
    outText += mMarkup.Get(inRow.mTrailing);
  } else if (inRow.GetChildCount() > 0) {
    AppendLayout(inDepth, outText);
  }
}

bool OutlineTree::IsForeign(TextPool::Id inMarkup) const {
  return inMarkup != kByLayout && !IsWhiteSpace(mMarkup.Get(inMarkup));
}

void OutlineTree::AppendLayout(std::size_t inDepth, UTF16String& outText) const {
  if (inDepth == 0) {
    outText += mLayout.bodyEnd;
    return;
  }
  outText += mLayout.rowStart;
  for (std::size_t level = std::min(inDepth, kDeepestIndent); level > 1; --level) {
    outText += mLayout.unit;
  }
}

bool OutlineTree::FindWhiteSpace(TextPool::Id inMarkup, UTF16String& outText) const {
  if (inMarkup == kByLayout) return false;
  const UTF16String& markup = mMarkup.Get(inMarkup);
  if (IsWhiteSpace(markup)) {
    outText = markup;
    return true;
  }
  const auto line = markup.rfind('\n');
  if (line == markup.npos || !IsWhiteSpace(TextView(markup).substr(line))) return false;
  outText = markup.substr(line);
  return true;
}

void OutlineTree::FindLayout() {
  mLayout = {Text("\n    "), Text("  "), Text("\n  ")};
  if (mRoot->mChildren.empty()) return;
  FindWhiteSpace(mRoot->mTrailing, mLayout.bodyEnd);
  for (const auto& row : mRoot->mChildren) {
    if (FindWhiteSpace(row->mLeading, mLayout.rowStart)) break;
  }
  if (mLayout.rowStart.empty()) {
    mLayout.unit.clear();
  } else if (StartsWith(mLayout.rowStart, mLayout.bodyEnd)) {
    mLayout.unit = mLayout.rowStart.substr(mLayout.bodyEnd.size());
  }
  for (const OutlineRow* row : GetLines()) {
    UTF16String outer, inner;
    if (row->mParent == mRoot.get() || !FindWhiteSpace(row->mParent->mLeading, outer) ||
        !FindWhiteSpace(row->mLeading, inner) || !StartsWith(inner, outer)) {
      continue;
    }
    mLayout.unit = inner.substr(outer.size());
    break;
  }
}

void OutlineTree::AdoptLayout() {
  FindLayout();
  std::vector<TextPool::Id> layout;  // by depth
  const auto atDepth = [&](std::size_t inDepth) {
    inDepth = std::min(inDepth, kDeepestIndent);
    while (layout.size() <= inDepth) {
      UTF16String text;
      AppendLayout(layout.size(), text);
      layout.push_back(mMarkup.Intern(text));
    }
    return layout[inDepth];
  };
  const auto adopt = [&](OutlineRow& inRow, std::size_t inDepth) {
    if (inDepth > 0 && inRow.mLeading == atDepth(inDepth)) inRow.mLeading = kByLayout;
    const TextPool::Id trailing = inRow.mChildren.empty() ? kNothing : atDepth(inDepth);
    if (inRow.mTrailing == trailing) inRow.mTrailing = kByLayout;
  };
  // What grew row by row holds up to twice what it needs.
  mRowsById.shrink_to_fit();
  mRoot->mChildren.shrink_to_fit();
  adopt(*mRoot, 0);
  std::vector<std::size_t> depths;
  depths.reserve(GetLines().size());
  for (OutlineRow* row : GetLines()) {
    depths.push_back(row->mParent == mRoot.get() ? 1 : depths[row->mParent->mLine] + 1);
    adopt(*row, depths.back());
    row->mChildren.shrink_to_fit();
  }
}

}  // namespace outliner
