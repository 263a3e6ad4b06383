// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumscripting/ScriptRunner.h"

#include <utility>

#include "HostSide.h"
#include "ScriptText.h"
#include "ScriptWorker.h"
#include "lumcore/utility/StringUtils.h"
#include "lumscripting/ScriptRegistry.h"

namespace lumscripting {

namespace {

constexpr std::chrono::milliseconds kDestructorPatience(5000);

}  // namespace

ScriptRunner::ScriptRunner()
    : mHostSide(std::make_shared<HostSide>()),
      mWorker(std::make_shared<ScriptWorker>(std::weak_ptr<HostSide>(mHostSide))) {}

ScriptRunner::~ScriptRunner() {
  ShutDown(kDestructorPatience);
}

void ScriptRunner::AddFunction(const lumcore::UTF16String& inName, HostFunction inFunction) {
  const int number = static_cast<int>(mHostSide->functions.size());
  mHostSide->functions.push_back(std::make_shared<const HostFunction>(std::move(inFunction)));
  mWorker->Queue([worker = mWorker.get(), inName, number] { worker->AddFunction(inName, number); });
}

void ScriptRunner::SetFailureFunction(FailureFunction inFunction) {
  mHostSide->failureFunction = std::move(inFunction);
}

void ScriptRunner::SetCallFunction(CallFunction inFunction) {
  mHostSide->callFunction = std::move(inFunction);
}

// Each goes to the script thread in the order of its number.
void ScriptRunner::MakeObjects() {
  if (std::exchange(mHostSide->made, true)) return;
  const auto show = [this](const ScriptDefinition& inDefinition, ScriptObject* inObject) {
    auto definition = std::make_shared<const ScriptDefinition>(inDefinition);
    mHostSide->shown.push_back({definition, inObject});
    mWorker->Queue([worker = mWorker.get(), definition, inObject] {
      worker->AddObject(definition, inObject);
    });
  };
  // Copies, since a factory may register something.
  const auto objects = ScriptRegistry::Get().GetObjects();
  const auto events = ScriptRegistry::Get().GetEvents();
  for (const auto& [name, entry] : objects) {
    try {
      const boost::intrusive_ptr<ScriptObject> object = entry.make();
      if (!object) continue;
      ScriptDefinition definition = object->GetDefinition();
      definition.name = name;
      definition.description = entry.description;
      show(definition, object.get());
    } catch (...) {
      // Scripts go without this object; the host hears why.
      mWorker->Fail(std::current_exception());
    }
  }
  for (const auto& [name, event] : events)
    show(event->definition, nullptr);
}

void ScriptRunner::Run(const lumcore::UTF16String& inProgram, const lumcore::UTF16String& inFile,
                       Completion inCompletion) {
  MakeObjects();
  const int completion = ++mHostSide->lastCompletion;
  mHostSide->completions.emplace(completion, std::move(inCompletion));
  mWorker->Queue([worker = mWorker.get(), inProgram, inFile, completion] {
    worker->RunScript(inProgram, inFile, completion);
  });
  mWorker->Start();
}

void ScriptRunner::RunFile(const lumcore::filesupport::File& inFile, Completion inCompletion) {
  lumcore::UTF16String program;
  try {
    program = ReadScript(inFile);
  } catch (...) {
    // Told where all else that may go wrong with the script is told.
    const int completion = ++mHostSide->lastCompletion;
    mHostSide->completions.emplace(completion, std::move(inCompletion));
    mWorker->Complete(completion, {}, std::current_exception());
    return;
  }
  Run(program, lumcore::utility::ToUTF16(inFile.GetPath()), std::move(inCompletion));
}

void ScriptRunner::StopRunning() {
  mWorker->StopRunning();
}

boost::intrusive_ptr<ScriptObject> ScriptRunner::FindObject(const lumcore::UTF16String& inName) {
  MakeObjects();
  for (const HostSide::Shown& shown : mHostSide->shown) {
    if (shown.object && shown.definition->name == inName) return shown.object;
  }
  return nullptr;
}

std::vector<ScriptDefinition> ScriptRunner::GetDefinitions() {
  MakeObjects();
  std::vector<ScriptDefinition> definitions;
  for (const HostSide::Shown& shown : mHostSide->shown)
    definitions.push_back(*shown.definition);
  return definitions;
}

bool ScriptRunner::ShutDown(std::chrono::milliseconds inPatience) {
  const bool ended = mWorker->ShutDown(inPatience);
  // What they hold may be destroyed with them, and may call here.
  const auto dropped = std::exchange(mHostSide->completions, {});
  return ended;
}

}  // namespace lumscripting
