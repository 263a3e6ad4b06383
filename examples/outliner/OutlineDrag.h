// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "LooseRows.h"

namespace lumui::datatransfer {
class OS_ReceiveData;
}
namespace vek::trackview {
class PlatformView;
}

namespace outliner {

class OutlineDocument;
struct MoveTarget;

// Drags of rows by the window system: between the panels of the program, and from and to others.

// Offers the selected rows, as an outline and as text, until the button is let go. Where somebody
// else takes them over, they are deleted here. Anything may have happened when it returns.
void SendSelectedRows(OutlineDocument& ioDocument, vek::trackview::PlatformView& inView);

// What a drop of a drag would do, as lumui::ui::DropEffect: rows of the document itself are moved
// where inCanMove says that they may be, files and texts of others are taken. Null is no data.
unsigned FindDropEffect(const OutlineDocument& inDocument, bool inCanMove,
                        const lumui::datatransfer::OS_ReceiveData* inData);
// For a drop: whether it is the document's own rows that are dragged. It ends their drag.
bool TakeOwnRows(OutlineDocument& ioDocument);
// What others drag becomes rows. All files are read before the first row is made; throws what
// reading throws.
void InsertRowsOfDrag(OutlineDocument& ioDocument, const MoveTarget& inTarget,
                      const lumui::datatransfer::OS_ReceiveData& inData);

}  // namespace outliner
