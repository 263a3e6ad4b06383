// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <list>
#include <map>
#include <memory>

#include "lumcore/utility/RefCounted.h"
#include "vek/config/Export.h"
#include "vek/messaging/Broadcaster.h"

namespace vek::undo {

class Deed;
class MultiUndoerHooks;

// Sent when the stack or the position may have changed. It holds no data.
class VEK_API ItemsChangedMsg {};

// The stack of deeds of one document or editing context. It does each deed when it is posted, keeps
// those that can be undone, moves through them, keeps at most one less than its level limit, and
// gives each state of the data a number. A host's dirty mark compares that number with the one at
// the last save; the undoer itself knows no documents.
//
// It owns its deeds and is held by boost::intrusive_ptr; a listener may drop the last reference to
// it in the middle of an operation. What a deed, a restorer or a hook throws reaches the caller
// after the Did... hooks have run.
class VEK_API MultiUndoer : public lumcore::utility::RefCountedObject {
 public:
  using Stack = std::list<Deed*>;

  // At most inLevelLimit - 1 deeds stay on the stack; a limit of 1 or less keeps none.
  explicit MultiUndoer(int inLevelLimit);
  ~MultiUndoer() override;
  MultiUndoer(const MultiUndoer&) = delete;
  MultiUndoer& operator=(const MultiUndoer&) = delete;

  // Does the deed, restores its after selection, and keeps it if it is undoable, in place of all
  // that was undone. A deed that is not undoable takes the whole stack with it. Takes ownership
  // whatever happens; a deed that fails to be done leaves the stack as it was.
  void PostDeed(std::auto_ptr<Deed> inDeed);

  // One step. The selection is restored also where the deed silently refuses, and then the position
  // stays. Both tell the listeners also where there is nothing to move.
  void Undo();
  void Redo();
  // Undoes one step and discards it with all that stood above it.
  void UndoPermanently();

  // The number of undone deeds on the stack: 0 is the newest state.
  std::size_t GetLevel() const;
  // Moves by as many deeds as the levels differ and restores the selection of the last one only. A
  // level that is negative or above size() moves nothing. Each deed on the way counts as a step,
  // also one that refuses. The deeds and hooks on the way must not move or post on this undoer.
  void GotoLevel(int inLevel);

  // The deeds on both sides of the position, or null. They say where the position is; whether a
  // move would work, the deed's CanUndo or CanRedo says.
  Deed* CouldUndoDeed() const;
  Deed* CouldRedoDeed() const;

  // Names the state of the data: the same number for the same place on the stack, and never the
  // same for another.
  int GetCurSerialNumber() const;

  // Not owned; null takes the hooks away.
  void SetHooks(MultiUndoerHooks* inHooks);

  messaging::Broadcaster<const ItemsChangedMsg&>* GetItemsChangedNotifier();
  // Sends a deed before it is posted, and null before any other move.
  messaging::Broadcaster<Deed*>* GetDeedNotifier();

  // The stack, oldest first, done and undone deeds alike.
  bool empty() const { return mStack.empty(); }
  std::size_t size() const { return mStack.size(); }
  Stack::const_iterator begin() const { return mStack.begin(); }
  Stack::const_iterator end() const { return mStack.end(); }
  Stack::const_reverse_iterator rbegin() const { return mStack.rbegin(); }
  Stack::const_reverse_iterator rend() const { return mStack.rend(); }

 private:
  using Hook = void (MultiUndoerHooks::*)(Deed*);

  void CallHook(Hook inHook, Deed* inDeed) const;
  void UndoOne(Deed* inDeed);
  void RedoOne(Deed* inDeed);
  void Keep(std::auto_ptr<Deed>& ioDeed);
  void TrimTo(int inDeeds, std::auto_ptr<Deed>& outSpared, const Deed* inSpare);
  void DiscardRedoTail();
  void Discard(Stack::const_iterator inFirst, Stack::const_iterator inLast,
               std::auto_ptr<Deed>& outSpared, const Deed* inSpare);
  Deed* RedoForward(int inSteps);
  Deed* UndoBackward(int inSteps);
  void BroadcastItemsChanged();

  messaging::Broadcaster<const ItemsChangedMsg&> mItemsChangedNotifier;
  messaging::Broadcaster<Deed*> mDeedNotifier;
  int mLevelLimit;
  Stack mStack;  // owned; done deeds stand in front of undone ones
  int mLastSerial = 0;
  int mFloorSerial = 0;  // of the state below the oldest deed
  std::map<const Deed*, int> mSerials;
  MultiUndoerHooks* mHooks = nullptr;
};

}  // namespace vek::undo
