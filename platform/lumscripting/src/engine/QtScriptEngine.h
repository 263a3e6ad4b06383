// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJSEngine>
#include <memory>

#include "ScriptEngine.h"
#include "engine/EventListeners.h"
#include "engine/HostBridge.h"

namespace lumscripting {

// The engine for JavaScript.
class QtScriptEngine final : public ScriptEngine {
 public:
  QtScriptEngine(std::weak_ptr<HostSide> inHostSide, ListenedTypes& ioListened);
  ~QtScriptEngine() override;

  void AddFunction(const lumcore::UTF16String& inName, int inFunction) override;
  void AddObject(std::shared_ptr<const ScriptDefinition> inDefinition,
                 const ScriptObject* inTarget) override;
  Result Evaluate(const lumcore::UTF16String& inProgram,
                  const lumcore::UTF16String& inFile) override;
  void Deliver(const ScriptDefinition& inDefinition, const ScriptEventObject& inEvent,
               const lumcore::UTF16String& inType, const ScriptObject* inTarget,
               const TurnFunction& inAround) override;
  void SetInterrupted(bool inInterrupted) override;
  bool IsInterrupted() const override;

 private:
  QJSEngine mEngine;
  HostBridge mBridge;
};

}  // namespace lumscripting
