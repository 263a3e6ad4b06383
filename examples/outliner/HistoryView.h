// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "LinesPane.h"
#include "OutlineFollower.h"

namespace vek::undo {
class Deed;
}

namespace outliner {

// The edits of the current outline as its undoer has them, oldest first, below a line for the state
// before them: the line of the present state is marked, and what was undone behind it is paler. A
// line that is chosen becomes the present state, in as many steps as it takes.
class HistoryView final : public LinesView {
 public:
  HistoryView();

  // "before", or the name of an edit, for each line; ">" is before the present one.
  lumcore::UTF16String AsText() const;

 private:
  std::size_t CountLines() const override;
  std::size_t GetPresentLine() const override;
  void DrawLine(lumui::drawbot::Drawbot& ioDrawbot, std::size_t inLine, const Rect& inPlace,
                bool inIsLit) const override;
  lumcore::UTF16String TextOfLine(std::size_t inLine) const override;
  lumcore::UTF16String NameOfList() const override;
  lumcore::UTF16String TextOfNoLines() const override;
  void Choose(std::size_t inLine, bool inIsFinal) override;

  const vek::undo::Deed* FindDeed(std::size_t inLine) const;  // null for the first line

  OutlineFollower mFollower;
};

using HistoryPane = LinesPane<HistoryView>;

}  // namespace outliner
