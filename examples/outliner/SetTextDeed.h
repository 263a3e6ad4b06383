// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "OutlineRow.h"
#include "lumcore/Strings.h"
#include "vek/undo/Deed.h"

namespace outliner {

class OutlineDocument;

// Gives a row another text.
class SetTextDeed final : public vek::undo::Deed {
 public:
  SetTextDeed(OutlineDocument& inDocument, const lumcore::UTF16String& inName,
              const OutlineRow& inRow, const lumcore::UTF16String& inText);
  ~SetTextDeed() override;

 protected:
  void RedoSelf() override { Exchange(); }
  void UndoSelf() override { Exchange(); }

 private:
  void Exchange();

  OutlineDocument& mDocument;
  OutlineRow::Id mRow;
  lumcore::UTF16String mOtherText;
};

}  // namespace outliner
