// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"
#include "vek/selection/Junction.h"

namespace vek::selection {

// A junction that can say of a single node whether it is among its AllSelectables. A Manager then
// asks for those that are selected one by one, and not for the list of all.
class VEK_API KnowingJunction : public Junction {
 public:
  // Out of line, so that the class is one and the same in all modules.
  ~KnowingJunction() override;

  // The node may be gone for long: only its address may be looked at until it is found to live.
  virtual bool Knows(const Node* inNode) = 0;
};

}  // namespace vek::selection
