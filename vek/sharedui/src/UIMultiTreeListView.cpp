// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/UIMultiTreeListView.h"

#include "lumcore/debug/Contract.h"
#include "lumui/drawbot/Image.h"
#include "vek/hierarchyview/BasicTreeListRowGeometry.h"
#include "vek/hierarchyview/TreeListGeometry.h"
#include "vek/sharedui/UIMultiTreeListController.h"
#include "vek/trackview/PlatformView.h"

namespace vek {

using hierarchyview::HierarchyEntryBase;
using hierarchyview::TreeRowGeometryFactory;
using Rect = trackview::Rect;

namespace {

// A row that is hit from edge to edge.
class FullRow : public hierarchyview::BasicTreeListRowGeometry {
 public:
  using BasicTreeListRowGeometry::BasicTreeListRowGeometry;

  bool PointInSelectArea(lumcore::geom::PointT<float> const& inPoint) const override {
    return inPoint.y >= GetPosition().y && inPoint.y < GetBottom();
  }
  bool RectOverlapsSelectArea(Rect const& inRect) const override {
    return !inRect.IsEmpty() && inRect.y < GetBottom() && GetPosition().y < inRect.Bottom();
  }

 private:
  float GetBottom() const { return GetPosition().y + hierarchyview::TreeListGeometry::kRowHeight; }
};

class FullRowFactory : public TreeRowGeometryFactory {
 public:
  explicit FullRowFactory(UIMultiTreeListView& inView) : mView(inView) {}

  std::auto_ptr<hierarchyview::TreeRowGeometry> ServeRowGeometry(
      HierarchyEntryBase const* inEntry, lumcore::geom::PointT<float> const& inPosition) override {
    return std::auto_ptr<hierarchyview::TreeRowGeometry>(new FullRow(
        &mView, mView.GetTrackView(), inEntry, inPosition, mView.HasIcons(), mView.IsFlatList()));
  }

 private:
  UIMultiTreeListView& mView;
};

template <class Function>
void ForEachNode(UIMultiTreeListNode& inTop, Function const& inFunction) {
  std::vector<HierarchyEntryBase*> waiting(1, &inTop);
  while (!waiting.empty()) {
    HierarchyEntryBase* const entry = waiting.back();
    waiting.pop_back();
    for (const auto& child : entry->GetChildren()) {
      if (child) waiting.push_back(child.get());
    }
    if (auto* const node = dynamic_cast<UIMultiTreeListNode*>(entry)) inFunction(*node);
  }
}

}  // namespace

UIMultiTreeListView::UIMultiTreeListView(trackview::TrackView* inTrackView, bool inIsSingleSelect)
    : BasicMultiColumnListBase(inTrackView, false, inIsSingleSelect),
      mSelf(new UIMultiTreeListView*(this)) {
  // A list in a dialog is seldom the active selection, and looks selected all the same.
  SetShowIfInactiveSelMgr(true);
}

UIMultiTreeListView::~UIMultiTreeListView() {
  *mSelf = nullptr;
}

void UIMultiTreeListView::SetController(UIMultiTreeListController* inController) {
  mController = inController;
  ResizeHierarchy();
}

void UIMultiTreeListView::Attach(NodeP const& inItem, UIMultiTreeListNode* inParent,
                                 bool inResort) {
  LUM_INPUT_CONTRACT(inItem && !inItem->GetView() && !inItem->GetParent());
  LUM_INPUT_CONTRACT(!inParent || inParent->GetView() == this);
  // First, since its place in the order goes by its texts.
  ForEachNode(*inItem, [&](UIMultiTreeListNode& ioNode) { ioNode.mView = mSelf; });
  InsertEntry(inParent, inItem, inResort);
}

void UIMultiTreeListView::InsertItem(NodeP const& inItem, UIMultiTreeListNode* inParent) {
  Attach(inItem, inParent, true);
  ResizeHierarchy();
}

void UIMultiTreeListView::InsertItems(std::vector<NodeP> const& inItems,
                                      UIMultiTreeListNode* inParent) {
  for (const NodeP& item : inItems)
    Attach(item, inParent, false);
  (inParent ? inParent : GetRootEntry())->ResortChildren();
  ResizeHierarchy();
}

void UIMultiTreeListView::Detach(UIMultiTreeListNode* inItem) {
  if (!inItem || inItem->GetView() != this) return;
  const NodeP held(inItem);
  TakeOutEntry(inItem);
  ForEachNode(*inItem, [](UIMultiTreeListNode& ioNode) { ioNode.mView.reset(); });
}

void UIMultiTreeListView::RemoveItem(UIMultiTreeListNode* inItem) {
  Detach(inItem);
  ResizeHierarchy();
}

void UIMultiTreeListView::RemoveItems(std::vector<NodeP> const& inItems) {
  for (const NodeP& item : inItems)
    Detach(item.get());
  ResizeHierarchy();
}

void UIMultiTreeListView::RemoveItems() {
  const HierarchyEntryBase::List items = GetRootEntry()->GetChildren();
  TakeOutAllEntries();
  for (const auto& item : items) {
    if (auto* const node = dynamic_cast<UIMultiTreeListNode*>(item.get()))
      ForEachNode(*node, [](UIMultiTreeListNode& ioNode) { ioNode.mView.reset(); });
  }
  ResizeHierarchy();
}

void UIMultiTreeListView::RevealItemIfNotInView(UIMultiTreeListNode* inItem) {
  if (inItem && inItem->GetView() == this && GetGeometry()) RevealEntry(inItem);
}

void UIMultiTreeListView::SuspendLayout(bool inSuspend) {
  mSuspended += inSuspend ? 1 : -1;
  LUM_INPUT_CONTRACT(mSuspended >= 0);
  if (mSuspended == 0 && mNeedsLayout) ResizeHierarchy();
}

// Who fills a list before it was ever built sees its rows all the same.
void UIMultiTreeListView::ResizeHierarchy() {
  mNeedsLayout = mSuspended > 0;
  if (mNeedsLayout) return;
  if (!GetGeometry()) return BuildHierarchy();
  BasicMultiColumnListBase::ResizeHierarchy();
  GetTrackView()->GetPlatformView().InvalidateDataRect(GetTrackView()->DataArea());
}

void UIMultiTreeListView::SetFullRowSelect(bool inFullRow) {
  mFullRowSelect = inFullRow;
  if (GetGeometry()) BuildHierarchy();
}

UIMultiTreeListNode* UIMultiTreeListView::FindNodeAt(const Point& inDataPoint) {
  return dynamic_cast<UIMultiTreeListNode*>(FindEntryAt(inDataPoint));
}

bool UIMultiTreeListView::DoDoubleClick(trackview::Modifiers inModifiers,
                                        const Point& inDataPoint) {
  const NodeP node(FindNodeAt(inDataPoint));
  if (node && mController && mController->OnDoubleClick(*this, *node)) return true;
  return BasicMultiColumnListBase::DoDoubleClick(inModifiers, inDataPoint);
}

bool UIMultiTreeListView::DoContextMenu(const Point& inLocalPoint, lumui::ui::UI_Node& inNode) {
  if (!mController) return false;
  Point point = inLocalPoint;
  GetTrackView()->LocalToData(point);
  const NodeP node(FindNodeAt(point));
  return mController->OnContextMenu(*this, node.get(), inLocalPoint, inNode);
}

bool UIMultiTreeListView::DoKeyEvent(const lumui::ui::KeyboardEvent& inEvent) {
  if (mController && mController->OnKeyEvent(*this, inEvent)) return true;
  return HandleListKey(inEvent) || BasicMultiColumnListBase::DoKeyEvent(inEvent);
}

void UIMultiTreeListView::DoGainedKeyFocus() {
  if (mController) mController->OnGainedKeyFocus(*this);
}

void UIMultiTreeListView::DoLostKeyFocus() {
  if (mController) mController->OnLostKeyFocus(*this);
}

void UIMultiTreeListView::DoViewPortResized() {
  if (mController) mController->OnSizeChanged(*this);
}

void UIMultiTreeListView::ListenToMessage(const selection::SelectionChangeMessage& inMessage) {
  BasicMultiColumnListBase::ListenToMessage(inMessage);
  if (!mController) return;
  std::list<UIMultiTreeListNode*> selected;
  for (HierarchyEntryBase* const entry : GetSelectedEntries()) {
    if (auto* const node = dynamic_cast<UIMultiTreeListNode*>(entry)) selected.push_back(node);
  }
  mController->OnSelectionChanged(*this, selected);
}

std::auto_ptr<TreeRowGeometryFactory> UIMultiTreeListView::CreateRowGeometryFactory() {
  if (!mFullRowSelect) return BasicMultiColumnListBase::CreateRowGeometryFactory();
  return std::auto_ptr<TreeRowGeometryFactory>(new FullRowFactory(*this));
}

}  // namespace vek
