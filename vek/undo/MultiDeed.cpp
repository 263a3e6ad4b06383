// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/undo/MultiDeed.h"

#include <algorithm>

#include "lumcore/debug/Contract.h"
#include "lumcore/utility/ScopedPtr.h"
#include "lumcore/utility/ScopedValue.h"
#include "vek/selection/Restorer.h"
#include "vek/undo/NonCriticalDeedFailure.h"

namespace vek::undo {

namespace {

using OwnedRestorer = lumcore::utility::ScopedPtr<selection::Restorer>;

}  // namespace

MultiDeed::MultiDeed(const lumcore::UTF16String& inActionString)
    : Deed(false, true, inActionString) {}

MultiDeed::~MultiDeed() {
  for (Deed* child : mChildren)
    delete child;
}

lumcore::UTF16String MultiDeed::GetActionString() const {
  if (mActionString.empty() && !mChildren.empty()) return mChildren.front()->GetActionString();
  return Deed::GetActionString();
}

void MultiDeed::AddDeed(std::auto_ptr<Deed> inChild) {
  LUM_INPUT_CONTRACT(inChild.get() != nullptr);
  // The list node is made first, so that nothing can fail once the group has changed but MergeIn.
  Children node(1, inChild.get());
  if (mChildren.empty()) {
    TakeCharacterOf(*inChild);
  } else {
    TakeRestorersOf(*inChild);
  }
  mChildren.splice(mChildren.end(), node);
  inChild.release();
}

void MultiDeed::TakeCharacterOf(Deed& ioFirstChild) {
  mDone = ioFirstChild.IsDone();
  mNeverDone = !mDone;
  mUndoable = ioFirstChild.IsUndoable();
  OwnedRestorer before(ioFirstChild.ReleaseBeforeRestorer());
  if (!HasBeforeRestorer()) SetBeforeRestorer(before.Release());
  // Replaced also by none.
  SetAfterRestorer(ioFirstChild.ReleaseAfterRestorer());
}

void MultiDeed::TakeRestorersOf(Deed& ioChild) {
  mUndoable = mUndoable && ioChild.IsUndoable();
  delete ioChild.ReleaseBeforeRestorer();
  // Both stand in guards while MergeIn runs, since a host's merge may throw.
  OwnedRestorer own(ReleaseAfterRestorer());
  OwnedRestorer childs(ioChild.ReleaseAfterRestorer());
  // MergeIn is called also with null: a deed without an after restorer has joined the group.
  const bool merged = own && own->MergeIn(childs.Get());
  SetAfterRestorer(merged ? own.Release() : childs.Release());
}

bool MultiDeed::DoStillViable() const {
  return std::all_of(mChildren.begin(), mChildren.end(),
                     [](const Deed* inChild) { return inChild->StillViable(); });
}

void MultiDeed::RedoSelf() {
  const lumcore::utility::StScopedValue<bool> inRedo(mInRedo, true);
  RedoChildren();
}

void MultiDeed::UndoSelf() {
  const lumcore::utility::StScopedValue<bool> inUndo(mInUndo, true);
  UndoChildren();
}

void MultiDeed::RedoChildren() {
  for (auto child = mChildren.begin(); child != mChildren.end();) {
    const auto current = child++;
    try {
      RedoOrDrop(current);
    } catch (const NonCriticalDeedFailure&) {
      throw;  // the group has become empty: there is nothing to roll back
    } catch (...) {
      // Virtual, so that a subclass's own undo takes part in the rollback.
      if (!mInUndo) UndoSelf();
      throw;
    }
  }
}

void MultiDeed::RedoOrDrop(Children::iterator inChild) {
  try {
    if ((*inChild)->CanRedo()) (*inChild)->Redo();
  } catch (const NonCriticalDeedFailure&) {
    delete *inChild;
    mChildren.erase(inChild);
    if (mChildren.empty()) throw;
  }
}

void MultiDeed::UndoChildren() {
  for (auto child = mChildren.end(); child != mChildren.begin();) {
    --child;
    try {
      if ((*child)->CanUndo()) (*child)->Undo();
    } catch (...) {
      if (!mInRedo) RedoSelf();
      throw;
    }
  }
}

}  // namespace vek::undo
