// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/selection/Node.h"

namespace vek::selection {

Node::~Node() = default;

bool Node::DoSelectable() const {
  return true;
}

}  // namespace vek::selection
