// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumscripting/ScriptRunner.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "lumcore/utility/StringUtils.h"
#include "lumscripting/threads/DirectCall.h"
#include "support/RunningScripts.h"
#include "support/TemporaryFolder.h"

namespace {

using lumcore::utility::ToUTF16;
using lumscripting::ScriptRunner;
using lumscripting::ScriptValue;

constexpr std::chrono::seconds kPatience(10);

using Scripts = test_support::RunningScripts;

TEST_F(Scripts, GiveTheValueOfTheirLastStatementOrTheirError) {
  EXPECT_EQ(Run("6 * 7"), "42");
  EXPECT_EQ(Run("'a' + String.fromCodePoint(0x1F600)"), "a\xF0\x9F\x98\x80");
  EXPECT_EQ(Run("var kept = true;"), "undefined");
  EXPECT_EQ(Run("kept"), "true");
  EXPECT_EQ(Run("1;\n2;\nnoSuchName;"),
            "failed: test.js:3: ReferenceError: noSuchName is not defined");
  EXPECT_EQ(Run("\n\nthrow 'a text';"), "failed: test.js:3: a text");
  EXPECT_EQ(Run("1;\nvar = 2;").substr(0, 18), "failed: test.js:2:");
}

TEST_F(Scripts, CallTheHostOnTheThreadOfTheUserInterface) {
  const auto uiThread = std::this_thread::get_id();
  std::vector<std::string> calls;
  mRunner->AddFunction(ToUTF16("tell"), [&](const std::vector<ScriptValue>& inArguments) {
    EXPECT_EQ(std::this_thread::get_id(), uiThread);
    std::string call;
    for (const ScriptValue& argument : inArguments)
      call += test_support::AsText(argument) + ";";
    calls.push_back(call);
    return ScriptValue(static_cast<double>(inArguments.size()));
  });
  EXPECT_EQ(Run("tell('x', 3) + tell() + tell(undefined, true, 'y')"), "5");
  EXPECT_EQ(calls, (std::vector<std::string>{"x;3;", "", "undefined;true;y;"}));
}

TEST_F(Scripts, SeeWhatTheHostThrowsAsAnExceptionOfTheirs) {
  mRunner->AddFunction(ToUTF16("refuse"), [](const std::vector<ScriptValue>&) -> ScriptValue {
    throw std::runtime_error("not now");
  });
  mRunner->AddFunction(ToUTF16("refuseOddly"),
                       [](const std::vector<ScriptValue>&) -> ScriptValue { throw 7; });
  EXPECT_EQ(Run("try { refuse(); } catch (e) { 'caught ' + e.message }"), "caught not now");
  EXPECT_EQ(Run("\nrefuse();"), "failed: test.js:2: Error: not now");
  EXPECT_EQ(Run("try { refuseOddly(); } catch (e) { e.message }"),
            "The function refuseOddly failed");
}

TEST_F(Scripts, ThatNeverEndCanBeStopped) {
  mRunner->AddFunction(ToUTF16("stopMe"), [this](const std::vector<ScriptValue>&) {
    mRunner->StopRunning();
    return ScriptValue();
  });
  const std::string stopped = "failed: test.js:0: The script was stopped.";
  EXPECT_EQ(Run("stopMe(); for (;;) {}"), stopped);
  EXPECT_EQ(Run("for (;;) { try { stopMe(); } catch (e) {} }"), stopped);
  EXPECT_EQ(Run("({ toString() { stopMe(); for (;;) {} } })"), stopped);
  // Neither the interruption nor the refusal of calls outlives the run that it was meant for.
  mRunner->AddFunction(ToUTF16("answer"),
                       [](const std::vector<ScriptValue>&) { return ScriptValue(42.0); });
  EXPECT_EQ(Run("answer()"), "42");
}

TEST_F(Scripts, RunInTheOrderInWhichTheyWereQueued) {
  for (const char* program : {"'one'", "'two'", "'three'"})
    Queue(program);
  while (mLog.size() < 3)
    WaitForResult();
  EXPECT_EQ(mLog, (std::vector<std::string>{"one", "two", "three"}));
}

TEST_F(Scripts, DoNotKeepARunnerFromShuttingDown) {
  bool endedFromWithin = false;
  mRunner->AddFunction(ToUTF16("shutDown"), [&](const std::vector<ScriptValue>&) {
    // The script thread waits for this very call.
    endedFromWithin = mRunner->ShutDown(kPatience);
    mApplication.Quit();
    return ScriptValue();
  });
  Queue("shutDown(); for (;;) {}");
  Queue("'never reached'");
  mApplication.Run();
  mApplication.PumpPendingEvents();
  EXPECT_TRUE(endedFromWithin);
  EXPECT_TRUE(mLog.empty()) << mLog.front();

  ScriptRunner endless;
  endless.Run(ToUTF16("for (;;) { try { for (;;) {} } catch (e) {} }"), ToUTF16("endless.js"), {});
  EXPECT_TRUE(endless.ShutDown(kPatience));

  ScriptRunner caller;
  caller.AddFunction(ToUTF16("wait"),
                     [](const std::vector<ScriptValue>&) { return ScriptValue(); });
  caller.Run(ToUTF16("for (;;) { try { wait(); } catch (e) {} }"), ToUTF16("caller.js"), {});
  EXPECT_TRUE(caller.ShutDown(kPatience));
}

TEST_F(Scripts, CallsFromOtherThreadsWaitAndPassFailuresOn) {
  std::string log;
  std::thread caller([&] {
    lumscripting::threads::DirectVoidCallOnUIThread([&] { log += "ran;"; });
    log += "returned;";
    try {
      lumscripting::threads::DirectVoidCallOnUIThread([] { throw std::runtime_error("no"); });
    } catch (const std::runtime_error& failure) {
      log += failure.what();
    }
    lumscripting::threads::RefuseCallsFrom(std::this_thread::get_id());
    EXPECT_THROW(lumscripting::threads::DirectVoidCallOnUIThread([&] { log += "refused ran;"; }),
                 lumscripting::threads::CallCancelled);
    lumscripting::threads::AllowCallsFrom(std::this_thread::get_id());
    mApplication.Quit();
  });
  mApplication.Run();
  caller.join();
  EXPECT_EQ(log, "ran;returned;no");
}

TEST_F(Scripts, ComeFromFilesAndTellWhatIsWrongWithThem) {
  const TemporaryFolder folder;
  const struct {
    const char* bytes;
    const char* result;  // begins with this; @ is the path
  } rows[] = {
      {"\xEF\xBB\xBF'gr\xC3\xBC\xC3\x9F'", "gr\xC3\xBC\xC3\x9F"},
      {"", "undefined"},
      {"1;\nfunction f() {\n  1", "failed: @:3: SyntaxError: "},
      {"1;\n2;\n\nboom()", "failed: @:4: ReferenceError: boom is not defined"},
      {"1;\n'\xFF'\n", "failed: @:2: The text is not UTF-8."},
      {"1;\n2;\n'\xE2\x82", "failed: @:3: The text is not UTF-8."},  // in the middle of a character
      {"\xFF\xFE'a'", "failed: @:1: The text is not UTF-8."},
  };
  const auto file = folder.GetFile("odd name#%41.js");
  for (const auto& row : rows) {
    file.ReplaceContents(row.bytes);
    mRunner->RunFile(file, Completion());
    std::string expected = row.result;
    const auto at = expected.find('@');
    if (at != std::string::npos) expected.replace(at, 1, file.GetPath());
    EXPECT_EQ(WaitForResult().substr(0, expected.size()), expected);
  }
  file.Remove();
  mRunner->RunFile(file, Completion());
  EXPECT_NE(WaitForResult().find(file.GetPath()), std::string::npos);
}

}  // namespace
