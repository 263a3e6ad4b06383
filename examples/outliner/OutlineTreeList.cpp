// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineTreeList.h"

#include <algorithm>
#include <list>
#include <unordered_set>
#include <utility>

#include "MapTools.h"
#include "OutlineDocument.h"
#include "OutlineDrag.h"
#include "OutlineEntries.h"
#include "OutlineListTrackers.h"
#include "OutlineRowLook.h"
#include "Palette.h"
#include "lumcore/config/Localizer.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/KeyboardEvent.h"
#include "vek/hierarchyview/MultiColumnHeaderView.h"
#include "vek/hierarchyview/TreeListGeometry.h"
#include "vek/selection/ActiveManager.h"
#include "vek/trackview/PlatformView.h"
#include "vek/trackview/TrackView.h"

namespace outliner {

using lumui::ui::KeyboardCode;
using lumui::ui::KeyboardEvent;
using vek::hierarchyview::kNodeCollapsed;
using vek::hierarchyview::kNodeExpanded;
using vek::hierarchyview::TreeRowGeometry;
using vek::selection::Node;
using Point = vek::trackview::Point;
using Rect = vek::trackview::Rect;

namespace {

constexpr unsigned short kNoColumn = vek::hierarchyview::MultiColumnHeaderView::kNoColumn;
constexpr float kRowHeight = vek::hierarchyview::TreeListGeometry::kRowHeight;
constexpr float kHintTop = 8;

}  // namespace

OutlineTreeList::OutlineTreeList(vek::trackview::TrackView* inTrackView,
                                 OutlineDocument& inDocument, Functions inFunctions)
    : TreeListControlBase(inTrackView, true, 0, false, true),
      mDocument(&inDocument),
      mFunctions(std::move(inFunctions)),
      mEntries(std::make_unique<OutlineEntries>(inDocument.GetTree())) {
  SetRootEntry(mEntries->GetRoot());
  SetDefaultCompareFxn(mEntries->GetOrder());
  SetWantsLine(false);
  SetDrawShadowBox(false);
  SetDragFeedbackType(vek::hierarchyview::kDragFeedbackInsertion);
  TreeListControlBase::SetSortColumn(kNoColumn);
}

OutlineTreeList::~OutlineTreeList() {
  Detach();
}

// Entries ask for their rows, so none of them may be left behind.
void OutlineTreeList::Detach() {
  mDropPlace.reset();
  SetDragFeedback(nullptr, false);
  ResetGeometry();
  mEntries.reset();
  mDocument = nullptr;
}

void OutlineTreeList::DoBuildHierarchy() {}

std::auto_ptr<vek::hierarchyview::TreeRowGeometryFactory>
OutlineTreeList::CreateRowGeometryFactory() {
  return std::auto_ptr<vek::hierarchyview::TreeRowGeometryFactory>(new OutlineRowLooks(*this));
}

lumui::drawbot::FontP OutlineTreeList::GetFontOf(lumui::drawbot::FontStyle inStyle) {
  return lumui::drawbot::GetDefaultSupplier()->NewFont(nullptr, GetFont()->GetSize(), inStyle);
}

void OutlineTreeList::InvalidateAll() {
  GetTrackView()->GetPlatformView().InvalidateDataRect(GetTrackView()->DataArea());
}

void OutlineTreeList::ResizeHierarchy() {
  TreeListControlBase::ResizeHierarchy();
  InvalidateAll();
  if (mDocument) mFunctions.rowsMoved();
}

// The entries of rows that have gone are out of the tree by now.
void OutlineTreeList::RowsChanged() {
  Entry* const focus = GetFocusItem();
  const auto isHere = [this](const Entry* inEntry) {
    return !inEntry ||
           mEntries->Find(static_cast<const OutlineEntry*>(inEntry)->GetRowId()) == inEntry;
  };
  if (!isHere(focus)) SetFocusItem(nullptr, false);
  if (!isHere(GetDragFeedbackEntry())) ShowDropPlace(std::nullopt);
  ResizeHierarchy();
}

void OutlineTreeList::DocumentChanged() {
  if (!mDocument) return;
  const bool hasNewShape = mEntries->Update(true);
  const bool letsIn = mEntries->LetIn(mDocument->GetSelectedRows());
  if (hasNewShape || letsIn) {
    RowsChanged();
  } else {
    InvalidateAll();
    AnnounceRow(lumui::ui::AccessibleChange::kItems, nullptr);
    mFunctions.rowsMoved();
  }
  FollowSelection();
}

void OutlineTreeList::DocumentSelectionChanged() {
  if (!mDocument) return;
  InvalidateAll();
  AnnounceSelection();
  // Deeds restore the selection before the document tells that it has changed.
  const bool hasNewShape = mEntries->Update(false);
  if (mEntries->LetIn(mDocument->GetSelectedRows()) || hasNewShape) RowsChanged();
  FollowSelection();
}

// The keyboard goes on from the one selected row.
void OutlineTreeList::FollowSelection() {
  const auto selected = mDocument->GetSelection().SelectedSelectables();
  Entry* const focus = GetFocusItem();
  if (selected.size() == 1) {
    auto* const row = static_cast<OutlineRow*>(selected.front());
    Entry* const entry = mEntries->Find(row->GetId());
    if (entry != focus) SetFocusItem(entry, true);
  } else if (focus && !focus->Selected(GetSelectionManager())) {
    SetFocusItem(nullptr, true);
  }
}

bool OutlineTreeList::OpenAbove(const Entry& inEntry) {
  bool any = false;
  for (Entry* above = inEntry.GetParent(); above; above = above->GetParent()) {
    if (above->GetNodeState() != kNodeCollapsed) continue;
    ExpandNode(above, false);
    any = true;
  }
  return any;
}

void OutlineTreeList::ShowRow(const OutlineRow& inRow) {
  if (!mDocument) return;
  if (mEntries->Update(false)) RowsChanged();
  OutlineEntry* const entry = mEntries->Find(inRow.GetId());
  if (!entry) return;
  if (OpenAbove(*entry)) ResizeHierarchy();
  RevealIfNotVisible(entry);
}

std::size_t OutlineTreeList::CountShownRows() const {
  if (!mDocument) return 0;
  const auto& lines = mDocument->GetTree().GetLines();
  return static_cast<std::size_t>(std::count_if(
      lines.begin(), lines.end(),
      [this](const OutlineRow* inRow) { return mEntries->Find(inRow->GetId()) != nullptr; }));
}

// What goes out of sight goes out of the selection: commands work only on what is to be seen.
void OutlineTreeList::SetFilter(const OutlineFilter& inFilter) {
  if (!mDocument) return;
  std::vector<OutlineColumns::Attribute> columns;
  for (unsigned short column = 0; column < GetNumberOfColumns(); ++column)
    columns.push_back(GetColumnAttr(column));
  mEntries->SetFilter(inFilter, columns);
  RowsChanged();
  std::vector<OutlineRow*> kept = mDocument->GetSelectedRows();
  const std::size_t before = kept.size();
  kept.erase(
      std::remove_if(kept.begin(), kept.end(),
                     [this](const OutlineRow* inRow) { return !mEntries->Find(inRow->GetId()); }),
      kept.end());
  if (kept.size() != before) mDocument->SelectRows(kept);
  FollowSelection();
  if (!kept.empty()) ShowRow(*kept.front());
}

void OutlineTreeList::Step(bool inDown) {
  if (!mDocument) return;
  mDocument->CommitTyping();
  const int count = NumSelectedEntries();
  Entry* const focus = GetFocusItem();
  const bool hasStart = count == 1 || (focus && focus->Selected(GetSelectionManager()));
  if (hasStart) return inDown ? SelectNext() : SelectPrevious();
  // From the end of what is selected, or else from that of the list.
  auto& geometry = *GetGeometry();
  Entry* target = nullptr;
  bool takesNext = inDown;
  for (auto row = geometry.begin(); row != geometry.end(); ++row) {
    if (!(*row)->GetParent()) continue;
    const bool isSelected = (*row)->Selected(GetSelectionManager());
    if (inDown) {
      if (isSelected || takesNext) target = *row;
      takesNext = isSelected;
      if (target && count == 0) break;
    } else {
      if (!isSelected || !target) target = *row;
      if (isSelected) break;
    }
  }
  // The document's selection is followed by showing it.
  if (target) DoSelectEntry(target, false);
}

void OutlineTreeList::SelectAllShown() {
  if (!mDocument) return;
  if (mEntries->GetFilter().IsEmpty()) return mDocument->GetSelection().SelectAll();
  std::vector<OutlineRow*> rows;
  for (OutlineRow* const row : mDocument->GetTree().GetLines()) {
    if (mEntries->Find(row->GetId())) rows.push_back(row);
  }
  mDocument->SelectRows(rows);
}

void OutlineTreeList::ExpandAll() {
  TreeListControlBase::ExpandAll();
  if (!mDocument) return;
  const auto selected = mDocument->GetSelectedRows();
  if (selected.size() == 1) ShowRow(*selected.front());
}

void OutlineTreeList::CollapseAll() {
  if (!mDocument) return;
  std::vector<Entry*> closed;
  for (const OutlineRow* const row : mDocument->GetTree().GetLines()) {
    Entry* const entry = mEntries->Find(row->GetId());
    if (!entry || !CanCollapseNode(entry)) continue;
    TreeListControlBase::CollapseNode(entry, false);
    closed.push_back(entry);
  }
  ResizeHierarchy();
  TakePlaceOfSelection(closed);
}

void OutlineTreeList::CollapseNode(Entry* inEntry, bool inResize) {
  TreeListControlBase::CollapseNode(inEntry, inResize);
  if (mDocument) TakePlaceOfSelection({inEntry});
}

// The topmost of the closed rows stands for what is selected below it.
void OutlineTreeList::TakePlaceOfSelection(const std::vector<Entry*>& inClosed) {
  const std::unordered_set<const Entry*> closed(inClosed.begin(), inClosed.end());
  std::vector<OutlineRow*> rows;
  bool isOther = false;
  for (OutlineRow* const selected : mDocument->GetSelectedRows()) {
    OutlineRow* row = selected;
    const Entry* const entry = mEntries->Find(selected->GetId());
    for (const Entry* above = entry ? entry->GetParent() : nullptr; above;
         above = above->GetParent()) {
      if (closed.count(above) != 0) row = static_cast<const OutlineEntry*>(above)->FindRow();
    }
    isOther = isOther || row != selected;
    if (std::find(rows.rbegin(), rows.rend(), row) == rows.rend()) rows.push_back(row);
  }
  if (isOther) mDocument->SelectRows(rows);
}

bool OutlineTreeList::IsSorted() const {
  return GetSortColumn() < GetNumberOfColumns();
}

void OutlineTreeList::SetSortColumn(unsigned short inColumn) {
  if (mDocument && inColumn < GetNumberOfColumns()) mEntries->PrepareSort(GetColumnAttr(inColumn));
  TreeListControlBase::SetSortColumn(inColumn);
  if (mDocument) mFunctions.rowsMoved();
}

void OutlineTreeList::SortIsAscending(bool inAscending) {
  const bool wasSorted = IsSorted();
  TreeListControlBase::SortIsAscending(inAscending);
  if (mDocument && wasSorted) mFunctions.rowsMoved();
}

void OutlineTreeList::UnsortRows() {
  if (!mDocument) return;
  mEntries->Unsort();
  TreeListControlBase::SetSortColumn(kNoColumn);
  TreeListControlBase::SortIsAscending(true);
  mFunctions.rowsMoved();
}

int OutlineTreeList::NumSelectedEntries() {
  return mDocument ? static_cast<int>(mDocument->GetSelection().SelectedSelectables().size()) : 0;
}

vek::selection::Manager* OutlineTreeList::GetSelectionManager() const {
  return mDocument ? &mDocument->GetSelection() : nullptr;
}

vek::selection::Manager* OutlineTreeList::GetSelectionManager() {
  return std::as_const(*this).GetSelectionManager();
}

void OutlineTreeList::DoViewActivation() {
  if (mDocument) vek::selection::SetActiveManager(GetSelectionManager());
}

void OutlineTreeList::DoDeselectAll() {
  if (mDocument) mDocument->SelectRows({});
}

void OutlineTreeList::DoSelectEntry(Entry* inEntry, bool inExtend) {
  const OutlineRow::Id id = static_cast<OutlineEntry*>(inEntry)->GetRowId();
  // Before the selection changes: what is committed selects its own row. It may end the entry.
  mDocument->CommitTyping();
  OutlineRow* const row = mDocument->GetTree().FindRow(id);
  if (!row || !row->GetParent()) return;
  if (inExtend) {
    mDocument->GetSelection().ToggleSelectables({row}, vek::selection::eSendMessages);
  } else {
    mDocument->SelectRows({row});
  }
  if (!mDocument || !mDocument->IsSelected(*row)) return;
  if (Entry* const entry = mEntries->Find(id)) SetFocusItem(entry, true);
}

void OutlineTreeList::DoToggleEntrySelectionState(EntryList& ioEntries) {
  std::list<Node*> nodes;
  for (Entry* const entry : ioEntries) {
    if (Node* const node = entry->GetDataAsSelNode()) nodes.push_back(node);
  }
  mDocument->GetSelection().ToggleSelectables(nodes, vek::selection::eSendMessages);
}

OutlineEntry* OutlineTreeList::FindEntryAt(const Point& inDataPoint) {
  if (!mDocument || !GetGeometry() || inDataPoint.y < 0) return nullptr;
  auto* const entry = static_cast<OutlineEntry*>(*GetGeometry()->FindEntry(inDataPoint));
  return entry && entry->GetParent() ? entry : nullptr;
}

void OutlineTreeList::DoImageRect(const Rect& inDataRect, lumui::drawbot::Drawbot& inDrawbot,
                                  boost::intrusive_ptr<lumui::ui::Theme> inTheme) const {
  TreeListControlBase::DoImageRect(inDataRect, inDrawbot, inTheme);
  if (!mDocument || !GetRootEntry()->GetChildren().empty()) return;
  const auto hint = lumcore::config::Localizer::Get()->GetLocalizedString(
      mEntries->GetFilter().IsEmpty() ? "$$$/outliner/View/Empty=Type the first row of your outline"
                                      : "$$$/outliner/View/NothingFound=No row has this text");
  const auto font = inDrawbot.GetSupplier()->NewFont(nullptr, 14);
  const Rect area = GetTrackView()->LocalArea();
  inDrawbot.DrawStringInRect(hint, font, palette::FaintInk(),
                             Rect(area.x, area.y + kHintTop, area.width, 2 * kRowHeight),
                             lumui::drawbot::TextAlignment::kCenter);
}

std::auto_ptr<vek::trackview::Tracker> OutlineTreeList::DoAcquireTracker(
    const Point& inDataPoint, bool inHover,
    vek::trackview::TrackerDragAndDropInterface* inDragAndDrop) {
  using TrackerP = std::auto_ptr<vek::trackview::Tracker>;
  if (!mDocument) return TrackerP();
  if (inDragAndDrop) return DoServeDropTracker(inDataPoint, inHover, inDragAndDrop);
  if (inHover) return TrackerP(new OutlinePressTracker(*this));
  if (IsLeftPress(*GetTrackView())) return TrackerP(new OutlinePressTracker(*this));
  // A row that is selected already stays so with all others: the menu is for them together.
  OutlineEntry* const entry = FindEntryAt(inDataPoint);
  if (entry && !entry->Selected(GetSelectionManager())) DoSelectEntry(entry, false);
  return TrackerP();
}

std::auto_ptr<vek::trackview::Tracker> OutlineTreeList::DoServeDropTracker(
    const Point&, bool, vek::trackview::TrackerDragAndDropInterface* inDragAndDrop) {
  return std::auto_ptr<vek::trackview::Tracker>(new OutlineDropTracker(*this, *inDragAndDrop));
}

bool OutlineTreeList::DoWantsDragDropEvents() const {
  return mDocument != nullptr;
}

void OutlineTreeList::DoStartDragOut(const Point&) {
  if (mDocument && NumSelectedEntries() > 0) {
    SendSelectedRows(*mDocument, GetTrackView()->GetPlatformView());
  }
}

bool OutlineTreeList::DoContextMenu(const Point& inLocalPoint, lumui::ui::UI_Node&) {
  if (!mDocument) return false;
  mDocument->CommitTyping();
  mFunctions.openRowMenu(inLocalPoint);
  return true;
}

bool OutlineTreeList::DoDoubleClick(vek::trackview::Modifiers inModifiers,
                                    const Point& inDataPoint) {
  OutlineEntry* const entry = FindEntryAt(inDataPoint);
  if (!entry || !inModifiers.IsEmpty()) return false;
  const auto row = GetGeometry()->FindEntry(inDataPoint);
  // On the twisty both clicks count as clicks.
  if (GetEntryGeometry(row)->GetNodeExpansionArea().Contains(inDataPoint)) return false;
  OutlineRow& edited = *entry->FindRow();
  mFunctions.editText(edited, FindCaret(edited, inDataPoint.x));
  return true;
}

// The place in the text that is nearest to the point; widths grow with the length.
std::size_t OutlineTreeList::FindCaret(const OutlineRow& inRow, float inX) {
  const auto rect = FindTextRect(inRow.GetId());
  const lumcore::UTF16String& text = inRow.GetText();
  if (!rect) return text.size();
  const auto widthTo = [&](std::size_t inEnd) {
    return GetFont()->MeasureWidthOnce(text.substr(0, inEnd));
  };
  const float wanted = inX - rect->x;
  std::size_t low = 0;
  std::size_t high = std::min(text.size(), OutlineEntry::kMostShown);
  while (low < high) {
    const std::size_t middle = (low + high) / 2;
    if (widthTo(middle) < wanted) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return low > 0 && wanted - widthTo(low - 1) < widthTo(low) - wanted ? low - 1 : low;
}

std::optional<Rect> OutlineTreeList::FindTextRect(OutlineRow::Id inRow) {
  OutlineEntry* const entry = mEntries ? mEntries->Find(inRow) : nullptr;
  unsigned short column = 0;
  if (!entry || !GetGeometry() || !HasColumnForAttr(OutlineColumns::kText, column)) {
    return std::nullopt;
  }
  const Rect highlight = GetHighlightRect(entry);
  for (const Entry* above = entry->GetParent(); above; above = above->GetParent()) {
    if (const_cast<Entry*>(above)->GetNodeState() == kNodeCollapsed) return std::nullopt;
  }
  const auto row = GetGeometry()->FindEntry(Point(0, highlight.y + kRowHeight / 2));
  const std::auto_ptr<TreeRowGeometry> look = GetEntryGeometry(row);
  return static_cast<const OutlineRowLook*>(look.get())->GetCellRect(column);
}

bool OutlineTreeList::DoKeyEvent(const KeyboardEvent& inEvent) {
  if (!mDocument) return false;
  if (inEvent.GetAction() == KeyboardEvent::kActionCharacter) {
    // Ctrl and Alt together are how some keyboards type a third level of characters.
    const bool isCtrl = inEvent.GetModKey().Has(lumui::ui::kModCommand);
    const bool isAlt = inEvent.GetModKey().Has(lumui::ui::kModAlt);
    return isCtrl == isAlt && mFunctions.type(inEvent.GetCharacter());
  }
  // Chords are commands'.
  if (!inEvent.IsActionKeyDown() ||
      inEvent.GetModKey().HasAny(lumui::ui::kModCommand | lumui::ui::kModAlt)) {
    return false;
  }
  bool isTaken = true;
  switch (inEvent.GetCode().GetControlCode(false)) {
    case KeyboardCode::kDownArrow:
    case KeyboardCode::kUpArrow:
      return false;  // commands as well, which come back by Step
    case KeyboardCode::kBackspace:
      isTaken = mFunctions.deleteCharacter();
      break;
    default:
      isTaken = TreeListControlBase::DoKeyEvent(inEvent);
      break;
  }
  // The key has done its work: it types nothing.
  if (isTaken) lumui::ui::FlushPostActionKeyEvents(inEvent);
  return isTaken;
}

}  // namespace outliner
