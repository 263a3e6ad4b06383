// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>

#include "vek/hierarchyview/BasicTreeNode.h"
#include "vek/hierarchyview/BasicTreeSelJunction.h"
#include "vek/hierarchyview/TreeControlBase.h"
#include "vek/messaging/Listener.h"
#include "vek/selection/Manager.h"

namespace vek::hierarchyview {

class EntryManager;

// A tree that is ready for use: it has a root, a selection of its own with its manager, rows of
// twisty, icon and text, and needs no subclass.
//
//   std::auto_ptr<Overlay> overlay(tree = new BasicTreeControlBase(&trackView));
//   BasicTreeNode* const fruits = tree->AddNode(nullptr, ToUTF16("Fruits"));
//   tree->AddNode(fruits, ToUTF16("Apple"));
//   tree->BuildHierarchy();
//   trackView.InstallOverlay(overlay, false);
//
// Who wants to know what is selected listens to its manager. The manager may outlive the control,
// and then knows no nodes; its restorers put back the selection and the focus, for deeds. Nodes may
// be put into the tree and taken out again while it shows: after a batch of those the caller sends
// one ResizeHierarchy.
class VEK_API BasicTreeControlBase
    : public TreeControlBase,
      private messaging::Listener<const selection::SelectionChangeMessage&> {
 public:
  // What Enter and double clicks open, from top to bottom.
  using OpenFunction = boost::function<void(EntryList const& inEntries)>;
  // A drag of the selected rows begins at the data point.
  using DragOutFunction = boost::function<void(Point const& inDataPoint)>;

  explicit BasicTreeControlBase(trackview::TrackView* inTrackView, bool inHasIcons = false,
                                bool inIsSingleSelect = false, bool inAllowsDragOut = false,
                                bool inHideRoot = true, unsigned short inIndent = 16);
  // Deselects all, with the messages of that.
  ~BasicTreeControlBase() override;

  // Under inParent, null for the root, behind its other children; or, where they are sorted, in
  // front of them until they are sorted again. The tree owns what is added.
  BasicTreeNode* AddNode(HierarchyEntryBase* inParent, lumcore::UTF16String const& inText);
  // The same for an entry of a host's own class, which is in no tree yet, with what is below it.
  void AddEntry(HierarchyEntryBase* inParent,
                boost::intrusive_ptr<HierarchyEntryBase> const& inEntry);
  // With everything below it, and out of the selection and the focus. Not the root (a contract).
  void RemoveNode(HierarchyEntryBase* inEntry);
  void RemoveAllNodes();

  // From top to bottom, those in closed nodes too.
  EntryList GetSelectedEntries() const;
  // Opens what is above the entry, and scrolls to it.
  void RevealEntry(HierarchyEntryBase* inEntry);

  // Without one, a double click opens and closes the row.
  void SetOpenFunction(OpenFunction const& inOpen) { mOpen = inOpen; }
  // Needs a control that allows it.
  void SetDragOutFunction(DragOutFunction const& inDragOut) { mDragOut = inDragOut; }

  bool DoDoubleClick(trackview::Modifiers inModifiers, const Point& inDataPoint) override;
  // The view has got the keyboard: the tree's selection is the active one from now on.
  void DoViewActivation() override;
  int NumSelectedEntries() override;
  selection::Manager* GetSelectionManager() const override;
  selection::Manager* GetSelectionManager() override;

 protected:
  // Leaves the nodes as they were added; a subclass may fill the tree here.
  void DoBuildHierarchy() override;
  std::auto_ptr<TreeRowGeometryFactory> CreateRowGeometryFactory() override;
  void DoDeselectAll() override;
  // With inExtend an entry that is selected already is deselected. The entry gets the focus.
  void DoSelectEntry(HierarchyEntryBase* inEntry, bool inExtend) override;
  void DoToggleEntrySelectionState(EntryList& ioEntries) override;
  void DoStartDragOut(const Point& inDataPoint) override;
  bool DoProcessOnOpenSelected() override;

  BasicTreeSelJunction& GetSelJunction() { return mJunction; }

 private:
  void ListenToMessage(const selection::SelectionChangeMessage& inMessage) override;
  void Forget(HierarchyEntryBase* inEntry);

  bool mHasIcons;
  BasicTreeSelJunction mJunction;
  boost::intrusive_ptr<EntryManager> mManager;
  OpenFunction mOpen;
  DragOutFunction mDragOut;
};

}  // namespace vek::hierarchyview
