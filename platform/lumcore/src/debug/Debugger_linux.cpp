// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "debug/Debugger.h"

#include <csignal>
#include <fstream>
#include <string>

#include "lumcore/debug/Contract.h"

namespace lumcore::debug {

// The kernel names the tracer of a process, and 0 where there is none.
bool IsDebuggerAttached() {
  std::ifstream status("/proc/self/status");
  const std::string label = "TracerPid:";
  for (std::string line; std::getline(status, line);) {
    if (line.compare(0, label.size(), label) == 0) return std::stoi(line.substr(label.size())) != 0;
  }
  return false;
}

void BreakIntoDebugger() {
  std::raise(SIGTRAP);
}

}  // namespace lumcore::debug
