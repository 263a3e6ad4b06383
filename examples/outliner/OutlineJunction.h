// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <list>

#include "vek/selection/Junction.h"

namespace outliner {

class OutlineTree;

// Tells a selection manager which rows exist: all of the tree, in document order. The tree is
// borrowed and outlives it.
class OutlineJunction final : public vek::selection::Junction {
 public:
  explicit OutlineJunction(OutlineTree& inTree) : mTree(inTree) {}

  std::list<vek::selection::Node*> AllSelectables() override;
  // The first row.
  std::list<vek::selection::Node*> DefaultSelectables() override;

 private:
  OutlineTree& mTree;
};

}  // namespace outliner
