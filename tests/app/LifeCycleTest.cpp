// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <stdexcept>

#include "lumcore/config/ClientInfo.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/Theme.h"
#include "lumui/ui/ThemeColors.h"
#include "lumui/ui/UI_NodeAdapter.h"
#include "lumui/ui/UI_NodeManager.h"
#include "lumui/ui/UI_SubView.h"
#include "lumworkspace/sharedui/WorkspaceSwitcherManager.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "support/PartingPanels.h"
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

class LoggingSplash : public lumui::sharedui::LUMAboutDlog {
 public:
  explicit LoggingSplash(test_support::EventLog& outLog)
      : LUMAboutDlog(test_support::Text("Recorder"), {}), mLog(outLog) {}
  ~LoggingSplash() override { mLog.Add("~splash"); }
  void UI_Draw(lumui::drawbot::Drawbot*) const override { mLog.Add("splash"); }

 private:
  test_support::EventLog& mLog;
};

class LoggingView : public lumui::ui::UI_SubView {
 public:
  explicit LoggingView(test_support::EventLog& outLog) : mLog(outLog) {}
  void UI_Draw(lumui::drawbot::Drawbot*) const override { mLog.Add("main"); }

 private:
  test_support::EventLog& mLog;
};

TEST_F(LifeCycle, TheFirstPaintComesBehindTheSplashScreenAndBeforeTheFirstTurnOfTheLoop) {
  RecordingApp app(mFolder.GetPath("prefs"));
  test_support::EventLog painted;
  app.mSplashScreen = [&] { return new LoggingSplash(painted); };
  app.mWhenApplied = [&] {
    const boost::intrusive_ptr<lumui::ui::UI_Node> view(new LoggingView(painted));
    view->UI_SetLocalRectF(lumcore::geom::RectT<float>(0, 0, 50, 50));
    app.GetWorkspace()->GetMainTopLevelWindow()->UI_AddChild(view);
    lumui::ui::UI_NodeManager::Get(true)->GetExecutor()->Post([&] { painted.Add("turn"); });
  };
  ASSERT_TRUE(app.Start());
  EXPECT_EQ(painted.Take(), "splash main ~splash");
  lumui::testing::ProcessEvents();
  EXPECT_EQ(painted.Take(), "turn");
  app.Terminate();
}

// With the framework's own themes and, where it is asked for, those of more contrast over them.
class ThemedApp : public RecordingApp {
 public:
  using RecordingApp::RecordingApp;
  const char* mFurtherTheme = nullptr;
  bool mDesigns = false;

 protected:
  void LoadDefaultTheme(vek::app::AppInitArgs& inArgs) override {
    inArgs.designAppTheme = mDesigns;
    MultiDocApplication::LoadDefaultTheme(inArgs);
    if (mFurtherTheme) InitThemeEditorFromResource(test_support::Text(mFurtherTheme), 0.9f, true);
  }
};

TEST_F(LifeCycle, ThemesAreLoadedInLayersAndTheHighContrastOneLast) {
  constexpr int kOfTrees = 233;
  constexpr int kOfTheDesignAlone = 5000106;
  const auto text = [] {
    return lumui::ui::Theme::Get()->GetColor(lumui::ui::themev5::kColor_Text);
  };
  for (const bool designs : {false, true}) {
    ThemedApp app(mFolder.GetPath("prefs"));
    app.mDesigns = designs;
    ASSERT_TRUE(app.Start());
    const auto theme = lumui::ui::Theme::Get();
    EXPECT_TRUE(theme->HasColor(kOfTrees) && theme->HasColor(4000000));
    EXPECT_EQ(theme->HasColor(kOfTheDesignAlone), designs);
    EXPECT_LT(text().red, 1.0f);
    EXPECT_GT(text().red, 0.0f);
    app.Terminate();
  }
  ThemedApp app(mFolder.GetPath("prefs"));
  app.mFurtherTheme = "HighContrastColorThemeV5";
  ASSERT_TRUE(app.Start());
  const float first = text().red;
  EXPECT_TRUE(first == 0.0f || first == 1.0f) << "black or white, and nothing between";
  lumui::ui::Theme::SetBrightness(0.1f);
  EXPECT_EQ(text().red, first) << "the same at each brightness";
  EXPECT_TRUE(lumui::ui::Theme::Get()->HasColor(kOfTrees)) << "the layers below stay";
  app.Terminate();
  app.mFurtherTheme = "NoTheme";
  try {
    app.Start();
    FAIL() << "a theme that is not there";
  } catch (const lumcore::config::Error& error) {
    EXPECT_NE(std::string(error.what()).find("NoTheme"), std::string::npos) << error.what();
  }
  EXPECT_EQ(app.GetLastStage(), AppBase::kStageDefaultTheme);
  app.Terminate();
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

TEST_F(LifeCycle, TheWorkspaceSwitcherComesBackFromTheSettings) {
  const auto& switcher = lumworkspace::sharedui::WorkspaceSwitcherManager::Get();
  const auto kept = [](RecordingApp& ioApp) {
    const auto* const list = ioApp.GetAppSettings().Find<lumcore::proplist::PropList>("Workspace");
    return list ? list->Get("Switcher", lumcore::utility::ToUTF8("none")) : lumcore::UTF8String();
  };
  const std::string prefs = mFolder.GetPath("prefs");
  switcher->SetData(lumcore::utility::ToUTF8("of the host"));
  {
    RecordingApp app(prefs);
    ASSERT_TRUE(app.Start());
    EXPECT_EQ(kept(app), lumcore::UTF8String()) << "the key is there from now on";
    EXPECT_EQ(switcher->GetData(), lumcore::utility::ToUTF8("of the host"));
    switcher->SetData(lumcore::utility::ToUTF8("+b\n-a\n"));
    EXPECT_EQ(kept(app), lumcore::utility::ToUTF8("+b\n-a\n"));
    app.Terminate();
  }
  switcher->SetData(lumcore::UTF8String());
  {
    RecordingApp app(prefs);
    ASSERT_TRUE(app.Start());
    EXPECT_EQ(switcher->GetData(), lumcore::utility::ToUTF8("+b\n-a\n"));
    app.Terminate();
  }
  switcher->SetData(lumcore::UTF8String());
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

struct PlacedManager : test_support::RecordingWorkspaces {
  using RecordingWorkspaces::RecordingWorkspaces;
  ~PlacedManager() override { EXPECT_EQ(App::GetApp()->GetWorkspaceManager(), this); }
};

struct PlacedMenuHelper : test_support::RecordingMenuHelper {
  using RecordingMenuHelper::RecordingMenuHelper;
  ~PlacedMenuHelper() override { EXPECT_EQ(App::GetApp()->GetPlatformMenuHelper(), this); }
};

class PlacingApp : public RecordingApp {
 public:
  using RecordingApp::RecordingApp;

 protected:
  lumworkspace::workspace::ManagerBase* InitWorkspaceManager() override {
    return new PlacedManager(mLog);
  }
  lumworkspace::workspace::PlatformMenuHelperBase* InitWorkspaceMenuHelper(
      lumworkspace::workspace::ManagerBase&) override {
    return new PlacedMenuHelper(mLog);
  }
};

TEST_F(LifeCycle, WhatIsDeletedIsFoundInItsPlaceUntilItIsGone) {
  using lumworkspace::workspace::Workspace;
  PlacingApp app(mFolder.GetPath("prefs"));
  ASSERT_TRUE(app.Start());
  const auto* const window = app.GetWorkspace()->GetMainTopLevelWindow();
  app.GetWorkspace()->RegisterTabCreator(
      new test_support::PartingCreator("notes", [&](Workspace& ioWorkspace, const std::string&) {
        app.mLog.Add("~Panel");
        EXPECT_EQ(app.GetWorkspace(), &ioWorkspace);
        EXPECT_EQ(app.GetWorkspace()->GetMainTopLevelWindow(), window);
        EXPECT_EQ(vek::uisupport::FindMainWindow(), window);
        EXPECT_NE(vek::uisupport::FindDrawSupplier(), nullptr);
        EXPECT_NE(app.GetMainMenu(), nullptr);
      }));
  ASSERT_NE(app.GetWorkspace()->OpenTab(lumcore::utility::ToUTF8("notes")), nullptr);
  app.mLog.Take();
  app.ResetWorkspaceManager();
  EXPECT_EQ(app.mLog.Take(), "~Manager InitWorkspaceManagerMenu ~MenuHelper HelperAdded");
  app.Terminate();
  EXPECT_EQ(app.mLog.Take(),
            "SaveAppSettings TerminateWorkspace ~Panel TerminateApplication ~MenuHelper ~Manager "
            "TerminateDrawing OSTerminateDrawing OSTerminate");
  EXPECT_EQ(app.GetWorkspace(), nullptr);
  EXPECT_EQ(app.GetPlatformMenuHelper(), nullptr);
  EXPECT_EQ(app.GetWorkspaceManager(), nullptr);
}

// A window that the application does not know.
void ActivateAnother() {
  lumworkspace::workspace::Workspace workspace(nullptr);
  workspace.CreateMainTopLevelWindow(nullptr);
  auto* const window = workspace.GetMainTopLevelWindow();
  window->UI_Show(true);
  lumui::testing::ActivateWindow(window);
  lumui::testing::ActivateWindow(nullptr);
}

// An application that is left, and comes to the front again, while it ends.
class LeftApp : public RecordingApp {
 public:
  using RecordingApp::RecordingApp;

 protected:
  void DoAppActiveStateChanged(bool inActive) override { mLog.Add(inActive ? "in" : "out"); }
  void TerminateWorkspace() override {
    auto* const window = GetWorkspace()->GetMainTopLevelWindow();
    lumui::testing::ActivateWindow(nullptr);
    lumui::testing::ActivateWindow(window);
    RecordingApp::TerminateWorkspace();
  }
  void TerminateDrawing() override {
    RecordingApp::TerminateDrawing();
    ActivateAnother();
  }
};

TEST_F(LifeCycle, ItHearsThatItIsLeftUntilItHasEnded) {
  LeftApp app(mFolder.GetPath("prefs"));
  ASSERT_TRUE(app.Start());
  lumui::testing::ActivateWindow(app.GetWorkspace()->GetMainTopLevelWindow());
  app.mLog.Take();
  app.Terminate();
  EXPECT_EQ(app.mLog.Take(),
            "SaveAppSettings out in TerminateWorkspace TerminateApplication ~MenuHelper "
            "~Manager TerminateDrawing out OSTerminateDrawing OSTerminate");
  ActivateAnother();
  EXPECT_EQ(app.mLog.Take(), "");
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
