// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "LooseRows.h"
#include "MoveRowsDeed.h"
#include "OutlineRow.h"
#include "lumcore/Strings.h"

namespace outliner {

class OutlineDocument;

// The edits of an outline. Each builds one deed out of what is selected and posts it, so that one
// step of undo takes it back; where there is nothing to do, nothing is posted. Of nested selected
// rows the topmost one counts, since it takes along what is below it. Neighbours keep their order.
//
// What posting throws reaches the caller, with the outline as it was.
namespace edits {

// A new empty row behind the last selected row, or at the end of the outline, and selects it.
OutlineRow& NewSibling(OutlineDocument& ioDocument);
// A new empty row as last child of the last selected row, or at the end of the outline.
OutlineRow& NewChild(OutlineDocument& ioDocument);

// Selects what comes next to the rows that went: the row behind, else the one before, else the
// parent.
bool CanDelete(OutlineDocument& inDocument);
void Delete(OutlineDocument& ioDocument);

// Below the row before; rows at the front of their parent stay.
bool CanIndent(OutlineDocument& inDocument);
void Indent(OutlineDocument& ioDocument);
// Behind the parent; rows of the first level stay.
bool CanOutdent(OutlineDocument& inDocument);
void Outdent(OutlineDocument& ioDocument);
// Over the neighbour under the same parent; rows at the end of their way stay.
bool CanMoveUp(OutlineDocument& inDocument);
void MoveUp(OutlineDocument& ioDocument);
bool CanMoveDown(OutlineDocument& inDocument);
void MoveDown(OutlineDocument& ioDocument);

// The selected branches become the last ones below the target, which may be the root. Not onto a
// row that is selected or below one, and not where all of them are already.
bool CanMoveBelow(OutlineDocument& inDocument, const OutlineRow& inTarget);
void MoveBelow(OutlineDocument& ioDocument, const OutlineRow& inTarget);

// The selected branches go to a place among other rows; a place beside a selected row is the next
// one that is not between selected rows. Not below a row that is selected, and not where they are.
bool CanMoveTo(OutlineDocument& inDocument, const MoveTarget& inTarget);
void MoveTo(OutlineDocument& ioDocument, const MoveTarget& inTarget);
// New rows go there, and are selected.
void InsertAt(OutlineDocument& ioDocument, const MoveTarget& inTarget, const LooseRows& inRows);

// The same text as before posts nothing.
void SetText(OutlineDocument& ioDocument, OutlineRow& ioRow, const lumcore::UTF16String& inText);

// One step back or forward, where there is one that can be made.
bool CanUndo(const OutlineDocument& inDocument);
void Undo(OutlineDocument& ioDocument);
bool CanRedo(const OutlineDocument& inDocument);
void Redo(OutlineDocument& ioDocument);

// Selection, which is no edit: the row behind the last selected one, the row before the first. At
// the end of the outline the last or first row stays; with nothing selected, the other end is
// taken.
void SelectNext(OutlineDocument& ioDocument);
void SelectPrevious(OutlineDocument& ioDocument);

}  // namespace edits

}  // namespace outliner
