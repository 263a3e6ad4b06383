// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/workspace/WorkspaceUIManager.h"

#include "lumcore/debug/Contract.h"

namespace lumworkspace::workspace {

namespace {

constexpr DockMetrics kPointerMetrics{24, 5};
// About what a finger needs at the usual distance: 9 mm, and half of it beside the line.
constexpr DockMetrics kTouchMetrics{44, 14};

WorkspaceUIManager* sManager = nullptr;

}  // namespace

WorkspaceUIManager::WorkspaceUIManager() : mPointer(kPointerMetrics), mTouch(kTouchMetrics) {
  LUM_INPUT_CONTRACT(sManager == nullptr);
  sManager = this;
}

WorkspaceUIManager::~WorkspaceUIManager() {
  sManager = nullptr;
}

WorkspaceUIManager* WorkspaceUIManager::Get() {
  return sManager;
}

DockMetrics WorkspaceUIManager::GetDefaultMetrics(bool inTouch) {
  return inTouch ? kTouchMetrics : kPointerMetrics;
}

void WorkspaceUIManager::SetMetrics(bool inTouch, const DockMetrics& inMetrics) {
  LUM_INPUT_CONTRACT(inMetrics.tabHeight > 0 && inMetrics.splitterWidth > 0);
  (inTouch ? mTouch : mPointer) = inMetrics;
}

}  // namespace lumworkspace::workspace
