// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

namespace outliner {

// The commands of the host, as the command chain passes them.
enum Command : int {
  kCommandNewSibling = 1001,
  kCommandNewChild,
  kCommandDelete,
  kCommandIndent,
  kCommandOutdent,
  kCommandMoveUp,
  kCommandMoveDown,
  kCommandEditText,
  kCommandSelectNext,
  kCommandSelectPrevious,
  kCommandSelectAll,
  kCommandUndo,
  kCommandRedo,
  kCommandSave,
  kCommandClose,
  kCommandQuit,
};

}  // namespace outliner
