// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/sharedui/WorkspaceSwitcherManager.h"

#include <algorithm>

#include "lumcore/debug/Contract.h"

namespace lumworkspace::sharedui {

WorkspaceSwitcherListener::~WorkspaceSwitcherListener() = default;

WorkspaceSwitcherManager* WorkspaceSwitcherManager::Get() {
  static auto* const sManager = new WorkspaceSwitcherManager;
  return sManager;
}

void WorkspaceSwitcherManager::SetData(const lumcore::UTF8String& inData) {
  if (inData == mData) return;
  mData = inData;
  // Each that is still there when its turn comes: a listener may remove others.
  const auto listeners = mListeners;
  for (WorkspaceSwitcherListener* const listener : listeners) {
    if (std::find(mListeners.begin(), mListeners.end(), listener) == mListeners.end()) continue;
    listener->WorkspacesConfigurationChanged();
  }
}

void WorkspaceSwitcherManager::AddListener(WorkspaceSwitcherListener* inListener) {
  LUM_INPUT_CONTRACT(inListener != nullptr);
  RemoveListener(inListener);
  mListeners.push_back(inListener);
}

void WorkspaceSwitcherManager::RemoveListener(WorkspaceSwitcherListener* inListener) {
  mListeners.erase(std::remove(mListeners.begin(), mListeners.end(), inListener), mListeners.end());
}

}  // namespace lumworkspace::sharedui
