// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumworkspace/Export.h"

namespace lumworkspace::workspace {

// How big what the user takes hold of is, in units of the screen.
struct DockMetrics {
  int tabHeight = 0;
  int splitterWidth = 0;
};

// The looks that all docks of an application share. There is one at a time (a contract), from
// before the first window of a workspace to after the last; docks without one look as if there were
// one with its first values.
class LUMWORKSPACE_API WorkspaceUIManager {
 public:
  WorkspaceUIManager();
  ~WorkspaceUIManager();
  WorkspaceUIManager(const WorkspaceUIManager&) = delete;
  WorkspaceUIManager& operator=(const WorkspaceUIManager&) = delete;

  static WorkspaceUIManager* Get();  // null while there is none

  static DockMetrics GetDefaultMetrics(bool inTouch);
  // For windows that are handled with the pointer, or by touch.
  const DockMetrics& GetMetrics(bool inTouch) const { return inTouch ? mTouch : mPointer; }
  // Windows that are made from then on have them.
  void SetMetrics(bool inTouch, const DockMetrics& inMetrics);

 private:
  DockMetrics mPointer;
  DockMetrics mTouch;
};

}  // namespace lumworkspace::workspace
