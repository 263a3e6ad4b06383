// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/workspace/Workspace.h"

#include <algorithm>
#include <utility>

#include "docking/Docking.h"
#include "layout/LayoutFile.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/proplist/PropList.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/OS_Frame.h"
#include "lumworkspace/workspace/TopLevelWindow.h"

namespace lumworkspace::workspace {

using lumui::ui::OSEventFunction;
using lumui::ui::UI_Node;

Workspace::Workspace(lumui::drawbot::SupplierInterface* inSupplier)
    : mSupplier(inSupplier), mDocking(std::make_unique<docking::Docking>(*this)) {}

// Panels may ask their workspace while they go, and find it whole. Whoever else holds a window
// keeps the node, and it has no native part any more.
Workspace::~Workspace() {
  mDocking->LetGoAll();
  const auto windows = std::exchange(mWindows, {});
  for (const auto& window : windows)
    window->UI_DestroyWindow();
}

bool Workspace::ChildRequestRemove(boost::intrusive_ptr<UI_Node> inChild) {
  const auto child = std::find(mWindows.begin(), mWindows.end(), inChild);
  if (child == mWindows.end()) return false;
  const boost::intrusive_ptr<TopLevelWindow> window = *child;
  mDocking->WindowGoes(*window);
  const auto still = std::find(mWindows.begin(), mWindows.end(), window);
  if (still == mWindows.end()) return true;
  mWindows.erase(still);
  window->UI_DestroyWindow();
  return true;
}

void Workspace::CreateMainTopLevelWindow(OSEventFunction inEventFunction) {
  LUM_INPUT_CONTRACT(GetMainTopLevelWindow() == nullptr);
  const boost::intrusive_ptr<TopLevelWindow> window(
      new TopLevelWindow(this, true, inEventFunction));
  window->ConstructWindow(nullptr);
  AddChild(window);
}

boost::intrusive_ptr<TopLevelWindow> Workspace::CreateTopLevelWindow(
    bool inIsMain, const lumcore::geom::RectT<int>* inRect) {
  const boost::intrusive_ptr<TopLevelWindow> window(new TopLevelWindow(this, inIsMain, nullptr));
  window->ConstructWindow(inRect);
  return window;
}

void Workspace::AddChild(const boost::intrusive_ptr<TopLevelWindow>& inWindow) {
  LUM_INPUT_CONTRACT(inWindow && inWindow->GetWorkspace() == this);
  mWindows.push_back(inWindow);
}

TopLevelWindow* Workspace::GetMainTopLevelWindow() const {
  const auto main = std::find_if(mWindows.begin(), mWindows.end(),
                                 [](const auto& inWindow) { return inWindow->IsMain(); });
  return main == mWindows.end() ? nullptr : main->get();
}

void Workspace::RegisterTabCreator(TabCreator* inCreator) {
  LUM_INPUT_CONTRACT(inCreator != nullptr);
  mDocking->Register(std::unique_ptr<TabCreator>(inCreator));
}

TabCreator* Workspace::FindTabCreator(const lumcore::UTF8String& inTabType) const {
  return mDocking->FindCreator(inTabType);
}

std::vector<lumcore::UTF8String> Workspace::GetTabTypes() const {
  return mDocking->GetTypes();
}

TabPanel* Workspace::OpenTab(const lumcore::UTF8String& inTabType, const TabPlace* inPlace) {
  return mDocking->Open(inTabType, inPlace);
}

TabPanel* Workspace::FindTab(const lumcore::UTF8String& inTabType) const {
  return mDocking->Find(inTabType);
}

bool Workspace::CloseTab(const lumcore::UTF8String& inTabType) {
  return mDocking->Close(inTabType);
}

bool Workspace::ActivateTab(const lumcore::UTF8String& inTabType) {
  return mDocking->Activate(inTabType);
}

bool Workspace::FloatTab(const lumcore::UTF8String& inTabType, bool inFloating) {
  return mDocking->SetFloating(inTabType, inFloating, nullptr);
}

void Workspace::ForEachTabPanel(const std::function<void(TabPanel&)>& inFunction) const {
  mDocking->ForEachPanel(inFunction);
}

lumcore::proplist::PropList Workspace::GetLayout() const {
  return layout::ToPropList(mDocking->Capture());
}

void Workspace::SetLayout(const lumcore::proplist::PropList& inLayout,
                          const lumcore::UTF16String& inName) {
  mDocking->Replace(layout::FromPropList(inLayout, inName));
}

lumui::drawbot::SupplierInterface* Workspace::UI_GetDrawSupplier() const {
  return mSupplier ? mSupplier : lumui::drawbot::GetDefaultSupplier();
}

void OS_Workspace::AttachToClientApp(Workspace& ioWorkspace, HINSTANCE, HINSTANCE, HWND inWindow,
                                     OSEventFunction inEventFunction, int) {
  lumui::ui::OS_Frame::Description frame;
  LUM_INPUT_CONTRACT(lumui::ui::OS_Frame::GetDescription(inWindow, frame));
  const lumcore::utility::StScopedValue<HWND> attached(ioWorkspace.mClientFrame, inWindow);
  ioWorkspace.CreateMainTopLevelWindow(inEventFunction);
}

}  // namespace lumworkspace::workspace
