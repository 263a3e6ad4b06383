// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "lumcore/config/ErrorManager.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/filesupport/Dir.h"
#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/ParserFactory.h"
#include "lumui/sharedui/LUMAboutDlog.h"
#include "lumui/skins/core/SkinManager.h"
#include "lumui/ui/KeyframeThemeEditor.h"
#include "lumui/utility/DrawbotImageResourceCache.h"
#include "lumui/utility/ResourceManager.h"
#include "lumworkspace/workspace/BuiltInWorkspaceProviderBase.h"
#include "lumworkspace/workspace/ManagerBase.h"
#include "lumworkspace/workspace/PlatformMenuHelperBase.h"
#include "support/EventLog.h"
#include "vek/app/MultiDocApplication.h"
#include "vek/workspace/Workspace.h"

namespace test_support {

using lumcore::UTF16String;

inline UTF16String Text(const std::string& inText) {
  return lumcore::utility::ToUTF16(inText);
}

// Named workspaces without windows, in a log.
class RecordingWorkspaces : public lumworkspace::workspace::ManagerBase {
 public:
  explicit RecordingWorkspaces(EventLog& outLog) : mLog(outLog) {}
  ~RecordingWorkspaces() override { mLog.Add("~Manager"); }

  void WillQuit() override { mLog.Add("WillQuit"); }
  void ApplyDefaultMainWindowSize() override { mLog.Add("DefaultSize"); }
  std::vector<UTF16String> GetWorkspaceNames() const override { return {Text("a"), Text("b")}; }
  bool HasCurrentWorkspace() const override { return !mCurrent.empty(); }
  UTF16String GetCurrentWorkspace() const override { return mCurrent; }
  void SetCurrentWorkspace(const UTF16String& inName) override {
    mCurrent = inName;
    mLog.Add("Set(" + lumcore::utility::ToStdString(inName) + ")");
  }
  void SaveWorkspace(const UTF16String& inName) override {
    mLog.Add("Save(" + lumcore::utility::ToStdString(inName) + ")");
  }
  void RevertWorkspace(const UTF16String&) override {}
  void DeleteWorkspace(const UTF16String&) override {}

 private:
  EventLog& mLog;
  UTF16String mCurrent;
};

class RecordingMenuHelper : public lumworkspace::workspace::PlatformMenuHelperBase {
 public:
  explicit RecordingMenuHelper(EventLog& outLog) : mLog(outLog) {}
  ~RecordingMenuHelper() override { mLog.Add("~MenuHelper"); }
  void WorkspacesChanged() override { mLog.Add("HelperAdded"); }
  bool IsWorkspaceCommand(int) const override { return false; }
  UTF16String WorkspaceNameForCmd(int) const override { return {}; }
  void HandleCommand(int) override {}

 private:
  EventLog& mLog;
};

// An application whose every hook writes its name into a log, before the framework's own work where
// there is any. Its settings lie in the folder that it is given.
class RecordingApp : public vek::app::MultiDocApplication {
 public:
  explicit RecordingApp(const std::string& inPrefsDir) : mPrefsDir(inPrefsDir) {}

  using AppBase::GetLastStage;
  using AppBase::GetVekPrivateSettings;
  using DocumentApplication::CloseDocument;
  using DocumentApplication::RecentFilesBegin;
  using DocumentApplication::RecentFilesEnd;
  using DocumentApplication::SetDocument;
  using MultiDocApplication::CloseDocument;
  using MultiDocApplication::DocumentPushBack;

  bool Start() {
    vek::app::AppInitArgs args;
    args.windowClassName = L"RecordingApp";
    args.menuResourceID = 1;
    return Initialize(args, lumcore::filesupport::Dir());
  }

  EventLog mLog;
  std::string mPrefsDir;
  bool mHasManager = true;
  bool mInitApplicationSucceeds = true;
  UTF16String mDefaultWorkspace;
  std::function<bool()> mMayQuit = [] { return true; };
  std::function<void()> mIdle;
  std::function<bool(int)> mCommand = [](int) { return false; };
  std::function<bool(const lumui::ui::OS_Event&)> mPreStep;
  std::function<void(const lumui::ui::OS_Event&)> mPostStep;
  std::function<void()> mWhenManagerIsMade;
  std::function<void()> mWhenApplied;  // the default workspace is about to be
  std::function<boost::intrusive_ptr<lumui::sharedui::LUMAboutDlog>()> mSplashScreen;

  // Errors that reach the top level.
  std::vector<std::string> mErrors;

 protected:
  lumcore::config::ErrorManager* InitErrorManager(vek::app::AppInitArgs&) override {
    mLog.Add("InitErrorManager");
    return new lumcore::config::ErrorManager([this](const std::exception_ptr& inError) {
      try {
        std::rethrow_exception(inError);
      } catch (const std::exception& error) {
        mErrors.push_back(error.what());
      }
    });
  }
  lumcore::config::Localizer* InitLocalizer(vek::app::AppInitArgs&) override {
    mLog.Add("InitLocalizer");
    return new lumcore::config::Localizer;
  }
  std::auto_ptr<lumcore::xml::DocParserFactory> InitXMLParserFactory() override {
    mLog.Add("InitXMLParserFactory");
    return std::auto_ptr<lumcore::xml::DocParserFactory>(new lumcore::xml::DocParserFactory);
  }
  lumworkspace::workspace::Workspace* InitWorkspace(vek::app::AppInitArgs& inArgs) override {
    mLog.Add("InitWorkspace");
    return MultiDocApplication::InitWorkspace(inArgs);
  }
  void TerminateWorkspace() override {
    mLog.Add("TerminateWorkspace");
    MultiDocApplication::TerminateWorkspace();
  }
  void InitWorkspaceManagerMenu() override {
    mLog.Add("InitWorkspaceManagerMenu");
    MultiDocApplication::InitWorkspaceManagerMenu();
  }
  void InitModules() override { mLog.Add("InitModules"); }
  void InitPreferences() override { mLog.Add("InitPreferences"); }
  void InitDrawing() override { mLog.Add("InitDrawing"); }
  void TerminateDrawing() override { mLog.Add("TerminateDrawing"); }
  void LoadDefaultTheme(vek::app::AppInitArgs&) override { mLog.Add("LoadDefaultTheme"); }
  lumui::ui::KeyframeThemeEditor* InitThemeEditor(vek::app::AppInitArgs& inArgs) override {
    mLog.Add("InitThemeEditor");
    return MultiDocApplication::InitThemeEditor(inArgs);
  }
  lumui::utility::ResourceManager* InitResourceManager(vek::app::AppInitArgs& inArgs) override {
    mLog.Add("InitResourceManager");
    return MultiDocApplication::InitResourceManager(inArgs);
  }
  lumui::utility::DrawbotImageResourceCache* InitImageCache(
      vek::app::AppInitArgs& inArgs) override {
    mLog.Add("InitImageCache");
    return MultiDocApplication::InitImageCache(inArgs);
  }
  lumworkspace::workspace::PlatformMenuHelperBase* InitWorkspaceMenuHelper(
      lumworkspace::workspace::ManagerBase&) override {
    mLog.Add("InitWorkspaceMenuHelper");
    return new RecordingMenuHelper(mLog);
  }
  lumworkspace::workspace::ManagerBase* InitWorkspaceManager() override {
    mLog.Add("InitWorkspaceManager");
    if (mWhenManagerIsMade) mWhenManagerIsMade();
    return mHasManager ? new RecordingWorkspaces(mLog) : nullptr;
  }
  lumworkspace::workspace::BuiltInWorkspaceProviderBase* InitWorkspaceProvider() override {
    mLog.Add("InitWorkspaceProvider");
    return nullptr;
  }
  boost::intrusive_ptr<lumui::sharedui::LUMAboutDlog> GetNewSplashScreen() override {
    mLog.Add("GetNewSplashScreen");
    return mSplashScreen ? mSplashScreen() : nullptr;
  }
  void OSInitialize(vek::app::AppInitArgs& inArgs) override {
    mLog.Add("OSInitialize");
    MultiDocApplication::OSInitialize(inArgs);
  }
  void OSTerminate() override {
    mLog.Add("OSTerminate");
    MultiDocApplication::OSTerminate();
  }
  void OSTerminateDrawing() override { mLog.Add("OSTerminateDrawing"); }
  UTF16String GetClientName() override { return Named("Recorder", "GetClientName"); }
  UTF16String GetClientVersion() override { return Named("1.2", "GetClientVersion"); }
  UTF16String GetClientInternalVersion() override {
    return Named("1.2.3", "GetClientInternalVersion");
  }
  UTF16String GetCompanyName() override { return Named("Tests", "GetCompanyName"); }
  UTF16String GetClientBuildNumber() override { return Named("7", "GetClientBuildNumber"); }
  bool InitApplication(vek::app::AppInitArgs& inArgs) override {
    mLog.Add("InitApplication");
    return mInitApplicationSucceeds && MultiDocApplication::InitApplication(inArgs);
  }
  void TerminateApplication() override {
    mLog.Add("TerminateApplication");
    MultiDocApplication::TerminateApplication();
  }
  void OnWorkspaceReady(lumworkspace::workspace::Workspace*) override {
    mLog.Add("OnWorkspaceReady");
  }

 public:
  void ApplyDefaultWorkspace() override {
    mLog.Add("ApplyDefaultWorkspace");
    if (mWhenApplied) mWhenApplied();
    MultiDocApplication::ApplyDefaultWorkspace();
  }
  void SaveDefaultWorkSpace() override {
    mLog.Add("SaveDefaultWorkSpace");
    MultiDocApplication::SaveDefaultWorkSpace();
  }

 protected:
  void RegisterApplicationCommands() override { mLog.Add("RegisterApplicationCommands"); }
  bool DoAppCanQuit() override {
    mLog.Add("DoAppCanQuit");
    return mMayQuit();
  }
  void MenubarCreateHook(HMENU) override { mLog.Add("MenubarCreateHook"); }
  void LoadAppSettings() override {
    mLog.Add("LoadAppSettings");
    MultiDocApplication::LoadAppSettings();
  }
  void SaveAppSettings() override {
    mLog.Add("SaveAppSettings");
    MultiDocApplication::SaveAppSettings();
  }
  bool UseCustomPrefsDir() const override { return true; }
  UTF16String GetAppPrefsDir() override { return Named(mPrefsDir, "GetAppPrefsDir"); }
  void DoIdle() override {
    if (mIdle) mIdle();
  }
  bool DoPreEventProcessing(const lumui::ui::OS_Event& inEvent) override {
    return !mPreStep || mPreStep(inEvent);
  }
  void DoPostEventProcessing(const lumui::ui::OS_Event& inEvent) override {
    if (mPostStep) mPostStep(inEvent);
  }
  UTF16String GetDefaultWorkspaceName() const override { return mDefaultWorkspace; }

  bool DoHandleCommand(int inCommand) override { return mCommand(inCommand); }
  bool DoCommandEnabled(int, bool&, bool&, UTF16String&) override { return false; }

 private:
  UTF16String Named(const std::string& inText, const char* inHook) {
    mLog.Add(inHook);
    return Text(inText);
  }
};

}  // namespace test_support
