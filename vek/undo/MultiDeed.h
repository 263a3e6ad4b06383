// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <list>
#include <memory>

#include "vek/undo/Deed.h"

namespace vek::undo {

// A group of deeds that acts as one. Its first child gives it its character (done or new,
// undoable), one child that is not undoable makes the whole group so, and an empty group counts as
// done and not undoable. It brings the selection back with its first child's before restorer and
// its last child's after restorer, or what that merged into.
//
// A child that fails rolls back what the walk has done; see RedoSelf. Since the walks rest on each
// child's own CanUndo and CanRedo, the group's done state and its children's may differ after that.
class VEK_API MultiDeed : public Deed {
 public:
  explicit MultiDeed(const lumcore::UTF16String& inActionString);
  ~MultiDeed() override;

  // The group's own name, or the first child's where it has none.
  lumcore::UTF16String GetActionString() const override;

  // Takes the child whatever happens. What a restorer's MergeIn throws leaves the child deleted and
  // the group without an after restorer.
  virtual void AddDeed(std::auto_ptr<Deed> inChild);

  bool empty() const { return mChildren.empty(); }
  std::size_t size() const { return mChildren.size(); }

 protected:
  using Children = std::list<Deed*>;

  bool DoStillViable() const override;
  // Redoes the children from first to last. One that throws NonCriticalDeedFailure leaves the group
  // for good; any other failure undoes the group again and passes on.
  void RedoSelf() override;
  // Undoes the children from last to first. Any failure redoes the group and passes on.
  void UndoSelf() override;

  Children::iterator begin() { return mChildren.begin(); }
  Children::iterator end() { return mChildren.end(); }
  Children::const_iterator begin() const { return mChildren.begin(); }
  Children::const_iterator end() const { return mChildren.end(); }

 private:
  void TakeCharacterOf(Deed& ioFirstChild);
  void TakeRestorersOf(Deed& ioChild);
  void RedoChildren();
  void UndoChildren();
  void RedoOrDrop(Children::iterator inChild);

  Children mChildren;  // owned
  // While one is set, a failure in the opposite direction is a failure of the rollback and starts
  // no rollback of its own.
  bool mInUndo = false;
  bool mInRedo = false;
};

}  // namespace vek::undo
