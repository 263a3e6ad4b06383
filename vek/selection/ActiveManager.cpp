// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/selection/ActiveManager.h"

#include <utility>

#include "vek/selection/ActiveManagerState.h"

namespace vek::selection {

ActiveManagerState& ActiveManagerState::Get() {
  // Never destroyed: managers and listeners of any static lifetime may still unhook themselves.
  static ActiveManagerState* const sState = new ActiveManagerState;
  return *sState;
}

void ActiveManagerState::ManagerDies(Manager* inManager) {
  if (mActive != inManager) return;
  mActive = nullptr;
  Announce(inManager);
}

void ActiveManagerState::Announce(Manager* inPrevious) {
  if (mInhibitCount < 1) {
    mManagerChange.BroadcastMessage(ManagerChangeMessage(inPrevious, mActive));
  } else {
    mChangePending = true;
  }
}

Manager* GetActiveManager() {
  return ActiveManagerState::Get().mActive;
}

void SetActiveManager(Manager* inManager) {
  auto& state = ActiveManagerState::Get();
  if (inManager == state.mActive) return;
  state.Announce(std::exchange(state.mActive, inManager));
}

void InhibitManagerChangeNotification() {
  auto& state = ActiveManagerState::Get();
  ++state.mInhibitCount;
  // Renewed whenever it is null, at whatever depth.
  if (!state.mAtInhibit) state.mAtInhibit = state.mActive;
}

void EnableManagerChangeNotification() {
  auto& state = ActiveManagerState::Get();
  if (--state.mInhibitCount != 0) return;
  // Without a change the manager at inhibit keeps its value, and a later deferred message names it
  // as the previous one. Hosts rely on this order.
  if (!state.mChangePending) return;
  state.mChangePending = false;
  state.mManagerChange.BroadcastMessage(ManagerChangeMessage(state.mAtInhibit, state.mActive));
  state.mAtInhibit = nullptr;
}

messaging::Broadcaster<const ManagerChangeMessage&>* GetManagerChangeNotifier() {
  return &ActiveManagerState::Get().mManagerChange;
}

messaging::Broadcaster<const SelectionChangeMessage&>* GetGlobalSelectionChangeNotifier() {
  return &ActiveManagerState::Get().mSelectionChange;
}

messaging::Broadcaster<const JunctionChangeMessage&>* GetGlobalJunctionChangeNotifier() {
  return &ActiveManagerState::Get().mJunctionChange;
}

StManagerChangeMsgInhibitor::StManagerChangeMsgInhibitor() {
  InhibitManagerChangeNotification();
}

StManagerChangeMsgInhibitor::~StManagerChangeMsgInhibitor() {
  EnableManagerChangeNotification();
}

void ResetActiveManagerState() {
  auto& state = ActiveManagerState::Get();
  state.mActive = nullptr;
  state.mInhibitCount = 0;
  state.mChangePending = false;
  state.mAtInhibit = nullptr;
}

}  // namespace vek::selection
