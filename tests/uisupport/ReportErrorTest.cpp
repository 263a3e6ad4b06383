// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/ReportError.h"

#include <gtest/gtest.h>

#include <ios>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <vector>

#include "lumcore/config/ErrorManager.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/filesupport/FileStream.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/dialogs/MessageDialog.h"
#include "lumui/ui/Application.h"
#include "vek/uisupport/Alert.h"
#include "vek/uisupport/MessageException.h"
#include "vek/uisupport/PlatformErrors.h"
#include "vek/undo/NonCriticalDeedFailure.h"
#include "vek/utility/ParamString.h"

namespace {

using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using lumui::dialogs::MessageDialogArgs;
using namespace vek::uisupport;

// Answers every box with its first button, or with the one that the test names, and keeps its
// texts.
class ErrorReports : public testing::Test {
 protected:
  ErrorReports() {
    lumui::dialogs::SetDialogAnswerer([this](const MessageDialogArgs& inArgs) {
      mFlagInBox = ExecutingDeferredReportError();
      mBoxes.push_back(ToStdString(inArgs.title) + "|" + ToStdString(inArgs.text));
      for (const auto& button : inArgs.buttons)
        mButtons += ToStdString(button) + " ";
      mIcon = inArgs.icon;
      return mAnswer;
    });
  }
  ~ErrorReports() override {
    lumui::dialogs::SetDialogAnswerer({});
    ForgetErrorInterpreters();
  }

  // The texts of all boxes since the last call.
  std::vector<std::string> TakeBoxes() { return std::exchange(mBoxes, {}); }
  std::string TakeButtons() { return std::exchange(mButtons, {}); }
  // The one box that the exception brings up, or what else happened.
  std::string Report(const std::exception& inException) {
    ReportError(inException, false);
    const auto boxes = TakeBoxes();
    return boxes.size() == 1 ? boxes.front() : std::to_string(boxes.size()) + " boxes";
  }

  bool mFlagInBox = false;
  int mAnswer = 0;
  std::string mButtons;
  std::vector<std::string> mBoxes;
  lumui::dialogs::MessageIcon mIcon{};
};

TEST_F(ErrorReports, SortExceptionsByTypeInTheOrderOfTheTable) {
  EXPECT_EQ(Report(std::bad_alloc()),
            "Error|Out of memory. Save and exit immediately to avoid data loss.");
  EXPECT_EQ(Report(lumcore::filesupport::eof_error("a")), "Error|Unexpected end of data.");
  EXPECT_EQ(Report(std::ios_base::failure("x")), "Error|I/O error.");
  EXPECT_EQ(Report(std::bad_cast()), "Error|Internal error.");
  EXPECT_EQ(Report(std::bad_exception()), "Error|Internal error.");
  EXPECT_EQ(Report(std::bad_typeid()), "Error|Internal error.");
  EXPECT_EQ(Report(std::invalid_argument("x")), "Error|Internal error.");
  EXPECT_EQ(Report(std::runtime_error("x")), "Error|General Error.");
  EXPECT_EQ(Report(vek::undo::NonCriticalDeedFailure()), "0 boxes");
  EXPECT_EQ(mIcon, lumui::dialogs::MessageIcon::kWarning);
}

TEST_F(ErrorReports, TakeTheTextOfAnExceptionThatHasOne) {
  EXPECT_EQ(Report(StringException(ToUTF16("It broke"))), "Error|It broke");
  EXPECT_EQ(Report(StringException({})), "Error|General Error.");
  EXPECT_EQ(Report(StringKeyException("$$$/a/b=By key")), "Error|By key");
  EXPECT_EQ(Report(StringKeyException("no\xE9key")), "Error|no\xC3\xA9key");
  EXPECT_EQ(Report(StringException(lumcore::UTF16String(3, 0))), "0 boxes");
}

TEST_F(ErrorReports, AskInterpretersInOrderUntilOneAnswersTrue) {
  static std::string sAsked;
  sAsked.clear();
  RegisterErrorInterpreter([](const std::exception&, lumcore::UTF16String& ioMessage) {
    sAsked += "1";
    ioMessage = ToUTF16("first");
    return false;
  });
  EXPECT_EQ(Report(std::runtime_error("x")), "Error|first");
  RegisterErrorInterpreter([](const std::exception& inException, lumcore::UTF16String& ioMessage) {
    sAsked += "2" + ToStdString(ioMessage);
    if (!dynamic_cast<const lumcore::config::Error*>(&inException)) return false;
    ioMessage = ToUTF16(inException.what());
    return true;
  });
  RegisterErrorInterpreter([](const std::exception&, lumcore::UTF16String& ioMessage) {
    sAsked += "3";
    ioMessage.assign(1, 0);
    return true;
  });
  EXPECT_EQ(Report(lumcore::config::Error(ToUTF16("second"))), "Error|second");
  EXPECT_EQ(Report(std::runtime_error("x")), "0 boxes");
  EXPECT_EQ(Report(std::logic_error("never asked")), "Error|Internal error.");
  EXPECT_EQ(sAsked, "112first12first3");
}

TEST_F(ErrorReports, ShowWhatAnEventLetsOutByTheErrorManagerUnlessAFunctionStandsInForIt) {
  RegisterErrorInterpreter(InterpretPlatformError);
  lumcore::config::ErrorManager manager(
      [](const std::exception_ptr& inError) { ReportCaughtError(inError, false); });
  lumcore::config::ErrorManager::Set(&manager);
  auto* const application = lumui::ui::Application::Get();
  EXPECT_FALSE(application->RunGuarded([] { throw lumcore::config::Error(ToUTF16("a.txt:3")); }));
  application->RunGuarded([] { throw std::runtime_error("x"); });
  application->RunGuarded([] { throw vek::undo::NonCriticalDeedFailure(); });
  EXPECT_EQ(TakeBoxes(), (std::vector<std::string>{"Error|a.txt:3", "Error|General Error."}));
  application->SetErrorFunction([](const std::exception_ptr&) {});
  application->RunGuarded([] { throw 1; });
  EXPECT_TRUE(TakeBoxes().empty());
  application->SetErrorFunction({});
  application->RunGuarded([] { throw 1; });
  EXPECT_EQ(TakeBoxes().front().substr(0, 12), "Error|Sorry,");
}

TEST_F(ErrorReports, ShowTextsAsTheyAreAndSetTheFlagWhileABoxIsUp) {
  ReportError(ToUTF16("plain"), 7, false);
  EXPECT_TRUE(mFlagInBox);
  EXPECT_FALSE(ExecutingDeferredReportError());
  ReportError(lumcore::UTF16String(), 0, false);
  ReportError(false);
  EXPECT_EQ(TakeBoxes(),
            (std::vector<std::string>{
                "Error|plain", "Error|",
                "Error|Sorry, an abnormal condition has been detected. \nBefore quitting, you have "
                "one chance to save your project \n(don't use the same name as the original)."}));
}

TEST_F(ErrorReports, DeferredOnesComeAtALaterTurnInOrder) {
  ReportError(StringException(ToUTF16("one")), true);
  ReportError(ToUTF16("two"), 0, true);
  ReportError(vek::undo::NonCriticalDeedFailure(), true);
  EXPECT_TRUE(mBoxes.empty());
  lumui::ui::Application::Get()->PumpPendingEvents();
  EXPECT_EQ(TakeBoxes(), (std::vector<std::string>{"Error|one", "Error|two"}));
}

TEST_F(ErrorReports, FlagFallsWhenTheBoxFails) {
  lumui::dialogs::SetDialogAnswerer({});
  EXPECT_THROW(ReportError(ToUTF16("unanswered"), 0, false), lumcore::config::Error);
  EXPECT_FALSE(ExecutingDeferredReportError());
}

TEST_F(ErrorReports, AlertsMapButtonsAndAnswersByValue) {
  struct Case {
    int type;
    const char* buttons;
    std::vector<int> responses;
  };
  const Case cases[] = {
      {0, "OK ", {0}},
      {1, "OK Cancel ", {0, 1}},
      {2, "Abort Retry Ignore ", {2, 6, 3}},
      {3, "Yes No Cancel ", {4, 5, 1}},
      {4, "Yes No ", {4, 5}},
      {5, "Retry Cancel ", {6, 1}},
      {6, "Yes No Cancel ", {4, 5, 1}},
      {17, "OK ", {0}},
  };
  for (const Case& each : cases) {
    for (mAnswer = 0; mAnswer < static_cast<int>(each.responses.size()); ++mAnswer) {
      const auto response = Alert::Show(static_cast<Alert::Type>(each.type), Alert::eIconStop,
                                        ToUTF16("t"), ToUTF16("x"), nullptr);
      EXPECT_EQ(static_cast<int>(response), each.responses[static_cast<std::size_t>(mAnswer)])
          << each.type << " answered " << mAnswer;
      EXPECT_EQ(TakeButtons(), each.buttons) << each.type;
    }
  }
  EXPECT_EQ(mIcon, lumui::dialogs::MessageIcon::kError);
}

TEST(Parameters, ReplaceTheFirstMarkerOfEachInOrder) {
  const std::string drive = "Disk ^2";
  const std::string letter = "C";
  std::string text = "^1 (^2) ^1 ^5";
  vek::utility::ParamString(text, &drive, &letter, nullptr, nullptr);
  EXPECT_EQ(text, "Disk C (^2) ^1 ^5");
  const auto wide = ToUTF16("x");
  auto wideText = ToUTF16("^4^3");
  vek::utility::ParamString(wideText, nullptr, &wide, nullptr, &wide);
  EXPECT_EQ(ToStdString(wideText), "x^3");
}

}  // namespace
