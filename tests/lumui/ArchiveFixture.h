// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <string>

#include "UITest.h"
#include "lumcore/config/ThrowError.h"
#include "lumui/ui/ModuleHandle.h"
#include "lumui/ui/UI_NodeBuilder.h"
#include "lumui/utility/ResourceManager.h"

namespace lumui::test {

// The resources of the test program.
inline utility::ResourceManager TestResources() {
  static const int sHere = 0;
  return utility::ResourceManager(ui::ModuleOfAddress(&sHere));
}

inline std::string ArchiveText() {
  const auto bytes = TestResources().GetRequiredBinary(U16("exportdialog"), "xml");
  return std::string(bytes.begin(), bytes.end());
}

template <class Call>
std::string ErrorOf(Call inCall) {
  try {
    inCall();
  } catch (const lumcore::config::Error& error) {
    return error.what();
  }
  return "no error";
}

}  // namespace lumui::test
