// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <map>
#include <utility>

#include "lumcore/Strings.h"
#include "vek/uisupport/UnifiedDispatch.h"

namespace outliner {

class OutlineDocument;

// Answers for the commands that work on a document: edits, selection, undo and save. The document
// owns it; it stands on the application while the document is the current one.
//
// Every command here but the one that gives a text up ends the editing of a text first, so that
// what was typed is part of the outline before anything else happens to it.
class DocumentCommands final : public vek::uisupport::UnifiedDispatchCmdAttachment {
 public:
  explicit DocumentCommands(OutlineDocument& inDocument);

  // What the commands that go from row to row do where rows are shown: they go by those that show,
  // as they stand there. Null for the rows of the outline itself.
  struct RowSteps {
    std::function<void(bool inDown)> step;
    std::function<void()> selectAll;
  };
  void SetRowSteps(RowSteps inSteps) { mSteps = std::move(inSteps); }

  bool DoUnifiedDispatch(int inCommand, vek::uisupport::CommandEnableQuery* ioQuery) override;

 private:
  struct Entry {
    std::function<bool()> isEnabled;
    std::function<void()> execute;
    std::function<lumcore::UTF16String()> title;  // none where the command's own name stands
  };

  void AddEdits();
  void AddTextCommands();
  void AddUndo();
  lumcore::UTF16String UndoTitle() const;
  lumcore::UTF16String RedoTitle() const;

  OutlineDocument& mDocument;
  RowSteps mSteps;
  std::map<int, Entry> mEntries;
};

}  // namespace outliner
