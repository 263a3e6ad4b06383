// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/DeferredActionManager.h"

#include <utility>

#include "lumui/ui/Executor.h"
#include "lumui/ui/UI_NodeManager.h"
#include "vek/uisupport/DeferredAction.h"

namespace vek::uisupport {

namespace {

DeferredActionManager*& Instance() {
  static DeferredActionManager* sInstance = nullptr;
  return sInstance;
}

// One batch excludes every other, of whatever queue and manager.
bool& IsExecuting() {
  static bool sIsExecuting = false;
  return sIsExecuting;
}

}  // namespace

DeferredAction::~DeferredAction() = default;

bool DeferredAction::Supersedes(const DeferredAction*) const {
  return false;
}

// A run that comes in the middle of another is refused, and it has used up its post: so the refusal
// is noted, and one more run is posted when the outer one ends, by whatever path.
class DeferredActionManager::StRunning {
 public:
  StRunning() { IsExecuting() = true; }
  ~StRunning() {
    IsExecuting() = false;
    if (!Instance()) return;
    DeferredActionManager& manager = *Instance();
    if (std::exchange(manager.mActionsRefused, false))
      PostRun(&DeferredActionManager::ExecuteActions);
    if (std::exchange(manager.mIdleActionsRefused, false)) {
      PostRun(&DeferredActionManager::ExecuteIdleActions);
    }
  }
  StRunning(const StRunning&) = delete;
  StRunning& operator=(const StRunning&) = delete;
};

DeferredActionManager::DeferredActionManager() = default;

DeferredActionManager::~DeferredActionManager() = default;

DeferredActionManager& DeferredActionManager::Get() {
  if (!Instance()) Instance() = new DeferredActionManager;
  return *Instance();
}

void DeferredActionManager::Terminate() {
  DeferredActionManager* const manager = Instance();
  if (!manager) return;
  // Idle actions are given up as they are: what they belong to may be gone by now.
  static Actions* const sGivenUp = new Actions;
  Actions doomed;
  {
    const boost::lock_guard<boost::mutex> lock(manager->mMutex);
    doomed.swap(manager->mActions);
  }
  doomed.clear();
  {  // behind the others, as one of them may report an error when it dies
    const boost::lock_guard<boost::mutex> lock(manager->mMutex);
    sGivenUp->splice(sGivenUp->end(), manager->mIdleActions);
  }
  delete manager;
  Instance() = nullptr;
}

void DeferredActionManager::QueueAction(DeferredAction* inAction) {
  Append(&DeferredActionManager::mActions, inAction);
  PostRun(&DeferredActionManager::ExecuteActions);
}

void DeferredActionManager::QueueIdleAction(DeferredAction* inAction) {
  Append(&DeferredActionManager::mIdleActions, inAction);
  PostRun(&DeferredActionManager::ExecuteIdleActions);
}

void DeferredActionManager::Append(Queue inQueue, DeferredAction* inAction) {
  std::unique_ptr<DeferredAction> action(inAction);
  Actions node;
  node.push_back(std::move(action));
  const boost::lock_guard<boost::mutex> lock(mMutex);
  Actions& actions = this->*inQueue;
  actions.splice(actions.end(), node);
}

// What is posted may outlive the manager, so it looks for the one there is when it runs.
void DeferredActionManager::PostRun(Run inRun) {
  lumui::ui::UI_NodeManager* const nodes = lumui::ui::UI_NodeManager::Get(false);
  if (!nodes) return;
  nodes->GetExecutor()->Post([inRun] {
    if (Instance()) (Instance()->*inRun)();
  });
}

void DeferredActionManager::ExecuteActions() {
  Execute(&DeferredActionManager::mActions);
}

void DeferredActionManager::ExecuteIdleActions() {
  Execute(&DeferredActionManager::mIdleActions);
}

void DeferredActionManager::Execute(Queue inQueue) {
  if (IsExecuting()) {
    (inQueue == &DeferredActionManager::mActions ? mActionsRefused : mIdleActionsRefused) = true;
    return;
  }
  const StRunning running;
  Actions batch;
  {
    const boost::lock_guard<boost::mutex> lock(mMutex);
    batch.swap(this->*inQueue);
  }
  // Whatever leaves here by an exception takes the rest of the batch with it, unrun.
  RunBatch(batch);
  if (batch.empty() || Instance() != this) return;
  const boost::lock_guard<boost::mutex> lock(mMutex);
  Actions& actions = this->*inQueue;
  actions.splice(actions.end(), batch);
}

// Leaves in the batch what was not ready.
void DeferredActionManager::RunBatch(Actions& ioBatch) {
  for (auto current = ioBatch.begin(); current != ioBatch.end();) {
    for (auto other = std::next(current); other != ioBatch.end();) {
      other = (*current)->Supersedes(other->get()) ? ioBatch.erase(other) : std::next(other);
    }
    if (!(*current)->ReadyToExecute()) {
      ++current;
      continue;
    }
    (*current)->Execute();
    current = ioBatch.erase(current);
  }
}

}  // namespace vek::uisupport
