// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "OutlineTree.h"

namespace outliner {

// The bytes of the whole file, in the encoding that it was read in. A character that the encoding
// lacks becomes a reference, so nothing that was typed is lost.
std::string WriteOpml(const OutlineTree& inTree);

}  // namespace outliner
