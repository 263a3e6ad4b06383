// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/workspace/GenericPanelCreatorBase.h"

#include <utility>

#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"
#include "lumworkspace/workspace/TabPanel.h"
#include "vek/workspace/GenericPanelRegistry.h"

namespace vek::workspace {

using lumworkspace::workspace::TabPanel;

GenericPanelCreatorBase::TabCreator::TabCreator(const GenericPanelCreatorBase& inCreator)
    : lumworkspace::workspace::TabCreator(inCreator.GetTabType()), mCreator(&inCreator) {}

GenericPanelCreatorBase::TabCreator::~TabCreator() = default;

boost::intrusive_ptr<TabPanel> GenericPanelCreatorBase::TabCreator::CreateTabPanel(
    lumworkspace::workspace::Workspace* inWorkspace,
    lumworkspace::workspace::WorkspaceFrameBase* inFrame) {
  const lumcore::UTF16String title =
      lumcore::config::Localizer::Get()->GetLocalizedString(mCreator->GetTabTitleKey());
  return mCreator->BuildPanel(inWorkspace, inFrame, title);
}

GenericPanelCreatorBase::GenericPanelCreatorBase(
    const lumcore::UTF8String& inTabType, const char* inTitleKey, int inCommandID,
    lumcore::UTF8String inXmlResourceName,
    boost::function<lumui::utility::ResourceManager*()> inResourceManager)
    : mTabType(inTabType),
      mTitleKey(lumcore::utility::ToUTF8(std::string_view(inTitleKey))),
      mCommandID(inCommandID),
      mXmlResourceName(std::move(inXmlResourceName)),
      mResourceManager(std::move(inResourceManager)) {
  GenericPanelRegistry::GetInstance().RegisterPanelCreator(this);
}

GenericPanelCreatorBase::~GenericPanelCreatorBase() {
  GenericPanelRegistry::GetInstance().UnregisterPanelCreator(this);
}

const char* GenericPanelCreatorBase::GetTabTitleKey() const {
  return reinterpret_cast<const char*>(mTitleKey.c_str());
}

lumui::utility::ResourceManager* GenericPanelCreatorBase::GetResourceManager() const {
  return mResourceManager.empty() ? nullptr : mResourceManager();
}

lumworkspace::workspace::TabCreator* GenericPanelCreatorBase::NewTabCreator() const {
  return new TabCreator(*this);
}

}  // namespace vek::workspace
