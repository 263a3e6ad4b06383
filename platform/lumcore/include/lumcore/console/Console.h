// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "lumcore/Export.h"

namespace lumcore::console {

// Shows the log from now on, with the lines that were written before. On systems where a program
// has a terminal, that is the terminal, by way of the standard error output. A second call does
// nothing.
LUMCORE_API void CreateStandardConsoleWindow();

// What the program tells of its own doings, a line at a time with the time of day in front. Nobody
// sees it unless the console is open; problems always reach the standard error output. Any thread
// may write.
class LUMCORE_API ConsoleLogFile {
 public:
  // UTF-8. Until the console is open, the last 200 lines are kept.
  static void Write(std::string_view inLine);
  static void WriteProblem(std::string_view inLine);
  // Forgets what is kept and closes the console; later lines begin anew.
  static void Terminate();
};

}  // namespace lumcore::console
