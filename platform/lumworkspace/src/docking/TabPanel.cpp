// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/workspace/TabPanel.h"

#include "docking/Docking.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/debug/Contract.h"
#include "lumui/utility/OS_Menu.h"
#include "lumworkspace/workspace/TabCreator.h"
#include "lumworkspace/workspace/Workspace.h"
#include "lumworkspace/workspace/WorkspaceFrameBase.h"

namespace lumworkspace::workspace {

namespace {

constexpr unsigned kToggleFloating = TabPanel::kFirstOwnFlyoutCommand;
constexpr unsigned kClose = TabPanel::kFirstOwnFlyoutCommand + 1;
constexpr int kLeastSize = 60;

lumcore::UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

}  // namespace

TabPanel::TabPanel(Workspace* inWorkspace, WorkspaceFrameBase* inFrame,
                   const lumcore::UTF16String& inTitle, const lumcore::UTF8String& inTabType,
                   lumui::ui::OSEventFunction inEventFunction, bool inHasFlyoutMenu)
    : mWorkspace(inWorkspace),
      mFrame(inFrame),
      mTitle(inTitle),
      mTabType(inTabType),
      mEventFunction(inEventFunction),
      mHasFlyoutMenu(inHasFlyoutMenu) {}

TabPanel::~TabPanel() = default;

void TabPanel::SetTitle(const lumcore::UTF16String& inTitle) {
  mTitle = inTitle;
  if (mFrame) mFrame->TitleChanged();
}

bool TabPanel::RunFlyoutMenuCommand(unsigned inCommand) {
  if (inCommand < kFirstOwnFlyoutCommand) return DoFlyoutMenuCommand(inCommand);
  if (!mFrame) return false;
  if (inCommand == kClose) return mWorkspace->CloseTab(mTabType);
  if (inCommand == kToggleFloating) return mWorkspace->FloatTab(mTabType, !mFrame->IsFloating());
  return false;
}

void TabPanel::PopulateFlyoutMenu(lumui::utility::OS_Menu& ioMenu) {
  if (!mFrame) return;
  ioMenu.AppendItem(mFrame->IsFloating()
                        ? Localized("$$$/lumworkspace/Dock/Dock=Move to Main Window")
                        : Localized("$$$/lumworkspace/Dock/Float=Move to Own Window"),
                    kToggleFloating);
  const TabCreator* const creator = mWorkspace->FindTabCreator(mTabType);
  ioMenu.AppendItem(Localized("$$$/lumworkspace/Dock/Close=Close Panel"), kClose,
                    !creator || creator->IsClosable());
}

bool TabPanel::DoFlyoutMenuCommand(unsigned) {
  return false;
}

TabCreator::TabCreator(const lumcore::UTF8String& inTabType) : mTabType(inTabType) {
  LUM_INPUT_CONTRACT(!inTabType.empty());
}

TabCreator::~TabCreator() = default;

TabPlace TabCreator::GetDefaultPlace(const Workspace&) const {
  return TabPlace();
}

bool TabCreator::IsClosable() const {
  return true;
}

lumcore::geom::PointT<int> TabCreator::GetLeastSize() const {
  return lumcore::geom::PointT<int>(kLeastSize, kLeastSize);
}

}  // namespace lumworkspace::workspace
