// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <exception>
#include <memory>
#include <string>

#include "Asked.h"
#include "QtCallPeer.h"
#include "lumcore/utility/StringUtils.h"
#include "lumscripting/ScriptRunner.h"
#include "lumui/ui/Application.h"
#include "support/Pair.h"
#include "vek/uisupport/CommandRegistry.h"

namespace {

using lumcore::utility::ToUTF16;
using lumscripting::ScriptRunner;

constexpr int kCalls = 1000;  // of one script, so that starting it weighs little
constexpr int kLevels = 8;
constexpr int kCommand = 42;
const char kName[] = "Bench.Command";

// Nobody on it knows the command, so that a walk asks every level.
class Chain {
 public:
  Chain() {
    for (auto& level : mLevels) {
      level = std::make_unique<Level>(mInnermost);
      mInnermost = level.get();
    }
    mInnermost->SetAsCurrentCommandHandler(true);
  }
  void SetTargets(const vek::uisupport::CommandHandler::ScriptTargetFunction& inGetTarget) {
    for (auto& level : mLevels)
      level->EnableScriptEvents(inGetTarget);
  }

 private:
  std::unique_ptr<Level> mLevels[kLevels];
  Level* mInnermost = nullptr;
};

// Takes every command, so that a script's call goes the whole way.
class Taking : public vek::uisupport::CommandHandler {
 public:
  Taking() { SetAsCurrentCommandHandler(true); }

 protected:
  bool DoHandleCommand(int) override { return true; }
  bool DoCommandEnabled(int, bool& outEnabled, bool&, lumcore::UTF16String&) override {
    return outEnabled = true;
  }
};

// Runs the loop until the script has ended. A failure ends the benchmark.
void Run(ScriptRunner& ioRunner, const std::string& inProgram) {
  std::exception_ptr failure;
  ioRunner.Run(ToUTF16(inProgram), ToUTF16("bench.js"),
               [&](const lumscripting::ScriptValue&, std::exception_ptr inFailure) {
                 failure = std::move(inFailure);
                 lumui::ui::Application::Get()->Quit();
               });
  lumui::ui::Application::Get()->Run();
  if (failure) std::rethrow_exception(failure);
}

bench::Body CallsOf(const char* inCall) {
  const std::string program = "for (let i = 0; i < " + std::to_string(kCalls) + "; ++i) " + inCall;
  return [program](benchmark::State& ioState) {
    const Taking taking;
    ScriptRunner runner;
    for (auto _ : ioState)
      Run(runner, program);
    ioState.SetItemsProcessed(ioState.iterations() * kCalls);
  };
}

void CallsByQt(benchmark::State& ioState) {
  for (auto _ : ioState)
    benchmark::DoNotOptimize(CallByQtFromAThread(kCalls));
  ioState.SetItemsProcessed(ioState.iterations() * kCalls);
}

void Walk(benchmark::State& ioState) {
  for (auto _ : ioState)
    benchmark::DoNotOptimize(vek::uisupport::CommandHandlerBase::CallCommandChain(kCommand));
}

void WalkWithoutTargets(benchmark::State& ioState) {
  const Chain chain;
  Walk(ioState);
}

void WalkWithTargets(benchmark::State& ioState) {
  Chain chain;
  ScriptRunner runner;
  chain.SetTargets([&] { return runner.FindObject(ToUTF16("Command")); });
  Walk(ioState);
}

}  // namespace

int main(int argc, char** argv) {
  lumui::ui::Application application(argc, argv);
  vek::uisupport::CommandRegistry::Get().RegisterCommand(kCommand, ToUTF16(kName), {}, false);
  bench::Pair invoke{"invokeCommand from a script, beside Qt's blocking call", "us", std::nullopt,
                     CallsOf("Command.invokeCommand('Bench.Command')"), CallsByQt};
  invoke.wallClock = true;  // two threads that wait for each other
  return bench::Run("scripts", argc, argv,
                    {invoke,
                     {"execute, 8 levels with targets nobody listens at, beside none", "ns",
                      std::nullopt, WalkWithTargets, WalkWithoutTargets}});
}
