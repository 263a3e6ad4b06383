// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "docking/Docking.h"

#include <QApplication>
#include <QCursor>
#include <QPointer>
#include <QWidget>
#include <algorithm>
#include <set>
#include <utility>

#include "docking/DockArea.h"
#include "docking/FramePeer.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumworkspace/workspace/TabPanel.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "lumworkspace/workspace/Workspace.h"

namespace lumworkspace::docking {

namespace {

using layout::Floating;
using layout::Item;
using layout::Layout;
using layout::Rect;
using layout::Tab;
using lumcore::UTF8String;
using workspace::TabPanel;
using workspace::TabPlace;
using workspace::TopLevelWindow;

// A window that a tab gets where nobody says another.
constexpr int kFloatingWidth = 320;
constexpr int kFloatingHeight = 280;
constexpr int kFloatingOffset = 40;

// Where it stands when it is not maximised.
Rect RectOf(const TopLevelWindow& inWindow) {
  const auto rect = inWindow.UI_GetRestoredRect();
  return Rect(static_cast<int>(rect.x), static_cast<int>(rect.y), static_cast<int>(rect.width),
              static_cast<int>(rect.height));
}

DockArea::Roots RootsOf(const Item& inFloatingRoot) {
  DockArea::Roots roots;
  roots[workspace::kDockLeft] = inFloatingRoot;
  return roots;
}

// The keyboard goes back to whom it was taken from by moving docks about.
class StKeepFocus {
 public:
  StKeepFocus() : mFocus(QApplication::focusWidget()) {}
  ~StKeepFocus() {
    if (mFocus && mFocus->isVisible()) mFocus->setFocus(Qt::OtherFocusReason);
  }
  StKeepFocus(const StKeepFocus&) = delete;
  StKeepFocus& operator=(const StKeepFocus&) = delete;

 private:
  QPointer<QWidget> mFocus;
};

}  // namespace

Docking::Docking(workspace::Workspace& inWorkspace) : mWorkspace(inWorkspace) {}

Docking::~Docking() = default;

// Whoever else holds a panel keeps a view without a dock.
void Docking::LetGoAll() {
  const TopLevelWindow* const main = GetMain();
  if (main && main->FindDockArea()) mLayout = Capture();
  mEnding = true;
  while (!mFrames.empty())
    LetGo(UTF8String(mFrames.begin()->first));
  mFloating.clear();
  const auto creators = std::exchange(mCreators, {});
}

void Docking::Register(std::unique_ptr<workspace::TabCreator> inCreator) {
  const UTF8String type = inCreator->GetTabType();
  mCreators[type] = std::move(inCreator);
  // A layout may have been waiting for it.
  const Tab* const tab = FindTab(mLayout, type);
  if (tab && tab->open && !FindFrame(type) && GetMain()) Show(Capture());
}

workspace::TabCreator* Docking::FindCreator(const UTF8String& inType) const {
  const auto found = mCreators.find(inType);
  return found == mCreators.end() ? nullptr : found->second.get();
}

std::vector<UTF8String> Docking::GetTypes() const {
  std::vector<UTF8String> types;
  for (const auto& entry : mCreators)
    types.push_back(entry.first);
  return types;
}

TopLevelWindow* Docking::GetMain() const {
  TopLevelWindow* const main = mEnding ? nullptr : mWorkspace.GetMainTopLevelWindow();
  return main && main->UI_GetHandle() ? main : nullptr;
}

Docking::Frame* Docking::FindFrame(const UTF8String& inType) const {
  const auto found = mFrames.find(inType);
  return found == mFrames.end() ? nullptr : found->second.get();
}

TabPanel* Docking::Find(const UTF8String& inType) const {
  const Frame* const frame = FindFrame(inType);
  return frame ? frame->GetTabPanel() : nullptr;
}

TabPanel* Docking::Open(const UTF8String& inType, const TabPlace* inPlace) {
  const workspace::TabCreator* const creator = FindCreator(inType);
  if (!creator || !GetMain()) return nullptr;
  Layout layout = Capture();
  Tab* const tab = FindTab(layout, inType);
  if (inPlace || !tab) {
    TabPlace place = inPlace ? *inPlace : creator->GetDefaultPlace(mWorkspace);
    if (place.where == TabPlace::kFloating && place.floatingRect.IsEmpty()) {
      const Rect main = RectOf(*GetMain());
      place.floatingRect =
          Rect(main.x + kFloatingOffset, main.y + kFloatingOffset, kFloatingWidth, kFloatingHeight);
    }
    Insert(layout, inType, place);
  } else {
    tab->open = true;
  }
  if (!Find(inType) || inPlace) Show(layout);
  Activate(inType);
  return Find(inType);
}

bool Docking::Close(const UTF8String& inType) {
  if (!FindFrame(inType)) return false;
  mLayout = Capture();
  if (Tab* const tab = FindTab(mLayout, inType)) tab->open = false;
  LetGo(inType);
  // Its window goes with its last tab.
  for (std::size_t i = 0; i < mFloating.size(); ++i) {
    const WindowP window = mFloating[i].window;
    if (!window || IsShown(mLayout.floating[i].root)) continue;
    mFloating[i].window = nullptr;
    mWorkspace.ChildRequestRemove(window);
  }
  TitlesChanged();
  return true;
}

bool Docking::Activate(const UTF8String& inType) {
  Frame* const frame = FindFrame(inType);
  auto* const area = frame ? dynamic_cast<DockArea*>(frame->UI_GetParentNode()) : nullptr;
  if (!area) return false;
  area->BringToFront(*frame);
  if (Item* const group = FindGroup(mLayout, inType)) group->current = inType;
  TitlesChanged();
  return true;
}

void Docking::ForEachPanel(const std::function<void(TabPanel&)>& inFunction) const {
  const Frames frames = mFrames;
  for (const auto& entry : frames) {
    const boost::intrusive_ptr<TabPanel> panel = entry.second->GetTabPanel();
    if (panel && panel->GetFrame()) inFunction(*panel);
  }
}

// Wanted, and nobody makes it.
bool Docking::IsMissing(const UTF8String& inType) const {
  return !FindFrame(inType);
}

bool Docking::IsShown(const Item& inItem) const {
  return ForEachTab(inItem, [&](const Tab& inTab) { return inTab.open && FindFrame(inTab.type); });
}

Docking::FrameP Docking::MakeFrame(const UTF8String& inType) {
  const workspace::TabCreator* const creator = FindCreator(inType);
  if (!creator) return nullptr;
  const FrameP frame(new Frame(*this, inType, creator->IsClosable(), creator->GetLeastSize()));
  const boost::intrusive_ptr<TabPanel> panel =
      const_cast<workspace::TabCreator*>(creator)->CreateTabPanel(&mWorkspace, frame.get());
  if (!panel) return nullptr;
  LUM_INPUT_CONTRACT(panel->GetTabType() == inType);
  frame->UI_AddChild(panel);
  return frame;
}

Docking::Frames Docking::MakeMissingFrames(const Layout& inLayout) {
  Frames made;
  Layout layout = inLayout;
  ForEachGroup(layout, [&](Item& ioGroup) {
    for (const Tab& tab : ioGroup.tabs) {
      if (!tab.open || FindFrame(tab.type)) continue;
      if (const FrameP frame = MakeFrame(tab.type)) made[tab.type] = frame;
    }
    return false;
  });
  return made;
}

void Docking::LetGo(const UTF8String& inType) {
  const auto found = mFrames.find(inType);
  const FrameP frame = found->second;
  mFrames.erase(found);
  frame->mDocking = nullptr;
  if (const boost::intrusive_ptr<TabPanel> panel = frame->GetTabPanel()) {
    panel->mFrame = nullptr;
    frame->UI_RemoveChild(panel.get());
  }
  if (auto* const parent = frame->UI_GetParentNode()) parent->UI_RemoveChild(frame.get());
}

// Changes nothing: who looks at a layout takes no change of the user from whoever looks next.
Layout Docking::Capture() const {
  TopLevelWindow* const main = GetMain();
  if (!main || mShowing) return mLayout;
  Layout now = mLayout;
  const Rect rect = RectOf(*main);
  if (rect != mMainPlaced || now.mainWindow.IsEmpty()) now.mainWindow = rect;
  now.mainMaximized = main->UI_IsMaximized();
  DockArea& area = main->GetDockArea();
  if (area.IsEdited()) {
    now.areas = area.Capture();
    const auto& space = area.UI_GetLocalRectF();
    now.width = static_cast<int>(space.width);
    now.height = static_cast<int>(space.height);
  } else {
    for (Item& root : now.areas)
      area.CaptureTabs(root);
  }
  for (std::size_t i = 0; i < mFloating.size(); ++i) {
    const TopLevelWindow* const window = mFloating[i].window.get();
    if (!window) continue;
    const Rect placed = RectOf(*window);
    if (placed != mFloating[i].placed) now.floating[i].rect = placed;
    now.floating[i].maximized = window->UI_IsMaximized();
    const DockArea& each = window->GetDockArea();
    if (each.IsEdited()) {
      now.floating[i].root = each.Capture()[workspace::kDockLeft];
    } else {
      each.CaptureTabs(now.floating[i].root);
    }
  }
  AddMissing(now, mLayout, [&](const UTF8String& inType) { return IsMissing(inType); });
  return now;
}

void Docking::Show(const Layout& inLayout) {
  if (mEnding) return;
  TopLevelWindow* const main = GetMain();
  LUM_INPUT_CONTRACT(main && !mShowing);
  Layout layout = inLayout;
  Normalize(layout);
  Frames made = MakeMissingFrames(layout);
  // From here on nothing of the host's is called that may throw.
  const lumcore::utility::StScopedValue<bool> showing(mShowing, true);
  const StKeepFocus keepFocus;
  mFrames.insert(made.begin(), made.end());
  const Frames before = mFrames;
  for (const auto& entry : before) {
    const Tab* const tab = FindTab(layout, entry.first);
    if (!tab || !tab->open) LetGo(entry.first);
  }
  if (!layout.mainWindow.IsEmpty() && layout.mainWindow != mLayout.mainWindow) {
    main->UI_SetMaximized(false);
    main->MoveTo(layout.mainWindow);
  }
  main->UI_SetMaximized(layout.mainMaximized);
  const auto findFrame = [&](const UTF8String& inType) { return FindFrame(inType); };
  main->GetDockArea().Arrange(layout.areas, layout.width, layout.height, findFrame);
  mMainPlaced = RectOf(*main);
  if (layout.width == 0) {
    layout.width = static_cast<int>(main->GetDockArea().UI_GetLocalRectF().width);
    layout.height = static_cast<int>(main->GetDockArea().UI_GetLocalRectF().height);
  }
  ShowFloating(layout);
  mLayout = std::move(layout);
  TitlesChanged();
}

void Docking::Replace(const Layout& inLayout) {
  Show(inLayout);
  mCameFrom.clear();
}

// Windows that show a tab which stays are kept for it.
void Docking::ShowFloating(Layout& ioLayout) {
  std::vector<FloatingWindow> old = std::exchange(mFloating, {});
  mFloating.resize(ioLayout.floating.size());
  for (std::size_t i = 0; i < mFloating.size(); ++i) {
    const Floating& floating = ioLayout.floating[i];
    if (!IsShown(floating.root)) continue;
    const auto shows = [&](const FloatingWindow& inWindow) {
      return inWindow.window && ForEachTab(floating.root, [&](const Tab& inTab) {
               const Frame* const frame = FindFrame(inTab.type);
               return frame && frame->UI_GetParentNode() == &inWindow.window->GetDockArea();
             });
    };
    const auto found = std::find_if(old.begin(), old.end(), shows);
    WindowP window;
    if (found != old.end()) {
      window = std::exchange(found->window, nullptr);
      if (floating.rect != mLayout.floating[static_cast<std::size_t>(found - old.begin())].rect) {
        window->UI_SetMaximized(false);
        window->MoveTo(floating.rect);
      }
    } else {
      window = MakeFloatingWindow(floating);
    }
    window->GetDockArea().Arrange(RootsOf(floating.root), floating.rect.width, floating.rect.height,
                                  [&](const UTF8String& inType) { return FindFrame(inType); });
    window->UI_SetMaximized(floating.maximized);
    window->UI_Show(true);
    mFloating[i] = FloatingWindow{window, RectOf(*window)};
  }
  for (const FloatingWindow& each : old) {
    if (each.window) mWorkspace.ChildRequestRemove(each.window);
  }
}

Docking::WindowP Docking::MakeFloatingWindow(const Floating& inFloating) {
  const WindowP window = mWorkspace.CreateTopLevelWindow(false, &inFloating.rect);
  mWorkspace.AddChild(window);
  ForEachTab(inFloating.root, [&](const Tab& inTab) {
    const TabPanel* const panel = Find(inTab.type);
    if (!panel || !panel->GetEventFunction()) return false;
    window->UI_SetEventFunction(panel->GetEventFunction());
    return true;
  });
  return window;
}

// A floating window is named after the tabs in front of its groups.
void Docking::TitlesChanged() {
  for (std::size_t i = 0; i < mFloating.size() && i < mLayout.floating.size(); ++i) {
    if (!mFloating[i].window) continue;
    lumcore::UTF16String title;
    ForEachGroup(mLayout.floating[i].root, [&](Item& ioGroup) {
      const Tab* const front =
          FrontTab(ioGroup, [&](const UTF8String& inType) { return Find(inType) != nullptr; });
      if (!front) return false;
      if (!title.empty()) title += lumcore::UTF16String{' ', 0x2013, ' '};
      title += Find(front->type)->GetTitle();
      return false;
    });
    mFloating[i].window->UI_SetTitle(title);
  }
}

bool Docking::SetFloating(const UTF8String& inType, bool inFloating, const Rect* inRect) {
  const Frame* const frame = FindFrame(inType);
  if (!frame || !GetMain()) return false;
  if (frame->IsFloating() == inFloating && !inRect) return true;
  if (inFloating) {
    TabPlace place;
    place.where = TabPlace::kFloating;
    if (inRect) place.floatingRect = *inRect;
    Layout before = Capture();
    if (!frame->IsFloating()) mCameFrom[inType] = std::move(before);
    return Open(inType, &place) != nullptr;
  }
  Layout layout = Capture();
  Remove(layout, inType);
  const auto cameFrom = mCameFrom.find(inType);
  if (cameFrom != mCameFrom.end()) {
    // Of what it stood among only what is still there counts.
    AddMissing(layout, cameFrom->second,
               [&](const UTF8String& inEach) { return inEach == inType; });
  } else {
    TabPlace place = FindCreator(inType)->GetDefaultPlace(mWorkspace);
    if (place.where == TabPlace::kFloating) place = TabPlace();
    Insert(layout, inType, place);
  }
  if (Tab* const tab = FindTab(layout, inType)) tab->open = true;
  Show(layout);
  return Activate(inType);
}

void Docking::ToggleFloating(const UTF8String& inType) {
  if (const Frame* const frame = FindFrame(inType)) {
    SetFloating(inType, !frame->IsFloating(), nullptr);
  }
}

void Docking::MovedByUser(const Frame& inFrame) {
  auto* const area = dynamic_cast<DockArea*>(inFrame.UI_GetParentNode());
  if (!mShowing && area) area->SetEdited(true);
}

// Qt has made the dock a window of its own, and the user may still drag it.
void Docking::LeftByUser(Frame& inFrame) {
  if (mShowing) return;
  MovedByUser(inFrame);
  const UTF8String type = inFrame.GetTabType();
  mDragWatch.WaitForRelease([this, type] { DropDragged(type); });
}

bool Docking::FindDropPlace(const Frame& inFrame, TabPlace& outPlace) const {
  const QPoint point = QCursor::pos();
  const auto& windows = mWorkspace.GetTopLevelWindows();
  // Windows made later lie in front, as far as anybody knows.
  for (auto each = windows.rbegin(); each != windows.rend(); ++each) {
    const DockArea* const area = (*each)->FindDockArea();
    if (!area || area == inFrame.UI_GetParentNode()) continue;
    if (area->GetPlaceAt(point.x(), point.y(), outPlace)) return true;
  }
  return false;
}

void Docking::DropDragged(const UTF8String& inType) {
  const FrameP frame = FindFrame(inType);
  const QDockWidget* const dock = frame ? frame->GetFramePeer().GetDock() : nullptr;
  // Qt itself has docked it meanwhile.
  if (!dock || !dock->isFloating()) return;
  Layout layout = Capture();
  TabPlace place;
  if (!FindDropPlace(*frame, place)) {
    const QRect geometry = dock->geometry();
    place.where = TabPlace::kFloating;
    place.floatingRect = Rect(geometry.x(), geometry.y(), geometry.width(), geometry.height());
    if (!frame->IsFloating()) mCameFrom[inType] = layout;
  }
  // A dock that has been dragged in one window of Qt's cannot be dragged in another: the frame gets
  // a new one there.
  frame->UI_GetParentNode()->UI_RemoveChild(frame.get());
  frame->GetPeer()->Destroy();
  Insert(layout, inType, place);
  Show(layout);
  Activate(inType);
}

void Docking::WindowGoes(TopLevelWindow& inWindow) {
  DockArea* const area = inWindow.FindDockArea();
  if (!area || mShowing) return;
  mLayout = Capture();
  const bool main = inWindow.IsMain();
  for (FloatingWindow& each : mFloating) {
    if (each.window == &inWindow) each.window = nullptr;
  }
  const Frames before = mFrames;
  for (const auto& entry : before) {
    if (entry.second->UI_GetParentNode() != area) continue;
    // Those of the main window are there again when it is.
    Tab* const tab = FindTab(mLayout, entry.first);
    if (tab && !main) tab->open = false;
    LetGo(entry.first);
  }
}

}  // namespace lumworkspace::docking
