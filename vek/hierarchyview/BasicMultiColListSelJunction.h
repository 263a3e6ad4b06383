// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"
#include "vek/selection/Junction.h"

namespace vek::hierarchyview {

class TreeControlBase;

// What can be selected in a ready-made list: the nodes of all its entries, open or closed, that say
// they are selectable, from top to bottom. None once the control is gone.
class VEK_API BasicMultiColListSelJunction : public selection::Junction {
 public:
  explicit BasicMultiColListSelJunction(TreeControlBase const* inControl) : mControl(inControl) {}

  std::list<selection::Node*> AllSelectables() override;
  // For a manager that outlives the control.
  void ForgetControl() { mControl = nullptr; }

 private:
  TreeControlBase const* mControl;  // borrowed; null when it is gone
};

}  // namespace vek::hierarchyview
