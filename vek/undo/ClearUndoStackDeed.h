// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/undo/Deed.h"

namespace vek::undo {

// Posted to a MultiUndoer it makes it forget its stack. The data has not changed, so the serial
// number stays that of the newest deed that was on the stack, undone or not.
class VEK_API ClearUndoStackDeed : public Deed {
 public:
  ClearUndoStackDeed();
  ~ClearUndoStackDeed() override;

 protected:
  void RedoSelf() override;
  void UndoSelf() override;
};

}  // namespace vek::undo
