// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <list>

#include "vek/config/Export.h"

namespace vek::selection {

class Node;

// The source that knows which nodes exist at present. A Manager asks it once or twice for each
// change of the selection, so the answers should be cheap.
class VEK_API Junction {
 public:
  virtual ~Junction();

  // Every node that can be selected now.
  virtual std::list<Node*> AllSelectables() = 0;
  // The nodes to select by default; none unless a host says otherwise.
  virtual std::list<Node*> DefaultSelectables();
};

}  // namespace vek::selection
