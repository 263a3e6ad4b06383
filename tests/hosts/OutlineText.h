// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>

#include "outliner/OutlineTree.h"

namespace tests {

// Reads bytes under the name "o.opml".
std::unique_ptr<outliner::OutlineTree> Read(const std::string& inBytes);

}  // namespace tests
