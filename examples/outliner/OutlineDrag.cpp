// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineDrag.h"

#include <iterator>
#include <memory>
#include <vector>

#include "OutlineDocument.h"
#include "OutlineEdits.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumui/datatransfer/OS_ReceiveData.h"
#include "lumui/datatransfer/OS_SendData.h"
#include "lumui/ui/UI_DragDropHandler.h"
#include "vek/trackview/PlatformView.h"

namespace outliner {

namespace {

constexpr const char* kOpmlFormat = "text/x-opml";

}  // namespace

void SendSelectedRows(OutlineDocument& ioDocument, vek::trackview::PlatformView& inView) {
  const auto selected = ioDocument.GetSelectedRows();
  const LooseRows rows = RowsOfSelection(ioDocument);
  const auto data = inView.GetSendData();
  data->AddBytes(kOpmlFormat, OpmlOfRows(rows));
  data->AddText(TextOfRows(rows));
  const std::shared_ptr<bool> drag = ioDocument.GetRowDrag();
  const lumcore::utility::StScopedValue<bool> dragging(*drag, true);
  const int done =
      data->SendByDrag(lumui::ui::kDropCopy | lumui::ui::kDropMove, lumui::ui::kDropCopy);
  // Somebody else has them now, and the document is still there.
  const bool isGone = done == lumui::ui::kDropMove && *drag && drag.use_count() > 1;
  if (isGone && ioDocument.GetSelectedRows() == selected) edits::Delete(ioDocument);
}

unsigned FindDropEffect(const OutlineDocument& inDocument, bool inCanMove,
                        const lumui::datatransfer::OS_ReceiveData* inData) {
  if (!inData) return lumui::ui::kDropNone;
  if (*inDocument.GetRowDrag()) return inCanMove ? lumui::ui::kDropMove : lumui::ui::kDropNone;
  const bool canTake = (inData->OffersFiles() || inData->OffersText()) &&
                       (inData->GetAllowedEffects() & lumui::ui::kDropCopy) != 0;
  return canTake ? lumui::ui::kDropCopy : lumui::ui::kDropNone;
}

bool TakeOwnRows(OutlineDocument& ioDocument) {
  return std::exchange(*ioDocument.GetRowDrag(), false);
}

namespace {

LooseRows RowsOfDrag(const lumui::datatransfer::OS_ReceiveData& inData) {
  LooseRows rows;
  std::vector<lumcore::UTF16String> paths;
  lumcore::UTF16String text;
  if (inData.OffersFiles()) inData.ReadFiles(paths);
  for (const lumcore::UTF16String& path : paths) {
    LooseRows branch = RowsOfFile(lumcore::filesupport::File(path));
    rows.insert(rows.end(), std::make_move_iterator(branch.begin()),
                std::make_move_iterator(branch.end()));
  }
  if (rows.empty() && inData.OffersText()) {
    inData.ReadText(text);
    rows = RowsOfText(text);
  }
  return rows;
}

}  // namespace

void InsertRowsOfDrag(OutlineDocument& ioDocument, const MoveTarget& inTarget,
                      const lumui::datatransfer::OS_ReceiveData& inData) {
  const LooseRows rows = RowsOfDrag(inData);
  ioDocument.CommitTyping();
  edits::InsertAt(ioDocument, inTarget, rows);
}

}  // namespace outliner
