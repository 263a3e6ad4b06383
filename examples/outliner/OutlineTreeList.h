// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "MoveRowsDeed.h"
#include "OutlineColumns.h"
#include "OutlineRow.h"
#include "vek/hierarchyview/TreeListControlBase.h"
#include "vek/selection/Messages.h"

namespace outliner {

class OutlineDocument;
class OutlineEntries;
class OutlineEntry;
class TextSearch;

// The rows of a document as a tree list. What is selected is the document's: other views of it show
// the same. Rows that are selected from elsewhere are never out of sight for long: what is above
// them opens, and a filter lets them in; and where a row is closed over them, it takes their place.
//
// The order by a column is one of the list. The outline keeps its own, and gets back into sight
// with UnsortRows.
//
// The document is borrowed until Detach; behind that the list is empty. Who owns it tells it of
// changes of the document and of its selection.
class OutlineTreeList final : public vek::hierarchyview::TreeListControlBase {
 public:
  using Entry = vek::hierarchyview::HierarchyEntryBase;

  // What is asked of who shows the list.
  struct Functions {
    std::function<bool()> hasKeyboard;
    // Begins the editing of a row's text; the caret goes to a place of it, beyond the end to that.
    std::function<void(OutlineRow&, std::size_t inCaret)> editText;
    // A typed character, and the key that deletes one: false where there is no row to type in.
    std::function<bool(unsigned short inUnit)> type;
    std::function<bool()> deleteCharacter;
    std::function<void(const Point& inLocalPoint)> openRowMenu;
    std::function<void()> rowsMoved;  // they stand elsewhere, or have other places to stand
  };

  OutlineTreeList(vek::trackview::TrackView* inTrackView, OutlineDocument& inDocument,
                  Functions inFunctions);
  ~OutlineTreeList() override;
  void Detach();

  OutlineDocument* GetDocument() const { return mDocument; }     // null behind Detach
  OutlineEntries* GetEntries() const { return mEntries.get(); }  // the same
  bool HasKeyboard() const { return mFunctions.hasKeyboard(); }
  lumui::drawbot::FontP GetFontOf(lumui::drawbot::FontStyle inStyle);
  // Whether a row shows that the keyboard is at it, and the colour of what stands before its text.
  bool IsLit(const Entry& inEntry) const;
  lumui::drawbot::ColorRGBA GetMarkColor(const Entry& inEntry) const;

  void DocumentChanged();
  void DocumentSelectionChanged();
  // Opens what is above the row, lets it through the filter, and scrolls as little as shows it.
  void ShowRow(const OutlineRow& inRow);
  std::size_t CountShownRows() const;  // closed away or not

  // One that looks for nothing lets all rows show.
  void SetFilter(const TextSearch& inFilter);
  // To the next or previous row of those that show; to the first or last one where none is
  // selected.
  void Step(bool inDown);
  void SelectAllShown();
  void CollapseAll();
  void UnsortRows();
  bool IsSorted() const;

  // The rectangle of a row's text, from its start to the end of its column, in data units; none
  // where it is closed away, and where there is no column for texts.
  std::optional<Rect> FindTextRect(OutlineRow::Id inRow);

  // Where a drop goes: the rows are in front of a row, behind it or below it; a drop below all rows
  // is one behind them. In an order by a column rows go only below others. Null without a document.
  struct DropPlace {
    MoveTarget target;
    OutlineEntry* entry = nullptr;  // at whose row it shows; null for the end of the list
    float indent = 0;               // of the line that shows it
  };
  std::optional<DropPlace> FindDropPlace(const Point& inDataPoint);
  void ShowDropPlace(const std::optional<DropPlace>& inPlace);

  // TreeListControlBase
  void SetSortColumn(unsigned short inColumn) override;
  void SortIsAscending(bool inAscending) override;
  void ResizeHierarchy() override;
  void CollapseNode(Entry* inEntry, bool inResize) override;
  void ExpandAll() override;
  int NumSelectedEntries() override;
  vek::selection::Manager* GetSelectionManager() const override;
  vek::selection::Manager* GetSelectionManager() override;
  void DoImageRect(const Rect& inDataRect, lumui::drawbot::Drawbot& inDrawbot,
                   boost::intrusive_ptr<lumui::ui::Theme> inTheme) const override;
  std::auto_ptr<vek::trackview::Tracker> DoAcquireTracker(
      const Point& inDataPoint, bool inHover,
      vek::trackview::TrackerDragAndDropInterface* inDragAndDrop) override;
  bool DoDoubleClick(vek::trackview::Modifiers inModifiers, const Point& inDataPoint) override;
  bool DoContextMenu(const Point& inLocalPoint, lumui::ui::UI_Node& inNode) override;
  bool DoKeyEvent(const lumui::ui::KeyboardEvent& inEvent) override;
  bool DoWantsDragDropEvents() const override;
  void DoViewActivation() override;

 protected:
  void DoBuildHierarchy() override;
  std::auto_ptr<vek::hierarchyview::TreeRowGeometryFactory> CreateRowGeometryFactory() override;
  void DoDeselectAll() override;
  void DoSelectEntry(Entry* inEntry, bool inExtend) override;
  void DoToggleEntrySelectionState(EntryList& ioEntries) override;
  std::auto_ptr<vek::trackview::Tracker> DoServeDropTracker(
      const Point& inDataPoint, bool inHover,
      vek::trackview::TrackerDragAndDropInterface* inDragAndDrop) override;
  void DoStartDragOut(const Point& inDataPoint) override;
  void DoDrawItemDropFeedback(
      lumui::drawbot::Drawbot& inDrawbot, boost::intrusive_ptr<lumui::ui::Theme> inTheme,
      std::auto_ptr<vek::hierarchyview::TreeRowGeometry> const& inRow) const override;

 private:
  OutlineEntry* FindEntryAt(const Point& inDataPoint);
  void RowsChanged();
  bool LetSelectionIn();
  void FollowSelection();
  bool OpenAbove(const Entry& inEntry);
  void TakePlaceOfSelection(const std::vector<Entry*>& inClosed);
  std::size_t FindCaret(const OutlineRow& inRow, float inX);
  void InvalidateAll();

  OutlineDocument* mDocument;
  Functions mFunctions;
  std::unique_ptr<OutlineEntries> mEntries;
  std::optional<DropPlace> mDropPlace;
  bool mIsResizing = false;
};

}  // namespace outliner
