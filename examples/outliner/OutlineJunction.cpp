// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineJunction.h"

#include "OutlineTree.h"

namespace outliner {

std::list<vek::selection::Node*> OutlineJunction::AllSelectables() {
  const auto& lines = mTree->GetLines();
  return {lines.begin(), lines.end()};
}

std::list<vek::selection::Node*> OutlineJunction::DefaultSelectables() {
  const auto& lines = mTree->GetLines();
  if (lines.empty()) return {};
  return {lines.front()};
}

// All nodes of the manager are rows, and the cast only reckons with the address.
bool OutlineJunction::Knows(const vek::selection::Node* inNode) {
  return mTree->Contains(static_cast<const OutlineRow*>(inNode));
}

}  // namespace outliner
