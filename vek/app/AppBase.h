// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <memory>

#include "lumcore/Strings.h"
#include "lumcore/proplist/PropList.h"
#include "lumui/ui/OSTypes.h"
#include "vek/app/AppActivationMessage.h"
#include "vek/app/AppInitArgs.h"
#include "vek/config/Export.h"
#include "vek/messaging/Broadcaster.h"
#include "vek/workspace/WorkspaceSwitcherSerializer.h"

namespace lumcore::config {
class ErrorManager;
class Localizer;
}  // namespace lumcore::config
namespace lumcore::filesupport {
class Dir;
class File;
}  // namespace lumcore::filesupport
namespace lumcore::utility {
class MemoryTracker;
}
namespace lumcore::xml {
class DocParserFactory;
}
namespace lumui::sharedui {
class LUMAboutDlog;
}
namespace lumui::ui {
class KeyframeThemeEditor;
struct OS_Event;
}  // namespace lumui::ui
namespace lumui::utility {
class DrawbotImageResourceCache;
class ResourceManager;
}  // namespace lumui::utility
namespace lumworkspace::workspace {
class BuiltInWorkspaceProviderBase;
class ManagerBase;
class PlatformMenuHelperBase;
class Workspace;
class WorkspaceUIManager;
}  // namespace lumworkspace::workspace

namespace vek::app {

// The life of an application as a table of hooks. The host derives from App or one of its
// subclasses, calls Initialize, runs the event loop and calls Terminate. The order in which the
// hooks are called is fixed and told at Initialize and Terminate; every hook has a default unless
// only the host can know the answer.
//
// What an Init hook returns is new and becomes this object's. An exception from a hook reaches the
// caller, and the stages that are done stay done: GetLastStage says how far the start came, and
// Terminate ends whatever there is. Everything belongs to the thread that called Initialize.
class VEK_API AppBase {
 public:
  // The stages of the start, in their order.
  enum Stage {
    kStageNone,
    kStagePlatform,
    kStageErrorManager,
    kStageLocalizer,
    kStageClientInfo,
    kStagePrefsDir,
    kStageParserFactory,
    kStageConsole,
    kStageSkins,
    kStageWorkspaceUI,
    kStageModules,
    kStageResources,
    kStageDrawing,
    kStageTheme,
    kStageDefaultTheme,
    kStageImageCache,
    kStageSettings,
    kStageSwitcher,
    kStageWorkspace,
    kStageSplashScreen,
    kStageWorkspaceProvider,
    kStageWorkspaceManager,
    kStageWorkspaceReady,
    kStageCommands,
    kStageKeyCommands,
    kStageApplication,
    kStageActivation,
    kStageWorkspaceMenu,
    kStageMnemonics,
    kStageRunning,
  };

  virtual ~AppBase();
  AppBase(const AppBase&) = delete;
  AppBase& operator=(const AppBase&) = delete;

  // Runs until the application quits, then saves the workspace.
  virtual void RunEventLoop() = 0;
  // Asks AppCanQuit, and ends the loop if it may.
  virtual void EndEventLoop() = 0;
  // Handles all that waits, without pre and post step and without idle work.
  virtual void ModalPumpEventQueue() = 0;
  // Brings one menu up to date from the command chain, before it shows.
  virtual void RebuildMenuState(HMENU inMenu) = 0;

 protected:
  virtual lumcore::config::ErrorManager* InitErrorManager(AppInitArgs& inArgs) = 0;
  virtual lumcore::config::Localizer* InitLocalizer(AppInitArgs& inArgs) = 0;
  // For the host; null by default, and not called here.
  virtual lumcore::utility::MemoryTracker* InitMemoryTracker(AppInitArgs& inArgs);
  virtual std::auto_ptr<lumcore::xml::DocParserFactory> InitXMLParserFactory() = 0;
  virtual lumworkspace::workspace::Workspace* InitWorkspace(AppInitArgs& inArgs);
  virtual void TerminateWorkspace();
  virtual void InitWorkspaceManagerMenu();
  virtual void InitModules();
  virtual void InitPreferences();
  virtual void InitDrawing();
  virtual void TerminateDrawing();
  virtual void LoadDefaultTheme(AppInitArgs& inArgs);
  virtual lumui::ui::KeyframeThemeEditor* InitThemeEditor(AppInitArgs& inArgs);
  virtual lumui::utility::ResourceManager* InitResourceManager(AppInitArgs& inArgs);
  virtual lumui::utility::DrawbotImageResourceCache* InitImageCache(AppInitArgs& inArgs);
  virtual lumworkspace::workspace::PlatformMenuHelperBase* InitWorkspaceMenuHelper(
      lumworkspace::workspace::ManagerBase& inManager);
  virtual lumworkspace::workspace::ManagerBase* InitWorkspaceManager();
  virtual lumworkspace::workspace::BuiltInWorkspaceProviderBase* InitWorkspaceProvider();
  virtual boost::intrusive_ptr<lumui::sharedui::LUMAboutDlog> GetNewSplashScreen();
  virtual void OSInitialize(AppInitArgs& inArgs) = 0;
  virtual void OSTerminate() = 0;
  virtual void OSTerminateDrawing() = 0;
  // Who the program is. They go into files as they are: no "&", "<" or quote.
  virtual lumcore::UTF16String GetClientName() = 0;
  virtual lumcore::UTF16String GetClientVersion() = 0;
  virtual lumcore::UTF16String GetClientInternalVersion() = 0;
  virtual lumcore::UTF16String GetCompanyName() = 0;
  virtual lumcore::UTF16String GetClientBuildNumber() = 0;
  // Makes the main window, applies the default workspace and shows it. Its result is that of
  // Initialize.
  virtual bool InitApplication(AppInitArgs& inArgs) = 0;
  virtual void TerminateApplication();
  virtual void OnWorkspaceReady(lumworkspace::workspace::Workspace* inWorkspace) = 0;

 public:
  virtual void ApplyDefaultWorkspace();
  // Once in the life of the application; further calls do nothing.
  virtual void SaveDefaultWorkSpace();

 protected:
  // The command registry is loaded here or later.
  virtual void RegisterApplicationCommands();
  // Asks every document; true by default.
  virtual bool DoAppCanQuit();
  virtual void DoAppActiveStateChanged(bool inActive);
  // The menu bar of the main window has been made and may be filled.
  virtual void MenubarCreateHook(HMENU inMenubar);
  virtual void LoadAppSettings();
  virtual void SaveAppSettings();
  virtual bool UseCustomPrefsDir() const;
  // A full path; empty by default.
  virtual lumcore::UTF16String GetAppPrefsDir();
  virtual void DoIdle();
  // False consumes the event, but for those that lumui::ui::Application::PreEventStep names.
  virtual bool DoPreEventProcessing(const lumui::ui::OS_Event& inEvent);
  virtual void DoPostEventProcessing(const lumui::ui::OS_Event& inEvent);
  virtual lumcore::UTF16String GetAppSettingsFileName() const;
  virtual lumcore::UTF16String GetDefaultWorkspaceName() const;
  virtual void DoBeforeMenuPopup(HMENU inMenu);
  virtual void EndEventLoopDuringSessionEnd() = 0;
  virtual LRESULT MainWindowDefaultProc(HWND inWindow, unsigned inMessage, WPARAM inWParam,
                                        LPARAM inLParam) = 0;
  // The command that a command message means.
  virtual int GetCommandID(WPARAM inWParam, LPARAM inLParam) const = 0;

 public:
  // False when InitApplication said so: no window class or no window. Nothing is undone then, and
  // Terminate is the caller's to call.
  bool Initialize(AppInitArgs& inArgs, const lumcore::filesupport::Dir& inLocalizationDir);
  // Settings are saved first, so what TerminateApplication writes into them reaches the file only
  // if the host saves again. What goes is found by its getter until it is gone.
  void Terminate();

  bool AppCanQuit();
  void OnIdle();
  // Neither lets an exception out; after a failure the event is dispatched.
  bool PreEventProcessing(const lumui::ui::OS_Event& inEvent);
  void PostEventProcessing(const lumui::ui::OS_Event& inEvent);
  // Ends a capture that the pointer has, and tells the host.
  void BeforeMenuPopup(HMENU inMenu);

  lumworkspace::workspace::Workspace* GetWorkspace() { return mWorkspace; }
  const lumworkspace::workspace::Workspace* GetWorkspace() const { return mWorkspace; }
  HMENU GetMainMenu() const;  // null without a main window
  lumui::utility::ResourceManager* GetAppResourceManager() const { return mResourceManager; }
  lumui::utility::DrawbotImageResourceCache* GetDrawbotImageCache() const { return mImageCache; }
  lumworkspace::workspace::PlatformMenuHelperBase* GetPlatformMenuHelper() const {
    return mMenuHelper;
  }
  lumworkspace::workspace::ManagerBase* GetWorkspaceManager() const { return mWorkspaceManager; }
  lumworkspace::workspace::BuiltInWorkspaceProviderBase* GetWorkspaceProvider() const {
    return mWorkspaceProvider;
  }
  // Made anew by the host's hook, with its menu.
  void ResetWorkspaceManager();

  lumcore::proplist::PropList& GetAppSettings() { return mSettings; }
  void SetUpdateMenuItemShortcutsFromKeyCmdMgr(bool inUpdate) { mUpdateMenuShortcuts = inUpdate; }
  void SaveRestoreLastWorkspace(bool inSaveAndRestore) {
    mSaveRestoreLastWorkspace = inSaveAndRestore;
  }
  // Menu items from this command on that nobody answers for are disabled.
  static void AutoDisableUserCmds(int inFirstCommand);
  static messaging::Broadcaster<const AppActivationMessage&>& GetAppActivationNotifier();

 protected:
  AppBase();

  // What the framework itself keeps between runs.
  lumcore::proplist::PropList& GetVekPrivateSettings();
  void InitThemeEditorFromResource(const lumcore::UTF16String& inName, float inBrightness,
                                   bool inFromVekResources);
  Stage GetLastStage() const { return mLastStage; }  // the last one begun
  bool GetUpdateMenuShortcuts() const { return mUpdateMenuShortcuts; }
  static bool IsAutoDisabling();
  static int GetAutoDisableThreshold();

 private:
  friend class workspace::WorkspaceSwitcherSerializer;

  static lumcore::proplist::PropList& GetOrCreateSubList(lumcore::proplist::Key inKey,
                                                         lumcore::proplist::PropList* inParent);
  void HandleAppActiveStateChanged(bool inActive);
  lumcore::filesupport::File GetSettingsFile() const;
  void StartServices(AppInitArgs& inArgs, const lumcore::filesupport::Dir& inLocalizationDir);
  void SetClientInfo();
  void StartLook(AppInitArgs& inArgs);
  void StartWorkspace(AppInitArgs& inArgs);
  void EndMenuHelper();
  void ForgetActivation();

  bool mUpdateMenuShortcuts;
  bool mWorkspaceSaved;
  lumworkspace::workspace::Workspace* mWorkspace;  // owned, as are those below
  lumcore::config::ErrorManager* mErrorManager;
  lumcore::config::Localizer* mLocalizer;
  lumworkspace::workspace::WorkspaceUIManager* mWorkspaceUIManager;
  lumui::utility::ResourceManager* mResourceManager;
  lumui::utility::DrawbotImageResourceCache* mImageCache;
  lumcore::utility::MemoryTracker* mMemoryTracker;
  lumworkspace::workspace::PlatformMenuHelperBase* mMenuHelper;
  lumworkspace::workspace::ManagerBase* mWorkspaceManager;
  lumworkspace::workspace::BuiltInWorkspaceProviderBase* mWorkspaceProvider;
  lumcore::proplist::PropList mSettings;
  bool mSaveRestoreLastWorkspace;
  workspace::WorkspaceSwitcherSerializer mSwitcherSerializer;
  Stage mLastStage;
  boost::shared_ptr<boost::function<void(bool)>> mActivationFunction;
};

}  // namespace vek::app
