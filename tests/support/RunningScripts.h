// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "lumcore/utility/StringUtils.h"
#include "lumscripting/ScriptRunner.h"
#include "lumui/ui/Application.h"

namespace test_support {

inline std::string AsText(const lumscripting::ScriptValue& inValue) {
  if (const auto* truth = std::get_if<bool>(&inValue)) return *truth ? "true" : "false";
  if (const auto* number = std::get_if<double>(&inValue))
    return std::to_string(std::lround(*number));
  if (const auto* text = std::get_if<lumcore::UTF16String>(&inValue))
    return lumcore::utility::ToStdString(*text);
  return "undefined";
}

inline std::string AsText(const std::exception_ptr& inFailure) {
  try {
    std::rethrow_exception(inFailure);
  } catch (const std::exception& failure) {
    return failure.what();
  }
}

// A runner, and what its scripts and listeners came to, in order. Scripts add to the log by
// log(text).
class RunningScripts : public testing::Test {
 protected:
  RunningScripts() : mApplication(*lumui::ui::Application::Get()) {
    AddFunction("log", [this](const auto& inArguments) {
      mLog.push_back(AsText(inArguments.at(0)));
      return lumscripting::ScriptValue();
    });
    mRunner->SetFailureFunction([this](const std::exception_ptr& inFailure) {
      mLog.push_back("failed: " + AsText(inFailure));
    });
  }

  void AddFunction(const char* inName, lumscripting::ScriptRunner::HostFunction inFunction) {
    mRunner->AddFunction(lumcore::utility::ToUTF16(inName), std::move(inFunction));
  }
  auto Completion() {
    return [this](const lumscripting::ScriptValue& inValue, const std::exception_ptr& inFailure) {
      mLog.push_back(inFailure ? "failed: " + AsText(inFailure) : AsText(inValue));
      mApplication.Quit();
    };
  }
  void Queue(const std::string& inProgram) {
    mRunner->Run(lumcore::utility::ToUTF16(inProgram), lumcore::utility::ToUTF16("test.js"),
                 Completion());
  }
  // Runs the loop until the next script has ended.
  std::string WaitForResult() {
    mApplication.Run();
    return mLog.back();
  }
  std::string Run(const std::string& inProgram) {
    Queue(inProgram);
    return WaitForResult();
  }
  // The log up to the end of all that is queued, as one text.
  std::string TakeLog() {
    Run("'ended'");
    mLog.pop_back();
    std::string text;
    for (const std::string& line : mLog)
      text += (text.empty() ? "" : " | ") + line;
    mLog.clear();
    return text;
  }

  lumui::ui::Application& mApplication;
  std::vector<std::string> mLog;
  std::unique_ptr<lumscripting::ScriptRunner> mRunner =
      std::make_unique<lumscripting::ScriptRunner>();
};

}  // namespace test_support
