// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "lumcore/Strings.h"
#include "lumui/ui/UI_SubView.h"

namespace lumui::controls {

// A field in which the user writes, of one line or of many. It takes every key that edits, and
// leaves the others to the nodes around it.
class LUMUI_API UI_TextEdit : public ui::UI_SubView {
 public:
  explicit UI_TextEdit(bool inManyLines = false);
  ~UI_TextEdit() override;

  // Lines are separated by "\n"; a field of one line makes blanks of them.
  void SetText(const lumcore::UTF16String& inText);
  lumcore::UTF16String GetText() const;
  void SetReadOnly(bool inReadOnly);
  void SelectAll();
  // Called after each change by the user, and by nothing else. May be empty.
  void SetChangedFunction(std::function<void()> inFunction);

 private:
  class Peer;
  Peer& GetTextPeer() const;
};

}  // namespace lumui::controls
