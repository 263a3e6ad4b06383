// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>
#include <functional>
#include <memory>

#include "lumcore/Strings.h"
#include "lumscripting/Export.h"
#include "lumscripting/ScriptDefinition.h"
#include "lumscripting/ScriptValue.h"

namespace lumscripting {

class HostSide;
class ListenedTypes;
class ScriptEventObject;
class ScriptObject;

// What understands and runs the scripts of one worker. It stands in a module of its own, which is
// loaded with the first engine: it brings many libraries along, and most programs start without a
// script. The interface knows nothing of them.
//
// Made, used and destroyed on the script thread, but for what can be asked from any.
class LUMSCRIPTING_API ScriptEngine {
 public:
  struct Result {
    ScriptValue value;
    std::exception_ptr failure;
  };
  // One listener's turn; what went wrong, or null.
  using Turn = std::function<std::exception_ptr()>;
  // Stands around each turn. False: the others get none.
  using TurnFunction = std::function<bool(const Turn&)>;

  virtual ~ScriptEngine();
  ScriptEngine(const ScriptEngine&) = delete;
  ScriptEngine& operator=(const ScriptEngine&) = delete;

  // The function's and, in the order of the calls, the object's number on the host's side. A kind
  // of events has no target.
  virtual void AddFunction(const lumcore::UTF16String& inName, int inFunction) = 0;
  virtual void AddObject(std::shared_ptr<const ScriptDefinition> inDefinition,
                         const ScriptObject* inTarget) = 0;

  // The value of the last statement. inFile stands in errors.
  virtual Result Evaluate(const lumcore::UTF16String& inProgram,
                          const lumcore::UTF16String& inFile) = 0;
  // To the listeners of the type at the target, in the order in which they were added. One that
  // another has removed meanwhile has no turn.
  virtual void Deliver(const ScriptDefinition& inDefinition, const ScriptEventObject& inEvent,
                       const lumcore::UTF16String& inType, const ScriptObject* inTarget,
                       const TurnFunction& inAround) = 0;

  // From any thread. An interruption ends what runs, and all that is begun before it is taken back.
  virtual void SetInterrupted(bool inInterrupted) = 0;
  virtual bool IsInterrupted() const = 0;

 protected:
  ScriptEngine();
};

// Loads the module where no earlier call has. Throws a lumcore::filesupport::FileError with the
// module's path where that fails. inListened outlives the engine.
std::unique_ptr<ScriptEngine> MakeScriptEngine(std::weak_ptr<HostSide> inHostSide,
                                               ListenedTypes& ioListened);

// What the module exports, under the name behind it.
using MakeEngineFunction = void(std::weak_ptr<HostSide> inHostSide, ListenedTypes& ioListened,
                                std::unique_ptr<ScriptEngine>& outEngine);
constexpr const char* kMakeEngineName = "lumscripting_MakeEngine";

}  // namespace lumscripting
