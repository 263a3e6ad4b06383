// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/workspace/CommandCheckStyle.h"

#include <unordered_set>

namespace lumworkspace::workspace {

namespace {

std::unordered_set<int>& RadioCommands() {
  static std::unordered_set<int> sCommands;
  return sCommands;
}

}  // namespace

void SetCommandCheckStyle(int inCommand, bool inRadio) {
  if (inRadio) {
    RadioCommands().insert(inCommand);
  } else {
    RadioCommands().erase(inCommand);
  }
}

bool IsCommandCheckStyleRadio(int inCommand) {
  return RadioCommands().count(inCommand) != 0;
}

}  // namespace lumworkspace::workspace
