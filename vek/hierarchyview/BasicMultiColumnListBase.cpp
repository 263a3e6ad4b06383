// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/BasicMultiColumnListBase.h"

#include "lumcore/debug/Contract.h"
#include "lumui/drawbot/Image.h"
#include "vek/hierarchyview/BasicMultiColListSelJunction.h"
#include "vek/hierarchyview/BasicMultiColRootNode.h"
#include "vek/hierarchyview/BasicTreeListRowGeometry.h"
#include "vek/hierarchyview/EntryWalk.h"
#include "vek/hierarchyview/HoldEntry.h"
#include "vek/selection/ActiveManager.h"
#include "vek/selection/Manager.h"
#include "vek/selection/Node.h"
#include "vek/trackview/PlatformView.h"

namespace vek::hierarchyview {

using selection::Manager;
using selection::Node;

namespace {

// A manager borrows its junction, and may be held when the control is gone.
class ListManager : public Manager {
 public:
  explicit ListManager(boost::shared_ptr<BasicMultiColListSelJunction> const& inJunction)
      : Manager(inJunction.get()), mJunction(inJunction) {}

 private:
  boost::shared_ptr<BasicMultiColListSelJunction> mJunction;
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

BasicMultiColRootNode::BasicMultiColRootNode() : HierarchyEntry(kNodeExpanded, nullptr) {}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> BasicMultiColRootNode::GetNodeIcon() {
  return nullptr;
}

void BasicMultiColRootNode::GetCellText(unsigned int const& /*inAttribute*/,
                                        lumcore::UTF16String& outText) const {
  outText.clear();
}

bool BasicMultiColRootNode::CanExpand() const {
  return !GetChildren().empty();
}

bool BasicMultiColRootNode::CanCollapse() const {
  return !GetChildren().empty();
}

BasicMultiColumnListBase::BasicMultiColumnListBase(trackview::TrackView* inTrackView,
                                                   bool inHasIcons, bool inIsSingleSelect,
                                                   bool inAllowsDragOut, bool inHideRoot)
    : TreeListControlBase(inTrackView, inHideRoot, 0, inIsSingleSelect, inAllowsDragOut),
      mHasIcons(inHasIcons),
      mJunction(new BasicMultiColListSelJunction(this)),
      mManager(new ListManager(mJunction)) {
  SetRootEntry(new BasicMultiColRootNode);
  mManager->GetSelectionChangeNotifier()->AddListener(this);
}

BasicMultiColumnListBase::~BasicMultiColumnListBase() {
  mManager->GetSelectionChangeNotifier()->RemoveListener(this);
  mManager->DeselectAll();
  mJunction->ForgetControl();
}

void BasicMultiColumnListBase::InsertEntry(HierarchyEntryBase* inParent,
                                           boost::intrusive_ptr<HierarchyEntryBase> const& inEntry,
                                           bool inResort) {
  HierarchyEntryBase* const parent = inParent ? inParent : GetRootEntry();
  LUM_INPUT_CONTRACT(inEntry && !inEntry->GetParent() && parent);
  inEntry->SetParent(parent);
  parent->AddChild(inEntry, inResort);
}

void BasicMultiColumnListBase::TakeOutEntry(HierarchyEntryBase* inEntry) {
  LUM_INPUT_CONTRACT(inEntry && inEntry->GetParent());
  const auto held = HoldEntry(inEntry);
  Forget(inEntry);
  RemoveEntry(inEntry);
  inEntry->SetParent(nullptr);
}

void BasicMultiColumnListBase::TakeOutAllEntries() {
  if (!GetRootEntry()) return;
  const HierarchyEntryBase::List children = GetRootEntry()->GetChildren();
  mManager->DeselectAll();
  SetFocusItem(nullptr, true);
  SetDragFeedback(nullptr, false);
  ClearRootEntry();
  for (auto const& child : children)
    child->SetParent(nullptr);
}

// Everything that refers to the entry or to what is below it lets go.
void BasicMultiColumnListBase::Forget(HierarchyEntryBase* inEntry) {
  std::list<Node*> leaving;
  ForEachEntry(inEntry, [&](HierarchyEntryBase* inLeaving) {
    Node* const node = inLeaving->GetDataAsSelNode();
    if (node && mManager->Selected(node)) leaving.push_back(node);
  });
  if (!leaving.empty()) mManager->ToggleSelectables(leaving, selection::eSendMessages);
  if (IsWithin(GetFocusItem(), inEntry)) SetFocusItem(nullptr, true);
  if (IsWithin(GetDragFeedbackEntry(), inEntry)) SetDragFeedback(nullptr, false);
}

TreeControlBase::EntryList BasicMultiColumnListBase::GetSelectedEntries() const {
  EntryList entries;
  if (mManager->SelectedSelectables().empty()) return entries;
  ForEachEntry(GetRootEntry(), [&](HierarchyEntryBase* inEntry) {
    if (inEntry->Selected(mManager.get())) entries.push_back(inEntry);
  });
  return entries;
}

void BasicMultiColumnListBase::RevealEntry(HierarchyEntryBase* inEntry) {
  bool opens = false;
  for (HierarchyEntryBase* above = inEntry->GetParent(); above; above = above->GetParent()) {
    if (above->GetNodeState() != kNodeCollapsed) continue;
    ExpandNode(above, false);
    opens = true;
  }
  if (opens) ResizeHierarchy();
  RevealIfNotVisible(inEntry);
}

void BasicMultiColumnListBase::SetHasIcons(bool inHasIcons) {
  mHasIcons = inHasIcons;
  LayOutRows();
}

void BasicMultiColumnListBase::SetIsFlatList(bool inIsFlat) {
  mIsFlatList = inIsFlat;
  LayOutRows();
}

void BasicMultiColumnListBase::LayOutRows() {
  if (GetGeometry()) BuildHierarchy();
  GetTrackView()->GetPlatformView().InvalidateDataRect(GetTrackView()->DataArea());
}

// The view has got the keyboard: the list's selection is the active one from now on.
void BasicMultiColumnListBase::DoViewActivation() {
  selection::SetActiveManager(mManager.get());
}

HierarchyEntryBase* BasicMultiColumnListBase::FindEntryAt(const Point& inDataPoint) {
  if (!GetGeometry() || !(inDataPoint.y >= 0)) return nullptr;
  return *GetGeometry()->FindEntry(inDataPoint);
}

bool BasicMultiColumnListBase::DoDoubleClick(trackview::Modifiers /*inModifiers*/,
                                             const Point& inDataPoint) {
  HierarchyEntryBase* const entry = FindEntryAt(inDataPoint);
  if (!entry) return false;
  const auto row = GetGeometry()->FindEntry(inDataPoint);
  const std::auto_ptr<TreeRowGeometry> layout = GetEntryGeometry(row);
  // On the twisty both clicks count as clicks.
  if (layout->GetNodeExpansionArea().Contains(inDataPoint) ||
      !layout->PointInSelectArea(inDataPoint))
    return false;
  const bool isOpen = entry->GetNodeState() != kNodeCollapsed;
  if (!(isOpen ? CanCollapseNode(entry) : CanExpandNode(entry))) return false;
  isOpen ? CollapseNode(entry, true) : ExpandNode(entry, true);
  return true;
}

int BasicMultiColumnListBase::NumSelectedEntries() {
  return static_cast<int>(mManager->SelectedSelectables().size());
}

// Selected rows are marked from edge to edge.
void BasicMultiColumnListBase::ListenToMessage(const selection::SelectionChangeMessage&) {
  GetTrackView()->GetPlatformView().InvalidateDataRect(GetTrackView()->DataArea());
}

void BasicMultiColumnListBase::DoBuildHierarchy() {}

std::auto_ptr<TreeRowGeometryFactory> BasicMultiColumnListBase::CreateRowGeometryFactory() {
  return std::auto_ptr<TreeRowGeometryFactory>(
      new BasicTreeListRowGeoFactory(this, GetTrackView(), mHasIcons, mIsFlatList));
}

void BasicMultiColumnListBase::DoDeselectAll() {
  mManager->DeselectAll();
}

void BasicMultiColumnListBase::DoSelectEntry(HierarchyEntryBase* inEntry, bool inExtend) {
  Node* const node = GetSelectable(inEntry);
  if (!node) return;
  const auto held = HoldEntry(inEntry);
  mJunction->Note(inEntry);
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

void BasicMultiColumnListBase::DoToggleEntrySelectionState(EntryList& ioEntries) {
  std::list<Node*> nodes;
  for (HierarchyEntryBase* const entry : ioEntries) {
    Node* const node = GetSelectable(entry);
    if (!node) continue;
    mJunction->Note(entry);
    nodes.push_back(node);
  }
  mManager->ToggleSelectables(nodes, selection::eSendMessages);
}

}  // namespace vek::hierarchyview
