// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <memory>
#include <vector>

#include "lumcore/Strings.h"
#include "lumui/controls/UI_InteractiveControlView.h"

namespace lumui::controls {

class RowModel;

// A list or tree of rows with a text in each column, of which the user may select one. It is for
// lists that a window shows and forgets: rows are added once, hidden or removed, and never edited
// in place. A cell may hold a node, which stands over its text; nodes cost as any other, so they
// are for the few rows that are being edited.
//
// Rows are known by their numbers, which are never used again. Each operation may be called at any
// time, from a listener too; many changes in one go belong into an StUpdate. An unknown row or
// column is a contract where nothing else is said.
//
// A selection by the user, and one that is lost because its row is hidden or removed, is told as
// kChanged, the latter not to those who listen to the user alone.
class LUMUI_API UI_MultiColumnTree : public UI_InteractiveControlView {
 public:
  using RowID = int;
  using Texts = std::vector<lumcore::UTF16String>;
  static constexpr RowID kNoRow = 0;  // as a parent: the top level

  struct Column {
    lumcore::UTF16String title;
    float width = 100;  // in units
  };
  struct Options {
    bool showsChildRows = true;         // with a triangle before each row that has some
    bool indicatesFocus = true;         // by a frame around the selected row
    bool mayBeWithoutSelection = true;  // a click on empty space clears the selection then
    bool showsHeader = true;
  };
  // Keeps the control from following each single change; at the end of the outermost one it shows
  // all of them, with the open rows, the selection and the first row in view as they were as far as
  // they are there. The control outlives it.
  class LUMUI_API StUpdate {
   public:
    explicit StUpdate(UI_MultiColumnTree& ioTree);
    ~StUpdate();
    StUpdate(const StUpdate&) = delete;
    StUpdate& operator=(const StUpdate&) = delete;

   private:
    UI_MultiColumnTree& mTree;
  };

  UI_MultiColumnTree();
  ~UI_MultiColumnTree() override;

  void SetOptions(const Options& inOptions);
  const Options& GetOptions() const { return mOptions; }
  // In the place of those that are there. Without columns no row is seen.
  void SetColumns(const std::vector<Column>& inColumns);
  int GetColumnCount() const { return static_cast<int>(mColumns.size()); }
  // As the user has drawn it. The last column takes what the others leave.
  float GetColumnWidth(int inColumn) const;
  void SetColumnWidth(int inColumn, float inWidth);
  // Answers the width that a column takes when the user double-clicks its edge. Without it that is
  // the width of the rows in view.
  void SetBestFitFunction(const boost::function<float(int)>& inFunction);
  // What a text takes in a cell with its margins, in units; in a row below inDepth others for the
  // first column.
  float MeasureCell(int inColumn, const lumcore::UTF16String& inText, int inDepth = 0) const;

  // At the end of the parent's rows. Missing texts are empty.
  RowID AddRow(RowID inParent, const Texts& inTexts);
  // A row without others below it that has some for the user: when it opens, or at FillRow, the
  // function is called and adds them. It does nothing else to the tree.
  void SetRowUnfilled(RowID inRow);
  void SetFillFunction(const boost::function<void(RowID)>& inFunction);
  void FillRow(RowID inRow);
  // With those below it.
  void RemoveRow(RowID inRow);
  void RemoveAllRows();
  bool HasRow(RowID inRow) const;
  RowID GetParentRow(RowID inRow) const;               // kNoRow at the top level
  std::vector<RowID> GetChildRows(RowID inRow) const;  // hidden ones too
  lumcore::UTF16String GetText(RowID inRow, int inColumn) const;
  void SetText(RowID inRow, int inColumn, const lumcore::UTF16String& inText);
  // A hidden row takes those below it along.
  void SetRowHidden(RowID inRow, bool inHidden);
  bool IsRowHidden(RowID inRow) const;
  // Of a row without others below it, it counts once it has some.
  void SetRowOpen(RowID inRow, bool inOpen);
  bool IsRowOpen(RowID inRow) const;
  // Opens the rows above it first. A row that is hidden stays so.
  void ScrollIntoView(RowID inRow);
  // Of a node in a cell, or within one: for a row that may be higher than the view.
  void ScrollNodeIntoView(const ui::UI_Node& inNode);

  // kNoRow for none; a row that is not to be seen because of a hidden one cannot be selected.
  void SetSelectedRow(RowID inRow, bool inNotify = false);
  RowID GetSelectedRow() const { return mSelected; }
  // After a double click on a row, or Enter.
  void SetActivatedFunction(const boost::function<void(RowID)>& inFunction);

  // Puts a node into the cell, in the place of another; null takes it out. The cell gives it its
  // rectangle. The row is as high as inHeight needs, in units; 0 for that of a text.
  void SetCellNode(RowID inRow, int inColumn, const boost::intrusive_ptr<ui::UI_Node>& inNode,
                   float inHeight = 0);
  ui::UI_Node* GetCellNode(RowID inRow, int inColumn) const;  // null for none

 protected:
  void DoShowState() override;

 private:
  friend class MultiColumnTreePeer;
  friend class TreeWidget;
  struct Cell {
    RowID row;
    int column;
    boost::intrusive_ptr<ui::UI_Node> node;
    float height;
  };

  bool IsShown(RowID inRow) const;
  void BeginUpdate();
  void EndUpdate();
  void AfterRowsWent();
  void DropCellNodes();
  void PlaceCellNodes();
  void HandleSelected(RowID inRow);

  std::unique_ptr<RowModel> mModel;
  std::vector<Column> mColumns;
  std::vector<Cell> mCells;
  Options mOptions;
  boost::function<float(int)> mBestFit;
  boost::function<void(RowID)> mActivated;
  RowID mSelected = kNoRow;
  RowID mTopRow = kNoRow;  // in view when the update began
  int mUpdateDepth = 0;
  bool mPlacing = false;
};

}  // namespace lumui::controls
