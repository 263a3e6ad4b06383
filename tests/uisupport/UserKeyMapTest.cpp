// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/UserKeyMap.h"

#include "lumcore/Locale.h"
#include "lumcore/proplist/Utils.h"
#include "lumui/dialogs/DialogDriver.h"
#include "lumui/ui/ModuleHandle.h"
#include "lumui/ui/UI_Dialog.h"
#include "sharedui/ShortcutFixture.h"
#include "support/RecordingApp.h"

namespace vek::test {

namespace {

using lumui::ui::UI_Dialog;

class App : public test_support::RecordingApp {
 public:
  using RecordingApp::RecordingApp;

 private:
  lumui::utility::ResourceManager* InitResourceManager(vek::app::AppInitArgs&) override {
    static const int sHere = 0;
    return new lumui::utility::ResourceManager(lumui::ui::ModuleOfAddress(&sHere));
  }
};

// The application has two default key maps among its resources: one that maps Cut to D, and one for
// "de_DE" that maps it to G.
class UserKeyMap : public ShortcutFixture {
 protected:
  UserKeyMap() : mApp(mFolder.GetDir().GetPath()) {
    EXPECT_TRUE(mApp.Start());
    lumcore::Locale::SetApplicationLanguage("en");
  }
  ~UserKeyMap() override {
    lumui::dialogs::SetDialogDriver(nullptr);
    lumcore::Locale::SetApplicationLanguage("");
    mApp.Terminate();
  }
  void ChooseSet(const char* inName) {
    mApp.GetAppSettings().Set("currentShortcutSet", U16(inName));
  }
  std::string ChosenSet() {
    return U8(mApp.GetAppSettings().Get("currentShortcutSet", lumcore::UTF16String()));
  }
  std::string Load() {
    uisupport::LoadUserKeyMap(4);
    return Keys();
  }

  App mApp;
};

}  // namespace

TEST_F(UserKeyMap, IsTheChosenSetOrTheDefaultOfTheLanguage) {
  EXPECT_EQ(Load(), "1:D 4:Ctrl+Q");
  lumcore::Locale::SetApplicationLanguage("de_DE");
  EXPECT_EQ(Load(), "1:G 4:Ctrl+Q");
  // A file beside the program goes before the resources.
  const lumcore::filesupport::Dir root(lumcore::filesupport::Dir::AppDir(), "Resources");
  const lumcore::filesupport::Dir language(root, "xx_TEST");
  const lumcore::filesupport::Dir folder(language, "Shortcuts");
  lumcore::Locale::SetApplicationLanguage("xx_TEST");
  folder.Create();
  EXPECT_EQ(Load(), "1:D 4:Ctrl+Q");
  lumcore::filesupport::File(folder, "DefaultKeyMap.xml")
      .ReplaceContents("<keymap>" + Mapping("Copy", "F") + "</keymap>");
  EXPECT_EQ(Load(), "2:F 4:Ctrl+Q");
  language.RemoveAll();
  WriteSet("(Custom)", Mapping("Cut", "U"));
  ChooseSet("(Custom)");
  EXPECT_EQ(Load(), "1:U");
  WriteSet("Broken", "<keycmd>");
  for (const char* set : {"Gone", "Broken"}) {
    ChooseSet(set);
    EXPECT_EQ(Load(), "1:D 4:Ctrl+Q");
    EXPECT_EQ(ChosenSet(), set);
  }
}

TEST_F(UserKeyMap, TheDialogKeepsItsPlaceAndOnOKTheSet) {
  WriteSet("Mine", Mapping("Cut", "M"));
  ChooseSet("Mine");
  const auto run = [&](int inResult) {
    std::string place;
    lumui::dialogs::SetDialogDriver([&](UI_Dialog& ioDialog) {
      place = std::to_string(static_cast<int>(ioDialog.GetBounds().width));
      ioDialog.SetBounds({60, 70, 700, 500});
      ioDialog.EndDialog(inResult);
    });
    uisupport::DoEditKeyShortcutsDialog(4);
    lumcore::geom::RectT<float> bounds;
    lumcore::proplist::utils::ReadRect32(mApp.GetAppSettings(), "shortcutDialogBounds", bounds);
    EXPECT_EQ(bounds, lumcore::geom::RectT<float>(60, 70, 700, 500));
    return place + " " + ChosenSet() + " " + Keys();
  };
  lumcore::proplist::utils::WriteRect32(mApp.GetAppSettings(), "shortcutDialogBounds",
                                        lumcore::geom::RectT<float>(5, 5, 0, 0));
  Load();
  EXPECT_EQ(run(UI_Dialog::kOK), "640 Mine 1:M");
  ChooseSet("Gone");
  // Cancel keeps the name, and the place all the same.
  EXPECT_EQ(run(UI_Dialog::kCancel), "700 Gone 1:M");
  ChooseSet("");
  EXPECT_EQ(run(UI_Dialog::kOK), "700  1:D");
}

}  // namespace vek::test
