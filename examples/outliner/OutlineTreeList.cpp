// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineTreeList.h"

#include <algorithm>
#include <utility>

#include "OutlineDocument.h"
#include "OutlineEntries.h"
#include "OutlineRowLook.h"
#include "Palette.h"
#include "Texts.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "vek/hierarchyview/MultiColumnHeaderView.h"
#include "vek/hierarchyview/TreeListGeometry.h"
#include "vek/trackview/PlatformView.h"
#include "vek/trackview/TrackView.h"

namespace outliner {

using vek::hierarchyview::kNodeCollapsed;
using vek::hierarchyview::TreeRowGeometry;
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
  SetTwistyColorFunction([this](const Entry* inEntry) { return GetMarkColor(*inEntry); });
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

bool OutlineTreeList::IsLit(const Entry& inEntry) const {
  return inEntry.Selected(GetSelectionManager()) && HasKeyboard();
}

lumui::drawbot::ColorRGBA OutlineTreeList::GetMarkColor(const Entry& inEntry) const {
  return IsLit(inEntry) ? palette::SelectionInk() : palette::RowMark();
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

bool OutlineTreeList::LetSelectionIn() {
  return !mEntries->GetFilter().IsEmpty() && mEntries->LetIn(mDocument->GetSelectedRows());
}

void OutlineTreeList::DocumentChanged() {
  if (!mDocument) return;
  const bool hasNewShape = mEntries->Update(true);
  const bool letsIn = LetSelectionIn();
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
  if (LetSelectionIn() || hasNewShape) RowsChanged();
  FollowSelection();
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
void OutlineTreeList::SetFilter(const TextSearch& inFilter) {
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

void OutlineTreeList::ExpandAll() {
  TreeListControlBase::ExpandAll();
  if (!mDocument) return;
  if (const OutlineRow* const row = mDocument->GetOnlySelectedRow()) ShowRow(*row);
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

OutlineEntry* OutlineTreeList::FindEntryAt(const Point& inDataPoint) {
  if (!mDocument || !GetGeometry() || inDataPoint.y < 0) return nullptr;
  auto* const entry = static_cast<OutlineEntry*>(*GetGeometry()->FindEntry(inDataPoint));
  return entry && entry->GetParent() ? entry : nullptr;
}

void OutlineTreeList::DoImageRect(const Rect& inDataRect, lumui::drawbot::Drawbot& inDrawbot,
                                  boost::intrusive_ptr<lumui::ui::Theme> inTheme) const {
  TreeListControlBase::DoImageRect(inDataRect, inDrawbot, inTheme);
  if (!mDocument || !GetRootEntry()->GetChildren().empty()) return;
  const auto hint = Localized(mEntries->GetFilter().IsEmpty()
                                  ? "$$$/outliner/View/Empty=Type the first row of your outline"
                                  : "$$$/outliner/View/NothingFound=No row has this text");
  const auto font = inDrawbot.GetSupplier()->NewFont(nullptr, 14);
  const Rect area = GetTrackView()->LocalArea();
  inDrawbot.DrawStringInRect(hint, font, palette::FaintInk(),
                             Rect(area.x, area.y + kHintTop, area.width, 2 * kRowHeight),
                             lumui::drawbot::TextAlignment::kCenter);
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

}  // namespace outliner
