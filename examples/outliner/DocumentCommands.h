// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <map>

#include "lumcore/Strings.h"
#include "vek/uisupport/UnifiedDispatch.h"

namespace outliner {

class OutlineDocument;
class RowEditor;

// Answers for the commands that work on the document: edits, selection, undo and save. It stands
// on the window's command handler while the document is open there.
//
// Every command here but the one that gives a text up ends the editing of a text first, so that
// what was typed is part of the outline before anything else happens to it.
class DocumentCommands final : public vek::uisupport::UnifiedDispatchCmdAttachment {
 public:
  // All borrowed, and outlive this. inSave saves the document and throws what that throws.
  DocumentCommands(OutlineDocument& inDocument, RowEditor& inEditor, std::function<void()> inSave);

  bool DoUnifiedDispatch(int inCommand, vek::uisupport::CommandEnableQuery* ioQuery) override;

 private:
  struct Entry {
    std::function<bool()> isEnabled;
    std::function<void()> execute;
    std::function<lumcore::UTF16String()> title;  // empty where the item's own text stands
  };

  void AddEdits();
  void AddTextCommands();
  void AddUndo();
  lumcore::UTF16String UndoTitle() const;
  lumcore::UTF16String RedoTitle() const;

  OutlineDocument& mDocument;
  RowEditor& mEditor;
  std::function<void()> mSave;
  std::map<int, Entry> mEntries;
};

}  // namespace outliner
