// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/config/Version.h"

#include <string>

#include "lumcore/utility/StringUtils.h"

namespace vek::config {

namespace {

constexpr const char* kNumber = "1.0.0";
constexpr const char* kName = "Mutant";

}  // namespace

lumcore::UTF16String GetVersionString() {
  return lumcore::utility::ToUTF16(std::string(kNumber) + "." + kName);
}

}  // namespace vek::config
