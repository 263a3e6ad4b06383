// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModel>
#include <functional>
#include <memory>
#include <vector>

#include "lumui/controls/UI_MultiColumnTree.h"

namespace lumui::controls {

// The rows of a tree, as Qt's view asks for them. Texts become Qt's own only for what is in view,
// and a hidden row is none for the view.
class RowModel : public QAbstractItemModel {
 public:
  using RowID = UI_MultiColumnTree::RowID;
  using Texts = UI_MultiColumnTree::Texts;

  struct Row {
    RowID id = UI_MultiColumnTree::kNoRow;
    Row* parent = nullptr;
    int place = -1;  // among the shown rows of the parent
    bool hidden = false;
    bool open = false;
    bool unfilled = false;
    Texts texts;
    std::vector<Row*> children;
    std::vector<Row*> shown;
  };

  explicit RowModel(const std::vector<UI_MultiColumnTree::Column>& inColumns);
  ~RowModel() override;

  // The top level's row for kNoRow; null for one that is not there.
  Row* Find(RowID inRow) const;
  Row& Need(RowID inRow) const;                               // else a contract
  QModelIndex IndexOf(const Row& inRow, int inColumn) const;  // none for a hidden row
  static Row* RowOf(const QModelIndex& inIndex);              // null for none
  static bool IsReached(const Row& inRow);  // neither it nor a row above it is hidden

  Row& Add(RowID inParent, const Texts& inTexts);
  void Remove(RowID inRow);
  void RemoveAll();
  void SetText(Row& ioRow, int inColumn, const lumcore::UTF16String& inText);
  void SetHidden(Row& ioRow, bool inHidden);
  void ColumnsChanged();
  // Calls the function that adds the rows below one that has been told to have some.
  void Fill(Row& ioRow);
  std::function<void(RowID)> mFill;

  // In between no change is told to the view but that everything is new. EndUpdate answers whether
  // anything has changed.
  void BeginUpdate() { mUpdating = true; }
  bool EndUpdate();

  QModelIndex index(int inRow, int inColumn, const QModelIndex& inParent) const override;
  QModelIndex parent(const QModelIndex& inIndex) const override;
  int rowCount(const QModelIndex& inParent) const override;
  int columnCount(const QModelIndex& inParent) const override;
  bool hasChildren(const QModelIndex& inParent) const override;
  bool canFetchMore(const QModelIndex& inParent) const override;
  void fetchMore(const QModelIndex& inParent) override;
  QVariant data(const QModelIndex& inIndex, int inRole) const override;
  QVariant headerData(int inSection, Qt::Orientation inOrientation, int inRole) const override;
  Qt::ItemFlags flags(const QModelIndex& inIndex) const override;

 private:
  bool NeedReset();
  Row& RowAt(const QModelIndex& inIndex) const;
  void Forget(Row& inRow);
  void Show(Row& ioRow);
  void Hide(Row& ioRow);
  static void CollectShown(Row& ioParent);
  static void NumberShown(Row& ioParent, std::size_t inFirst);

  const std::vector<UI_MultiColumnTree::Column>& mColumns;
  std::unique_ptr<Row> mRoot = std::make_unique<Row>();
  std::vector<std::unique_ptr<Row>> mRows;  // by id, from mFirstID on
  RowID mFirstID = 1;
  bool mUpdating = false;
  bool mResetting = false;
  const Row* mFilling = nullptr;  // its rows are told to the view together
};

}  // namespace lumui::controls
