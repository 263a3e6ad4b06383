// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "vek/config/Export.h"

namespace vek::selection {
class Restorer;
}

namespace vek::undo {

// One undoable edit: it does and undoes itself, carries its name for the Undo and Redo menu items,
// and holds what brings the selection back as it was before and after it. A host derives from it
// and gives it to a MultiUndoer or a MultiDeed, which own it from then on.
//
// A deed is new, then done, then back and forth between undone and done. One that was built as done
// stands for work already carried out and is not run by its first Redo. What RedoSelf or UndoSelf
// throws reaches the caller, and the deed keeps the state that it had.
class VEK_API Deed {
 public:
  Deed(bool inUndoable, bool inDone, const lumcore::UTF16String& inActionString);
  virtual ~Deed();
  Deed(const Deed&) = delete;
  Deed& operator=(const Deed&) = delete;

  // The edit's name without a verb; may be empty.
  virtual lumcore::UTF16String GetActionString() const;
  // "Undo" or "Redo", one blank, and the action string. The blank stands also before no name.
  virtual lumcore::UTF16String GetUndoDescription() const;
  virtual lumcore::UTF16String GetRedoDescription() const;

  // Each does nothing, and says nothing, where CanUndo or CanRedo would answer false.
  virtual void Undo();
  virtual void Redo();

  bool IsDone() const { return mDone; }
  bool NeverDone() const { return mNeverDone; }
  bool IsUndoable() const { return mUndoable; }
  bool StillViable() const { return DoStillViable(); }
  bool CanUndo() const;
  // A deed that was never done can be done whether or not it is undoable or viable.
  bool CanRedo() const;

  void SetActionString(const lumcore::UTF16String& inActionString);

  // Setting takes ownership and deletes the old restorer, unless it is the same one. Releasing
  // gives ownership to the caller and leaves null.
  bool HasBeforeRestorer() const { return mBeforeRestorer != nullptr; }
  bool HasAfterRestorer() const { return mAfterRestorer != nullptr; }
  void SetBeforeRestorer(selection::Restorer* inRestorer);
  void SetAfterRestorer(selection::Restorer* inRestorer);
  selection::Restorer* ReleaseBeforeRestorer();
  selection::Restorer* ReleaseAfterRestorer();
  // Nothing where there is no restorer. What the restorer throws reaches the caller.
  void RestoreBeforeSelection();
  void RestoreAfterSelection();

 protected:
  // False means that the data no longer allows the edit to be undone or redone.
  virtual bool DoStillViable() const;
  virtual void RedoSelf() = 0;
  virtual void UndoSelf() = 0;

  // Counts as done from now on, without a call of RedoSelf.
  void MarkDeedDone();

 private:
  friend class MultiDeed;

  bool mNeverDone;
  bool mUndoable;
  bool mDone;
  lumcore::UTF16String mActionString;
  selection::Restorer* mBeforeRestorer = nullptr;  // owned
  selection::Restorer* mAfterRestorer = nullptr;   // owned
};

}  // namespace vek::undo
