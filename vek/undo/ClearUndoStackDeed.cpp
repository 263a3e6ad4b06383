// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/undo/ClearUndoStackDeed.h"

namespace vek::undo {

ClearUndoStackDeed::ClearUndoStackDeed() : Deed(false, true, lumcore::UTF16String()) {}

ClearUndoStackDeed::~ClearUndoStackDeed() = default;

// Its meaning is its type: there is nothing to do or undo.
void ClearUndoStackDeed::RedoSelf() {}

void ClearUndoStackDeed::UndoSelf() {}

}  // namespace vek::undo
