// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTreeView>

#include "controls/ControlPeer.h"
#include "lumui/controls/UI_MultiColumnTree.h"

namespace lumui::controls {

// Qt's tree with the control's rows. What the user does with it goes to the control.
class TreeWidget : public QTreeView {
 public:
  explicit TreeWidget(QWidget* inParent);

  void Attach(UI_MultiColumnTree* inTree);
  void Detach();  // before the control goes
  void ShowOptions(const UI_MultiColumnTree::Options& inOptions);
  // After all rows are new: the open ones, the selection, and the row at the top of the view.
  void RestoreState(UI_MultiColumnTree::RowID inTop);
  void LayOutSoon() { scheduleDelayedItemsLayout(); }
  void ShowSelection();
  UI_MultiColumnTree::RowID GetTopRow() const;
  QRect CellRect(UI_MultiColumnTree::RowID inRow, int inColumn) const;  // null if not in view
  void ScrollWidgetIntoView(const QWidget& inWidget);  // the widget is in the viewport
  int CellWidth(int inColumn, const QString& inText, int inDepth) const;

 protected:
  void initViewItemOption(QStyleOptionViewItem* outOption) const override;
  void mousePressEvent(QMouseEvent* inEvent) override;
  void keyPressEvent(QKeyEvent* inEvent) override;
  void scrollContentsBy(int inX, int inY) override;
  void updateGeometries() override;
  void selectionChanged(const QItemSelection& inOn, const QItemSelection& inOff) override;
  void rowsAboutToBeRemoved(const QModelIndex& inParent, int inFirst, int inLast) override;
  int sizeHintForColumn(int inColumn) const override;
  void changeEvent(QEvent* inEvent) override;

 private:
  class Delegate;
  void OpenRows(UI_MultiColumnTree::RowID inParent);
  void Opened(const QModelIndex& inIndex, bool inOpen);
  void SelectionMoved();

  UI_MultiColumnTree* mTree = nullptr;
  bool mShowingState = false;
};

class MultiColumnTreePeer : public ControlPeer {
 public:
  // Null before the control was placed in a window.
  TreeWidget* GetTree() const { return static_cast<TreeWidget*>(GetWidget()); }
  void Selected(UI_MultiColumnTree::RowID inRow);
  void Activated(UI_MultiColumnTree::RowID inRow);

 private:
  QWidget* DoMakeControl(QWidget* inParent) override;
  QWidget* DoGetContainer() override;
};

}  // namespace lumui::controls
