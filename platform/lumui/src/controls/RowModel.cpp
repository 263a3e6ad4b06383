// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "controls/RowModel.h"

#include <algorithm>
#include <utility>

#include "drawbot/QtConvert.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/utility/ScopedValue.h"

namespace lumui::controls {

RowModel::RowModel(const std::vector<UI_MultiColumnTree::Column>& inColumns)
    : mColumns(inColumns) {}

RowModel::~RowModel() = default;

RowModel::Row* RowModel::Find(RowID inRow) const {
  if (inRow == UI_MultiColumnTree::kNoRow) return mRoot.get();
  if (inRow < mFirstID) return nullptr;
  const auto place = static_cast<std::size_t>(inRow - mFirstID);
  return place < mRows.size() ? mRows[place].get() : nullptr;
}

RowModel::Row& RowModel::Need(RowID inRow) const {
  Row* const row = Find(inRow);
  LUM_INPUT_CONTRACT(row && row != mRoot.get());
  return *row;
}

bool RowModel::IsReached(const Row& inRow) {
  for (const Row* row = &inRow; row->parent; row = row->parent) {
    if (row->hidden) return false;
  }
  return true;
}

QModelIndex RowModel::IndexOf(const Row& inRow, int inColumn) const {
  if (&inRow == mRoot.get() || !IsReached(inRow)) return QModelIndex();
  return createIndex(inRow.place, inColumn, &inRow);
}

RowModel::Row* RowModel::RowOf(const QModelIndex& inIndex) {
  return inIndex.isValid() ? static_cast<Row*>(inIndex.internalPointer()) : nullptr;
}

RowModel::Row& RowModel::RowAt(const QModelIndex& inIndex) const {
  Row* const row = RowOf(inIndex);
  return row ? *row : *mRoot;
}

bool RowModel::NeedReset() {
  if (!mUpdating) return false;
  if (!mResetting) beginResetModel();
  mResetting = true;
  return true;
}

bool RowModel::EndUpdate() {
  mUpdating = false;
  if (!std::exchange(mResetting, false)) return false;
  CollectShown(*mRoot);
  endResetModel();
  return true;
}

void RowModel::NumberShown(Row& ioParent, std::size_t inFirst) {
  for (std::size_t i = inFirst; i < ioParent.shown.size(); ++i)
    ioParent.shown[i]->place = static_cast<int>(i);
}

// Many changes count their rows once.
void RowModel::CollectShown(Row& ioParent) {
  ioParent.shown.clear();
  for (Row* child : ioParent.children) {
    child->place = child->hidden ? -1 : static_cast<int>(ioParent.shown.size());
    if (!child->hidden) ioParent.shown.push_back(child);
    if (!child->children.empty()) CollectShown(*child);
  }
}

void RowModel::Show(Row& ioRow) {
  if (NeedReset()) {
    ioRow.hidden = false;
    return;
  }
  Row& parent = *ioRow.parent;
  // Behind the last shown row that comes before it.
  std::size_t place = parent.shown.size();
  if (parent.children.back() != &ioRow) {
    place = 0;
    for (const Row* sibling : parent.children) {
      if (sibling == &ioRow) break;
      if (!sibling->hidden) ++place;
    }
  }
  const auto at = static_cast<int>(place);
  const bool silent = !IsReached(parent);
  if (!silent) beginInsertRows(IndexOf(parent, 0), at, at);
  ioRow.hidden = false;
  parent.shown.insert(parent.shown.begin() + at, &ioRow);
  NumberShown(parent, place);
  if (!silent) endInsertRows();
}

void RowModel::Hide(Row& ioRow) {
  if (NeedReset()) {
    ioRow.hidden = true;
    return;
  }
  Row& parent = *ioRow.parent;
  const bool silent = !IsReached(parent);
  if (!silent) beginRemoveRows(IndexOf(parent, 0), ioRow.place, ioRow.place);
  parent.shown.erase(parent.shown.begin() + ioRow.place);
  NumberShown(parent, static_cast<std::size_t>(ioRow.place));
  ioRow.hidden = true;
  ioRow.place = -1;
  if (!silent) endRemoveRows();
}

RowModel::Row& RowModel::Add(RowID inParent, const Texts& inTexts) {
  Row* const parent = Find(inParent);
  LUM_INPUT_CONTRACT(parent != nullptr);
  auto row = std::make_unique<Row>();
  row->id = mFirstID + static_cast<RowID>(mRows.size());
  row->parent = parent;
  row->texts = inTexts;
  row->hidden = true;
  mRows.push_back(std::move(row));
  Row& added = *mRows.back();
  parent->children.push_back(&added);
  if (parent == mFilling) {
    added.hidden = false;
  } else {
    Show(added);
  }
  return added;
}

void RowModel::Forget(Row& inRow) {
  for (Row* child : inRow.children)
    Forget(*child);
  mRows[static_cast<std::size_t>(inRow.id - mFirstID)].reset();
}

void RowModel::Remove(RowID inRow) {
  Row& row = Need(inRow);
  if (!row.hidden) Hide(row);
  std::vector<Row*>& siblings = row.parent->children;
  siblings.erase(std::find(siblings.begin(), siblings.end(), &row));
  Forget(row);
}

void RowModel::RemoveAll() {
  const bool reset = NeedReset();
  if (!reset) beginResetModel();
  *mRoot = Row();
  mFirstID += static_cast<RowID>(mRows.size());
  mRows.clear();
  if (!reset) endResetModel();
}

void RowModel::SetText(Row& ioRow, int inColumn, const lumcore::UTF16String& inText) {
  const auto column = static_cast<std::size_t>(inColumn);
  if (ioRow.texts.size() <= column) ioRow.texts.resize(column + 1);
  ioRow.texts[column] = inText;
  const QModelIndex index = IndexOf(ioRow, inColumn);
  if (index.isValid() && !mResetting) emit dataChanged(index, index);
}

void RowModel::SetHidden(Row& ioRow, bool inHidden) {
  if (inHidden == ioRow.hidden) return;
  if (inHidden) {
    Hide(ioRow);
  } else {
    Show(ioRow);
  }
}

void RowModel::Fill(Row& ioRow) {
  if (!ioRow.unfilled || !mFill) return;
  ioRow.unfilled = false;
  const RowID id = ioRow.id;
  {
    const lumcore::utility::StScopedValue<const Row*> filling(mFilling, &ioRow);
    mFill(id);
  }
  Row* const row = Find(id);
  if (!row || NeedReset() || row->children.empty()) return;
  const bool silent = !IsReached(*row);
  if (!silent) beginInsertRows(IndexOf(*row, 0), 0, static_cast<int>(row->children.size()) - 1);
  row->shown = row->children;
  NumberShown(*row, 0);
  if (!silent) endInsertRows();
}

void RowModel::ColumnsChanged() {
  if (NeedReset()) return;
  beginResetModel();
  endResetModel();
}

QModelIndex RowModel::index(int inRow, int inColumn, const QModelIndex& inParent) const {
  const Row& parent = RowAt(inParent);
  const bool known = inRow >= 0 && static_cast<std::size_t>(inRow) < parent.shown.size() &&
                     inColumn >= 0 && inColumn < columnCount(inParent);
  if (!known) return QModelIndex();
  return createIndex(inRow, inColumn, parent.shown[static_cast<std::size_t>(inRow)]);
}

QModelIndex RowModel::parent(const QModelIndex& inIndex) const {
  const Row* const row = RowOf(inIndex);
  if (!row || !row->parent || row->parent == mRoot.get()) return QModelIndex();
  return createIndex(row->parent->place, 0, row->parent);
}

int RowModel::rowCount(const QModelIndex& inParent) const {
  if (inParent.isValid() && inParent.column() > 0) return 0;
  return static_cast<int>(RowAt(inParent).shown.size());
}

int RowModel::columnCount(const QModelIndex&) const {
  return static_cast<int>(mColumns.size());
}

bool RowModel::hasChildren(const QModelIndex& inParent) const {
  return RowAt(inParent).unfilled || rowCount(inParent) > 0;
}

bool RowModel::canFetchMore(const QModelIndex& inParent) const {
  return RowAt(inParent).unfilled;
}

void RowModel::fetchMore(const QModelIndex& inParent) {
  Fill(RowAt(inParent));
}

QVariant RowModel::data(const QModelIndex& inIndex, int inRole) const {
  const Row* const row = RowOf(inIndex);
  if (!row || inRole != Qt::DisplayRole) return QVariant();
  const auto column = static_cast<std::size_t>(inIndex.column());
  return column < row->texts.size() ? drawbot::ToQt(row->texts[column]) : QString();
}

QVariant RowModel::headerData(int inSection, Qt::Orientation, int inRole) const {
  const auto column = static_cast<std::size_t>(inSection);
  if (inRole == Qt::TextAlignmentRole) return int(Qt::AlignLeft | Qt::AlignVCenter);
  if (inRole != Qt::DisplayRole || column >= mColumns.size()) return QVariant();
  return drawbot::ToQt(mColumns[column].title);
}

Qt::ItemFlags RowModel::flags(const QModelIndex& inIndex) const {
  return inIndex.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

}  // namespace lumui::controls
