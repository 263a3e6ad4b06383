// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/undo/MultiUndoer.h"

#include <algorithm>

#include "lumcore/debug/Contract.h"
#include "vek/undo/ClearUndoStackDeed.h"
#include "vek/undo/Deed.h"
#include "vek/undo/MultiUndoerHooks.h"

namespace vek::undo {

namespace {

using lumcore::utility::StKeepAlive;

bool IsDone(const Deed* inDeed) {
  return inDeed->IsDone();
}

}  // namespace

MultiUndoerHooks::~MultiUndoerHooks() = default;

MultiUndoer::MultiUndoer(int inLevelLimit) : mLevelLimit(inLevelLimit) {}

MultiUndoer::~MultiUndoer() {
  for (Deed* deed : mStack)
    delete deed;
}

void MultiUndoer::PostDeed(std::auto_ptr<Deed> inDeed) {
  LUM_INPUT_CONTRACT(inDeed.get() != nullptr);
  const StKeepAlive alive(*this);
  // A parameter outlives the body: taken over here, the deed dies before the undoer does.
  std::auto_ptr<Deed> owned(inDeed);
  Deed* const deed = owned.get();
  mDeedNotifier.BroadcastMessage(deed);
  CallHook(&MultiUndoerHooks::WillPostDeed, deed);
  try {
    RedoOne(deed);
    deed->RestoreAfterSelection();
    if (deed->IsUndoable()) {
      Keep(owned);
    } else {
      TrimTo(0, owned, nullptr);
      // A deed that only clears the stack has not changed the data, so the state keeps its number.
      if (!dynamic_cast<ClearUndoStackDeed*>(deed)) mFloorSerial = ++mLastSerial;
    }
    CallHook(&MultiUndoerHooks::DidPostDeed, deed);
    BroadcastItemsChanged();
  } catch (...) {
    // The hook stands within the guarded stretch, so one that throws is called twice.
    CallHook(&MultiUndoerHooks::DidPostDeed, deed);
    throw;
  }
}

// The stack owns the deed from here on. If the trim discards it at once, it comes back to the
// caller, who still has to show it to the hooks.
void MultiUndoer::Keep(std::auto_ptr<Deed>& ioDeed) {
  Deed* const deed = ioDeed.get();
  Stack node(1, deed);  // first, so that where memory runs out nothing is half entered
  DiscardRedoTail();
  mSerials[deed] = mLastSerial + 1;
  ++mLastSerial;
  mStack.splice(mStack.end(), node);
  ioDeed.release();
  TrimTo(std::max(mLevelLimit, 1) - 1, ioDeed, deed);
}

void MultiUndoer::Undo() {
  const StKeepAlive alive(*this);
  mDeedNotifier.BroadcastMessage(nullptr);
  if (Deed* const deed = CouldUndoDeed()) {
    UndoOne(deed);
    deed->RestoreBeforeSelection();
  }
  BroadcastItemsChanged();
}

void MultiUndoer::Redo() {
  const StKeepAlive alive(*this);
  mDeedNotifier.BroadcastMessage(nullptr);
  if (Deed* const deed = CouldRedoDeed()) {
    RedoOne(deed);
    deed->RestoreAfterSelection();
  }
  BroadcastItemsChanged();
}

void MultiUndoer::UndoPermanently() {
  const StKeepAlive alive(*this);
  Undo();
  DiscardRedoTail();
  BroadcastItemsChanged();
}

std::size_t MultiUndoer::GetLevel() const {
  return mStack.size() -
         static_cast<std::size_t>(std::count_if(mStack.begin(), mStack.end(), &IsDone));
}

void MultiUndoer::GotoLevel(int inLevel) {
  const StKeepAlive alive(*this);
  mDeedNotifier.BroadcastMessage(nullptr);
  const int current = static_cast<int>(GetLevel());
  if (inLevel >= 0 && inLevel < current) {
    if (Deed* const last = RedoForward(current - inLevel)) last->RestoreAfterSelection();
  } else if (inLevel > current && inLevel <= static_cast<int>(mStack.size())) {
    if (Deed* const last = UndoBackward(inLevel - current)) last->RestoreBeforeSelection();
  }
  BroadcastItemsChanged();
}

// Both walks visit each deed once and count the visits: one that refuses is a step all the same.
Deed* MultiUndoer::RedoForward(int inSteps) {
  Deed* last = nullptr;
  auto deed = std::find_if_not(mStack.begin(), mStack.end(), &IsDone);
  for (; inSteps > 0 && deed != mStack.end(); --inSteps, ++deed) {
    RedoOne(*deed);
    last = *deed;
  }
  return last;
}

Deed* MultiUndoer::UndoBackward(int inSteps) {
  Deed* last = nullptr;
  auto deed = std::find_if(mStack.rbegin(), mStack.rend(), &IsDone);
  for (; inSteps > 0 && deed != mStack.rend(); --inSteps, ++deed) {
    UndoOne(*deed);
    last = *deed;
  }
  return last;
}

Deed* MultiUndoer::CouldUndoDeed() const {
  const auto deed = std::find_if(mStack.rbegin(), mStack.rend(), &IsDone);
  return deed == mStack.rend() ? nullptr : *deed;
}

Deed* MultiUndoer::CouldRedoDeed() const {
  const auto deed = std::find_if_not(mStack.begin(), mStack.end(), &IsDone);
  return deed == mStack.end() ? nullptr : *deed;
}

int MultiUndoer::GetCurSerialNumber() const {
  const auto serial = mSerials.find(CouldUndoDeed());
  return serial == mSerials.end() ? mFloorSerial : serial->second;
}

void MultiUndoer::SetHooks(MultiUndoerHooks* inHooks) {
  mHooks = inHooks;
}

messaging::Broadcaster<const ItemsChangedMsg&>* MultiUndoer::GetItemsChangedNotifier() {
  return &mItemsChangedNotifier;
}

messaging::Broadcaster<Deed*>* MultiUndoer::GetDeedNotifier() {
  return &mDeedNotifier;
}

void MultiUndoer::CallHook(Hook inHook, Deed* inDeed) const {
  if (mHooks) (mHooks->*inHook)(inDeed);
}

void MultiUndoer::UndoOne(Deed* inDeed) {
  CallHook(&MultiUndoerHooks::WillUndoDeed, inDeed);
  try {
    inDeed->Undo();
  } catch (...) {
    CallHook(&MultiUndoerHooks::DidUndoDeed, inDeed);
    throw;
  }
  CallHook(&MultiUndoerHooks::DidUndoDeed, inDeed);
}

void MultiUndoer::RedoOne(Deed* inDeed) {
  CallHook(&MultiUndoerHooks::WillRedoDeed, inDeed);
  try {
    inDeed->Redo();
  } catch (...) {
    CallHook(&MultiUndoerHooks::DidRedoDeed, inDeed);
    throw;
  }
  CallHook(&MultiUndoerHooks::DidRedoDeed, inDeed);
}

// Viability takes effect here and nowhere else: the walk goes back as far as the count allows, and
// the deed where it stops leaves with everything older. The count comes first, so that a deed
// beyond the limit is not asked; it is signed, and 0 keeps nothing.
void MultiUndoer::TrimTo(int inDeeds, std::auto_ptr<Deed>& outSpared, const Deed* inSpare) {
  int count = 1;
  auto cut = mStack.rbegin();
  while (cut != mStack.rend() && count <= inDeeds && (*cut)->StillViable()) {
    ++cut;
    ++count;
  }
  if (cut == mStack.rend()) return;
  mFloorSerial = mSerials[*cut];
  Discard(mStack.begin(), cut.base(), outSpared, inSpare);
}

// The floor and the last serial stay: numbers of discarded deeds are not used again.
void MultiUndoer::DiscardRedoTail() {
  std::auto_ptr<Deed> none;
  Discard(std::find_if_not(mStack.begin(), mStack.end(), &IsDone), mStack.end(), none, nullptr);
}

// Deeds are unlinked before the first is deleted, so that a destructor that looks here sees a stack
// of living deeds. The one to spare goes to outSpared instead.
void MultiUndoer::Discard(Stack::const_iterator inFirst, Stack::const_iterator inLast,
                          std::auto_ptr<Deed>& outSpared, const Deed* inSpare) {
  Stack doomed;
  doomed.splice(doomed.end(), mStack, inFirst, inLast);
  for (const Deed* deed : doomed)
    mSerials.erase(deed);
  for (Deed* deed : doomed) {
    if (deed == inSpare) {
      outSpared.reset(deed);
    } else {
      delete deed;
    }
  }
}

void MultiUndoer::BroadcastItemsChanged() {
  mItemsChangedNotifier.BroadcastMessage(ItemsChangedMsg());
}

}  // namespace vek::undo
