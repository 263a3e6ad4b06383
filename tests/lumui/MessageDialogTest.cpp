// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/dialogs/MessageDialog.h"

#include "UITest.h"
#include "lumcore/config/ThrowError.h"
#include "lumui/ui/Executor.h"

namespace lumui::test {

namespace {

class MessageDialog : public UITest {
 protected:
  ~MessageDialog() override { dialogs::SetDialogAnswerer(nullptr); }

  std::string Run(const dialogs::MessageDialogArgs& inArgs) {
    try {
      return std::to_string(dialogs::RunMessageDialog(inArgs));
    } catch (const lumcore::config::Error& error) {
      return error.what();
    }
  }
  dialogs::MessageDialogArgs Args() {
    dialogs::MessageDialogArgs args;
    args.title = U16("Title");
    args.text = U16("Save <b>it</b>?");
    args.buttons = {U16("Yes"), U16("No"), U16("Cancel")};
    args.cancelButton = 2;
    return args;
  }
};

}  // namespace

TEST_F(MessageDialog, UnansweredWithoutADisplayFailsAndTellsTheQuestion) {
  ::testing::internal::CaptureStderr();
  const std::string error = Run(Args());
  const std::string printed = ::testing::internal::GetCapturedStderr();
  for (const char* part : {"Title", "Save <b>it</b>?", "Yes | No | Cancel"}) {
    EXPECT_NE(error.find(part), std::string::npos) << error;
    EXPECT_NE(printed.find(part), std::string::npos) << printed;
  }
  // An answerer that leaves it to the user is no answer.
  dialogs::SetDialogAnswerer([](const dialogs::MessageDialogArgs&) { return std::nullopt; });
  ::testing::internal::CaptureStderr();
  EXPECT_EQ(Run(Args()), error);
  ::testing::internal::GetCapturedStderr();
}

TEST_F(MessageDialog, AnswerPressesTheButton) {
  for (int answer = 0; answer < 3; ++answer) {
    dialogs::SetDialogAnswerer([&](const dialogs::MessageDialogArgs& inArgs) {
      Log(lumcore::utility::ToStdString(inArgs.text));
      return answer;
    });
    EXPECT_EQ(Run(Args()), std::to_string(answer));
  }
  EXPECT_EQ(TakeLog(), "Save <b>it</b>? Save <b>it</b>? Save <b>it</b>?");
  dialogs::SetDialogAnswerer([](const dialogs::MessageDialogArgs&) { return 3; });
  ::testing::internal::CaptureStderr();
  EXPECT_NE(Run(Args()).find("Title"), std::string::npos);
  ::testing::internal::GetCapturedStderr();
}

TEST_F(MessageDialog, WithoutButtonsHasOne) {
  dialogs::SetDialogAnswerer([this](const dialogs::MessageDialogArgs& inArgs) {
    for (const auto& button : inArgs.buttons)
      Log(lumcore::utility::ToStdString(button));
    return 0;
  });
  EXPECT_EQ(Run(dialogs::MessageDialogArgs()), "0");
  EXPECT_EQ(TakeLog(), "OK");
}

TEST_F(MessageDialog, OwnerMayGoWhileItIsOpen) {
  const auto owner = MakeWindow();
  dialogs::SetDialogAnswerer([&](const dialogs::MessageDialogArgs&) {
    Manager().GetExecutor()->Post([&] { owner->UI_DestroyWindow(); });
    return 0;
  });
  dialogs::MessageDialogArgs args = Args();
  args.owner = owner.get();
  EXPECT_EQ(Run(args), "0");
  EXPECT_EQ(owner->UI_GetHandle(), nullptr);
}

TEST_F(MessageDialog, AQuitThatNoLoopWaitsForLeavesTheQuestionOpen) {
  dialogs::SetDialogAnswerer([](const dialogs::MessageDialogArgs&) { return 0; });
  App().Quit();
  EXPECT_EQ(Run(Args()), "0");
  // In the loop that ends there is nobody to ask any more.
  Manager().GetExecutor()->Post([this] { Log(Run(Args())); });
  App().Run();
  EXPECT_EQ(TakeLog(), "2");
}

}  // namespace lumui::test
