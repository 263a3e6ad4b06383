// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <stdexcept>

#include "lumcore/config/ClientInfo.h"
#include "lumui/ui/UI_NodeAdapter.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "support/RecordingApp.h"
#include "support/TemporaryFolder.h"
#include "vek/uisupport/MainWindowLookup.h"

namespace {

using test_support::RecordingApp;
using vek::app::App;
using vek::app::AppBase;

class LifeCycle : public ::testing::Test {
 protected:
  std::string Run(RecordingApp& ioApp) {
    EXPECT_TRUE(ioApp.Start());
    ioApp.mLog.Take();
    ioApp.SaveDefaultWorkSpace();
    ioApp.SaveDefaultWorkSpace();
    const std::string saved = ioApp.mLog.Take();
    ioApp.Terminate();
    return saved;
  }

  TemporaryFolder mFolder;
};

TEST_F(LifeCycle, CallsEveryHookInItsOrder) {
  RecordingApp app(mFolder.GetPath("prefs"));
  ASSERT_TRUE(app.Start());
  EXPECT_EQ(app.mLog.Take(),
            "OSInitialize InitErrorManager InitLocalizer GetClientName GetClientName "
            "GetClientVersion GetClientInternalVersion GetCompanyName GetClientBuildNumber "
            "GetAppPrefsDir InitXMLParserFactory InitModules InitPreferences InitResourceManager "
            "InitDrawing InitThemeEditor LoadDefaultTheme InitImageCache LoadAppSettings "
            "InitWorkspace GetNewSplashScreen InitWorkspaceProvider InitWorkspaceManager "
            "OnWorkspaceReady RegisterApplicationCommands InitApplication MenubarCreateHook "
            "ApplyDefaultWorkspace DefaultSize InitWorkspaceManagerMenu InitWorkspaceMenuHelper "
            "HelperAdded");
  EXPECT_EQ(app.GetLastStage(), AppBase::kStageRunning);
  EXPECT_EQ(lumcore::utility::ToStdString(lumcore::config::GetClientVersion()), "1.2");
  auto* const window = app.GetWorkspace()->GetMainTopLevelWindow();
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(lumcore::utility::ToStdString(window->UI_GetTitle()), "RecordingApp");
  EXPECT_TRUE(window->UI_IsVisible());
  EXPECT_EQ(vek::uisupport::FindMainWindow(), window);
  EXPECT_NE(app.GetMainMenu(), nullptr);

  app.Terminate();
  EXPECT_EQ(app.mLog.Take(),
            "SaveAppSettings TerminateWorkspace TerminateApplication ~MenuHelper ~Manager "
            "TerminateDrawing OSTerminateDrawing OSTerminate");
  EXPECT_EQ(vek::uisupport::FindMainWindow(), nullptr);
  EXPECT_EQ(lumui::ui::Theme::Get(), nullptr);
  EXPECT_EQ(lumui::skins::core::SkinManager::GetDefaultSet(), nullptr);
}

TEST_F(LifeCycle, ASecondApplicationIsRefusedAndTheFirstStaysWhole) {
  RecordingApp app(mFolder.GetPath("prefs"));
  ASSERT_TRUE(app.Start());
  auto* const localizer = lumcore::config::Localizer::Get();
  try {
    RecordingApp second(mFolder.GetPath("other"));
    FAIL() << "a second application was made";
  } catch (const std::exception& error) {
    EXPECT_STREQ(error.what(), "App object already initialized");
  }
  EXPECT_EQ(App::GetApp(), &app);
  EXPECT_NE(lumui::ui::UI_NodeAdapterRegistry::Get().Find("vek::LUMPlatformView"), nullptr);
  EXPECT_EQ(lumcore::config::Localizer::Get(), localizer);
  EXPECT_EQ(vek::uisupport::CommandHandlerBase::GetDefaultCommandHandler(), &app);
  app.Terminate();
}

TEST_F(LifeCycle, TheLastWorkspaceComesBackAndAGoneOneGivesWayToTheDefault) {
  const std::string prefs = mFolder.GetPath("prefs");
  {
    RecordingApp app(prefs);
    app.mDefaultWorkspace = test_support::Text("b");
    EXPECT_EQ(Run(app), "SaveDefaultWorkSpace Save(b) WillQuit SaveDefaultWorkSpace");
  }
  {
    RecordingApp app(prefs);
    app.mDefaultWorkspace = test_support::Text("a");
    ASSERT_TRUE(app.Start());
    EXPECT_NE(app.mLog.Take().find("DefaultSize Set(b)"), std::string::npos);
    app.GetVekPrivateSettings().Set("sLastSetWorkspace", test_support::Text("gone"));
    app.Terminate();
  }
  {
    RecordingApp app(prefs);
    app.mDefaultWorkspace = test_support::Text("a");
    ASSERT_TRUE(app.Start());
    EXPECT_NE(app.mLog.Take().find("DefaultSize Set(a)"), std::string::npos);
    app.SaveRestoreLastWorkspace(false);
    app.SaveDefaultWorkSpace();
    EXPECT_EQ(app.mLog.Take(), "SaveDefaultWorkSpace Save(a) WillQuit");
    EXPECT_EQ(app.GetVekPrivateSettings().Get("sLastSetWorkspace", test_support::UTF16String()),
              test_support::Text("gone"));
    app.ResetWorkspaceManager();
    EXPECT_EQ(app.mLog.Take(),
              "~Manager InitWorkspaceManager InitWorkspaceManagerMenu InitWorkspaceMenuHelper "
              "~MenuHelper HelperAdded");
    app.Terminate();
  }
}

TEST_F(LifeCycle, AStartThatFailsKeepsItsStagesAndCanBeEnded) {
  {
    RecordingApp app(mFolder.GetPath("prefs"));
    app.mInitApplicationSucceeds = false;
    EXPECT_FALSE(app.Start());
    EXPECT_EQ(app.mLog.Take().find("InitWorkspaceManagerMenu"), std::string::npos);
    app.Terminate();
  }
  RecordingApp app(mFolder.GetPath("prefs"));
  app.mWhenManagerIsMade = [] { throw std::runtime_error("no layouts"); };
  EXPECT_THROW(app.Start(), std::runtime_error);
  EXPECT_EQ(app.GetLastStage(), AppBase::kStageWorkspaceManager);
  app.Terminate();
}

TEST_F(LifeCycle, AnEndThatFailsInOneStepTakesAllTheOthers) {
  mFolder.GetFile("file").ReplaceContents("");
  RecordingApp app(mFolder.GetPath("file"));
  ASSERT_TRUE(app.Start());
  app.mLog.Take();
  EXPECT_THROW(app.Terminate(), lumcore::config::Error) << "settings cannot lie in a file";
  EXPECT_EQ(app.mLog.Take(),
            "SaveAppSettings TerminateWorkspace TerminateApplication ~MenuHelper ~Manager "
            "TerminateDrawing OSTerminateDrawing OSTerminate");
}

TEST_F(LifeCycle, AStartMayBeTriedAgain) {
  RecordingApp app(mFolder.GetPath("prefs"));
  app.mWhenManagerIsMade = [] { throw std::runtime_error("no layouts"); };
  EXPECT_THROW(app.Start(), std::runtime_error);
  app.mWhenManagerIsMade = nullptr;
  EXPECT_TRUE(app.Start());
  EXPECT_NE(vek::uisupport::FindMainWindow(), nullptr);
  app.Terminate();
}

}  // namespace
