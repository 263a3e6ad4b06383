// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>

#include "vek/hierarchyview/TreeListControlBase.h"
#include "vek/messaging/Listener.h"
#include "vek/selection/Messages.h"

namespace vek::hierarchyview {

class BasicMultiColListSelJunction;
class EntryManager;

// A tree list that is ready for use: it has a root, and a selection of its own with its manager.
// Entries are of a host's classes; one that can be selected answers with a node from
// GetDataAsSelNode, and that node is no other entry's. The columns are those that somebody inserts.
//
// Who wants to know what is selected listens to the manager, whose restorers put back the selection
// and the focus, for deeds. Entries may be put in and taken out
// while the list shows: after a batch of those the caller sends one ResizeHierarchy.
class VEK_API BasicMultiColumnListBase
    : public TreeListControlBase,
      public messaging::Listener<const selection::SelectionChangeMessage&> {
 public:
  // A flat list has no twisties.
  explicit BasicMultiColumnListBase(trackview::TrackView* inTrackView, bool inHasIcons = false,
                                    bool inIsSingleSelect = false, bool inAllowsDragOut = false,
                                    bool inHideRoot = true);
  // Deselects all, with the messages of that.
  ~BasicMultiColumnListBase() override;

  // Under inParent, null for the root, behind its other children; where the list is sorted, in its
  // place, or without inResort in front until the parent sorts its children again. The entry is in
  // no tree yet (a contract), and is the list's from now on.
  void InsertEntry(HierarchyEntryBase* inParent,
                   boost::intrusive_ptr<HierarchyEntryBase> const& inEntry, bool inResort = true);
  // With everything below it, and out of the selection and the focus. It has a parent (a contract).
  void TakeOutEntry(HierarchyEntryBase* inEntry);
  void TakeOutAllEntries();
  // From top to bottom, those in closed entries too.
  EntryList GetSelectedEntries() const;
  // Opens what is above the entry, and scrolls to it.
  void RevealEntry(HierarchyEntryBase* inEntry);

  bool HasIcons() const { return mHasIcons; }
  // These two lay out all rows anew.
  void SetHasIcons(bool inHasIcons);
  void SetIsFlatList(bool inIsFlat);
  bool IsFlatList() const { return mIsFlatList; }

  void DoViewActivation() override;
  bool DoDoubleClick(trackview::Modifiers inModifiers, const Point& inDataPoint) override;
  int NumSelectedEntries() override;
  selection::Manager* GetSelectionManager() const override;
  selection::Manager* GetSelectionManager() override;
  void ListenToMessage(const selection::SelectionChangeMessage& inMessage) override;

 protected:
  // Leaves the entries as they are; a subclass may fill the list here.
  void DoBuildHierarchy() override;
  std::auto_ptr<TreeRowGeometryFactory> CreateRowGeometryFactory() override;
  void DoDeselectAll() override;
  // With inExtend an entry that is selected already is deselected. The entry gets the focus.
  void DoSelectEntry(HierarchyEntryBase* inEntry, bool inExtend) override;
  void DoToggleEntrySelectionState(EntryList& ioEntries) override;

  // The row that shows at the point, which only y decides; null where there is none.
  HierarchyEntryBase* FindEntryAt(const Point& inDataPoint);

 private:
  void Forget(HierarchyEntryBase* inEntry);
  void LayOutRows();

  bool mHasIcons;
  bool mIsFlatList = false;
  boost::shared_ptr<BasicMultiColListSelJunction> mJunction;
  boost::intrusive_ptr<EntryManager> mManager;
};

}  // namespace vek::hierarchyview
