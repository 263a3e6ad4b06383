// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineEdits.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "InsertRowsDeed.h"
#include "MarkupText.h"
#include "MoveRowsDeed.h"
#include "OutlineDocument.h"
#include "OutlineEdit.h"
#include "OutlineRestorer.h"
#include "RemoveRowsDeed.h"
#include "SetTextDeed.h"
#include "Texts.h"

namespace outliner::edits {

using lumcore::UTF16String;
using vek::undo::Deed;

namespace {

// Neighbours under one parent.
struct Run {
  OutlineRow* parent;
  std::size_t first;
  std::size_t count;

  OutlineRow& First() const { return *parent->GetChild(first); }
  OutlineRow& Last() const { return *parent->GetChild(first + count - 1); }
  bool IsAtStart() const { return first == 0; }
  bool IsAtEnd() const { return first + count == parent->GetChildCount(); }
  OutlineRow& RowBefore() const { return *parent->GetChild(first - 1); }
  OutlineRow& RowAfter() const { return *parent->GetChild(first + count); }
};

// The topmost selected rows in document order, neighbours together.
std::vector<Run> SelectedRuns(OutlineDocument& inDocument) {
  OutlineTree& tree = inDocument.GetTree();
  std::vector<Run> runs;
  std::size_t end = 0;  // behind the branch of the last row taken
  for (OutlineRow* row : inDocument.GetSelectedRows()) {
    if (tree.GetLine(*row) < end) continue;
    end = tree.GetEndLine(*row);
    const bool continues = !runs.empty() && runs.back().parent == row->GetParent() &&
                           runs.back().first + runs.back().count == row->GetIndex();
    if (continues) {
      ++runs.back().count;
    } else {
      runs.push_back({row->GetParent(), row->GetIndex(), 1});
    }
  }
  return runs;
}

template <class Condition>
bool AnyRun(OutlineDocument& inDocument, Condition inCondition) {
  const auto runs = SelectedRuns(inDocument);
  return std::any_of(runs.begin(), runs.end(), inCondition);
}

UTF16String Name(const char* inKey) {
  return Localized(inKey);
}

// An edit by the key of its name.
class Edit : public OutlineEdit {
 public:
  Edit(OutlineDocument& ioDocument, const char* inNameKey)
      : OutlineEdit(ioDocument, Name(inNameKey)) {}
};

OutlineRow& InsertNewRow(OutlineDocument& ioDocument, const char* inNameKey, OutlineRow& inParent,
                         std::size_t inIndex) {
  Edit edit(ioDocument, inNameKey);
  OutlineTree::Rows rows;
  rows.push_back(ioDocument.GetTree().NewRow(UTF16String()));
  OutlineRow& row = *rows.front();
  edit.Add<InsertRowsDeed>(inParent, inIndex, std::move(rows));
  edit.PostSelecting(row);
  return row;
}

void MoveRun(Edit& ioEdit, const Run& inRun, MoveTarget::Place inPlace, const OutlineRow& inRow) {
  ioEdit.Add<MoveRowsDeed>(inRun.First(), inRun.count, MoveTarget{inPlace, inRow.GetId()});
}

// In front of a row that is not selected, or where before is null, as the last ones below parent.
// That is null for a target that has gone.
struct Place {
  OutlineRow* parent = nullptr;
  OutlineRow* before = nullptr;
};

Place FindPlace(OutlineDocument& inDocument, const MoveTarget& inTarget) {
  OutlineRow* const row = inDocument.GetTree().FindRow(inTarget.row);
  Place place;
  if (!row) return place;
  if (inTarget.place == MoveTarget::kLastBelow) {
    place.parent = row;
    return place;
  }
  place.parent = row->GetParent();
  if (!place.parent) return place;
  std::size_t index = row->GetIndex() + (inTarget.place == MoveTarget::kAfter ? 1 : 0);
  while (index < place.parent->GetChildCount() &&
         inDocument.IsSelected(*place.parent->GetChild(index))) {
    ++index;
  }
  if (index < place.parent->GetChildCount()) place.before = place.parent->GetChild(index);
  return place;
}

void InsertNewRows(OutlineDocument& ioDocument, OutlineRow& ioParent, std::size_t inIndex,
                   const LooseRows& inRows) {
  if (inRows.empty()) return;
  Edit edit(ioDocument, "$$$/outliner/Edit/InsertBelow=Insert");
  OutlineTree::Rows rows = MakeRows(ioDocument.GetTree(), inRows);
  std::vector<OutlineRow::Id> inserted;
  for (const auto& row : rows)
    inserted.push_back(row->GetId());
  edit.Add<InsertRowsDeed>(ioParent, inIndex, std::move(rows));
  edit.Post(std::make_unique<OutlineRestorer>(ioDocument, inserted));
}

// What is selected once the runs are gone: seen from the last one, as that is where the user looks.
// Neither neighbour of a run is selected itself, nor below a row that is.
OutlineRow* RowBeside(const Run& inRun) {
  if (!inRun.IsAtEnd()) return &inRun.RowAfter();
  if (!inRun.IsAtStart()) return &inRun.RowBefore();
  return inRun.parent->GetParent() ? inRun.parent : nullptr;
}

}  // namespace

OutlineRow& NewSibling(OutlineDocument& ioDocument) {
  constexpr const char* kName = "$$$/outliner/Edit/NewSibling=New Row";
  const auto runs = SelectedRuns(ioDocument);
  if (runs.empty()) {
    OutlineRow& root = ioDocument.GetTree().GetRoot();
    return InsertNewRow(ioDocument, kName, root, root.GetChildCount());
  }
  return InsertNewRow(ioDocument, kName, *runs.back().parent,
                      runs.back().first + runs.back().count);
}

OutlineRow& NewChild(OutlineDocument& ioDocument) {
  const auto runs = SelectedRuns(ioDocument);
  OutlineRow& parent = runs.empty() ? ioDocument.GetTree().GetRoot() : runs.back().Last();
  return InsertNewRow(ioDocument, "$$$/outliner/Edit/NewChild=New Child Row", parent,
                      parent.GetChildCount());
}

bool CanDelete(OutlineDocument& inDocument) {
  return AnyRun(inDocument, [](const Run&) { return true; });
}

void Delete(OutlineDocument& ioDocument) {
  const auto runs = SelectedRuns(ioDocument);
  if (runs.empty()) return;
  const bool isOne = runs.size() == 1 && runs.front().count == 1;
  Edit edit(ioDocument, isOne ? "$$$/outliner/Edit/DeleteRow=Delete Row"
                              : "$$$/outliner/Edit/DeleteRows=Delete Rows");
  // From the end, so that the places of the others stay as they are.
  for (auto run = runs.rbegin(); run != runs.rend(); ++run)
    edit.Add<RemoveRowsDeed>(run->First(), run->count);
  std::vector<OutlineRow::Id> after;
  if (const OutlineRow* row = RowBeside(runs.back())) after.push_back(row->GetId());
  edit.Post(std::make_unique<OutlineRestorer>(ioDocument, after));
}

bool CanIndent(OutlineDocument& inDocument) {
  return AnyRun(inDocument, [](const Run& inRun) { return !inRun.IsAtStart(); });
}

void Indent(OutlineDocument& ioDocument) {
  Edit edit(ioDocument, "$$$/outliner/Edit/Indent=Indent");
  for (const Run& run : SelectedRuns(ioDocument)) {
    if (!run.IsAtStart()) MoveRun(edit, run, MoveTarget::kLastBelow, run.RowBefore());
  }
  edit.PostKeepingSelection();
}

bool CanOutdent(OutlineDocument& inDocument) {
  return AnyRun(inDocument, [](const Run& inRun) { return inRun.parent->GetParent() != nullptr; });
}

void Outdent(OutlineDocument& ioDocument) {
  Edit edit(ioDocument, "$$$/outliner/Edit/Outdent=Outdent");
  const auto runs = SelectedRuns(ioDocument);
  // From the end: each run goes right behind the parent, in front of those that went before it.
  for (auto run = runs.rbegin(); run != runs.rend(); ++run) {
    if (run->parent->GetParent()) MoveRun(edit, *run, MoveTarget::kAfter, *run->parent);
  }
  edit.PostKeepingSelection();
}

bool CanMoveUp(OutlineDocument& inDocument) {
  return CanIndent(inDocument);
}

void MoveUp(OutlineDocument& ioDocument) {
  Edit edit(ioDocument, "$$$/outliner/Edit/MoveUp=Move Up");
  for (const Run& run : SelectedRuns(ioDocument)) {
    if (!run.IsAtStart()) MoveRun(edit, run, MoveTarget::kBefore, run.RowBefore());
  }
  edit.PostKeepingSelection();
}

bool CanMoveDown(OutlineDocument& inDocument) {
  return AnyRun(inDocument, [](const Run& inRun) { return !inRun.IsAtEnd(); });
}

void MoveDown(OutlineDocument& ioDocument) {
  Edit edit(ioDocument, "$$$/outliner/Edit/MoveDown=Move Down");
  const auto runs = SelectedRuns(ioDocument);
  for (auto run = runs.rbegin(); run != runs.rend(); ++run) {
    if (!run->IsAtEnd()) MoveRun(edit, *run, MoveTarget::kAfter, run->RowAfter());
  }
  edit.PostKeepingSelection();
}

bool CanMoveBelow(OutlineDocument& inDocument, const OutlineRow& inTarget) {
  for (const OutlineRow* row = &inTarget; row->GetParent(); row = row->GetParent()) {
    if (inDocument.IsSelected(*row)) return false;
  }
  return AnyRun(inDocument, [&](const Run& inRun) { return inRun.parent != &inTarget; });
}

void MoveBelow(OutlineDocument& ioDocument, const OutlineRow& inTarget) {
  if (!CanMoveBelow(ioDocument, inTarget)) return;
  Edit edit(ioDocument, "$$$/outliner/Edit/MoveBelow=Move");
  for (const Run& run : SelectedRuns(ioDocument)) {
    if (run.parent != &inTarget) MoveRun(edit, run, MoveTarget::kLastBelow, inTarget);
  }
  edit.PostKeepingSelection();
}

bool CanMoveTo(OutlineDocument& inDocument, const MoveTarget& inTarget) {
  const auto place = FindPlace(inDocument, inTarget);
  if (!place.parent) return false;
  for (const OutlineRow* row = place.parent; row->GetParent(); row = row->GetParent()) {
    if (inDocument.IsSelected(*row)) return false;
  }
  const auto runs = SelectedRuns(inDocument);
  if (runs.size() != 1) return !runs.empty();
  const Run& run = runs.front();
  if (run.parent != place.parent) return true;
  return run.IsAtEnd() ? place.before != nullptr : place.before != &run.RowAfter();
}

void MoveTo(OutlineDocument& ioDocument, const MoveTarget& inTarget) {
  if (!CanMoveTo(ioDocument, inTarget)) return;
  const auto place = FindPlace(ioDocument, inTarget);
  Edit edit(ioDocument, "$$$/outliner/Edit/MoveBelow=Move");
  for (const Run& run : SelectedRuns(ioDocument)) {
    if (place.before) {
      MoveRun(edit, run, MoveTarget::kBefore, *place.before);
    } else {
      MoveRun(edit, run, MoveTarget::kLastBelow, *place.parent);
    }
  }
  edit.PostKeepingSelection();
}

void InsertAt(OutlineDocument& ioDocument, const MoveTarget& inTarget, const LooseRows& inRows) {
  OutlineRow* const row = ioDocument.GetTree().FindRow(inTarget.row);
  if (!row) return;
  if (inTarget.place == MoveTarget::kLastBelow) {
    InsertNewRows(ioDocument, *row, row->GetChildCount(), inRows);
  } else {
    const std::size_t behind = inTarget.place == MoveTarget::kAfter ? 1 : 0;
    InsertNewRows(ioDocument, *row->GetParent(), row->GetIndex() + behind, inRows);
  }
}

void SetText(OutlineDocument& ioDocument, OutlineRow& ioRow, const UTF16String& inText) {
  const UTF16String text = CleanText(inText);
  if (text == ioRow.GetText()) return;
  Edit edit(ioDocument, "$$$/outliner/Edit/ChangeText=Change Text");
  edit.Add<SetTextDeed>(ioRow, text);
  edit.PostSelecting(ioRow);
}

bool CanUndo(const OutlineDocument& inDocument) {
  const Deed* deed = inDocument.GetUndoer().CouldUndoDeed();
  return deed && deed->CanUndo();
}

void Undo(OutlineDocument& ioDocument) {
  if (CanUndo(ioDocument)) ioDocument.GetUndoer().Undo();
}

bool CanRedo(const OutlineDocument& inDocument) {
  const Deed* deed = inDocument.GetUndoer().CouldRedoDeed();
  return deed && deed->CanRedo();
}

void Redo(OutlineDocument& ioDocument) {
  if (CanRedo(ioDocument)) ioDocument.GetUndoer().Redo();
}

void SelectNext(OutlineDocument& ioDocument) {
  const auto& lines = ioDocument.GetTree().GetLines();
  if (lines.empty()) return;
  const auto selected = ioDocument.GetSelectedRows();
  std::size_t line = selected.empty() ? 0 : ioDocument.GetTree().GetLine(*selected.back()) + 1;
  line = std::min(line, lines.size() - 1);
  ioDocument.SelectRows({lines[line]});
}

void SelectPrevious(OutlineDocument& ioDocument) {
  const auto& lines = ioDocument.GetTree().GetLines();
  if (lines.empty()) return;
  const auto selected = ioDocument.GetSelectedRows();
  std::size_t line =
      selected.empty() ? lines.size() : ioDocument.GetTree().GetLine(*selected.front());
  line = line > 0 ? line - 1 : 0;
  ioDocument.SelectRows({lines[line]});
}

}  // namespace outliner::edits
