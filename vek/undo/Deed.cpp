// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/undo/Deed.h"

#include <utility>

#include "lumcore/config/Localizer.h"
#include "vek/selection/Restorer.h"

namespace vek::undo {

namespace {

lumcore::UTF16String Describe(const char* inVerbKey, const lumcore::UTF16String& inAction) {
  lumcore::UTF16String text = lumcore::config::Localizer::Get()->GetLocalizedString(inVerbKey);
  text += ' ';
  text += inAction;
  return text;
}

void ReplaceRestorer(selection::Restorer*& ioRestorer, selection::Restorer* inRestorer) {
  if (ioRestorer == inRestorer) return;
  delete std::exchange(ioRestorer, nullptr);
  ioRestorer = inRestorer;
}

}  // namespace

Deed::Deed(bool inUndoable, bool inDone, const lumcore::UTF16String& inActionString)
    : mNeverDone(!inDone), mUndoable(inUndoable), mDone(inDone), mActionString(inActionString) {}

Deed::~Deed() {
  delete mAfterRestorer;
  delete mBeforeRestorer;
}

lumcore::UTF16String Deed::GetActionString() const {
  return mActionString;
}

lumcore::UTF16String Deed::GetUndoDescription() const {
  return Describe("$$$/vek/undo/Undo=Undo", GetActionString());
}

lumcore::UTF16String Deed::GetRedoDescription() const {
  return Describe("$$$/vek/redo/Redo=Redo", GetActionString());
}

void Deed::Undo() {
  if (!CanUndo()) return;
  UndoSelf();
  mDone = false;
}

void Deed::Redo() {
  if (!CanRedo()) return;
  RedoSelf();
  MarkDeedDone();
}

// The host's answer is asked first, also of a deed that is not done.
bool Deed::CanUndo() const {
  return DoStillViable() && mDone && mUndoable;
}

bool Deed::CanRedo() const {
  if (mDone) return false;
  return mNeverDone || (mUndoable && DoStillViable());
}

void Deed::SetActionString(const lumcore::UTF16String& inActionString) {
  mActionString = inActionString;
}

void Deed::SetBeforeRestorer(selection::Restorer* inRestorer) {
  ReplaceRestorer(mBeforeRestorer, inRestorer);
}

void Deed::SetAfterRestorer(selection::Restorer* inRestorer) {
  ReplaceRestorer(mAfterRestorer, inRestorer);
}

selection::Restorer* Deed::ReleaseBeforeRestorer() {
  return std::exchange(mBeforeRestorer, nullptr);
}

selection::Restorer* Deed::ReleaseAfterRestorer() {
  return std::exchange(mAfterRestorer, nullptr);
}

void Deed::RestoreBeforeSelection() {
  if (mBeforeRestorer) mBeforeRestorer->Restore();
}

void Deed::RestoreAfterSelection() {
  if (mAfterRestorer) mAfterRestorer->Restore();
}

bool Deed::DoStillViable() const {
  return true;
}

void Deed::MarkDeedDone() {
  mNeverDone = false;
  mDone = true;
}

}  // namespace vek::undo
