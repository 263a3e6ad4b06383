// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// The part of the outline's list that the pointer and the keyboard drive.

#include <algorithm>

#include "MapTools.h"
#include "OutlineDocument.h"
#include "OutlineDrag.h"
#include "OutlineEntries.h"
#include "OutlineEntry.h"
#include "OutlineListTrackers.h"
#include "OutlineTreeList.h"
#include "lumui/ui/KeyboardEvent.h"
#include "vek/trackview/PlatformView.h"
#include "vek/trackview/TrackView.h"

namespace outliner {

using lumui::ui::KeyboardCode;
using lumui::ui::KeyboardEvent;

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

bool OutlineTreeList::DoKeyEvent(const KeyboardEvent& inEvent) {
  if (!mDocument) return false;
  if (inEvent.GetAction() == KeyboardEvent::kActionCharacter) {
    // Ctrl and Alt together are how some keyboards type a third level of characters.
    const bool isCtrl = inEvent.GetModKey().Has(lumui::ui::kModCommand);
    const bool isAlt = inEvent.GetModKey().Has(lumui::ui::kModAlt);
    return isCtrl == isAlt && mFunctions.type(inEvent.GetCharacter());
  }
  if (!inEvent.IsActionKeyDown()) return false;
  const auto modifiers = inEvent.GetModKey();
  const unsigned code = inEvent.GetCode().GetControlCode(false);
  const bool isArrow = code == KeyboardCode::kUpArrow || code == KeyboardCode::kDownArrow;
  const bool isPage = code == KeyboardCode::kPageUp || code == KeyboardCode::kPageDown;
  // Chords are commands', and so are the arrows alone, which come back by Step.
  const bool isChord = modifiers.HasAny(lumui::ui::kModCommand | lumui::ui::kModAlt);
  if (isArrow && (isChord || modifiers.IsEmpty())) return false;
  bool isTaken = false;
  if (code == KeyboardCode::kBackspace) {
    isTaken = !isChord && mFunctions.deleteCharacter();
  } else {
    if ((isArrow || isPage) && !isChord) mDocument->CommitTyping();
    isTaken = HandleListKey(inEvent) || (!isChord && TreeListControlBase::DoKeyEvent(inEvent));
  }
  // The key has done its work: it types nothing.
  if (isTaken) lumui::ui::FlushPostActionKeyEvents(inEvent);
  return isTaken;
}

}  // namespace outliner
