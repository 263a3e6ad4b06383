// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/app/AppBase.h"

#include <exception>
#include <memory>
#include <stdexcept>

#include "lumcore/config/ClientInfo.h"
#include "lumcore/config/ErrorManager.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/console/Console.h"
#include "lumcore/debug/DebugDatabase.h"
#include "lumcore/filesupport/Dir.h"
#include "lumcore/filesupport/File.h"
#include "lumcore/utility/MemoryTracker.h"
#include "lumcore/xml/ParserFactory.h"
#include "lumui/sharedui/LUMAboutDlog.h"
#include "lumui/skins/core/SkinManager.h"
#include "lumui/ui/KeyframeThemeEditor.h"
#include "lumui/ui/OS_Event.h"
#include "lumui/ui/UI_NodeManager.h"
#include "lumui/utility/DrawbotImageResourceCache.h"
#include "lumui/utility/ResourceManager.h"
#include "lumworkspace/workspace/BuiltInWorkspaceProviderBase.h"
#include "lumworkspace/workspace/ManagerBase.h"
#include "lumworkspace/workspace/PlatformMenuHelperBase.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "lumworkspace/workspace/WorkspaceUIManager.h"
#include "vek/app/App.h"
#include "vek/app/src/MenuState.h"
#include "vek/app/src/Owned.h"
#include "vek/sharedui/ShortcutFieldAdapter.h"
#include "vek/sharedui/UIMultiTreeList.h"
#include "vek/sharedui/UIShellTrackViewAdapter.h"
#include "vek/trackview/LUMPlatformViewAdapter.h"
#include "vek/uisupport/DeferredActionManager.h"
#include "vek/uisupport/KeyCommandManager.h"
#include "vek/uisupport/MainWindowLookup.h"
#include "vek/utility/VekResources.h"
#include "vek/workspace/GenericPanelRegistry.h"
#include "vek/workspace/Workspace.h"

namespace vek::app {

using lumcore::UTF16String;
using lumcore::filesupport::Dir;

namespace {

// Of the nodes that vek has besides the platform's, so that archives may hold them.
void RegisterNodeAdapters() {
  auto& registry = lumui::ui::UI_NodeAdapterRegistry::Get();
  registry.RegisterIfNew(std::make_unique<trackview::LUMPlatformViewAdapter>());
  registry.RegisterIfNew(NewUIMultiTreeListAdapter());
  registry.RegisterIfNew(std::make_unique<sharedui::ShortcutFieldAdapter>());
  registry.RegisterIfNew(std::make_unique<sharedui::UIShellTrackViewAdapter>());
}

struct AutoDisable {
  static AutoDisable& Get() {
    static AutoDisable sAutoDisable;
    return sAutoDisable;
  }
  bool mIsOn = false;
  int mFirstCommand = 0;
};

// A defect in a file that only fault-finders write is told in the log and keeps nobody from
// starting.
bool WantsConsole() {
  auto& switches = lumcore::debug::DebugDatabase::Instance();
  try {
    switches.Load(lumcore::filesupport::File(Dir::PrefDir(), "Debug.txt"));
    return switches.GetBoolean("Show Windows Console", false);
  } catch (const lumcore::config::Error& error) {
    lumcore::console::ConsoleLogFile::WriteProblem(error.what());
    return false;
  }
}

// Runs the steps of an end: each of them is due, whatever becomes of the others. The first failure
// is what the caller gets, once all is done.
class Ending {
 public:
  void Run(const boost::function<void()>& inStep) {
    try {
      inStep();
    } catch (...) {
      // Kept for the caller.
      if (!mFailure) mFailure = std::current_exception();
    }
  }
  void Finish() {
    if (mFailure) std::rethrow_exception(mFailure);
  }

 private:
  std::exception_ptr mFailure;
};

}  // namespace

// Before anything of an application that is there could be touched: a constructor that throws runs
// no destructor.
AppBase::AppBase()
    : mUpdateMenuShortcuts(true),
      mWorkspaceSaved(false),
      mWorkspace(nullptr),
      mErrorManager(nullptr),
      mLocalizer(nullptr),
      mWorkspaceUIManager(nullptr),
      mResourceManager(nullptr),
      mImageCache(nullptr),
      mMemoryTracker(nullptr),
      mMenuHelper(nullptr),
      mWorkspaceManager(nullptr),
      mWorkspaceProvider(nullptr),
      mSaveRestoreLastWorkspace(true),
      mLastStage(kStageNone) {
  if (App::GetApp()) throw std::runtime_error("App object already initialized");
}

AppBase::~AppBase() {
  ForgetActivation();
  uisupport::SetMainWindowLookup({});
  uisupport::SetDrawSupplierLookup({});
  lumcore::config::Localizer::Set(nullptr, Dir());
  mSettings.Clear();
  Delete(mMemoryTracker);
  Delete(mImageCache);
  Delete(mResourceManager);
  Delete(mWorkspaceUIManager);
  Delete(mLocalizer);
  Delete(mErrorManager);
}

bool AppBase::Initialize(AppInitArgs& inArgs, const Dir& inLocalizationDir) {
  StartServices(inArgs, inLocalizationDir);
  StartLook(inArgs);

  mLastStage = kStageSettings;
  LoadAppSettings();
  mLastStage = kStageSwitcher;
  mSwitcherSerializer.Init();
  mLastStage = kStageWorkspace;
  Replace(mWorkspace, InitWorkspace(inArgs));
  uisupport::SetMainWindowLookup([this]() -> lumui::ui::UI_Node* {
    return mWorkspace ? mWorkspace->GetMainTopLevelWindow() : nullptr;
  });
  uisupport::SetDrawSupplierLookup([this]() -> lumui::drawbot::SupplierInterface* {
    return mWorkspace ? mWorkspace->UI_GetDrawSupplier() : nullptr;
  });
  // Before anybody can restore a layout, which would lose the panels that nobody makes.
  if (mWorkspace) workspace::GenericPanelRegistry::GetInstance().RegisterTabCreators(*mWorkspace);
  mLastStage = kStageSplashScreen;
  const boost::intrusive_ptr<lumui::sharedui::LUMAboutDlog> splashScreen = GetNewSplashScreen();
  if (splashScreen) splashScreen->Show(true);

  StartWorkspace(inArgs);
  mLastStage = kStageApplication;
  const bool started = InitApplication(inArgs);
  if (started && mWorkspaceManager) {
    mLastStage = kStageActivation;
    using Function = boost::function<void(bool)>;
    ForgetActivation();
    mActivationFunction.reset(
        new Function([this](bool inActive) { HandleAppActiveStateChanged(inActive); }));
    lumui::ui::UI_NodeManager::Get(false)->InstallApplicationActivationChangedFunction(
        mActivationFunction);
    mLastStage = kStageWorkspaceMenu;
    InitWorkspaceManagerMenu();
  }
  mLastStage = kStageMnemonics;
  lumui::ui::UI_NodeManager::Get(false)->EnableMnemonics();
  mLastStage = kStageRunning;
  return started;
}

// What everything else stands on: the platform, errors, texts, files.
void AppBase::StartServices(AppInitArgs& inArgs, const Dir& inLocalizationDir) {
  mLastStage = kStagePlatform;
  OSInitialize(inArgs);
  mLastStage = kStageErrorManager;
  Replace(mErrorManager, InitErrorManager(inArgs));
  lumcore::config::ErrorManager::Set(mErrorManager);
  mLastStage = kStageLocalizer;
  Replace(mLocalizer, InitLocalizer(inArgs));
  lumcore::config::Localizer::Set(mLocalizer, inLocalizationDir);
  mLastStage = kStageClientInfo;
  SetClientInfo();
  mLastStage = kStagePrefsDir;
  if (UseCustomPrefsDir()) lumcore::config::SetClientPrefsDir(GetAppPrefsDir());
  mLastStage = kStageParserFactory;
  lumcore::xml::SetParserFactory(InitXMLParserFactory());
  mLastStage = kStageConsole;
  if (WantsConsole()) lumcore::console::CreateStandardConsoleWindow();
}

void AppBase::SetClientInfo() {
  lumcore::config::SetClientName(GetClientName());
  lumcore::config::SetApplicationName(GetClientName());
  lumcore::config::SetClientVersion(GetClientVersion());
  lumcore::config::SetClientInternalVersion(GetClientInternalVersion());
  lumcore::config::SetCompanyName(GetCompanyName());
  lumcore::config::SetClientBuildNumber(GetClientBuildNumber());
}

// What is needed to draw anything.
void AppBase::StartLook(AppInitArgs& inArgs) {
  mLastStage = kStageSkins;
  lumui::skins::core::SkinManager::Initialize("V5");
  mLastStage = kStageWorkspaceUI;
  Delete(mWorkspaceUIManager);  // there is one at a time
  mWorkspaceUIManager = new lumworkspace::workspace::WorkspaceUIManager;
  mLastStage = kStageModules;
  RegisterNodeAdapters();
  InitModules();
  InitPreferences();
  mLastStage = kStageResources;
  Replace(mResourceManager, InitResourceManager(inArgs));
  mLastStage = kStageDrawing;
  InitDrawing();
  mLastStage = kStageTheme;
  lumui::ui::Theme::Initialize(InitThemeEditor(inArgs));
  mLastStage = kStageDefaultTheme;
  LoadDefaultTheme(inArgs);
  mLastStage = kStageImageCache;
  Replace(mImageCache, InitImageCache(inArgs));
}

void AppBase::StartWorkspace(AppInitArgs&) {
  mLastStage = kStageWorkspaceProvider;
  Replace(mWorkspaceProvider, InitWorkspaceProvider());
  mLastStage = kStageWorkspaceManager;
  Replace(mWorkspaceManager, InitWorkspaceManager());
  mLastStage = kStageWorkspaceReady;
  OnWorkspaceReady(mWorkspace);
  mLastStage = kStageCommands;
  RegisterApplicationCommands();
  mLastStage = kStageKeyCommands;
  uisupport::KeyCommandManager::Init();
}

void AppBase::Terminate() {
  Ending ending;
  ending.Run([this] { SaveAppSettings(); });
  ending.Run([this] { TerminateWorkspace(); });
  ending.Run([this] { TerminateApplication(); });
  ending.Run([] { lumui::skins::core::SkinManager::Terminate(); });
  ending.Run([this] {
    Delete(mImageCache);
    Delete(mResourceManager);
  });
  ending.Run([] { utility::DisposeVekResources(); });
  ending.Run([this] { EndMenuHelper(); });
  ending.Run([this] {
    Delete(mWorkspaceManager);
    Delete(mWorkspaceProvider);
  });
  ending.Run([] { lumui::ui::Theme::Terminate(); });
  ending.Run([this] { Delete(mWorkspaceUIManager); });
  ending.Run([this] { TerminateDrawing(); });
  ending.Run([this] { OSTerminateDrawing(); });
  // Each takes itself out of its place when it goes.
  ending.Run([this] {
    Delete(mLocalizer);
    Delete(mErrorManager);
  });
  ending.Run([] { lumcore::console::ConsoleLogFile::Terminate(); });
  ending.Run([] { uisupport::DeferredActionManager::Terminate(); });
  ForgetActivation();
  ending.Run([this] { OSTerminate(); });
  ending.Finish();
}

void AppBase::EndMenuHelper() {
  if (mMenuHelper && mWorkspaceManager) mWorkspaceManager->RemoveMenuHelper(mMenuHelper);
  Delete(mMenuHelper);
}

void AppBase::ForgetActivation() {
  if (mActivationFunction) mActivationFunction->clear();
}

void AppBase::ResetWorkspaceManager() {
  Delete(mWorkspaceManager);
  try {
    mWorkspaceManager = InitWorkspaceManager();
  } catch (...) {
    // For the caller; but the helper must not go on showing what is gone.
    Delete(mMenuHelper);
    throw;
  }
  if (!mWorkspaceManager) Delete(mMenuHelper);
  InitWorkspaceManagerMenu();
}

bool AppBase::AppCanQuit() {
  return DoAppCanQuit();
}

void AppBase::OnIdle() {
  DoIdle();
}

bool AppBase::PreEventProcessing(const lumui::ui::OS_Event& inEvent) {
  bool dispatch = true;
  lumcore::config::ExecuteTopLevelFunction([&] { dispatch = DoPreEventProcessing(inEvent); });
  return dispatch;
}

void AppBase::PostEventProcessing(const lumui::ui::OS_Event& inEvent) {
  lumcore::config::ExecuteTopLevelFunction([&] { DoPostEventProcessing(inEvent); });
}

void AppBase::BeforeMenuPopup(HMENU inMenu) {
  ReleaseInputCapture();
  DoBeforeMenuPopup(inMenu);
}

HMENU AppBase::GetMainMenu() const {
  const auto* const window = mWorkspace ? mWorkspace->GetMainTopLevelWindow() : nullptr;
  return window ? window->UI_GetMenu() : nullptr;
}

void AppBase::HandleAppActiveStateChanged(bool inActive) {
  DoAppActiveStateChanged(inActive);
}

void AppBase::AutoDisableUserCmds(int inFirstCommand) {
  AutoDisable::Get().mIsOn = true;
  AutoDisable::Get().mFirstCommand = inFirstCommand;
}

bool AppBase::IsAutoDisabling() {
  return AutoDisable::Get().mIsOn;
}

int AppBase::GetAutoDisableThreshold() {
  return AutoDisable::Get().mFirstCommand;
}

messaging::Broadcaster<const AppActivationMessage&>& AppBase::GetAppActivationNotifier() {
  static auto* const sNotifier = new messaging::Broadcaster<const AppActivationMessage&>;
  return *sNotifier;
}

}  // namespace vek::app
