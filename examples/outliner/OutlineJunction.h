// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <list>
#include <memory>

#include "vek/selection/KnowingJunction.h"

namespace outliner {

class OutlineTree;

// Tells a selection manager which rows exist: all of the tree, in document order. The tree is
// borrowed and outlives it.
class OutlineJunction final : public vek::selection::KnowingJunction {
 public:
  // The document's own, which may be replaced by another.
  explicit OutlineJunction(const std::unique_ptr<OutlineTree>& inTree) : mTree(inTree) {}

  std::list<vek::selection::Node*> AllSelectables() override;
  // The first row.
  std::list<vek::selection::Node*> DefaultSelectables() override;
  bool Knows(const vek::selection::Node* inNode) override;

 private:
  const std::unique_ptr<OutlineTree>& mTree;
};

}  // namespace outliner
