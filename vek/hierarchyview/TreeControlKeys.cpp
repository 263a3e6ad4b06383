// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// The part of the tree control that the keyboard drives.

#include <algorithm>
#include <cstdint>

#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/KeyboardEvent.h"
#include "vek/hierarchyview/EntryJunction.h"
#include "vek/hierarchyview/HoldEntry.h"
#include "vek/hierarchyview/RowIndex.h"
#include "vek/hierarchyview/RowWalk.h"
#include "vek/hierarchyview/TreeControlBase.h"
#include "vek/selection/Manager.h"
#include "vek/trackview/PlatformView.h"

namespace vek::hierarchyview {

using EntryP = boost::intrusive_ptr<HierarchyEntryBase>;
using lumcore::UTF16String;
using lumcore::utility::FoldCase;

namespace {

constexpr float kTypeAheadSeconds = 0.95f;
constexpr float kStepMargin = 2.0f;  // units

// As lumui::ui::KeyboardCode::GetOSCode numbers them; those below 0 are extended keys.
enum OSCode : int {
  kBackspace = 8,
  kReturn = 13,
  kPadPlus = 107,
  kPadMinus = 109,
  kPadReturn = -13,
  kEnd = -35,
  kHome = -36,
  kLeft = -37,
  kUp = -38,
  kRight = -39,
  kDown = -40,
  kDelete = -46,
};

trackview::Rect Grown(const trackview::Rect& inRect) {
  return trackview::Rect(inRect.x - kStepMargin, inRect.y - kStepMargin,
                         inRect.width + 2 * kStepMargin, inRect.height + 2 * kStepMargin);
}

// Sets back by what the top is off a whole number of its heights, in whole units.
float AlignedTop(const trackview::Rect& inRect) {
  const auto height = static_cast<std::int64_t>(inRect.height);
  if (height == 0) return inRect.y;
  const std::int64_t excess = static_cast<std::int64_t>(inRect.y) % height;
  return excess > 0 ? inRect.y - static_cast<float>(excess) : inRect.y;
}

// A surrogate pair is one character.
void DropLastCharacter(UTF16String& ioText) {
  const auto isLow = [](unsigned short inUnit) { return (inUnit & 0xFC00) == 0xDC00; };
  const auto isHigh = [](unsigned short inUnit) { return (inUnit & 0xFC00) == 0xD800; };
  const std::size_t length = ioText.size();
  const bool isPair = length > 1 && isLow(ioText[length - 1]) && isHigh(ioText[length - 2]);
  ioText.resize(length - (isPair ? 2 : 1));
}

// Whether texts begin so, without regard to case: as many units as were typed are folded and have
// to be the same.
class TypedPrefix {
 public:
  explicit TypedPrefix(UTF16String const& inText)
      : mLength(inText.size()), mFolded(FoldCase(inText)) {}

  bool Begins(UTF16String const& inCell) const {
    if (inCell.empty() || inCell.size() < mLength || mFolded.empty()) return false;
    if (DiffersAtOnce(inCell.front())) return false;
    return FoldCase(inCell.substr(0, mLength)) == mFolded;
  }

 private:
  // Spares most rows the folding. ASCII folds to ASCII, whatever stands behind it.
  bool DiffersAtOnce(unsigned short inFirst) const {
    if (inFirst >= 0x80 || mFolded.front() >= 0x80) return false;
    const bool isUpper = inFirst >= 'A' && inFirst <= 'Z';
    return (isUpper ? inFirst + ('a' - 'A') : inFirst) != mFolded.front();
  }

  std::size_t mLength;
  UTF16String mFolded;
};

}  // namespace

// Up or Down on its way. Everything that is selected is toggled in one go with the row that is
// stepped to: so a step off the last row, which is in the list twice, leaves it selected.
struct TreeControlBase::Step {
  EntryList toggle;
  Rect left;                           // around the row that the step starts from
  HierarchyGeometry::iterator target;  // on null: there is none
  bool found = false;                  // the focus goes to the target
};

struct TreeControlBase::SelectedRow {
  int number;  // from 0 at the top
  HierarchyGeometry::iterator row;
  EntryP held;
};

struct TreeControlBase::SelectedRows {
  std::vector<SelectedRow> rows;
  int passed = 0;  // all rows, unless the search stopped at a selected one
};

TreeControlBase::Rect TreeControlBase::NoteSelectedRow(HierarchyGeometry::iterator const& inRow,
                                                       Step& ioStep) {
  const Rect area = GetEntryGeometry(inRow)->GetRowRect();
  ioStep.toggle.push_back(*inRow);
  Invalidate(area);
  return Grown(area);
}

// Those that show, from the top; of several only the first where no other is wanted. Where the
// junction and the index answer for each of the few that are selected, nothing else is asked.
TreeControlBase::SelectedRows TreeControlBase::FindSelectedRows(bool inOnlyFirst) {
  SelectedRows selected;
  if (!LookUpSelectedRows(selected)) {
    for (RowWalk row(*mGeometry); !row.AtEnd(); row.Next(), ++selected.passed) {
      if (!IsSelected(row.GetEntry())) continue;
      selected.rows.push_back(
          {selected.passed, row.GetIterator(), EntryP(HoldEntry(row.GetEntry()))});
      if (inOnlyFirst) break;
    }
  }
  if (inOnlyFirst && selected.rows.size() > 1) selected.rows.resize(1);
  return selected;
}

bool TreeControlBase::LookUpSelectedRows(SelectedRows& outSelected) {
  constexpr std::size_t kFew = 1024;
  selection::Manager* const manager = GetSelectionManager();
  auto* const junction = dynamic_cast<EntryJunction*>(manager->GetJunction());
  if (!junction) return false;
  const std::list<selection::Node*> nodes = manager->SelectedSelectables();
  const std::optional<RowIndex> index = RowIndex::Of(*mGeometry);
  if (!index || nodes.size() > kFew) return false;
  std::vector<SelectedRow> rows;
  for (selection::Node const* const node : nodes) {
    HierarchyEntryBase* const entry = junction->FindEntry(node);
    if (!entry || !IsSelected(entry)) return false;
    const std::optional<RowIndex::Row> row = index->Find(entry);
    if (row)
      rows.push_back({static_cast<int>(*row), index->GetIterator(*row), EntryP(HoldEntry(entry))});
  }
  std::sort(rows.begin(), rows.end(),
            [](SelectedRow const& inA, SelectedRow const& inB) { return inA.number < inB.number; });
  outSelected.rows.swap(rows);
  outSelected.passed = static_cast<int>(index->GetCount());
  return true;
}

// Null where it is none or one of several, or does not show.
HierarchyEntryBase* TreeControlBase::FindOnlySelectedRow() {
  if (NumSelectedEntries() != 1) return nullptr;
  const SelectedRows selected = FindSelectedRows(true);
  return selected.rows.empty() ? nullptr : *selected.rows.front().row;
}

void TreeControlBase::SelectNext() {
  if (!HasRows()) return;
  Step step;
  const int count = NumSelectedEntries();
  for (SelectedRow const& selected : FindSelectedRows(count == 1).rows) {
    const Rect around = NoteSelectedRow(selected.row, step);
    if (count != 1 && *selected.row != mFocusItem) continue;
    step.target = selected.row;
    step.left = around;
    HierarchyGeometry::iterator next = selected.row;
    if (++next == mGeometry->end()) continue;
    step.target = next;
    step.found = true;
  }
  if (*step.target) TakeStep(step, false);
}

// Rows are counted from the top, since a geometry's way back is not the reverse of its way down.
void TreeControlBase::SelectPrevious() {
  if (!HasRows()) return;
  Step step;
  const int count = NumSelectedEntries();
  const SelectedRows selected = FindSelectedRows(count == 1);
  int position = selected.passed;
  for (auto const& [number, row, held] : selected.rows) {
    const Rect around = NoteSelectedRow(row, step);
    if (count != 1 && *row != mFocusItem) continue;
    step.left = around;
    if (!step.found) position = number;
    step.found = true;
  }
  position = std::max(position - 1, 0);
  if (position == 0 && mHideRoot) position = 1;
  step.target = GetRowAt(position);
  if (*step.target) TakeStep(step, true);
}

void TreeControlBase::TakeStep(Step& ioStep, bool inAlignToRows) {
  HierarchyEntryBase* const target = *ioStep.target;
  const auto held = HoldEntry(target);
  ioStep.toggle.push_back(target);
  Rect area = GetEntryGeometry(ioStep.target)->GetRowRect();
  ToggleEntrySelectionState(ioStep.toggle);
  if (ioStep.found) {
    SetFocusItem(target, true);
    if (!ioStep.left.IsEmpty()) Invalidate(ioStep.left);
  }
  const Rect visible = mTrackView->DataArea();
  area.x = visible.x;
  area.width = visible.width;
  if (inAlignToRows) area.y = AlignedTop(area);
  Reveal(area);
  Invalidate(area);
  SelectionChanged();
}

bool TreeControlBase::DoKeyEvent(const lumui::ui::KeyboardEvent& inEvent) {
  using lumui::ui::KeyboardEvent;
  if (inEvent.GetAction() == KeyboardEvent::kActionKeyDown)
    return HandleKeyDown(inEvent.GetOSCode());
  if (inEvent.GetAction() != KeyboardEvent::kActionCharacter || inEvent.GetNumCharacters() < 1)
    return false;
  StopTypeAheadTimer();
  for (int i = 0; i < inEvent.GetNumCharacters(); ++i)
    mTypeAheadText += inEvent.GetCharacter(i);
  return SearchTypedText();
}

bool TreeControlBase::HandleKeyDown(int inOSCode) {
  switch (inOSCode) {
    case kDown:
      SelectNext();
      return true;
    case kUp:
      SelectPrevious();
      return true;
    case kRight:
    case kPadPlus:
      SelectedHasChildrenExpand();
      return true;
    case kLeft:
    case kPadMinus:
      SelectedHasChildrenCollapse();
      return true;
    case kHome:
      GotoFirst();
      return true;
    case kEnd:
      GotoLast();
      return true;
    case kReturn:
    case kPadReturn:
      return ProcessOnOpenSelected();
    case kDelete:
      StopTypeAheadTimer();
      return false;
    case kBackspace:
      StopTypeAheadTimer();
      if (mTypeAheadText.empty()) return false;
      DropLastCharacter(mTypeAheadText);
      return SearchTypedText();
    default:
      return false;
  }
}

bool TreeControlBase::ProcessOnOpenSelected() {
  return DoProcessOnOpenSelected();
}

bool TreeControlBase::DoProcessOnOpenSelected() {
  return false;
}

bool TreeControlBase::SearchTypedText() {
  const bool found = TypedownClosestMatch(mTypeAheadText);
  if (mTypeAheadTimer == 0) {
    mTypeAheadTimer = mTrackView->StartTimerForOverlay(this, kTypeAheadSeconds);
  } else {
    mTrackView->GetPlatformView().StartTimer(mTypeAheadTimer, kTypeAheadSeconds);
  }
  mTypeAheadTimerRunning = true;
  return found;
}

void TreeControlBase::StopTypeAheadTimer() {
  if (!mTypeAheadTimerRunning) return;
  mTrackView->GetPlatformView().StopTimer(mTypeAheadTimer);
  mTypeAheadTimerRunning = false;
}

// The view goes on knowing the timer by its id, so that the next search can start it again.
void TreeControlBase::DoTimerEvent(unsigned int inTimerID) {
  if (inTimerID != mTypeAheadTimer) return;
  mTrackView->GetPlatformView().StopTimer(inTimerID);
  mTypeAheadTimerRunning = false;
  mTypeAheadText.clear();
}

unsigned int TreeControlBase::GetTypeAheadID() const {
  return 0;
}

bool TreeControlBase::TypedownClosestMatch(UTF16String const& inText) {
  if (!HasRows()) return false;
  const unsigned int attribute = GetTypeAheadID();
  const TypedPrefix typed(inText);
  HierarchyGeometry::iterator match;
  boost::intrusive_ptr<HierarchyEntryBase> held;
  UTF16String cell;
  // What is selected is drawn anew down to the last row, also behind the match.
  for (RowWalk row(*mGeometry); !row.AtEnd(); row.Next()) {
    if (IsSelected(row.GetEntry())) Invalidate(GetEntryGeometry(row.GetIterator())->GetRowRect());
    if (*match) continue;
    cell.clear();
    row.GetEntry()->GetCellText(attribute, cell);
    if (!typed.Begins(cell)) continue;
    match = row.GetIterator();
    held = HoldEntry(*match);
  }
  if (!*match) return false;
  Reveal(GetEntryGeometry(match)->GetRowRect());
  DoSelectEntry(*match, false);
  return true;
}

}  // namespace vek::hierarchyview
