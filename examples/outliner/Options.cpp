// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "Options.h"

namespace outliner {

namespace {

struct Switch {
  const char* name;
  Options::Task task;
};

constexpr Switch kTasks[] = {
    {"--list-commands", Options::kListCommands},
    {"--list-commands=markdown", Options::kWriteCommandPage},
    {"--check", Options::kCheck},
};

bool ReadTask(const std::string& inText, Options& ioOptions) {
  for (const Switch& task : kTasks) {
    if (inText != task.name || ioOptions.task != Options::kEdit) continue;
    ioOptions.task = task.task;
    return true;
  }
  return false;
}

bool IsComplete(const Options& inOptions) {
  const bool onlyEdits = inOptions.isNew || !inOptions.script.empty();
  switch (inOptions.task) {
    case Options::kEdit:
      return !inOptions.file.empty();
    case Options::kCheck:
      return !onlyEdits;
    default:
      return !onlyEdits && inOptions.file.empty();
  }
}

}  // namespace

bool ReadOptions(int inCount, char** inArguments, Options& outOptions) {
  for (int argument = 1; argument < inCount; ++argument) {
    const std::string text = inArguments[argument];
    const bool hasNext = argument + 1 < inCount && *inArguments[argument + 1] != '\0';
    if (text == "--new") {
      outOptions.isNew = true;
    } else if (text == "--script" && hasNext) {
      outOptions.script = inArguments[++argument];
    } else if (text == "--keys" && hasNext) {
      outOptions.keys = inArguments[++argument];
    } else if (text.rfind("--", 0) != 0 && outOptions.file.empty()) {
      outOptions.file = text;
    } else if (!ReadTask(text, outOptions)) {
      return false;
    }
  }
  return IsComplete(outOptions);
}

}  // namespace outliner
