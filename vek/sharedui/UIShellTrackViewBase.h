// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>

#include "vek/hierarchyview/TreeControlBase.h"
#include "vek/messaging/Listener.h"
#include "vek/selection/Manager.h"

namespace vek::sharedui {

class UIShellHierarchyEntryBase;
class UIShellSelectionJunction;

// A tree of shell entries with a selection of its own. A double click opens and closes an entry.
// Entries that go, because something above them closes or is built anew, leave the selection with a
// message before they go. Who wants to know what is selected listens to the manager.
//
// The tree does not become the active selection by itself: it stands in dialogs and panels beside
// what a host edits. So its rows look selected at all times.
class VEK_API UIShellTrackViewBase
    : public hierarchyview::TreeControlBase,
      private messaging::Listener<const selection::SelectionChangeMessage&> {
 public:
  UIShellTrackViewBase(trackview::TrackView* inTrackView, bool inIsSingleSelect,
                       bool inAllowsDragOut);
  // Deselects all, with the messages of that.
  ~UIShellTrackViewBase() override;

  void SelectRoot();
  // The first that is, from top to bottom; null if there is none.
  UIShellHierarchyEntryBase* GetSelectedEntry() const;

  bool DoDoubleClick(trackview::Modifiers inModifiers, const Point& inDataPoint) override;
  int NumSelectedEntries() override;
  selection::Manager* GetSelectionManager() const override { return mManager.get(); }
  selection::Manager* GetSelectionManager() override { return mManager.get(); }
  // On dark grounds the form of the pair that has no pale box around it.
  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetExpandedTwisty() override;
  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetUnExpandedTwisty() override;

  // For images of its entries; never null.
  lumui::drawbot::SupplierInterface const& GetImageSupplier() const;
  // Takes all that is below the entry out of the selection, the focus and the drag feedback.
  void ForgetBelow(hierarchyview::HierarchyEntryBase* inEntry);

 protected:
  std::auto_ptr<hierarchyview::HierarchyGeometry> CreateGeometry() override;
  std::auto_ptr<hierarchyview::TreeRowGeometryFactory> CreateRowGeometryFactory() override;
  void DoDeselectAll() override;
  // With inExtend an entry that is selected already is deselected. The entry gets the focus.
  void DoSelectEntry(hierarchyview::HierarchyEntryBase* inEntry, bool inExtend) override;
  void DoToggleEntrySelectionState(EntryList& ioEntries) override;

  boost::shared_ptr<UIShellSelectionJunction> const& GetSelJunction() const { return mJunction; }

 private:
  void ListenToMessage(const selection::SelectionChangeMessage& inMessage) override;

  boost::intrusive_ptr<selection::Manager> mManager;
  boost::shared_ptr<UIShellSelectionJunction> mJunction;
};

}  // namespace vek::sharedui
