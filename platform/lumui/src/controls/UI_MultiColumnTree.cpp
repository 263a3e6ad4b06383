// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/UI_MultiColumnTree.h"

#include <QHeaderView>
#include <algorithm>
#include <utility>

#include "controls/MultiColumnTreePeer.h"
#include "controls/RowModel.h"
#include "drawbot/QtConvert.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/utility/ScopedValue.h"

namespace lumui::controls {

namespace {

TreeWidget* WidgetOf(const UI_MultiColumnTree& inTree) {
  return static_cast<MultiColumnTreePeer*>(inTree.GetPeer())->GetTree();
}

}  // namespace

UI_MultiColumnTree::StUpdate::StUpdate(UI_MultiColumnTree& ioTree) : mTree(ioTree) {
  mTree.BeginUpdate();
}

UI_MultiColumnTree::StUpdate::~StUpdate() {
  mTree.EndUpdate();
}

UI_MultiColumnTree::UI_MultiColumnTree()
    : UI_InteractiveControlView(std::make_unique<MultiColumnTreePeer>()),
      mModel(std::make_unique<RowModel>(mColumns)) {
  UI_SetNodeID("UI_MultiColumnTree");
  UI_SetWantsKeyboardFocus(true);
}

UI_MultiColumnTree::~UI_MultiColumnTree() {
  if (TreeWidget* const widget = WidgetOf(*this)) widget->Detach();
}

void UI_MultiColumnTree::SetOptions(const Options& inOptions) {
  mOptions = inOptions;
  ShowState();
}

void UI_MultiColumnTree::SetColumns(const std::vector<Column>& inColumns) {
  const StUpdate update(*this);
  mColumns = inColumns;
  mModel->ColumnsChanged();
}

float UI_MultiColumnTree::GetColumnWidth(int inColumn) const {
  LUM_INPUT_CONTRACT(inColumn >= 0 && inColumn < GetColumnCount());
  return mColumns[static_cast<std::size_t>(inColumn)].width;
}

void UI_MultiColumnTree::SetColumnWidth(int inColumn, float inWidth) {
  LUM_INPUT_CONTRACT(inColumn >= 0 && inColumn < GetColumnCount() && inWidth >= 0);
  mColumns[static_cast<std::size_t>(inColumn)].width = inWidth;
  ShowState();
}

void UI_MultiColumnTree::SetBestFitFunction(const boost::function<float(int)>& inFunction) {
  mBestFit = inFunction;
}

float UI_MultiColumnTree::MeasureCell(int inColumn, const lumcore::UTF16String& inText,
                                      int inDepth) const {
  const TreeWidget* const widget = WidgetOf(*this);
  if (!widget) return 0;
  return static_cast<float>(widget->CellWidth(inColumn, drawbot::ToQt(inText), inDepth));
}

UI_MultiColumnTree::RowID UI_MultiColumnTree::AddRow(RowID inParent, const Texts& inTexts) {
  return mModel->Add(inParent, inTexts).id;
}

void UI_MultiColumnTree::SetRowUnfilled(RowID inRow) {
  RowModel::Row& row = mModel->Need(inRow);
  LUM_INPUT_CONTRACT(row.children.empty());
  row.unfilled = true;
}

void UI_MultiColumnTree::SetFillFunction(const boost::function<void(RowID)>& inFunction) {
  mModel->mFill = inFunction;
}

void UI_MultiColumnTree::FillRow(RowID inRow) {
  mModel->Fill(mModel->Need(inRow));
}

void UI_MultiColumnTree::RemoveRow(RowID inRow) {
  mModel->Remove(inRow);
  AfterRowsWent();
}

void UI_MultiColumnTree::RemoveAllRows() {
  mModel->RemoveAll();
  AfterRowsWent();
}

bool UI_MultiColumnTree::HasRow(RowID inRow) const {
  return inRow != kNoRow && mModel->Find(inRow);
}

UI_MultiColumnTree::RowID UI_MultiColumnTree::GetParentRow(RowID inRow) const {
  return mModel->Need(inRow).parent->id;
}

std::vector<UI_MultiColumnTree::RowID> UI_MultiColumnTree::GetChildRows(RowID inRow) const {
  const RowModel::Row* const row = mModel->Find(inRow);
  LUM_INPUT_CONTRACT(row != nullptr);
  std::vector<RowID> children;
  for (const RowModel::Row* child : row->children)
    children.push_back(child->id);
  return children;
}

lumcore::UTF16String UI_MultiColumnTree::GetText(RowID inRow, int inColumn) const {
  const Texts& texts = mModel->Need(inRow).texts;
  LUM_INPUT_CONTRACT(inColumn >= 0);
  const auto column = static_cast<std::size_t>(inColumn);
  return column < texts.size() ? texts[column] : lumcore::UTF16String();
}

void UI_MultiColumnTree::SetText(RowID inRow, int inColumn, const lumcore::UTF16String& inText) {
  LUM_INPUT_CONTRACT(inColumn >= 0 && inColumn < GetColumnCount());
  mModel->SetText(mModel->Need(inRow), inColumn, inText);
}

void UI_MultiColumnTree::SetRowHidden(RowID inRow, bool inHidden) {
  mModel->SetHidden(mModel->Need(inRow), inHidden);
  AfterRowsWent();
}

bool UI_MultiColumnTree::IsRowHidden(RowID inRow) const {
  return mModel->Need(inRow).hidden;
}

void UI_MultiColumnTree::SetRowOpen(RowID inRow, bool inOpen) {
  RowModel::Row& row = mModel->Need(inRow);
  row.open = inOpen;
  TreeWidget* const widget = WidgetOf(*this);
  const QModelIndex index = mModel->IndexOf(row, 0);
  if (widget && mUpdateDepth == 0 && index.isValid()) widget->setExpanded(index, inOpen);
}

bool UI_MultiColumnTree::IsRowOpen(RowID inRow) const {
  return mModel->Need(inRow).open;
}

void UI_MultiColumnTree::ScrollIntoView(RowID inRow) {
  for (RowID row = GetParentRow(inRow); row != kNoRow; row = GetParentRow(row))
    SetRowOpen(row, true);
  TreeWidget* const widget = WidgetOf(*this);
  const QModelIndex index = mModel->IndexOf(mModel->Need(inRow), 0);
  if (widget && mUpdateDepth == 0 && index.isValid()) widget->scrollTo(index);
}

void UI_MultiColumnTree::ScrollNodeIntoView(const ui::UI_Node& inNode) {
  TreeWidget* const tree = WidgetOf(*this);
  const QWidget* const widget = inNode.GetPeer()->GetWidget();
  if (!tree || mUpdateDepth > 0 || !widget || !tree->viewport()->isAncestorOf(widget)) return;
  tree->ScrollWidgetIntoView(*widget);
}

void UI_MultiColumnTree::SetSelectedRow(RowID inRow, bool inNotify) {
  LUM_INPUT_CONTRACT(inRow == kNoRow || IsShown(inRow));
  mSelected = inRow;
  TreeWidget* const widget = WidgetOf(*this);
  if (widget && mUpdateDepth == 0) widget->ShowSelection();
  if (inNotify) TellChanged(UI_InteractiveControlChangedMessage::kChanged, false);
}

void UI_MultiColumnTree::SetActivatedFunction(const boost::function<void(RowID)>& inFunction) {
  mActivated = inFunction;
}

bool UI_MultiColumnTree::IsShown(RowID inRow) const {
  const RowModel::Row* const row = inRow == kNoRow ? nullptr : mModel->Find(inRow);
  return row && RowModel::IsReached(*row);
}

void UI_MultiColumnTree::SetCellNode(RowID inRow, int inColumn,
                                     const boost::intrusive_ptr<ui::UI_Node>& inNode,
                                     float inHeight) {
  LUM_INPUT_CONTRACT(HasRow(inRow) && inColumn >= 0 && inColumn < GetColumnCount());
  const auto found = std::find_if(mCells.begin(), mCells.end(), [&](const Cell& inCell) {
    return inCell.row == inRow && inCell.column == inColumn;
  });
  const float heightBefore = found == mCells.end() ? 0 : found->height;
  boost::intrusive_ptr<ui::UI_Node> before;
  if (found != mCells.end()) {
    before = found->node;
    mCells.erase(found);
  }
  if (inNode) mCells.push_back({inRow, inColumn, inNode, inHeight});
  if (before != inNode) {
    if (before) UI_RemoveChild(before.get());
    if (inNode) {
      inNode->UI_Show(false);
      UI_AddChild(inNode);
    }
  }
  TreeWidget* const widget = WidgetOf(*this);
  if (!widget) return;
  widget->viewport()->update();
  // A node that finds out its height by its width says so while it is being placed.
  if (heightBefore != inHeight && mPlacing) return widget->LayOutSoon();
  if (heightBefore != inHeight) widget->doItemsLayout();
  PlaceCellNodes();
}

ui::UI_Node* UI_MultiColumnTree::GetCellNode(RowID inRow, int inColumn) const {
  for (const Cell& cell : mCells) {
    if (cell.row == inRow && cell.column == inColumn) return cell.node.get();
  }
  return nullptr;
}

void UI_MultiColumnTree::PlaceCellNodes() {
  const TreeWidget* const widget = WidgetOf(*this);
  if (!widget || mUpdateDepth > 0 || mPlacing) return;
  const lumcore::utility::StScopedValue<bool> placing(mPlacing, true);
  const std::vector<Cell> cells = mCells;
  for (const Cell& cell : cells) {
    const QRect rect = widget->CellRect(cell.row, cell.column);
    if (!rect.isEmpty()) cell.node->UI_SetLocalRectF(drawbot::FromQt(QRectF(rect)));
    if (cell.node->UI_IsVisible() == rect.isEmpty()) cell.node->UI_Show(!rect.isEmpty());
  }
}

void UI_MultiColumnTree::DropCellNodes() {
  for (std::size_t i = mCells.size(); i-- > 0;) {
    if (HasRow(mCells[i].row) && mCells[i].column < GetColumnCount()) continue;
    const boost::intrusive_ptr<ui::UI_Node> node = mCells[i].node;
    mCells.erase(mCells.begin() + static_cast<std::ptrdiff_t>(i));
    UI_RemoveChild(node.get());
  }
}

void UI_MultiColumnTree::BeginUpdate() {
  if (mUpdateDepth++ > 0) return;
  const TreeWidget* const widget = WidgetOf(*this);
  mTopRow = widget ? widget->GetTopRow() : kNoRow;
  mModel->BeginUpdate();
}

void UI_MultiColumnTree::EndUpdate() {
  if (--mUpdateDepth > 0) return;
  // Qt's tree has forgotten all that it does not find in the rows.
  const bool isNew = mModel->EndUpdate();
  TreeWidget* const widget = WidgetOf(*this);
  if (isNew) ShowState();
  if (widget) widget->RestoreState(mTopRow);
  AfterRowsWent();
}

void UI_MultiColumnTree::AfterRowsWent() {
  if (mUpdateDepth > 0) return;
  DropCellNodes();
  const bool lost = mSelected != kNoRow && !IsShown(mSelected);
  if (lost) mSelected = kNoRow;
  PlaceCellNodes();
  if (lost) TellChanged(UI_InteractiveControlChangedMessage::kChanged, false);
}

void UI_MultiColumnTree::HandleSelected(RowID inRow) {
  if (inRow == mSelected) return;
  mSelected = inRow;
  TellChanged(UI_InteractiveControlChangedMessage::kChanged, true);
}

void UI_MultiColumnTree::DoShowState() {
  TreeWidget* const widget = WidgetOf(*this);
  widget->setFocusPolicy(UI_WantsKeyboardFocus() ? Qt::StrongFocus : Qt::NoFocus);
  widget->ShowOptions(mOptions);
  // The last one has what is left.
  for (int column = 0; column + 1 < GetColumnCount(); ++column) {
    const int width = qRound(mColumns[static_cast<std::size_t>(column)].width);
    if (widget->columnWidth(column) != width) widget->setColumnWidth(column, width);
  }
}

}  // namespace lumui::controls
