// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"

namespace vek::undo {

class Deed;

// What a host hears of a MultiUndoer's work, around each step. The undoer does not own it. A hook
// may throw, which counts as a failure of the step. It must not move or post on the same undoer.
class VEK_API MultiUndoerHooks {
 public:
  virtual ~MultiUndoerHooks();

  virtual void WillPostDeed(Deed* inDeed) = 0;
  // Also after a post that failed. One that throws here itself is called a second time.
  virtual void DidPostDeed(Deed* inDeed) = 0;
  // Around each deed that is undone, done or redone. The Did... hook is called also when the deed
  // failed, but not when its Will... hook did.
  virtual void WillUndoDeed(Deed* inDeed) = 0;
  virtual void DidUndoDeed(Deed* inDeed) = 0;
  virtual void WillRedoDeed(Deed* inDeed) = 0;
  virtual void DidRedoDeed(Deed* inDeed) = 0;
};

}  // namespace vek::undo
