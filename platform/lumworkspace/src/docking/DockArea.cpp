// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "docking/DockArea.h"

#include <QDockWidget>
#include <QLayout>
#include <QTabBar>
#include <algorithm>
#include <utility>

#include "docking/DockAreaPeer.h"
#include "docking/FramePeer.h"
#include "docking/RectangleCuts.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumworkspace/workspace/TabPanel.h"

namespace lumworkspace::docking {

namespace {

using layout::Item;
using lumcore::UTF8String;
using workspace::TabPlace;
using Kind = Item::Kind;

constexpr Qt::DockWidgetArea kQtAreas[] = {Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea,
                                           Qt::TopDockWidgetArea, Qt::BottomDockWidgetArea};

bool ReachesAcross(std::size_t inArea) {
  return inArea == workspace::kDockLeft || inArea == workspace::kDockRight;
}

Qt::Orientation DirectionOf(const Item& inItem) {
  return inItem.kind == Kind::kRow ? Qt::Horizontal : Qt::Vertical;
}

int Scaled(int inSize, double inFactor) {
  return std::max(1, static_cast<int>(inSize * inFactor + 0.5));
}

}  // namespace

DockArea::DockArea(bool inIsMain, bool inForTouch)
    : UI_SubView(std::make_unique<Peer>(inForTouch)), mIsMain(inIsMain) {
  UI_SetNodeID("DockArea");
}

DockArea::~DockArea() = default;

DockArea::Peer& DockArea::GetAreaPeer() const {
  return static_cast<Peer&>(*GetPeer());
}

void DockArea::SetCentralNode(const boost::intrusive_ptr<UI_Node>& inNode) {
  if (inNode == mCentral) return;
  const boost::intrusive_ptr<UI_Node> old = std::exchange(mCentral, nullptr);
  GetAreaPeer().ShowCentral();
  if (old) UI_RemoveChild(old.get());
  if (!inNode) return;
  UI_InsertChild(inNode, 0);
  mCentral = inNode;
  GetAreaPeer().ShowCentral();
  ApplySizes();
}

std::vector<DockArea::Frame*> DockArea::GetFrames() const {
  std::vector<Frame*> frames;
  for (std::size_t i = 0; i < UI_GetChildCount(); ++i) {
    if (auto* const frame = dynamic_cast<Frame*>(UI_GetChild(i))) frames.push_back(frame);
  }
  return frames;
}

QDockWidget* DockArea::DockOf(const UTF8String& inType) const {
  for (const Frame* const frame : GetFrames()) {
    if (frame->GetTabType() == inType) return frame->GetFramePeer().GetDock();
  }
  return nullptr;
}

QDockWidget* DockArea::FirstDockIn(const Item& inItem) const {
  QDockWidget* first = nullptr;
  ForEachTab(inItem, [&](const layout::Tab& inTab) {
    if (inTab.open) first = DockOf(inTab.type);
    return first != nullptr;
  });
  return first;
}

void DockArea::Arrange(const Roots& inRoots, int inWidth, int inHeight, const FindFrame& inFind) {
  QMainWindow* const main = GetAreaPeer().GetMain();
  if (!main) return;
  const lumcore::utility::StScopedValue<bool> arranging(mArranging, true);
  main->setUpdatesEnabled(false);
  // Out of the layout only: to hide and show each again would take twice the time.
  for (const Frame* const frame : GetFrames()) {
    if (QDockWidget* const dock = frame->GetFramePeer().GetDock())
      main->layout()->removeWidget(dock);
  }
  for (const Item& root : inRoots) {
    ForEachTab(root, [&](const layout::Tab& inTab) {
      Frame* const frame = inTab.open ? inFind(inTab.type) : nullptr;
      if (frame && frame->UI_GetParentNode() != this) UI_AddChild(frame);
      return false;
    });
  }
  mArranged = inRoots;
  mArrangedWidth = inWidth;
  mArrangedHeight = inHeight;
  mEdited = false;
  for (std::size_t i = 0; i < inRoots.size(); ++i) {
    QDockWidget* const first = FirstDockIn(inRoots[i]);
    if (!first) continue;
    main->addDockWidget(kQtAreas[i], first);
    Split(inRoots[i]);
    StackTabs(inRoots[i]);
  }
  for (const Frame* const frame : GetFrames()) {
    frame->GetFramePeer().GetDock()->show();
    frame->GetFramePeer().ShowTitle();
  }
  ApplySizes();
  // Only now, also in a window that is not shown yet, is there a tab for each.
  for (const Item& root : inRoots) {
    Item copy = root;
    ForEachGroup(copy, [&](Item& ioGroup) {
      const layout::Tab* const front =
          FrontTab(ioGroup, [&](const UTF8String& inType) { return IsShown(inType); });
      if (front) DockOf(front->type)->raise();
      return false;
    });
  }
  main->setUpdatesEnabled(true);
}

// Level by level: Qt splits off a single dock, and puts it among the tabs of a group.
void DockArea::Split(const Item& inItem) {
  QDockWidget* before = FirstDockIn(inItem);
  for (const Item& item : inItem.items) {
    QDockWidget* const first = FirstDockIn(item);
    if (!first) continue;
    if (first != before) {
      GetAreaPeer().GetMain()->splitDockWidget(before, first, DirectionOf(inItem));
    }
    before = first;
  }
  for (const Item& item : inItem.items)
    Split(item);
}

void DockArea::StackTabs(const Item& inItem) {
  QDockWidget* before = nullptr;
  for (const layout::Tab& tab : inItem.tabs) {
    QDockWidget* const dock = tab.open ? DockOf(tab.type) : nullptr;
    if (!dock) continue;
    if (before) GetAreaPeer().GetMain()->tabifyDockWidget(before, dock);
    before = dock;
  }
  for (const Item& item : inItem.items)
    StackTabs(item);
}

// What reaches into the window keeps its size as long as there is room; what shares a row or column
// keeps its part of it.
void DockArea::ApplySizes() {
  QMainWindow* const main = GetAreaPeer().GetMain();
  if (!main || main->width() <= 0 || main->height() <= 0) return;
  main->layout()->activate();
  const double x = mArrangedWidth > 0 ? double(main->width()) / mArrangedWidth : 1;
  const double y = mArrangedHeight > 0 ? double(main->height()) / mArrangedHeight : 1;
  for (std::size_t i = 0; i < mArranged.size(); ++i) {
    const Item& root = mArranged[i];
    QDockWidget* const first = FirstDockIn(root);
    if (!first) continue;
    const bool across = ReachesAcross(i);
    // Without a centre it is the one area, and has all there is.
    if (mCentral && root.size > 0) {
      const int size = Scaled(root.size, std::min(1.0, across ? x : y));
      main->resizeDocks({first}, {size}, across ? Qt::Horizontal : Qt::Vertical);
    }
    ApplySizes(root, across && mCentral ? std::min(1.0, x) : x,
               !across && mCentral ? std::min(1.0, y) : y);
  }
  main->layout()->activate();
}

void DockArea::ApplySizes(const Item& inItem, double inFactorX, double inFactorY) {
  QList<QDockWidget*> docks;
  QList<int> sizes;
  for (const Item& item : inItem.items) {
    QDockWidget* const first = FirstDockIn(item);
    if (!first) continue;
    docks << first;
    sizes << Scaled(item.size, inItem.kind == Kind::kRow ? inFactorX : inFactorY);
  }
  if (docks.size() > 1) GetAreaPeer().GetMain()->resizeDocks(docks, sizes, DirectionOf(inItem));
  for (const Item& item : inItem.items)
    ApplySizes(item, inFactorX, inFactorY);
}

void DockArea::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  UI_SubView::UI_SizeChanged(inRect);
  if (!mEdited && !mArranging) ApplySizes();
}

std::vector<DockArea::Group> DockArea::GetGroups() const {
  std::vector<Group> groups;
  std::vector<Frame*> rest;
  for (Frame* const frame : GetFrames()) {
    const QDockWidget* const dock = frame->GetFramePeer().GetDock();
    if (dock && !dock->isFloating() && !dock->isHidden()) rest.push_back(frame);
  }
  const auto take = [&](quintptr inDock) -> Frame* {
    const auto found = std::find_if(rest.begin(), rest.end(), [&](const Frame* inFrame) {
      return reinterpret_cast<quintptr>(inFrame->GetFramePeer().GetDock()) == inDock;
    });
    if (found == rest.end()) return nullptr;
    Frame* const frame = *found;
    rest.erase(found);
    return frame;
  };
  for (const QTabBar* const bar : GetAreaPeer().GetTabBars()) {
    Group group;
    for (int i = 0; i < bar->count(); ++i) {
      const Frame* const frame = take(bar->tabData(i).value<quintptr>());
      if (!frame) continue;
      group.types.push_back(frame->GetTabType());
      if (i == bar->currentIndex() || group.current.empty()) group.current = frame->GetTabType();
    }
    if (!group.types.empty()) groups.push_back(std::move(group));
  }
  for (const Frame* const frame : rest)
    groups.push_back(Group{{frame->GetTabType()}, frame->GetTabType()});
  return groups;
}

DockArea::Group DockArea::GetGroupOf(const Frame& inFrame) const {
  for (Group& group : GetGroups()) {
    const auto& types = group.types;
    if (std::find(types.begin(), types.end(), inFrame.GetTabType()) != types.end()) return group;
  }
  return Group{{inFrame.GetTabType()}, inFrame.GetTabType()};
}

DockArea::Roots DockArea::Capture() const {
  QMainWindow* const main = GetAreaPeer().GetMain();
  std::array<std::vector<PlacedItem>, workspace::kDockAreaCount> placed;
  if (main) main->layout()->activate();
  for (const Group& group : GetGroups()) {
    QDockWidget* const dock = DockOf(group.current);
    const auto area =
        std::find(std::begin(kQtAreas), std::end(kQtAreas), main->dockWidgetArea(dock));
    if (area == std::end(kQtAreas)) continue;
    Item item;
    for (const UTF8String& type : group.types)
      item.tabs.push_back(layout::Tab{type, true});
    item.current = group.current;
    const QRect rect = dock->geometry();
    placed[static_cast<std::size_t>(area - std::begin(kQtAreas))].push_back(
        PlacedItem{layout::Rect(rect.x(), rect.y(), rect.width(), rect.height()), std::move(item)});
  }
  Roots roots;
  for (std::size_t i = 0; i < roots.size(); ++i)
    roots[i] = CutIntoRowsAndColumns(placed[i], ReachesAcross(i));
  return roots;
}

void DockArea::CaptureTabs(Item& ioRoot) const {
  const std::vector<Group> groups = GetGroups();
  ForEachGroup(ioRoot, [&](Item& ioGroup) {
    std::vector<UTF8String> shown;
    for (const layout::Tab& tab : ioGroup.tabs) {
      if (tab.open && IsShown(tab.type)) shown.push_back(tab.type);
    }
    for (const Group& group : groups) {
      if (!std::is_permutation(shown.begin(), shown.end(), group.types.begin(),
                               group.types.end())) {
        continue;
      }
      // The one that shall be in front may not be there at present.
      const layout::Tab* const front =
          FrontTab(ioGroup, [&](const UTF8String& inType) { return IsShown(inType); });
      if (!front || front->type != group.current) ioGroup.current = group.current;
      // The closed ones keep their positions among the others.
      std::size_t next = 0;
      for (layout::Tab& tab : ioGroup.tabs) {
        if (tab.open && IsShown(tab.type)) tab.type = group.types[next++];
      }
    }
    return false;
  });
}

void DockArea::BringToFront(Frame& inFrame) {
  if (QDockWidget* const dock = inFrame.GetFramePeer().GetDock()) dock->raise();
}

bool DockArea::GetPlaceAt(int inX, int inY, TabPlace& outPlace) const {
  const QMainWindow* const main = GetAreaPeer().GetMain();
  if (!main || !main->isVisible()) return false;
  const QPoint point = main->mapFromGlobal(QPoint(inX, inY));
  if (!main->rect().contains(point)) return false;
  for (const Group& group : GetGroups()) {
    const QRect rect = DockOf(group.current)->geometry();
    if (!rect.contains(point)) continue;
    outPlace.besideType = group.current;
    outPlace.where = TabPlace::kTabWith;
    const double x = double(point.x() - rect.x()) / rect.width();
    const double y = double(point.y() - rect.y()) / rect.height();
    // The outer quarters split, the middle takes it among its tabs.
    const double edge = std::min({x, 1 - x, y, 1 - y});
    if (edge > 0.25) return true;
    outPlace.where = edge == x       ? TabPlace::kLeftOf
                     : edge == 1 - x ? TabPlace::kRightOf
                     : edge == y     ? TabPlace::kAbove
                                     : TabPlace::kBelow;
    return true;
  }
  if (!mIsMain) return false;
  const double x = double(point.x()) / main->width();
  const double y = double(point.y()) / main->height();
  const double edge = std::min({x, 1 - x, y, 1 - y});
  if (edge > 0.25) return false;
  outPlace.where = TabPlace::kInArea;
  outPlace.area = edge == x       ? workspace::kDockLeft
                  : edge == 1 - x ? workspace::kDockRight
                  : edge == y     ? workspace::kDockTop
                                  : workspace::kDockBottom;
  return true;
}

}  // namespace lumworkspace::docking
