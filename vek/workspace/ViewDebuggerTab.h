// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <map>
#include <vector>

#include "lumui/controls/UI_InteractiveControlView.h"
#include "lumworkspace/workspace/TabCreator.h"
#include "lumworkspace/workspace/TabPanel.h"
#include "vek/config/Export.h"
#include "vek/workspace/NodeListing.h"

namespace lumui::controls {
class UI_MultiColumnTree;
class UI_TextButton;
}  // namespace lumui::controls

namespace vek::workspace {

class NodeOutline;

// A panel that lists the nodes of all windows as they are now, for developers who wonder what
// stands where. The chosen node is outlined in its window; Pick chooses the one under the pointer,
// in any window, until a click; Copy puts the list on the clipboard.
//
// It looks anew once after each turn in which something has changed, and does nothing otherwise.
// What happens within the panel and its outline does not count as a change; nodes are never held,
// so that they die as they would without it.
class VEK_API ViewDebuggerTab : public lumworkspace::workspace::TabPanel {
 public:
  ViewDebuggerTab(lumworkspace::workspace::Workspace* inWorkspace,
                  lumworkspace::workspace::WorkspaceFrameBase* inFrame,
                  const lumcore::UTF16String& inTitle, const lumcore::UTF8String& inTabType);
  ~ViewDebuggerTab() override;

  // Now, and not at the end of the turn.
  void Refresh();
  // Of the nodes as they are now: a line each, indented by its depth, the columns between tabs.
  lumcore::UTF16String GetText() const;

  // Null for none, and where the chosen one has gone.
  lumui::ui::UI_Node* GetChosenNode() const;
  // Shows and outlines it; null, or a node that no window has, chooses none.
  void ChooseNode(const lumui::ui::UI_Node* inNode);
  // Until a click, or until it is called off.
  void BeginPicking();

  bool UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                          const lumui::ui::KeyboardEvent& inEvent) override;
  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  class PickCapture;
  using ChangedFunction = lumui::controls::UI_InteractiveControlView::ChangedFunction;
  using RowID = int;

  void AddButton(const char* inID, const char* inTextKey, const boost::function<void()>& inPressed);
  void NodeChanged(const lumui::ui::UI_Node& inNode);
  void PostRefresh() const;
  void ShowRows(const std::vector<NodeListing::Entry>& inEntries);
  void RowChosen();
  void ShowOutline();
  void PickedAt(const lumcore::geom::PointT<int>& inOnScreen);

  boost::intrusive_ptr<lumui::controls::UI_MultiColumnTree> mTree;
  std::vector<boost::intrusive_ptr<lumui::controls::UI_TextButton>> mButtons;
  boost::intrusive_ptr<NodeOutline> mOutline;
  std::vector<NodeListing::Entry> mEntries;     // as they stand in the tree
  std::vector<RowID> mRows;                     // of mEntries
  const lumui::ui::UI_Node* mChosen = nullptr;  // compared, and used only if a window has it
  bool mShowingRows = false;
  mutable bool mPosted = false;
  mutable bool mIsStale = true;
  boost::shared_ptr<boost::function<void(lumui::ui::UI_Node&)>> mNodeChanged;
  // Shared with what is posted; empty once the panel has gone.
  boost::shared_ptr<boost::function<void()>> mRefresh;
  std::vector<boost::shared_ptr<ChangedFunction>> mFunctions;
};

}  // namespace vek::workspace
