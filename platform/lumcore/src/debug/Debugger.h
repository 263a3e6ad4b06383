// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

namespace lumcore::debug {

// Stops the process as a breakpoint does. The platform's own file has it.
void BreakIntoDebugger();

}  // namespace lumcore::debug
