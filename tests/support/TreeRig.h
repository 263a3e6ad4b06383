// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <string>

#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/Theme.h"
#include "support/RecordingPlatformView.h"
#include "support/TestTree.h"
#include "vek/hierarchyview/BasicTreeControlBase.h"
#include "vek/hierarchyview/TreeGeometry.h"

namespace test_support {

using vek::hierarchyview::BasicTreeControlBase;
using vek::hierarchyview::BasicTreeNode;
using vek::hierarchyview::TreeControlBase;

// A ready-made tree that tells what is asked of it: "toggle:ab", "select:a", "select+:a", "none"
// for deselecting all, "changed", "drag:x,y".
class LoggedTree : public BasicTreeControlBase {
 public:
  LoggedTree(tv::TrackView& inTrackView, EventLog& inLog, bool inIsSingle, bool inDragOut,
             bool inHideRoot)
      : BasicTreeControlBase(&inTrackView, false, inIsSingle, inDragOut, inHideRoot, 10),
        mLog(inLog) {
    SetFont(lumui::drawbot::FontP(new FixedFont));
    SetDrawShadowBox(false);
  }
  using BasicTreeControlBase::GetSelJunction;
  using BasicTreeControlBase::SetRootEntry;
  using TreeControlBase::ResetGeometry;
  using TreeControlBase::TypedownClosestMatch;

  void SelectionChanged() override { mLog.Add("changed"); }
  bool mWalks = false;       // by a geometry of a class of its own, which has no index
  bool mSortsNames = false;  // of toggles: bands list entries by their addresses

 protected:
  std::auto_ptr<HierarchyGeometry> CreateGeometry() override {
    struct OwnGeometry : vek::hierarchyview::TreeGeometry {
      using TreeGeometry::TreeGeometry;
    };
    if (!mWalks) return BasicTreeControlBase::CreateGeometry();
    return std::auto_ptr<HierarchyGeometry>(new OwnGeometry(this, 10, GetHideRoot(), 19));
  }
  void DoDeselectAll() override {
    mLog.Add("none");
    BasicTreeControlBase::DoDeselectAll();
  }
  void DoSelectEntry(HierarchyEntryBase* inEntry, bool inExtend) override {
    mLog.Add((inExtend ? "select+:" : "select:") + NameOf(inEntry));
    BasicTreeControlBase::DoSelectEntry(inEntry, inExtend);
  }
  void DoToggleEntrySelectionState(EntryList& ioEntries) override {
    std::string names;
    for (const HierarchyEntryBase* entry : ioEntries)
      names += NameOf(entry);
    if (mSortsNames) std::sort(names.begin(), names.end());
    mLog.Add("toggle:" + names);
    BasicTreeControlBase::DoToggleEntrySelectionState(ioEntries);
  }
  void DoStartDragOut(const Point& inPoint) override { mLog.Add("drag:" + AsText(inPoint)); }

 private:
  EventLog& mLog;
};

// A logged tree over a view of 200 by 60, which logs for itself. Rows are 19 high, and a letter is
// 7 wide. The root "r" is hidden unless told otherwise.
class TreeRig : public testing::Test {
 protected:
  // As ReadTree reads it; it stands below the root.
  LoggedTree& Build(const std::string& inShape, bool inIsSingle = false, bool inDragOut = false,
                    bool inHideRoot = true) {
    if (mTree) mTrack.RemoveOverlay(mTree);
    mView.mSupplier = lumui::drawbot::GetDefaultSupplier();
    std::auto_ptr<tv::Overlay> overlay(
        mTree = new LoggedTree(mTrack, mLog, inIsSingle, inDragOut, inHideRoot));
    mTree->mWalks = mWalks;
    Root().SetText(lumcore::utility::ToUTF16("r"));
    const EntryP model = ReadTree("r [" + inShape + "]");
    Copy(*model, nullptr);
    mTree->BuildHierarchy();
    mTrack.InstallOverlay(overlay, false);
    mViewLog.Take();
    return *mTree;
  }
  BasicTreeNode& Root() { return static_cast<BasicTreeNode&>(*mTree->GetRootEntry()); }
  HierarchyEntryBase* At(char inName) { return mNodes.at(inName).get(); }

  // The rows in order: "a* b!" for a that is selected and b with the focus, "~" for a marquee
  // where there is no focus.
  std::string Rows() const {
    std::string text;
    HierarchyGeometry& geometry = *mTree->GetGeometry();
    for (auto row = geometry.begin(); row != geometry.end(); ++row) {
      if (geometry.EntryArea(row).height == 0) continue;
      text += (text.empty() ? "" : " ") + NameOf(*row);
      if ((*row)->Selected(mTree->GetSelectionManager())) text += '*';
      if (*row == mTree->GetFocusItem()) text += '!';
      if ((*row)->HasMarquee() != (*row == mTree->GetFocusItem())) text += '~';
    }
    return text;
  }
  // Selects these and gives the first the focus, without a trace.
  void Select(const std::string& inNames) {
    mTree->SetFocusItem(nullptr, true);
    std::list<vek::selection::Node*> nodes;
    for (const char name : inNames)
      nodes.push_back(At(name)->GetDataAsSelNode());
    mTree->GetSelectionManager()->DeselectAll();
    mTree->GetSelectionManager()->Select(nodes, vek::selection::eKeepOthers,
                                         vek::selection::eSendMessages);
    mTree->SetFocusItem(inNames.empty() ? nullptr : At(inNames[0]), true);
    mLog.Take();
    mViewLog.Take();
  }
  bool Key(std::uint32_t inControlCode, bool inExtended = false) {
    namespace ui = lumui::ui;
    return mTree->DoKeyEvent(
        ui::KeyboardEvent(ui::KeyboardEvent::kActionKeyDown,
                          ui::KeyboardCode::CreateFromControlCode(
                              static_cast<unsigned short>(inControlCode), inExtended),
                          ui::ModifierKeys(), false, ui::OS_Event()));
  }
  // What each character's event answers, "+" or "-".
  std::string Type(const lumcore::UTF16String& inText) {
    namespace ui = lumui::ui;
    std::string answers;
    for (const unsigned short unit : inText) {
      const ui::KeyboardEvent event(ui::KeyboardEvent::kActionCharacter,
                                    ui::KeyboardCode(ui::KeyboardCode::kCharacterBit | unit),
                                    ui::ModifierKeys(), false, ui::OS_Event());
      answers += mTree->DoKeyEvent(event) ? '+' : '-';
    }
    return answers;
  }

  EventLog mLog, mViewLog;
  RecordingPlatformView mView{mViewLog, tv::Point(200, 60)};
  tv::TrackView& mTrack = mView.Show(false, 1, 1);
  LoggedTree* mTree = nullptr;
  bool mWalks = false;  // of the trees that are built from now on
  std::map<char, EntryP> mNodes;

 private:
  void Copy(HierarchyEntryBase& inFrom, HierarchyEntryBase* inParent) {
    for (const EntryP& child : inFrom.GetChildren()) {
      BasicTreeNode* const node =
          mTree->AddNode(inParent, lumcore::utility::ToUTF16(NameOf(child.get())));
      node->SetNodeState(child->GetNodeState());
      mNodes[NameOf(child.get())[0]] = node;
      Copy(*child, node);
    }
  }
};

}  // namespace test_support
