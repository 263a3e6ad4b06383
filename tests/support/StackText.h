// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "lumcore/utility/StringUtils.h"
#include "vek/undo/Deed.h"
#include "vek/undo/MultiUndoer.h"

namespace test_support {

// The deeds from oldest to newest, the undone ones with a star, and the serial number of the state:
// "a b c* #2".
inline std::string StackText(const vek::undo::MultiUndoer& inUndoer) {
  std::string text;
  for (const vek::undo::Deed* deed : inUndoer) {
    text += lumcore::utility::ToStdString(deed->GetActionString());
    text += deed->IsDone() ? " " : "* ";
  }
  return text + "#" + std::to_string(inUndoer.GetCurSerialNumber());
}

}  // namespace test_support
