// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/selection/KnowingJunction.h"
#include "vek/selection/Manager.h"

namespace vek::hierarchyview {

class TreeControlBase;

// The manager of a ready-made tree. Its restorers put back which entries were selected and which
// had the focus, as far as the same entries are in the tree again: a deed that takes entries out
// holds them and puts them back as they are. It may outlive its control, and then restores nothing.
class EntryManager : public selection::Manager {
 public:
  // Both are borrowed.
  EntryManager(selection::KnowingJunction* inJunction, TreeControlBase* inControl);

  selection::RestorerFactory* NewRestorerFactory() override;

  TreeControlBase* GetControl() const { return mControl; }  // null when it is gone
  void ForgetControl() { mControl = nullptr; }

 private:
  TreeControlBase* mControl;
};

}  // namespace vek::hierarchyview
