// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/BasicTreeControlBase.h"

#include "lumcore/debug/Contract.h"
#include "vek/hierarchyview/BasicTreeRowGeometry.h"
#include "vek/hierarchyview/EntryManager.h"
#include "vek/hierarchyview/EntryWalk.h"
#include "vek/hierarchyview/HoldEntry.h"
#include "vek/selection/ActiveManager.h"
#include "vek/trackview/PlatformView.h"

namespace vek::hierarchyview {

using selection::Manager;
using selection::Node;

namespace {

// For a manager that outlives its control.
class NoNodes : public selection::KnowingJunction {
 public:
  static NoNodes& Get() {
    static NoNodes junction;
    return junction;
  }
  std::list<Node*> AllSelectables() override { return std::list<Node*>(); }
  bool Knows(const Node*) override { return false; }
};

Node* GetSelectable(HierarchyEntryBase const* inEntry) {
  Node* const node = inEntry->GetDataAsSelNode();
  return node && node->Selectable() ? node : nullptr;
}

bool IsWithin(HierarchyEntryBase const* inEntry, HierarchyEntryBase const* inTop) {
  while (inEntry && inEntry != inTop)
    inEntry = inEntry->GetParent();
  return inEntry != nullptr;
}

}  // namespace

BasicTreeControlBase::BasicTreeControlBase(trackview::TrackView* inTrackView, bool inHasIcons,
                                           bool inIsSingleSelect, bool inAllowsDragOut,
                                           bool inHideRoot, unsigned short inIndent)
    : TreeControlBase(inTrackView, inHideRoot, inIndent, inIsSingleSelect, inAllowsDragOut),
      mHasIcons(inHasIcons),
      mJunction(*this),
      mManager(new EntryManager(&mJunction, this)) {
  SetRootEntry(new BasicTreeRootNode);
  mJunction.Join(GetRootEntry());
  mManager->GetSelectionChangeNotifier()->AddListener(this);
}

BasicTreeControlBase::~BasicTreeControlBase() {
  mManager->GetSelectionChangeNotifier()->RemoveListener(this);
  mManager->SetJunction(&NoNodes::Get());
  mManager->ForgetControl();
}

Manager* BasicTreeControlBase::GetSelectionManager() const {
  return mManager.get();
}

Manager* BasicTreeControlBase::GetSelectionManager() {
  return mManager.get();
}

BasicTreeNode* BasicTreeControlBase::AddNode(HierarchyEntryBase* inParent,
                                             lumcore::UTF16String const& inText) {
  auto* const node = new BasicTreeNode(inText);
  AddEntry(inParent, boost::intrusive_ptr<HierarchyEntryBase>(node));
  return node;
}

void BasicTreeControlBase::AddEntry(HierarchyEntryBase* inParent,
                                    boost::intrusive_ptr<HierarchyEntryBase> const& inEntry) {
  HierarchyEntryBase* const parent = inParent ? inParent : GetRootEntry();
  LUM_INPUT_CONTRACT(inEntry && !inEntry->GetParent() && parent);
  inEntry->SetParent(parent);
  parent->AddChild(inEntry, false);
  mJunction.Join(inEntry.get());
}

void BasicTreeControlBase::RemoveNode(HierarchyEntryBase* inEntry) {
  LUM_INPUT_CONTRACT(inEntry && inEntry->GetParent());
  const auto held = HoldEntry(inEntry);
  Forget(inEntry);
  RemoveEntry(inEntry);
  inEntry->SetParent(nullptr);
}

void BasicTreeControlBase::RemoveAllNodes() {
  std::list<boost::intrusive_ptr<HierarchyEntryBase>> const children =
      GetRootEntry()->GetChildren();
  for (auto const& child : children)
    Forget(child.get());
  ClearRootEntry();
  for (auto const& child : children)
    child->SetParent(nullptr);
}

// Everything that refers to the entry or to what is below it lets go.
void BasicTreeControlBase::Forget(HierarchyEntryBase* inEntry) {
  std::list<Node*> leaving;
  ForEachEntry(inEntry, [&](HierarchyEntryBase* inLeaving) {
    Node* const node = inLeaving->GetDataAsSelNode();
    if (node && mManager->Selected(node)) leaving.push_back(node);
  });
  if (!leaving.empty()) mManager->ToggleSelectables(leaving, selection::eSendMessages);
  if (IsWithin(GetFocusItem(), inEntry)) SetFocusItem(nullptr, true);
  if (IsWithin(GetDragFeedbackEntry(), inEntry)) SetDragFeedback(nullptr, false);
  mJunction.Leave(inEntry);
}

BasicTreeControlBase::EntryList BasicTreeControlBase::GetSelectedEntries() const {
  EntryList entries;
  if (mManager->SelectedSelectables().empty()) return entries;
  ForEachEntry(GetRootEntry(), [&](HierarchyEntryBase* inEntry) {
    if (inEntry->Selected(mManager.get())) entries.push_back(inEntry);
  });
  return entries;
}

void BasicTreeControlBase::RevealEntry(HierarchyEntryBase* inEntry) {
  bool opens = false;
  for (HierarchyEntryBase* above = inEntry->GetParent(); above; above = above->GetParent()) {
    if (above->GetNodeState() != kNodeCollapsed) continue;
    ExpandNode(above, false);
    opens = true;
  }
  if (opens) ResizeHierarchy();
  RevealIfNotVisible(inEntry);
}

bool BasicTreeControlBase::DoDoubleClick(trackview::Modifiers, const Point& inDataPoint) {
  const HierarchyGeometry::iterator row = FindRowAt(inDataPoint);
  if (!*row || !GetEntryGeometry(row)->PointInSelectArea(inDataPoint)) return false;
  HierarchyEntryBase* const entry = *row;
  if (mOpen) {
    mOpen(EntryList(1, entry));
    return true;
  }
  const bool isOpen = entry->GetNodeState() != kNodeCollapsed;
  if (!(isOpen ? CanCollapseNode(entry) : CanExpandNode(entry))) return false;
  isOpen ? CollapseNode(entry, true) : ExpandNode(entry, true);
  return true;
}

void BasicTreeControlBase::DoViewActivation() {
  selection::SetActiveManager(mManager.get());
}

int BasicTreeControlBase::NumSelectedEntries() {
  return static_cast<int>(mManager->SelectedSelectables().size());
}

void BasicTreeControlBase::DoBuildHierarchy() {}

std::auto_ptr<TreeRowGeometryFactory> BasicTreeControlBase::CreateRowGeometryFactory() {
  return std::auto_ptr<TreeRowGeometryFactory>(
      new BasicTreeRowGeoFactory(this, GetTrackView(), mHasIcons));
}

void BasicTreeControlBase::DoDeselectAll() {
  mManager->DeselectAll();
}

void BasicTreeControlBase::DoSelectEntry(HierarchyEntryBase* inEntry, bool inExtend) {
  Node* const node = GetSelectable(inEntry);
  if (!node) return;
  const auto held = HoldEntry(inEntry);
  const std::list<Node*> nodes(1, node);
  if (inExtend) {
    mManager->ToggleSelectables(nodes, selection::eSendMessages);
  } else {
    mManager->Select(nodes, selection::eDeselectOthers, selection::eSendMessages);
  }
  if (mManager->Selected(node)) {
    SetFocusItem(inEntry, true);
  } else if (GetFocusItem() == inEntry) {
    SetFocusItem(nullptr, true);
  }
}

void BasicTreeControlBase::DoToggleEntrySelectionState(EntryList& ioEntries) {
  std::list<Node*> nodes;
  for (HierarchyEntryBase const* const entry : ioEntries) {
    if (Node* const node = GetSelectable(entry)) nodes.push_back(node);
  }
  mManager->ToggleSelectables(nodes, selection::eSendMessages);
}

void BasicTreeControlBase::DoStartDragOut(const Point& inDataPoint) {
  if (mDragOut) mDragOut(inDataPoint);
}

bool BasicTreeControlBase::DoProcessOnOpenSelected() {
  const EntryList entries = GetSelectedEntries();
  if (!mOpen || entries.empty()) return false;
  mOpen(entries);
  return true;
}

// Selected rows are marked from edge to edge.
void BasicTreeControlBase::ListenToMessage(const selection::SelectionChangeMessage&) {
  trackview::TrackView* const view = GetTrackView();
  view->GetPlatformView().InvalidateDataRect(view->DataArea());
  AnnounceSelection();
}

}  // namespace vek::hierarchyview
