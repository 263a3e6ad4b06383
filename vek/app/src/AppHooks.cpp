// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// What the hooks of AppBase do where the host says nothing else.

#include <memory>

#include "lumcore/debug/Contract.h"
#include "lumcore/filesupport/Dir.h"
#include "lumcore/proplist/Utils.h"
#include "lumcore/utility/MemoryTracker.h"
#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/Parser.h"
#include "lumui/sharedui/LUMAboutDlog.h"
#include "lumui/ui/KeyframeThemeEditor.h"
#include "lumui/ui/KeyframeThemeParser.h"
#include "lumui/utility/DrawbotImageResourceCache.h"
#include "lumui/utility/ResourceManager.h"
#include "lumworkspace/workspace/BuiltInWorkspaceProviderBase.h"
#include "lumworkspace/workspace/ManagerBase.h"
#include "lumworkspace/workspace/PlatformMenuHelperBase.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "vek/app/AppBase.h"
#include "vek/app/src/Owned.h"
#include "vek/utility/VekResources.h"
#include "vek/workspace/Workspace.h"

namespace vek::app {

using lumcore::UTF16String;
using lumcore::proplist::PropList;
using lumcore::utility::ToUTF16;

namespace {

// Colours with a fixed place in the theme, kinds of text, and the font scheme at the start.
constexpr int kThemeColors = 385;
constexpr int kThemeTexts = 3;
constexpr int kThemeFontScheme = 1;

constexpr const char* kPrivateSettingsKey = "__vEkPrivateData__";
constexpr const char* kLastWorkspaceKey = "sLastSetWorkspace";

}  // namespace

lumcore::utility::MemoryTracker* AppBase::InitMemoryTracker(AppInitArgs&) {
  return nullptr;
}

lumworkspace::workspace::Workspace* AppBase::InitWorkspace(AppInitArgs&) {
  return new workspace::Workspace(nullptr);
}

void AppBase::TerminateWorkspace() {
  Delete(mWorkspace);
}

void AppBase::InitWorkspaceManagerMenu() {
  if (!mWorkspaceManager) return;
  if (mMenuHelper) mWorkspaceManager->RemoveMenuHelper(mMenuHelper);
  Replace(mMenuHelper, InitWorkspaceMenuHelper(*mWorkspaceManager));
  if (mMenuHelper) mWorkspaceManager->AddMenuHelper(mMenuHelper);
}

void AppBase::InitModules() {}

void AppBase::InitPreferences() {}

void AppBase::InitDrawing() {}

void AppBase::TerminateDrawing() {}

// Later documents add to earlier ones: their colours have other numbers.
void AppBase::LoadDefaultTheme(AppInitArgs& inArgs) {
  const float brightness = lumui::ui::GetDefaultBrightness();
  InitThemeEditorFromResource(ToUTF16("LUMColorThemesV2"), brightness, true);
  InitThemeEditorFromResource(ToUTF16("LUMColorThemesV4"), brightness, true);
  InitThemeEditorFromResource(
      ToUTF16(inArgs.designAppTheme ? "DesignAppColorThemesV5" : "LUMColorThemesV5"), brightness,
      true);
}

lumui::ui::KeyframeThemeEditor* AppBase::InitThemeEditor(AppInitArgs&) {
  return new lumui::ui::KeyframeThemeEditor(kThemeColors, kThemeTexts, kThemeFontScheme);
}

void AppBase::InitThemeEditorFromResource(const UTF16String& inName, float inBrightness,
                                          bool inFromVekResources) {
  const lumui::utility::ResourceManager* const resources =
      inFromVekResources ? utility::GetResourceManager() : GetAppResourceManager();
  LUM_INPUT_CONTRACT(resources != nullptr);
  const auto bytes = resources->GetRequiredBinary(inName, "xml");
  const auto theme = lumui::ui::Theme::Get();
  LUM_INPUT_CONTRACT(theme);
  std::auto_ptr<lumcore::xml::AbstractParseHandler> handler(
      new lumui::ui::KeyframeThemeParser(dynamic_cast<lumui::ui::KeyframeThemeEditor&>(*theme)));
  lumcore::xml::GetParser(handler)->Parse(lumcore::UTF8String(bytes.begin(), bytes.end()), inName);
  lumui::ui::Theme::SetBrightness(inBrightness);
  lumui::ui::Theme::NotifyThemeChanged();
}

lumui::utility::ResourceManager* AppBase::InitResourceManager(AppInitArgs& inArgs) {
  return new lumui::utility::ResourceManager(inArgs.resourceInstance);
}

lumui::utility::DrawbotImageResourceCache* AppBase::InitImageCache(AppInitArgs&) {
  return new lumui::utility::DrawbotImageResourceCache;
}

lumworkspace::workspace::PlatformMenuHelperBase* AppBase::InitWorkspaceMenuHelper(
    lumworkspace::workspace::ManagerBase&) {
  return nullptr;
}

lumworkspace::workspace::ManagerBase* AppBase::InitWorkspaceManager() {
  return nullptr;
}

lumworkspace::workspace::BuiltInWorkspaceProviderBase* AppBase::InitWorkspaceProvider() {
  return nullptr;
}

boost::intrusive_ptr<lumui::sharedui::LUMAboutDlog> AppBase::GetNewSplashScreen() {
  return nullptr;
}

void AppBase::TerminateApplication() {}

void AppBase::ApplyDefaultWorkspace() {
  if (!mWorkspaceManager) return;
  mWorkspaceManager->ApplyDefaultMainWindowSize();
  if (!mSaveRestoreLastWorkspace) return;
  UTF16String name = GetVekPrivateSettings().Get(kLastWorkspaceKey, UTF16String());
  if (!name.empty() && !mWorkspaceManager->HasNamedWorkspace(name)) name.clear();
  if (name.empty()) name = GetDefaultWorkspaceName();
  if (!name.empty() && mWorkspaceManager->HasNamedWorkspace(name)) {
    mWorkspaceManager->SetCurrentWorkspace(name);
  }
}

void AppBase::SaveDefaultWorkSpace() {
  if (mWorkspaceSaved) return;
  if (mWorkspaceManager) {
    const auto* const window = mWorkspace ? mWorkspace->GetMainTopLevelWindow() : nullptr;
    if (mWorkspaceManager->HasCurrentWorkspace() && window && window->UI_GetHandle()) {
      const UTF16String name = mWorkspaceManager->GetCurrentWorkspace();
      mWorkspaceManager->SaveWorkspace(name);
      if (mSaveRestoreLastWorkspace) GetVekPrivateSettings().Set(kLastWorkspaceKey, name);
    }
    mWorkspaceManager->WillQuit();
  }
  mWorkspaceSaved = true;
}

void AppBase::RegisterApplicationCommands() {}

bool AppBase::DoAppCanQuit() {
  return true;
}

void AppBase::DoAppActiveStateChanged(bool inActive) {
  GetAppActivationNotifier().BroadcastMessage(AppActivationMessage(
      inActive ? AppActivationMessage::kActivated : AppActivationMessage::kDeactivated));
}

void AppBase::MenubarCreateHook(HMENU) {}

lumcore::filesupport::File AppBase::GetSettingsFile() const {
  return lumcore::filesupport::File(lumcore::filesupport::Dir::PrefDir(),
                                    lumcore::utility::ToStdString(GetAppSettingsFileName()));
}

void AppBase::LoadAppSettings() {
  const auto file = GetSettingsFile();
  if (file.Exists()) lumcore::proplist::utils::LoadPropList(file, mSettings, false);
}

void AppBase::SaveAppSettings() {
  // The file is made and filled in one step: an empty one, left by a crash between two steps, would
  // keep the application from starting.
  const auto file = GetSettingsFile();
  if (!file.Exists()) file.Parent().Create();
  lumcore::proplist::utils::SavePropList(file, mSettings);
}

bool AppBase::UseCustomPrefsDir() const {
  return false;
}

UTF16String AppBase::GetAppPrefsDir() {
  return {};
}

void AppBase::DoIdle() {}

bool AppBase::DoPreEventProcessing(const lumui::ui::OS_Event&) {
  return true;
}

void AppBase::DoPostEventProcessing(const lumui::ui::OS_Event&) {}

UTF16String AppBase::GetAppSettingsFileName() const {
  return ToUTF16("AppPrefs.xml");
}

UTF16String AppBase::GetDefaultWorkspaceName() const {
  return {};
}

void AppBase::DoBeforeMenuPopup(HMENU) {}

PropList& AppBase::GetVekPrivateSettings() {
  return GetOrCreateSubList(kPrivateSettingsKey, &mSettings);
}

PropList& AppBase::GetOrCreateSubList(lumcore::proplist::Key inKey, PropList* inParent) {
  PropList* const list = inParent->GetSubList(inKey);
  return list ? *list : inParent->CreateSubList(inKey);
}

}  // namespace vek::app
