// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"

namespace vek::selection {

// A thing that can be selected. Managers keep its address and neither own it nor hear of its end: a
// host takes a node out of the selection before it destroys it.
class VEK_API Node {
 public:
  virtual ~Node();

  // Asked by those who select for the user. A Manager does not ask.
  bool Selectable() const { return DoSelectable(); }

 private:
  virtual bool DoSelectable() const;  // true
};

}  // namespace vek::selection
