// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "QtTreePeer.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTreeView>

#include "TreeTexts.h"

namespace {

QList<QStandardItem*> NewRow(int inRow) {
  QList<QStandardItem*> cells;
  for (int column = 0; column < 3; ++column)
    cells.append(new QStandardItem(QString::fromStdString(bench::TextOf(inRow, column))));
  return cells;
}

void Fill(QStandardItemModel& ioModel, int inRows, int inGroups) {
  QStandardItem* parent = ioModel.invisibleRootItem();
  for (int row = 0; row < inRows; ++row) {
    const bool isGroup = inGroups > 0 && row % (inRows / inGroups) == 0;
    const QList<QStandardItem*> cells = NewRow(row);
    (isGroup ? ioModel.invisibleRootItem() : parent)->appendRow(cells);
    if (isGroup) parent = cells.front();
  }
}

}  // namespace

class QtTreePeer::Impl {
 public:
  Impl(int inRows, int inGroups) : mRows(inRows) {
    Fill(mModel, inRows, inGroups);
    mView.setUniformRowHeights(true);
    mView.setSelectionMode(QAbstractItemView::ExtendedSelection);
    mView.setModel(&mModel);
    mView.resize(bench::kTreeWidth, bench::kTreeHeight);
    mView.show();
    mView.expandAll();
    QApplication::processEvents();
  }

  void Paint() {
    QApplication::processEvents();
    mView.viewport()->repaint();
  }

  int mRows;
  QStandardItemModel mModel;
  QTreeView mView;
};

QtTreePeer::QtTreePeer(int inRows, int inGroups) : mImpl(new Impl(inRows, inGroups)) {}

QtTreePeer::~QtTreePeer() = default;

void QtTreePeer::BuildModel(int inRows, int inGroups) {
  QStandardItemModel model;
  Fill(model, inRows, inGroups);
}

void QtTreePeer::CollapseAll() {
  mImpl->mView.collapseAll();
  mImpl->Paint();
}

void QtTreePeer::ExpandAll() {
  mImpl->mView.expandAll();
  mImpl->Paint();
}

void QtTreePeer::ToggleGroup(int inGroup) {
  const QModelIndex group = mImpl->mModel.index(inGroup, 0);
  mImpl->mView.setExpanded(group, !mImpl->mView.isExpanded(group));
  mImpl->Paint();
}

void QtTreePeer::Sort(int inColumn, bool inAscending) {
  mImpl->mModel.sort(inColumn, inAscending ? Qt::AscendingOrder : Qt::DescendingOrder);
  mImpl->Paint();
}

void QtTreePeer::SearchLastRow() {
  mImpl->mView.setCurrentIndex(QModelIndex());
  mImpl->mView.keyboardSearch(QString());  // begins anew
  mImpl->mView.keyboardSearch(QString::fromStdString(bench::TextOf(mImpl->mRows - 1, 0)));
  mImpl->Paint();
}

void QtTreePeer::SelectAll() {
  mImpl->mView.selectAll();
  mImpl->Paint();
}

void QtTreePeer::SelectNone() {
  mImpl->mView.clearSelection();
  mImpl->Paint();
}

void QtTreePeer::SelectMiddle() {
  const int top = mImpl->mModel.rowCount();
  mImpl->mView.setCurrentIndex(mImpl->mModel.index(top / 2, 0));
  mImpl->Paint();
}

void QtTreePeer::PressDown() {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, Qt::Key_Down, Qt::NoModifier);
    QApplication::sendEvent(&mImpl->mView, &event);
  }
  mImpl->Paint();
}

void QtTreePeer::Paint() {
  mImpl->Paint();
}

void QtTreePeer::ScrollToEndAndBack(int inPages) {
  QScrollBar& bar = *mImpl->mView.verticalScrollBar();
  bar.setValue(bar.maximum());
  mImpl->Paint();
  for (int page = 0; page < inPages; ++page) {
    bar.triggerAction(QAbstractSlider::SliderPageStepSub);
    mImpl->Paint();
  }
}
