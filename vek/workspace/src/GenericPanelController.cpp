// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/workspace/GenericPanelController.h"

#include <algorithm>

#include "lumcore/utility/StringUtils.h"
#include "vek/workspace/GenericPanel.h"

namespace vek::workspace {

using NodeP = boost::intrusive_ptr<lumui::ui::UI_Node>;

GenericPanelController::GenericPanelController(GenericPanel* inPanel) : mPanel(inPanel) {
  if (mPanel) mPanel->mControllers.push_back(this);
}

GenericPanelController::~GenericPanelController() {
  if (!mPanel) return;
  auto& all = mPanel->mControllers;
  all.erase(std::remove(all.begin(), all.end(), this), all.end());
}

void GenericPanelController::ConnectControls() {}

NodeP GenericPanelController::GetControlForID(const lumcore::UTF8String& inID) const {
  return mPanel ? mPanel->GetControlForID(inID) : nullptr;
}

NodeP GenericPanelController::GetControlForID(const char* inID) const {
  return GetControlForID(lumcore::utility::ToUTF8(std::string_view(inID)));
}

NodeP GenericPanelController::CreateCustomNode(const lumcore::UTF16String&) {
  return nullptr;
}

void GenericPanelController::PopulateFlyoutMenu(lumui::utility::OS_Menu&) {}

bool GenericPanelController::DoFlyoutMenuCommand(unsigned) {
  return false;
}

}  // namespace vek::workspace
