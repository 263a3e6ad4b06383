// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/UIShellTrackViewBase.h"

#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/Theme.h"
#include "vek/hierarchyview/BasicTreeRowGeometry.h"
#include "vek/hierarchyview/HoldEntry.h"
#include "vek/hierarchyview/TreeGeometry.h"
#include "vek/sharedui/UIShellEntries.h"
#include "vek/trackview/PlatformView.h"
#include "vek/trackview/TrackView.h"
#include "vek/utility/VekResources.h"

namespace vek::sharedui {

using hierarchyview::HierarchyEntryBase;
using selection::Manager;
using selection::Node;

namespace {

constexpr unsigned short kIndent = 16;   // units
constexpr float kRowHeight = 19.0f;      // units
constexpr float kLightFamily = 0.5001f;  // the brightness from which grounds are light

// Whoever holds it when the tree is gone finds it empty.
class ShellManager : public Manager {
 public:
  explicit ShellManager(boost::shared_ptr<UIShellSelectionJunction> const& inJunction)
      : Manager(inJunction.get()), mJunction(inJunction) {}

 private:
  boost::shared_ptr<UIShellSelectionJunction> mJunction;
};

Node* GetSelectable(HierarchyEntryBase const* inEntry) {
  Node* const node = inEntry ? inEntry->GetDataAsSelNode() : nullptr;
  return node && node->Selectable() ? node : nullptr;
}

bool IsBelow(HierarchyEntryBase const* inEntry, HierarchyEntryBase const* inTop) {
  if (!inEntry) return false;
  do {
    inEntry = inEntry->GetParent();
  } while (inEntry && inEntry != inTop);
  return inEntry != nullptr;
}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetTwisty(
    lumui::drawbot::SupplierInterface const& inSupplier, std::string const& inName) {
  const bool isDark = lumui::ui::Theme::GetBrightness() < kLightFamily;
  return utility::GetLibraryImage(inSupplier,
                                  lumcore::utility::ToUTF8(isDark ? inName + "MAC" : inName));
}

}  // namespace

UIShellTrackViewBase::UIShellTrackViewBase(trackview::TrackView* inTrackView, bool inIsSingleSelect,
                                           bool inAllowsDragOut)
    : TreeControlBase(inTrackView, false, kIndent, inIsSingleSelect, inAllowsDragOut) {
  mJunction.reset(new UIShellSelectionJunction(this));
  mManager.reset(new ShellManager(mJunction));
  mManager->GetSelectionChangeNotifier()->AddListener(this);
  SetShowIfInactiveSelMgr(true);
}

UIShellTrackViewBase::~UIShellTrackViewBase() {
  mManager->GetSelectionChangeNotifier()->RemoveListener(this);
  mManager->DeselectAll();
  mJunction->ForgetTree();
}

void UIShellTrackViewBase::SelectRoot() {
  if (!GetRootEntry()) BuildHierarchy();
  SelectEntry(GetRootEntry(), false);
}

UIShellHierarchyEntryBase* UIShellTrackViewBase::GetSelectedEntry() const {
  const std::list<Node*> selected = mManager->SelectedSelectables();
  if (selected.empty()) return nullptr;
  // Only several have to be put in order.
  const std::list<Node*> all = selected.size() > 1 ? mJunction->AllSelectables() : selected;
  for (Node* const node : all) {
    if (mManager->Selected(node)) return dynamic_cast<UIShellHierarchyEntryBase*>(node);
  }
  return nullptr;
}

bool UIShellTrackViewBase::DoDoubleClick(trackview::Modifiers, const Point& inDataPoint) {
  const auto row = FindRowAt(inDataPoint);
  HierarchyEntryBase* const entry = *row;
  if (!entry || !GetEntryGeometry(row)->PointInSelectArea(inDataPoint)) return false;
  const auto held = hierarchyview::HoldEntry(entry);
  const bool isOpen = entry->GetNodeState() != hierarchyview::kNodeCollapsed;
  if (!(isOpen ? CanCollapseNode(entry) : CanExpandNode(entry))) return false;
  isOpen ? CollapseNode(entry, true) : ExpandNode(entry, true);
  return true;
}

int UIShellTrackViewBase::NumSelectedEntries() {
  return static_cast<int>(mManager->SelectedSelectables().size());
}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> UIShellTrackViewBase::GetExpandedTwisty() {
  return GetTwisty(GetImageSupplier(), "UIShell_Expand");
}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> UIShellTrackViewBase::GetUnExpandedTwisty() {
  return GetTwisty(GetImageSupplier(), "UIShell_Collapse");
}

lumui::drawbot::SupplierInterface const& UIShellTrackViewBase::GetImageSupplier() const {
  lumui::drawbot::SupplierInterface const* const supplier =
      GetTrackView()->GetPlatformView().GetDrawSupplier();
  return supplier ? *supplier : *lumui::drawbot::GetDefaultSupplier();
}

void UIShellTrackViewBase::ForgetBelow(HierarchyEntryBase* inEntry) {
  std::list<Node*> leaving;
  for (Node* const node : mManager->SelectedSelectables()) {
    if (IsBelow(dynamic_cast<HierarchyEntryBase*>(node), inEntry)) leaving.push_back(node);
  }
  mManager->ToggleSelectables(leaving, selection::eSendMessages);
  if (IsBelow(GetFocusItem(), inEntry)) SetFocusItem(nullptr, true);
  if (IsBelow(GetDragFeedbackEntry(), inEntry)) SetDragFeedback(nullptr, false);
}

std::auto_ptr<hierarchyview::HierarchyGeometry> UIShellTrackViewBase::CreateGeometry() {
  return std::auto_ptr<hierarchyview::HierarchyGeometry>(
      new hierarchyview::TreeGeometry(this, kIndent, GetHideRoot(), kRowHeight));
}

std::auto_ptr<hierarchyview::TreeRowGeometryFactory>
UIShellTrackViewBase::CreateRowGeometryFactory() {
  return std::auto_ptr<hierarchyview::TreeRowGeometryFactory>(
      new hierarchyview::BasicTreeRowGeoFactory(this, GetTrackView(), true));
}

void UIShellTrackViewBase::DoDeselectAll() {
  mManager->DeselectAll();
}

void UIShellTrackViewBase::DoSelectEntry(HierarchyEntryBase* inEntry, bool inExtend) {
  Node* const node = GetSelectable(inEntry);
  if (!node) return;
  const auto held = hierarchyview::HoldEntry(inEntry);
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

void UIShellTrackViewBase::DoToggleEntrySelectionState(EntryList& ioEntries) {
  std::list<Node*> nodes;
  for (HierarchyEntryBase const* const entry : ioEntries) {
    if (Node* const node = GetSelectable(entry)) nodes.push_back(node);
  }
  mManager->ToggleSelectables(nodes, selection::eSendMessages);
}

// Selected rows are marked from edge to edge.
void UIShellTrackViewBase::ListenToMessage(const selection::SelectionChangeMessage&) {
  GetTrackView()->GetPlatformView().InvalidateDataRect(GetTrackView()->DataArea());
}

}  // namespace vek::sharedui
