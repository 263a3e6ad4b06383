// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

namespace outliner {

// What the command line asks for. Empty texts were not given.
struct Options {
  enum Task { kEdit, kHelp, kListCommands, kWriteCommandPage, kCheck };

  Task task = kEdit;
  std::vector<std::string> files;  // the outlines; for a check, the command file
  std::string script;
  std::string keys;
  std::string settings;  // a folder
  bool isNew = false;
};

// False for a command line that makes no sense.
bool ReadOptions(int inCount, char** inArguments, Options& outOptions);

}  // namespace outliner
