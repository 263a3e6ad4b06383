// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

#include "lumcore/debug/Contract.h"
#include "lumui/controls/UI_StaticText.h"
#include "lumui/controls/UI_TextButton.h"
#include "lumui/ui/ModuleHandle.h"
#include "lumui/utility/OS_Menu.h"
#include "lumworkspace/workspace/Manager.h"
#include "support/MenuText.h"
#include "support/Panels.h"
#include "support/RecordingApp.h"
#include "support/TemporaryFolder.h"
#include "vek/workspace/GenericPanel.h"
#include "vek/workspace/GenericPanelCreatorBase.h"
#include "vek/workspace/GenericPanelRegistry.h"

namespace {

using namespace test_support;
using lumui::controls::UI_StaticText;
using lumui::controls::UI_TextButton;
using lumui::ui::UI_Node;
using vek::workspace::GenericPanel;
using vek::workspace::GenericPanelController;
using vek::workspace::GenericPanelCreatorBase;
using vek::workspace::GenericPanelRegistry;

EventLog gLog;
std::function<void()> gOnFlyout;  // within the controller's handling of a command

lumui::utility::ResourceManager* OwnResources() {
  static const int sHere = 0;
  static lumui::utility::ResourceManager sResources(lumui::ui::ModuleOfAddress(&sHere));
  return &sResources;
}

class SwatchController : public GenericPanelController {
 public:
  using GenericPanelController::GetControlForID;
  using GenericPanelController::GetTabPanel;

  explicit SwatchController(GenericPanel* inPanel, const std::string& inName = "c")
      : GenericPanelController(inPanel), mName(inName) {}
  ~SwatchController() override {
    const bool sees = GetControlForID("Swatch") != nullptr;
    gLog.Add("~" + mName + (sees ? "(controls)" : ""));
  }

  void ConnectControls() override {
    mMixed.reset(new UI_TextButton::ChangedFunction(
        [this](auto*) { GetControl<UI_StaticText>("Name")->SetText(U16("Mixed")); }));
    GetControl<UI_TextButton>("Mix")->NotifyWhenChanged(mMixed);
  }

  bool mKnowsSwatches = true;

 private:
  boost::intrusive_ptr<UI_Node> CreateCustomNode(const lumcore::UTF16String& inClass) override {
    gLog.Add("make " + lumcore::utility::ToStdString(inClass));
    return mKnowsSwatches ? new lumui::ui::UI_SubView : nullptr;
  }
  void PopulateFlyoutMenu(lumui::utility::OS_Menu& ioMenu) override {
    ioMenu.AppendItem(U16("Forget " + mName), 7);
  }
  bool DoFlyoutMenuCommand(unsigned inCommand) override {
    if (inCommand != 7) return false;
    gOnFlyout();
    // Whatever became of the panel, it is there until this returns.
    gLog.Add(GetTabPanel() && GetControlForID("Swatch") ? "done by " + mName : "lost");
    return true;
  }

  std::string mName;
  boost::shared_ptr<UI_TextButton::ChangedFunction> mMixed;
};

class SwatchCreator : public GenericPanelCreatorBase {
 public:
  using GenericPanelCreatorBase::GenericPanelCreatorBase;

  boost::intrusive_ptr<TabPanel> BuildPanel(Workspace* inWorkspace,
                                            lumworkspace::workspace::WorkspaceFrameBase* inFrame,
                                            const lumcore::UTF16String& inTitle) const override {
    const boost::intrusive_ptr<GenericPanel> panel(
        new GenericPanel(inWorkspace, inFrame, inTitle, GetTabType(), nullptr));
    const boost::intrusive_ptr<SwatchController> controller(new SwatchController(panel.get()));
    panel->SetResourceManager(GetResourceManager());
    panel->SetController(controller);
    panel->CreateControls(GetXmlResourceName());
    controller->ConnectControls();
    return panel;
  }
  TabPlace GetFirstPlace() const override { return TabPlace(); }
};

// As hosts have them: built before main, and so before there is an application.
const SwatchCreator gSwatches(U8("swatches"), "$$$/test/Swatches/Title=Swatches && inks", 41,
                              U8("Swatches"));
const SwatchCreator gCutOff(U8("cutoff"), "$$$/test/CutOff/Title=Cut off", 42, U8("cutoff"),
                            OwnResources);

class PanelApp : public RecordingApp {
 public:
  using RecordingApp::RecordingApp;
  bool mHasResources = true;

 private:
  lumui::utility::ResourceManager* InitResourceManager(vek::app::AppInitArgs&) override {
    return mHasResources ? new lumui::utility::ResourceManager(*OwnResources()) : nullptr;
  }
  // The next stage behind the making of the workspace.
  boost::intrusive_ptr<lumui::sharedui::LUMAboutDlog> GetNewSplashScreen() override {
    mLog.Add(GetWorkspace()->FindTabCreator(U8("swatches")) ? "with creators" : "without creators");
    return nullptr;
  }
  lumworkspace::workspace::ManagerBase* InitWorkspaceManager() override {
    return new lumworkspace::workspace::Manager(*GetWorkspace(),
                                                lumcore::filesupport::Dir(mPrefsDir + "/layouts"),
                                                nullptr, lumcore::geom::PointT<int>(800, 600));
  }
};

class GenericPanels : public ::testing::Test {
 protected:
  GenericPanels() { Start(); }
  ~GenericPanels() override {
    gOnFlyout = nullptr;
    mApp->Terminate();
    gLog.Take();
  }

  void Start(bool inHasResources = true) {
    mApp = std::make_unique<PanelApp>(mFolder.GetPath("prefs"));
    mApp->mHasResources = inHasResources;
    EXPECT_TRUE(mApp->Start());
  }
  Workspace& GetWorkspace() { return *mApp->GetWorkspace(); }
  GenericPanel* Open() {
    return dynamic_cast<GenericPanel*>(GetWorkspace().OpenTab(U8("swatches")));
  }
  GenericPanel* Find() {
    return dynamic_cast<GenericPanel*>(GetWorkspace().FindTab(U8("swatches")));
  }
  static SwatchController& ControllerOf(GenericPanel& inPanel) {
    return dynamic_cast<SwatchController&>(*inPanel.GetController());
  }
  static std::string Menu(GenericPanel& ioPanel) {
    const HMENU handle = lumui::ui::OS_Menu::Create(true);
    lumui::utility::OS_Menu menu(handle);
    ioPanel.BuildFlyoutMenu(menu);
    const std::string text = MenuText(handle);
    lumui::ui::OS_Menu::Destroy(handle);
    return text;
  }
  // Without a frame, and with a size only if one is given.
  boost::intrusive_ptr<GenericPanel> Loose(float inWidth = 0, float inHeight = 0) {
    boost::intrusive_ptr<GenericPanel> panel(
        new GenericPanel(&GetWorkspace(), nullptr, U16("Loose"), U8("loose"), nullptr));
    panel->UI_SetLocalRectF(lumcore::geom::RectT<float>(3, 4, inWidth, inHeight));
    panel->SetController(new SwatchController(panel.get(), "loose"));
    return panel;
  }
  static std::string RootOf(const GenericPanel& inPanel) {
    if (inPanel.UI_GetChildCount() == 0) return "none";
    const auto& rect = inPanel.UI_GetChild(0)->UI_GetLocalRectF();
    const auto number = [](float inValue) { return std::to_string(static_cast<int>(inValue)); };
    return number(rect.x) + "," + number(rect.y) + " " + number(rect.width) + "x" +
           number(rect.height);
  }
  template <class Call>
  static std::string ErrorOf(Call inCall) {
    try {
      inCall();
    } catch (const std::exception& error) {
      return error.what();
    }
    return "no error";
  }

  TemporaryFolder mFolder;
  std::unique_ptr<PanelApp> mApp;
};

TEST_F(GenericPanels, LaterCreatorsTakeCommandsAndLeaveWhenTheyGo) {
  auto& registry = GenericPanelRegistry::GetInstance();
  registry.RegisterPanelCreator(nullptr);
  const auto typeOf = [&](int inCommand) {
    lumcore::UTF8String type = U8("as it was");
    const bool found = registry.GetTabTypeForCommand(inCommand, type);
    return lumcore::utility::ToStdString(type) + (found ? "!" : "?");
  };
  EXPECT_EQ(typeOf(41) + typeOf(40), "swatches!as it was?");
  {
    const SwatchCreator other(U8("aside"), "$$$/test/Aside=Aside", 41, U8(""));
    EXPECT_EQ(typeOf(41), "aside!");
    EXPECT_EQ(other.GetResourceManager(), nullptr);
    Workspace workspace(nullptr);
    registry.RegisterTabCreators(workspace);
    EXPECT_EQ(workspace.GetTabTypes(),
              (std::vector<lumcore::UTF8String>{U8("aside"), U8("cutoff"), U8("swatches")}));
  }
  EXPECT_EQ(typeOf(41), "as it was?");
  registry.RegisterPanelCreator(&gSwatches);
  EXPECT_EQ(typeOf(41), "swatches!");
}

TEST_F(GenericPanels, ComeBackWithTheLayoutOfTheLastRunAndWork) {
  EXPECT_NE(mApp->mLog.Take().find("InitWorkspace with creators"), std::string::npos);
  ASSERT_NE(Open(), nullptr);
  mApp->GetWorkspaceManager()->SaveWorkspace(U16("mine"));
  mApp->SaveDefaultWorkSpace();
  mApp->Terminate();
  EXPECT_EQ(gLog.Take(), "make host::Swatch ~c(controls)");

  mApp.reset();
  Start();
  GenericPanel* const panel = Find();
  ASSERT_NE(panel, nullptr) << "restored before the host has opened anything";
  EXPECT_EQ(lumcore::utility::ToStdString(panel->GetTitle()), "Swatches && inks");
  EXPECT_EQ(gLog.Take(), "make host::Swatch");
  const auto& controller = ControllerOf(*panel);
  dynamic_cast<UI_TextButton&>(*controller.GetControlForID("Mix")).Press();
  const auto name = controller.GetControlForID("Name");
  EXPECT_EQ(dynamic_cast<UI_StaticText&>(*name).GetText(), U16("Mixed"));

  ASSERT_TRUE(GetWorkspace().CloseTab(U8("swatches")));
  EXPECT_EQ(gLog.Take(), "~c(controls)");
  ASSERT_NE(Open(), nullptr);
  const auto again = ControllerOf(*Find()).GetControlForID("Name");
  EXPECT_EQ(dynamic_cast<UI_StaticText&>(*again).GetText(), U16("No colour"));
}

TEST_F(GenericPanels, RootFillsThePanelAsSoonAsThePanelHasASize) {
  const auto panel = Loose();
  panel->CreateControls(U8("swatches"));
  EXPECT_EQ(RootOf(*panel), "0,0 180x90");
  panel->UI_SetLocalRectF(lumcore::geom::RectT<float>(9, 9, 0, 50));
  EXPECT_EQ(RootOf(*panel), "0,0 0x50");
  const auto sized = Loose(300, 200);
  sized->CreateControls(U8("swatches"));
  EXPECT_EQ(RootOf(*sized), "0,0 300x200");
  // With no height there is no size to take.
  const auto flat = Loose(300, 0);
  flat->CreateControls(U8("swatches"));
  EXPECT_EQ(RootOf(*flat), "0,0 180x90");
}

TEST_F(GenericPanels, FlyoutMenuIsThePanelsOwnAndThenTheControllers) {
  GenericPanel& panel = *Open();
  EXPECT_EQ(Menu(panel), "Move to Own Window=61440 | Close Panel=61441 | Forget c=7");
  EXPECT_FALSE(panel.RunFlyoutMenuCommand(8));
  panel.SetController(nullptr);
  EXPECT_EQ(Menu(panel), "Move to Own Window=61440 | Close Panel=61441");
  EXPECT_FALSE(panel.RunFlyoutMenuCommand(7));
}

TEST_F(GenericPanels, ControllerAndPanelMayGoInTheControllersOwnCallback) {
  GenericPanel* panel = Open();
  gLog.Take();
  gOnFlyout = [&] { panel->SetController(new SwatchController(panel, "next")); };
  EXPECT_TRUE(panel->RunFlyoutMenuCommand(7));
  EXPECT_EQ(gLog.Take(), "done by c ~c(controls)");
  gOnFlyout = [&] { GetWorkspace().CloseTab(U8("swatches")); };
  EXPECT_TRUE(panel->RunFlyoutMenuCommand(7));
  EXPECT_EQ(gLog.Take(), "done by next ~next(controls)");
  EXPECT_EQ(Find(), nullptr);
}

TEST_F(GenericPanels, WhatOutlivesAPanelFindsNoDeadOne) {
  boost::intrusive_ptr<SwatchController> first;
  boost::intrusive_ptr<SwatchController> second;
  {
    const auto panel = Loose(100, 100);
    panel->CreateControls(U8("swatches"));
    first = &ControllerOf(*panel);
    second = new SwatchController(panel.get(), "second");
    panel->SetController(second);
    // Taken out by the host, which keeps no reference.
    UI_Node& root = *panel->UI_GetChild(0);
    ASSERT_TRUE(root.UI_RemoveChild(second->GetControlForID("Swatch").get()));
    EXPECT_EQ(second->GetControlForID("Swatch")->UI_GetParentNode(), nullptr);
    EXPECT_EQ(first->GetTabPanel(), panel.get()) << "it has been replaced, and the panel is there";
    EXPECT_EQ(second->GetControlForID("Nowhere"), nullptr);
  }
  EXPECT_EQ(first->GetTabPanel(), nullptr);
  EXPECT_EQ(second->GetTabPanel(), nullptr);
  EXPECT_EQ(second->GetControlForID("Swatch"), nullptr);
}

TEST_F(GenericPanels, ArchivesThatCannotBeBuiltAreToldAndChangeNothing) {
  ASSERT_NE(Open(), nullptr);
  const std::string before = lumworkspace::testing::LayoutAsText(GetWorkspace());
  // Its end is missing behind line 38.
  EXPECT_EQ(ErrorOf([&] { GetWorkspace().OpenTab(U8("cutoff")); }),
            "cutoff:39:1: no element found: the document ends inside an element");
  EXPECT_EQ(GetWorkspace().FindTab(U8("cutoff")), nullptr);
  EXPECT_EQ(lumworkspace::testing::LayoutAsText(GetWorkspace()), before);

  const auto panel = Loose(100, 100);
  panel->CreateControls(U8("swatches"));
  auto& controller = ControllerOf(*panel);
  const auto swatch = controller.GetControlForID("Swatch");
  controller.mKnowsSwatches = false;
  const std::string error = ErrorOf([&] { panel->CreateControls(U8("swatches")); });
  EXPECT_NE(error.find("swatches"), std::string::npos) << error;
  EXPECT_NE(error.find("root/child-1 \"Swatch\""), std::string::npos) << error;
  EXPECT_NE(error.find("host::Swatch"), std::string::npos) << error;
  EXPECT_EQ(controller.GetControlForID("Swatch"), swatch);
  EXPECT_EQ(panel->UI_GetChildCount(), 1u);
  // A resource that is not there is no error.
  const auto empty = Loose(100, 100);
  empty->CreateControls(U8("nowhere"));
  EXPECT_EQ(RootOf(*empty), "none");
  EXPECT_EQ(ControllerOf(*empty).GetControlForID("Swatch"), nullptr);
}

TEST_F(GenericPanels, NoResourcesAtAllAreAContract) {
  mApp->Terminate();
  mApp.reset();
  Start(false);
  const auto panel = Loose();
  std::string told;
  const auto before = lumcore::debug::SetContractDialog([&](const auto& inFailure) {
    told = std::string(inFailure.expression) + "|" + inFailure.sourcePath + "|" +
           inFailure.function + "|" + std::to_string(inFailure.line);
    return false;
  });
  panel->CreateControls(U8(""));
  EXPECT_EQ(told, "");
  EXPECT_EQ(ErrorOf([&] { panel->CreateControls(U8("swatches")); }),
            "An input contract violation has occurred!");
  EXPECT_EQ(told,
            "resourceManager != 0|..\\..\\workspace\\src\\GenericPanel|"
            "vek::workspace::GenericPanel::CreateControls|86");
  panel->SetResourceManager(OwnResources());
  EXPECT_NO_THROW(panel->CreateControls(U8("swatches")));
  EXPECT_EQ(RootOf(*panel), "0,0 180x90");
  lumcore::debug::SetContractDialog(before);
}

}  // namespace
