// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "lumcore/Strings.h"
#include "vek/config/Export.h"

namespace vek::sharedui {

// What a ShortcutEditor needs of a dialog: to show its state and to ask the user.
class VEK_API ShortcutEditorView {
 public:
  enum class Answer { kYes, kNo, kCancel };

  virtual ~ShortcutEditorView();

  // The popup of the sets. An index is an item's, or -1; choosing one shows its text, and another
  // text may be shown over it.
  virtual void SetSetItems(const std::vector<lumcore::UTF16String>& inItems) = 0;
  virtual int GetSetIndex() const = 0;
  virtual void ChooseSet(int inIndex) = 0;
  virtual void ShowSetText(const lumcore::UTF16String& inText) = 0;

  virtual void Tell(const lumcore::UTF16String& inText) = 0;
  virtual Answer Ask(const lumcore::UTF16String& inText, bool inMayCancel) = 0;
  // The name of a preset, proposed in ioName; false when the user has cancelled.
  virtual bool AskName(lumcore::UTF16String& ioName) = 0;

  virtual void SetWarningText(const lumcore::UTF16String& inText) = 0;
  virtual void UpdateButtons() = 0;
  // The record of this command has other shortcuts.
  virtual void CommandChanged(int inCommand) = 0;
  // All records may have: nothing is selected any more.
  virtual void AllCommandsChanged() = 0;
  // The shortcuts of the selected command have been changed behind its field.
  virtual void RebuildField() = 0;
};

}  // namespace vek::sharedui
