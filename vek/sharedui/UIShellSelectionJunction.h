// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <list>
#include <unordered_set>

#include "vek/selection/KnowingJunction.h"

namespace vek::sharedui {

class UIShellHierarchyEntryBase;
class UIShellTrackViewBase;

// What can be selected in a shell tree: its entries, from top to bottom. Each joins when it is made
// and leaves when it dies. The tree, its entries and its manager share it, so that each of them may
// be the last.
class VEK_API UIShellSelectionJunction : public selection::KnowingJunction {
 public:
  explicit UIShellSelectionJunction(UIShellTrackViewBase* inTree);
  ~UIShellSelectionJunction() override;

  std::list<selection::Node*> AllSelectables() override;
  bool Knows(const selection::Node* inNode) override;

  void Join(UIShellHierarchyEntryBase* inEntry);
  void Leave(UIShellHierarchyEntryBase* inEntry);

  UIShellTrackViewBase* GetTree() const { return mTree; }  // null once it is gone
  void ForgetTree() { mTree = nullptr; }

 private:
  UIShellTrackViewBase* mTree;
  std::unordered_set<const selection::Node*> mJoined;
};

}  // namespace vek::sharedui
