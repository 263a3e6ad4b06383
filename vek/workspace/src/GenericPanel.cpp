// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/workspace/GenericPanel.h"

#include <utility>

#include "lumcore/debug/Contract.h"
#include "lumcore/utility/RefCounted.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/skins/core/SkinManager.h"
#include "lumui/skins/core/Utilities.h"
#include "lumui/ui/Theme.h"
#include "lumui/ui/UI_NodeBuilder.h"
#include "lumui/utility/OS_Menu.h"
#include "lumui/utility/ResourceManager.h"
#include "vek/app/App.h"
#include "vek/workspace/Workspace.h"

namespace vek::workspace {

using lumcore::UTF16String;
using lumcore::UTF8String;
using lumcore::geom::RectT;
using lumcore::utility::StKeepAlive;
using lumui::ui::UI_NodeBuilder;
using ControllerP = boost::intrusive_ptr<GenericPanelController>;

GenericPanel::GenericPanel(lumworkspace::workspace::Workspace* inWorkspace,
                           lumworkspace::workspace::WorkspaceFrameBase* inFrame,
                           const UTF16String& inTitle, const UTF8String& inTabType,
                           lumui::ui::OSEventFunction inEventFunction)
    : TabPanel(inWorkspace, inFrame, inTitle, inTabType, inEventFunction, true),
      mResourceManager(nullptr) {}

// The controller first: it may still look at the controls when it goes.
GenericPanel::~GenericPanel() {
  std::exchange(mController, nullptr).reset();
  for (GenericPanelController* each : mControllers)
    each->mPanel = nullptr;
}

void GenericPanel::CreateControls(const UTF8String& inResourceName) {
  if (inResourceName.empty()) return;
  const app::App* const application = app::App::GetApp();
  const lumui::utility::ResourceManager* resourceManager = mResourceManager;
  if (!resourceManager && application) resourceManager = application->GetAppResourceManager();
  // Crash reports of hosts are sorted by these words and this line.
  if (!resourceManager) {
    lumcore::debug::FailInputContract("resourceManager != 0",
                                      "..\\..\\workspace\\src\\GenericPanel",
                                      "vek::workspace::GenericPanel::CreateControls", 86);
  }
  const StKeepAlive keepAlive(*this);
  const UTF16String name = lumcore::utility::ToUTF16(inResourceName);
  std::vector<unsigned char> bytes;
  resourceManager->GetBinary(name, "xml", bytes);
  UI_NodeBuilder builder(UTF8String(bytes.begin(), bytes.end()), name);
  builder.SetResources(resourceManager);
  const auto createCustomNode = [this](const UTF16String& inClassName) {
    return CreateCustomNode(inClassName);
  };
  const auto* const appWorkspace = application ? application->GetWorkspace() : nullptr;
  UI_NodeBuilder::NodeMap controls;
  const NodeP root = builder.Build(appWorkspace ? appWorkspace->UI_GetDrawSupplier() : nullptr,
                                   controls, createCustomNode);
  mControls.swap(controls);
  mHeldControls.clear();
  for (const auto& entry : mControls)
    mHeldControls.push_back(entry.second);
  if (!root) return;
  const RectT<float>& panel = UI_GetLocalRectF();
  const bool hasSize = panel.width > 0 && panel.height > 0;
  const RectT<float>& size = hasSize ? panel : root->UI_GetLocalRectF();
  root->UI_SetLocalRectF(RectT<float>(0, 0, size.width, size.height));
  UI_AddChild(root);
}

void GenericPanel::SetResourceManager(lumui::utility::ResourceManager* inResourceManager) {
  mResourceManager = inResourceManager;
}

void GenericPanel::SetController(ControllerP inController) {
  // Swapped: whatever the old one does when it goes finds the new one in place.
  mController.swap(inController);
}

GenericPanel::NodeP GenericPanel::GetControlForID(const UTF8String& inID) const {
  const auto found = mControls.find(inID);
  return found == mControls.end() ? nullptr : found->second;
}

GenericPanel::NodeP GenericPanel::CreateCustomNode(const UTF16String& inClassName) const {
  const ControllerP controller = mController;
  return controller ? controller->CreateCustomNode(inClassName) : nullptr;
}

void GenericPanel::PopulateFlyoutMenu(lumui::utility::OS_Menu& ioMenu) {
  const StKeepAlive keepAlive(*this);
  TabPanel::PopulateFlyoutMenu(ioMenu);
  const ControllerP controller = mController;
  if (controller) controller->PopulateFlyoutMenu(ioMenu);
}

bool GenericPanel::DoFlyoutMenuCommand(unsigned inCommand) {
  const StKeepAlive keepAlive(*this);
  const ControllerP controller = mController;
  return controller && controller->DoFlyoutMenuCommand(inCommand);
}

void GenericPanel::UI_SizeChanged(const RectT<float>& inRect) {
  TabPanel::UI_SizeChanged(inRect);
  if (lumui::ui::UI_Node* const root = UI_GetChild(0)) root->UI_SetLocalRectF(inRect);
}

void GenericPanel::UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const {
  namespace skins = lumui::skins::core;
  const int ground =
      skins::utilities::GetContentBackgroundColorID(skins::SkinManager::GetDefaultSet());
  const auto theme = lumui::ui::Theme::Get();
  // Without a theme the controls look as the system has them, and so does their ground.
  if (!theme || !theme->HasColor(ground)) return;
  UI_DispatchDrawFromRoot(theme->GetColor(ground), inDrawbot, true);
}

bool GenericPanel::UI_SupportsDrawbot() const {
  return true;
}

}  // namespace vek::workspace
