// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <map>
#include <memory>
#include <vector>

#include "lumscripting/ScriptRunner.h"

namespace lumscripting {

// The half of a runner that belongs to the user interface thread: everything that the host has
// handed over, counted objects among it. The script thread holds a weak reference, which it only
// passes on to functions that run over there; so whatever ends, nothing of the host is called,
// counted or destroyed on the script thread.
class HostSide {
 public:
  // What scripts see of the registry. The functions of the objects are called by their places here.
  struct Shown {
    std::shared_ptr<const ScriptDefinition> definition;
    boost::intrusive_ptr<ScriptObject> object;  // null for a kind of events
  };

  std::vector<std::shared_ptr<const ScriptRunner::HostFunction>> functions;
  std::vector<Shown> shown;
  bool made = false;  // whether the registry's factories have been called
  std::map<int, ScriptRunner::Completion> completions;
  int lastCompletion = 0;
  ScriptRunner::FailureFunction failureFunction;
  ScriptRunner::CallFunction callFunction;
};

}  // namespace lumscripting
