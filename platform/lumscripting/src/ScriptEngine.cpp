// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ScriptEngine.h"

#include <utility>

#include "EngineModule.h"

namespace lumscripting {

ScriptEngine::ScriptEngine() = default;

ScriptEngine::~ScriptEngine() = default;

std::unique_ptr<ScriptEngine> MakeScriptEngine(std::weak_ptr<HostSide> inHostSide,
                                               ListenedTypes& ioListened) {
  auto* const make = reinterpret_cast<MakeEngineFunction*>(FindInEngineModule(kMakeEngineName));
  std::unique_ptr<ScriptEngine> engine;
  make(std::move(inHostSide), ioListened, engine);
  return engine;
}

}  // namespace lumscripting
