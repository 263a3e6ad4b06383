// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "engine/QtScriptEngine.h"

#include <QStringList>
#include <utility>

#include "engine/ScriptConvert.h"

namespace lumscripting {

namespace {

constexpr int kFirstLine = 1;

}  // namespace

QtScriptEngine::QtScriptEngine(std::weak_ptr<HostSide> inHostSide, ListenedTypes& ioListened)
    : mBridge(mEngine, std::move(inHostSide), ioListened) {}

QtScriptEngine::~QtScriptEngine() = default;

void QtScriptEngine::AddFunction(const lumcore::UTF16String& inName, int inFunction) {
  mBridge.AddFunction(inName, inFunction);
}

void QtScriptEngine::AddObject(std::shared_ptr<const ScriptDefinition> inDefinition,
                               const ScriptObject* inTarget) {
  mBridge.AddObject(std::move(inDefinition), inTarget);
}

ScriptEngine::Result QtScriptEngine::Evaluate(const lumcore::UTF16String& inProgram,
                                              const lumcore::UTF16String& inFile) {
  QStringList stack;
  const QJSValue value =
      mEngine.evaluate(ToQString(inProgram), ToQString(inFile), kFirstLine, &stack);
  // Of what was interrupted, nobody asks for more; and to ask a value for its text may run a
  // script.
  if (IsInterrupted()) return {};
  if (!value.isError() && stack.isEmpty()) return {FromScript(value), nullptr};
  return {{}, std::make_exception_ptr(ErrorFromScript(value, stack, inFile))};
}

void QtScriptEngine::Deliver(const ScriptDefinition& inDefinition, const ScriptEventObject& inEvent,
                             const lumcore::UTF16String& inType, const ScriptObject* inTarget,
                             const TurnFunction& inAround) {
  const QJSValue event = mBridge.MakeEvent(inDefinition, inEvent, inType, inTarget);
  EventListeners& listeners = mBridge.GetListeners();
  for (const QJSValue& listener : listeners.Find(inTarget, inType)) {
    if (!listeners.Has(inTarget, inType, listener)) continue;
    const bool goesOn = inAround([&]() -> std::exception_ptr {
      QStringList stack;
      const QJSValue value = mBridge.CallListener(listener, event, stack);
      if (IsInterrupted() || stack.isEmpty()) return nullptr;
      return std::make_exception_ptr(ErrorFromScript(value, stack, inDefinition.name));
    });
    if (!goesOn) return;
  }
}

void QtScriptEngine::SetInterrupted(bool inInterrupted) {
  mEngine.setInterrupted(inInterrupted);
}

bool QtScriptEngine::IsInterrupted() const {
  return mEngine.isInterrupted();
}

}  // namespace lumscripting

extern "C" __attribute__((visibility("default"))) void lumscripting_MakeEngine(
    std::weak_ptr<lumscripting::HostSide> inHostSide, lumscripting::ListenedTypes& ioListened,
    std::unique_ptr<lumscripting::ScriptEngine>& outEngine) {
  outEngine = std::make_unique<lumscripting::QtScriptEngine>(std::move(inHostSide), ioListened);
}
