// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "Options.h"

#include <algorithm>
#include <iterator>

namespace outliner {

namespace {

struct Switch {
  const char* name;
  Options::Task task;
};

constexpr Switch kTasks[] = {
    {"--help", Options::kHelp},
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
  const bool onlyEdits =
      inOptions.isNew || !inOptions.script.empty() || !inOptions.settings.empty();
  switch (inOptions.task) {
    case Options::kEdit:
      return !inOptions.isNew || inOptions.files.size() == 1;
    case Options::kCheck:
      return !onlyEdits && inOptions.files.size() <= 1;
    default:
      return !onlyEdits && inOptions.files.empty();
  }
}

}  // namespace

bool ReadOptions(int inCount, char** inArguments, Options& outOptions) {
  const struct {
    const char* name;
    std::string& value;
  } kValues[] = {{"--script", outOptions.script},
                 {"--keys", outOptions.keys},
                 {"--settings", outOptions.settings}};
  for (int argument = 1; argument < inCount; ++argument) {
    const std::string text = inArguments[argument];
    const auto* const value = std::find_if(std::begin(kValues), std::end(kValues),
                                           [&](const auto& inRow) { return text == inRow.name; });
    if (value != std::end(kValues)) {
      if (argument + 1 == inCount || *inArguments[argument + 1] == '\0') return false;
      value->value = inArguments[++argument];
    } else if (text == "--new") {
      outOptions.isNew = true;
    } else if (text.rfind("--", 0) != 0) {
      outOptions.files.push_back(text);
    } else if (!ReadTask(text, outOptions)) {
      return false;
    }
  }
  return IsComplete(outOptions);
}

}  // namespace outliner
