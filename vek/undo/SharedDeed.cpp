// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/undo/SharedDeed.h"

#include <utility>

#include "lumcore/debug/Contract.h"

namespace vek::undo {

namespace {

// Each argument of the base class checks for itself, since nothing says which is made first.
const Deed& Checked(const boost::shared_ptr<Deed>& inWrapped) {
  LUM_INPUT_CONTRACT(inWrapped.get() != nullptr);
  return *inWrapped;
}

}  // namespace

SharedDeed::SharedDeed(boost::shared_ptr<Deed> inWrapped)
    : Deed(Checked(inWrapped).IsUndoable(), Checked(inWrapped).IsDone(), lumcore::UTF16String()),
      mWrapped(std::move(inWrapped)) {}

SharedDeed::~SharedDeed() = default;

lumcore::UTF16String SharedDeed::GetActionString() const {
  return mWrapped->GetActionString();
}

bool SharedDeed::DoStillViable() const {
  return mWrapped->StillViable();
}

void SharedDeed::RedoSelf() {
  mWrapped->Redo();
}

void SharedDeed::UndoSelf() {
  mWrapped->Undo();
}

}  // namespace vek::undo
