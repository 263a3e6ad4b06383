// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/selection/KnowingJunction.h"

namespace vek::selection {

Junction::~Junction() = default;

KnowingJunction::~KnowingJunction() = default;

std::list<Node*> Junction::DefaultSelectables() {
  return {};
}

}  // namespace vek::selection
