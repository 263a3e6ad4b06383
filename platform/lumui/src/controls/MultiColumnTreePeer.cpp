// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "controls/MultiColumnTreePeer.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cmath>

#include "controls/RowModel.h"
#include "drawbot/QtConvert.h"
#include "lumcore/utility/ScopedValue.h"

namespace lumui::controls {

namespace {

using RowID = UI_MultiColumnTree::RowID;

// In units: above and below a row's text, and around a node in a cell.
constexpr int kTextMargin = 4;
constexpr int kNodeMargin = 1;
constexpr int kLeastColumn = 24;

}  // namespace

// All rows are as high as a line but those with a node that needs more, so that no text is measured
// for a row that is not drawn.
class TreeWidget::Delegate : public QStyledItemDelegate {
 public:
  explicit Delegate(TreeWidget& inView) : QStyledItemDelegate(&inView), mView(inView) {}

  bool mMeasuring = false;

  QSize sizeHint(const QStyleOptionViewItem& inOption, const QModelIndex& inIndex) const override {
    int height = mView.fontMetrics().height() + 2 * kTextMargin;
    const RowModel::Row* const row = RowModel::RowOf(inIndex);
    for (std::size_t i = 0; mView.mTree && i < mView.mTree->mCells.size(); ++i) {
      const UI_MultiColumnTree::Cell& cell = mView.mTree->mCells[i];
      if (row && cell.row == row->id && cell.column == inIndex.column()) {
        height = std::max(height, static_cast<int>(std::ceil(cell.height)) + 2 * kNodeMargin);
      }
    }
    return QSize(mMeasuring ? QStyledItemDelegate::sizeHint(inOption, inIndex).width() : 0, height);
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* outOption, const QModelIndex& inIndex) const override {
    QStyledItemDelegate::initStyleOption(outOption, inIndex);
    const RowModel::Row* const row = RowModel::RowOf(inIndex);
    if (!row || !mView.mTree) return;
    // A node stands over the text, and need not cover it.
    if (mView.mTree->GetCellNode(row->id, inIndex.column())) outOption->text.clear();
  }

 private:
  TreeWidget& mView;
};

TreeWidget::TreeWidget(QWidget* inParent) : QTreeView(inParent) {
  setItemDelegate(new Delegate(*this));
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setSelectionBehavior(SelectRows);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollMode(ScrollPerPixel);
  setExpandsOnDoubleClick(true);
  header()->setStretchLastSection(true);
  header()->setSectionsMovable(false);
  header()->setMinimumSectionSize(kLeastColumn);
  header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  connect(this, &QTreeView::expanded, this, [this](const auto& inIndex) { Opened(inIndex, true); });
  connect(this, &QTreeView::collapsed, this,
          [this](const auto& inIndex) { Opened(inIndex, false); });
}

void TreeWidget::Attach(UI_MultiColumnTree* inTree) {
  mTree = inTree;
  const lumcore::utility::StScopedValue<bool> showing(mShowingState, true);
  setModel(inTree->mModel.get());
  connect(inTree->mModel.get(), &QObject::destroyed, this, [this] { mTree = nullptr; });
  connect(header(), &QHeaderView::sectionResized, this, [this](int inColumn, int, int inSize) {
    if (!mTree || mTree->mUpdateDepth > 0 || inColumn >= mTree->GetColumnCount()) return;
    mTree->mColumns[static_cast<std::size_t>(inColumn)].width = static_cast<float>(inSize);
    mTree->PlaceCellNodes();
  });
}

void TreeWidget::ShowOptions(const UI_MultiColumnTree::Options& inOptions) {
  setRootIsDecorated(inOptions.showsChildRows);
  setItemsExpandable(inOptions.showsChildRows);
  setAllColumnsShowFocus(inOptions.indicatesFocus);
  header()->setVisible(inOptions.showsHeader);
}

void TreeWidget::Detach() {
  mTree = nullptr;
  setModel(nullptr);
}

void TreeWidget::initViewItemOption(QStyleOptionViewItem* outOption) const {
  QTreeView::initViewItemOption(outOption);
  if (mTree && !mTree->GetOptions().indicatesFocus) outOption->state &= ~QStyle::State_HasFocus;
}

void TreeWidget::OpenRows(RowID inParent) {
  const RowModel::Row* const parent = mTree->mModel->Find(inParent);
  for (const RowModel::Row* row : parent->shown) {
    if (row->open) setExpanded(mTree->mModel->IndexOf(*row, 0), true);
    if (!row->shown.empty()) OpenRows(row->id);
  }
}

void TreeWidget::RestoreState(RowID inTop) {
  const lumcore::utility::StScopedValue<bool> showing(mShowingState, true);
  OpenRows(UI_MultiColumnTree::kNoRow);
  ShowSelection();
  const RowModel::Row* const top = mTree->mModel->Find(inTop);
  if (!top || inTop == UI_MultiColumnTree::kNoRow) return;
  const QModelIndex index = mTree->mModel->IndexOf(*top, 0);
  if (index.isValid()) scrollTo(index, PositionAtTop);
}

void TreeWidget::ShowSelection() {
  const lumcore::utility::StScopedValue<bool> showing(mShowingState, true);
  const RowModel::Row* const row = mTree->mModel->Find(mTree->mSelected);
  const QModelIndex index = row ? mTree->mModel->IndexOf(*row, 0) : QModelIndex();
  if (!index.isValid()) {
    selectionModel()->clear();
  } else if (!selectionModel()->isRowSelected(index.row(), index.parent())) {
    const bool scrolls = hasAutoScroll();
    setAutoScroll(false);
    selectionModel()->setCurrentIndex(
        index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    setAutoScroll(scrolls);
  }
}

RowID TreeWidget::GetTopRow() const {
  // Asking for an index lays all out, which a view that is not scrolled can do without.
  if (verticalScrollBar()->value() == 0) return UI_MultiColumnTree::kNoRow;
  const RowModel::Row* const row = RowModel::RowOf(indexAt(QPoint(0, 0)));
  return row ? row->id : UI_MultiColumnTree::kNoRow;
}

QRect TreeWidget::CellRect(RowID inRow, int inColumn) const {
  const RowModel::Row* const row = mTree->mModel->Find(inRow);
  const QModelIndex index = row ? mTree->mModel->IndexOf(*row, inColumn) : QModelIndex();
  for (QModelIndex above = index.parent(); above.isValid(); above = above.parent()) {
    if (!isExpanded(above)) return QRect();
  }
  const QRect rect = index.isValid() ? visualRect(index) : QRect();
  return rect.intersects(viewport()->rect())
             ? rect.adjusted(kNodeMargin, kNodeMargin, -kNodeMargin, -kNodeMargin)
             : QRect();
}

void TreeWidget::ScrollWidgetIntoView(const QWidget& inWidget) {
  const QPoint top = inWidget.mapTo(viewport(), QPoint(0, 0));
  const int bottom = top.y() + inWidget.height();
  int distance = std::max(0, bottom + kNodeMargin - viewport()->height());
  distance = std::min(distance, top.y() - kNodeMargin);
  verticalScrollBar()->setValue(verticalScrollBar()->value() + distance);
}

int TreeWidget::CellWidth(int inColumn, const QString& inText, int inDepth) const {
  const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
  const int depth = inColumn == 0 ? inDepth + (rootIsDecorated() ? 1 : 0) : 0;
  return fontMetrics().horizontalAdvance(inText) + 2 * margin + depth * indentation();
}

int TreeWidget::sizeHintForColumn(int inColumn) const {
  if (mTree && mTree->mBestFit) return qRound(mTree->mBestFit(inColumn));
  const lumcore::utility::StScopedValue<bool> measuring(
      static_cast<Delegate*>(itemDelegate())->mMeasuring, true);
  return QTreeView::sizeHintForColumn(inColumn);
}

void TreeWidget::mousePressEvent(QMouseEvent* inEvent) {
  QTreeView::mousePressEvent(inEvent);
  const bool may = mTree && mTree->GetOptions().mayBeWithoutSelection;
  if (may && !indexAt(inEvent->position().toPoint()).isValid()) selectionModel()->clear();
}

// Qt's answers Enter on an empty selection as well, and tells the mouse's activation by the style.
void TreeWidget::keyPressEvent(QKeyEvent* inEvent) {
  const bool enter = inEvent->key() == Qt::Key_Return || inEvent->key() == Qt::Key_Enter;
  if (enter && mTree && mTree->mActivated && mTree->mSelected != UI_MultiColumnTree::kNoRow) {
    static_cast<MultiColumnTreePeer*>(mTree->GetPeer())->Activated(mTree->mSelected);
    return inEvent->accept();
  }
  QTreeView::keyPressEvent(inEvent);
}

void TreeWidget::scrollContentsBy(int inX, int inY) {
  QTreeView::scrollContentsBy(inX, inY);
  if (mTree) mTree->PlaceCellNodes();
}

void TreeWidget::updateGeometries() {
  QTreeView::updateGeometries();
  if (mTree) mTree->PlaceCellNodes();
}

void TreeWidget::selectionChanged(const QItemSelection& inOn, const QItemSelection& inOff) {
  QTreeView::selectionChanged(inOn, inOff);
  SelectionMoved();
}

// Qt would select a neighbour in the place of a row that goes; nobody has asked for that one.
void TreeWidget::rowsAboutToBeRemoved(const QModelIndex& inParent, int inFirst, int inLast) {
  const lumcore::utility::StScopedValue<bool> showing(mShowingState, true);
  QModelIndex current = currentIndex();
  while (current.isValid() && current.parent() != inParent)
    current = current.parent();
  if (current.isValid() && current.row() >= inFirst && current.row() <= inLast) {
    selectionModel()->clear();
  }
  QTreeView::rowsAboutToBeRemoved(inParent, inFirst, inLast);
}

void TreeWidget::SelectionMoved() {
  if (mShowingState || !mTree) return;
  const QModelIndexList selected = selectionModel()->selectedRows();
  const RowModel::Row* const row = selected.isEmpty() ? nullptr : RowModel::RowOf(selected.front());
  if (!row && !mTree->GetOptions().mayBeWithoutSelection) return ShowSelection();
  static_cast<MultiColumnTreePeer*>(mTree->GetPeer())
      ->Selected(row ? row->id : UI_MultiColumnTree::kNoRow);
}

void TreeWidget::Opened(const QModelIndex& inIndex, bool inOpen) {
  if (RowModel::Row* const row = RowModel::RowOf(inIndex)) row->open = inOpen;
  if (!mShowingState && mTree) mTree->PlaceCellNodes();
}

void TreeWidget::changeEvent(QEvent* inEvent) {
  QTreeView::changeEvent(inEvent);
  if (inEvent->type() == QEvent::FontChange) scheduleDelayedItemsLayout();
}

void MultiColumnTreePeer::Selected(RowID inRow) {
  ByUser([&] { static_cast<UI_MultiColumnTree&>(GetControl()).HandleSelected(inRow); });
}

void MultiColumnTreePeer::Activated(RowID inRow) {
  ByUser([&] {
    const auto function = static_cast<UI_MultiColumnTree&>(GetControl()).mActivated;
    if (function) function(inRow);
  });
}

QWidget* MultiColumnTreePeer::DoMakeControl(QWidget* inParent) {
  auto* const tree = new ui::NodeWidgetT<TreeWidget>(*this, inParent);
  tree->Attach(&static_cast<UI_MultiColumnTree&>(GetControl()));
  QObject::connect(tree, &QAbstractItemView::doubleClicked, tree, [this](const QModelIndex& inAt) {
    if (const RowModel::Row* const row = RowModel::RowOf(inAt)) Activated(row->id);
  });
  tree->RestoreState(UI_MultiColumnTree::kNoRow);
  return tree;
}

QWidget* MultiColumnTreePeer::DoGetContainer() {
  return GetTree()->viewport();
}

}  // namespace lumui::controls
