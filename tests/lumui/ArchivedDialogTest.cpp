// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/UI_ArchivedDialog.h"

#include "ArchiveFixture.h"
#include "UITest.h"
#include "lumui/controls/UI_TextEdit.h"
#include "lumui/dialogs/DialogDriver.h"
#include "lumui/dialogs/SimpleInputBox.h"
#include "lumui/dialogs/TextDialog.h"
#include "lumui/sharedui/LUMAboutDlog.h"
#include "lumui/ui/Executor.h"

namespace lumui::test {

namespace {

namespace input = lumui::testing;
using ui::KeyboardCode;
using ui::UI_Dialog;

class ExportDialog : public ui::UI_ArchivedDialog {
 public:
  explicit ExportDialog(ui::UI_Node* inParent = nullptr, const char* inResource = "exportdialog")
      : UI_ArchivedDialog(nullptr, TestResources(), U16(inResource), U16("Export"), inParent) {
    SetButtons(Button("OKButton"), Button("CancelButton"));
  }
  boost::intrusive_ptr<controls::UI_TextButton> Button(const char* inID) const {
    return dynamic_cast<controls::UI_TextButton*>(GetNodeForID(inID).get());
  }
  bool mMayEnd = true;

 private:
  bool DoMayEnd(int) override { return mMayEnd; }
};

class Dialogs : public UITest {
 protected:
  ~Dialogs() override { dialogs::SetDialogDriver(nullptr); }

  static void Tap(ui::OS_Window& inWindow, unsigned short inCode) {
    input::TapKey(inWindow, KeyboardCode::CreateFromControlCode(inCode, false));
  }
  int Run(UI_Dialog& inDialog, dialogs::DialogDriver inDriver) {
    dialogs::SetDialogDriver(std::move(inDriver));
    return inDialog.RunModal();
  }
  std::string ErrorOfRun(UI_Dialog& inDialog, dialogs::DialogDriver inDriver) {
    ::testing::internal::CaptureStderr();
    const std::string error = ErrorOf([&] { Run(inDialog, std::move(inDriver)); });
    ::testing::internal::GetCapturedStderr();
    return error;
  }
};

}  // namespace

TEST_F(Dialogs, EndAsTheUserSays) {
  struct Case {
    const char* what;
    int result;
    std::function<void(ExportDialog&)> work;
  };
  const auto press = [](const char* inID) {
    return [inID](ExportDialog& inDialog) { inDialog.Button(inID)->Press(); };
  };
  const auto tap = [](unsigned short inCode) {
    return [inCode](ExportDialog& inDialog) { Tap(inDialog, inCode); };
  };
  const std::vector<Case> cases = {
      {"OK", UI_Dialog::kOK, press("OKButton")},
      {"Cancel", UI_Dialog::kCancel, press("CancelButton")},
      {"Enter in a field", UI_Dialog::kOK, tap(KeyboardCode::kReturn)},
      {"Enter of the pad", UI_Dialog::kOK, tap(KeyboardCode::kEnter)},
      {"Escape", UI_Dialog::kCancel, tap(KeyboardCode::kEscape)},
      {"Enter on Cancel", UI_Dialog::kCancel,
       [&](ExportDialog& inDialog) {
         inDialog.Button("CancelButton")->UI_SetKeyboardFocus(ui::kFocusTab);
         Tap(inDialog, KeyboardCode::kReturn);
       }},
      {"the cross", UI_Dialog::kCancel,
       [](ExportDialog& inDialog) { input::RequestClose(inDialog); }},
      {"its own number", 7, [](ExportDialog& inDialog) { inDialog.EndDialog(7); }},
      {"a window that goes", UI_Dialog::kCancel,
       [](ExportDialog& inDialog) { inDialog.UI_DestroyWindow(); }},
  };
  const auto window = MakeWindow();
  const boost::intrusive_ptr<ExportDialog> dialog(new ExportDialog(window.get()));
  for (const Case& row : cases) {
    const int result = Run(*dialog, [&](UI_Dialog& inDialog) {
      EXPECT_TRUE(inDialog.GetNodeForID("NameField")->UI_HasKeyboardFocus());
      row.work(*dialog);
      inDialog.GetNodeForID("NameField")->UI_SetKeyboardFocus(ui::kFocusOther);
    });
    EXPECT_EQ(result, row.result) << row.what;
    EXPECT_EQ(dialog->GetResult(), row.result) << row.what;
    EXPECT_FALSE(dialog->UI_IsVisible());
  }
}

TEST_F(Dialogs, MayRefuseToEnd) {
  const boost::intrusive_ptr<ExportDialog> dialog(new ExportDialog);
  const int result = Run(*dialog, [&](UI_Dialog& inDialog) {
    dialog->Button("OKButton")->UI_SetEnabled(false);
    Tap(inDialog, KeyboardCode::kReturn);
    dialog->mMayEnd = false;
    Tap(inDialog, KeyboardCode::kEscape);
    input::RequestClose(inDialog);
    EXPECT_TRUE(inDialog.IsOpen());
    dialog->mMayEnd = true;
    inDialog.EndDialog(5);
    inDialog.EndDialog(6);
  });
  EXPECT_EQ(result, 5);
}

TEST_F(Dialogs, UnansweredWithoutADisplayFail) {
  const boost::intrusive_ptr<ExportDialog> dialog(new ExportDialog);
  EXPECT_NE(ErrorOfRun(*dialog, nullptr).find("\"Export\""), std::string::npos);
  EXPECT_NE(ErrorOfRun(*dialog, [](UI_Dialog&) {}).find("\"Export\""), std::string::npos);
  EXPECT_FALSE(dialog->IsOpen());
  EXPECT_EQ(ErrorOfRun(*dialog, [](UI_Dialog&) { throw lumcore::config::Error(U16("mine")); }),
            "mine");
  EXPECT_FALSE(dialog->IsOpen());
}

TEST_F(Dialogs, KeepOtherWindowsWaitingAndRunInside) {
  const auto window = MakeWindow();
  const boost::intrusive_ptr<RecordingNode> node(
      new RecordingNode("behind", [this](const std::string& inWord) { Log(inWord); }));
  node->UI_SetLocalRectF(Rect(0, 0, 200, 100));
  window->UI_AddChild(node);
  boost::intrusive_ptr<ExportDialog> dialog(new ExportDialog(window.get()));
  const int result = Run(*dialog, [&](UI_Dialog& inDialog) {
    input::ClickMouse(*window, Point(5, 5));
    lumcore::UTF16String name = U16("first");
    dialogs::TextDialogResult answer = U16("second");
    dialogs::SetTextDialogAnswerer([&](const dialogs::TextDialogArgs& inArgs) {
      Log(lumcore::utility::ToStdString(inArgs.initial));
      return std::optional<dialogs::TextDialogResult>(answer);
    });
    EXPECT_TRUE(dialogs::SimpleInputBox(U16("Name"), U16("&Name:"), name, &inDialog));
    answer = std::nullopt;
    EXPECT_FALSE(dialogs::SimpleInputBox(U16("Name"), U16("&Name:"), name, &inDialog));
    EXPECT_EQ(lumcore::utility::ToStdString(name), "second");
    dialogs::SetTextDialogAnswerer(nullptr);
    // The last reference but that of the loop.
    dialog->EndDialog(9);
    dialog.reset();
  });
  EXPECT_EQ(result, 9);
  EXPECT_EQ(TakeLog(), "first second");
  input::ClickMouse(*window, Point(5, 5));
  EXPECT_EQ(TakeLog(), "behind:press@5,5 behind:release@5,5");
}

TEST_F(Dialogs, EndWithTheApplication) {
  const boost::intrusive_ptr<ExportDialog> dialog(new ExportDialog);
  dialog->mMayEnd = false;
  int result = -1;
  Manager().GetExecutor()->Post([&] { result = Run(*dialog, [&](UI_Dialog&) { App().Quit(3); }); });
  EXPECT_EQ(App().Run(), 3);
  EXPECT_EQ(result, UI_Dialog::kCancel);
}

TEST_F(Dialogs, FollowTheirArchiveInSize) {
  const boost::intrusive_ptr<ExportDialog> dialog(new ExportDialog);
  const auto rectOf = [&](const char* inID) {
    return dialog->GetNodeForID(inID)->UI_GetLocalRectF();
  };
  EXPECT_EQ(dialog->GetBounds().width, 400);
  dialog->SetBounds(Rect(30, 40, 500, 430));
  EXPECT_EQ(rectOf("OKButton"), Rect(304, 392, 86, 26));
  EXPECT_EQ(rectOf("NotesField"), Rect(108, 148, 376, 172));
  dialog->SetBounds(Rect(30, 40, 10, 10));
  Run(*dialog, [&](UI_Dialog& inDialog) {
    EXPECT_EQ(inDialog.GetBounds(), Rect(30, 40, 360, 300));
    inDialog.UI_SetSize(410, 340);
    inDialog.EndDialog(1);
  });
  EXPECT_EQ(rectOf("OKButton"), Rect(214, 302, 86, 26));
  EXPECT_NE(ErrorOf([] { ExportDialog(nullptr, "nothere"); }).find("nothere"), std::string::npos);
  EXPECT_NE(ErrorOf([] { ExportDialog(nullptr, "empty"); }).find("empty"), std::string::npos);
}

TEST_F(Dialogs, ModelessOnesHoldThemselves) {
  const auto window = MakeWindow();
  const auto open = [&] {
    const boost::intrusive_ptr<ExportDialog> made(new ExportDialog(window.get()));
    made->RunModeless([this](int inResult) { Log(std::to_string(inResult)); });
    return made->UI_GetHandle();
  };
  const HWND closed = open();
  input::RequestClose(*ui::OS_Window::UI_GetWindow(closed));
  EXPECT_EQ(TakeLog(), "2");
  EXPECT_EQ(ui::OS_Window::UI_GetWindow(closed), nullptr);
  ui::OS_Window::UI_GetWindow(open())->UI_DestroyWindow();
  App().PumpPendingEvents();
  EXPECT_EQ(TakeLog(), "2");
}

TEST_F(Dialogs, SplashScreensEndWithTheirReference) {
  sharedui::LUMAboutDlog::Content content;
  content.name = U16("Outliner");
  content.text = U16("one\ntwo");
  boost::intrusive_ptr<sharedui::LUMAboutDlog> splash(new sharedui::LUMAboutDlog(content));
  // What waits goes on waiting: nothing of the application runs before it is complete.
  Manager().GetExecutor()->Post([this] { Log("posted"); });
  splash->Show(true);
  EXPECT_EQ(TakeLog(), "");
  EXPECT_TRUE(splash->UI_IsVisible());
  App().PumpPendingEvents();
  EXPECT_EQ(TakeLog(), "posted");
  const HWND handle = splash->UI_GetHandle();
  splash.reset();
  EXPECT_EQ(ui::OS_Window::UI_GetWindow(handle), nullptr);
  splash.reset(new sharedui::LUMAboutDlog(content));
  EXPECT_EQ(Run(*splash, [](UI_Dialog& inDialog) { Tap(inDialog, KeyboardCode::kReturn); }),
            UI_Dialog::kOK);
  EXPECT_EQ(Run(*splash, [](UI_Dialog& inDialog) { input::ClickMouse(inDialog, Point(9, 9)); }),
            UI_Dialog::kOK);
}

}  // namespace lumui::test
