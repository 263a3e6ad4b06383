// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <optional>
#include <vector>

#include "lumui/controls/UI_ScrollView.h"
#include "lumui/utility/ksv/IDelegateInterface.h"

namespace lumui::utility::ksv {

// The commands in a list, each with its keys, below the names of their categories. One may be
// chosen; one may be dragged out, by a capture that the list's owner gets through its functions.
class CommandList : public controls::UI_ScrollView {
 public:
  // Positions are in the coordinates of the window. Where inDone, the pointer was let go there, or,
  // with inCancelled, the drag is over for another reason.
  using DragFunction = boost::function<void(const lumcore::geom::PointT<float>& inPosition,
                                            bool inDone, bool inCancelled)>;

  explicit CommandList(const IDelegateInterface& inDelegate);
  ~CommandList() override;

  // Those whose category, name, description or keys contain the text, whatever its case.
  void SetFilter(const lumcore::UTF16String& inText);
  void Refresh();
  int GetSelectedCommand() const { return mSelected; }  // 0 for none
  void SelectCommand(int inCommand);                    // and scrolls to it
  const Command* FindCommand(int inCommand) const;

  void SetChangedFunction(const boost::function<void()>& inFunction) { mChanged = inFunction; }
  // After a double click or Enter.
  void SetActivatedFunction(const boost::function<void()>& inFunction) { mActivated = inFunction; }
  void SetDragFunction(const DragFunction& inFunction) { mDrag = inFunction; }

 private:
  class Accessible;
  class Content;
  class Drag;
  struct Row {
    const Command* command;  // null for a category
    lumcore::UTF16String text;
    lumcore::UTF16String keys;
  };

  void BuildRows();
  lumcore::geom::RectT<float> RectOf(std::size_t inRow) const;
  std::optional<std::size_t> FindRow(int inCommand) const;
  void Choose(int inCommand);
  void Walk(int inStep);

  const IDelegateInterface& mDelegate;
  std::vector<Command> mCommands;
  std::vector<Row> mRows;
  lumcore::UTF16String mFilter;
  int mSelected = 0;
  int mHovered = 0;
  boost::function<void()> mChanged;
  boost::function<void()> mActivated;
  DragFunction mDrag;
};

}  // namespace lumui::utility::ksv
