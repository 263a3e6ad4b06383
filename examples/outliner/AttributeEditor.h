// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "OutlineRow.h"
#include "lumcore/Strings.h"

namespace outliner {

class OutlineDocument;

// The value of an attribute that is being typed for one row or several, as long as it is no deed
// yet. It is the document's and not the field's, so that a field that goes, or shows other rows,
// takes no text with it: what stands here is part of the next save, and becomes a deed with the
// next command.
//
// A commit that fails leaves the value as it is.
class AttributeEditor {
 public:
  using Rows = std::vector<OutlineRow::Id>;

  explicit AttributeEditor(OutlineDocument& inDocument);

  // Called after each change of what is typed.
  void SetChangedFunction(std::function<void()> inChanged) { mChanged = std::move(inChanged); }

  // Whether a commit would post anything.
  bool IsModified() const;
  bool IsActive() const { return mActive; }
  bool IsFor(const Rows& inRows) const { return mActive && mRows == inRows; }
  // What is typed for the attribute of those rows; null for nothing.
  const lumcore::UTF16String* FindValue(const Rows& inRows,
                                        const lumcore::UTF16String& inName) const;

  // Commits first what was typed for another attribute or other rows. An empty value takes an
  // attribute that every row could have away (IsCommon), and leaves others empty.
  void SetValue(const Rows& inRows, const lumcore::UTF16String& inName,
                const lumcore::UTF16String& inValue);
  void Commit();
  void Cancel();

  // Whether the attribute is shown also where rows have none: its absence looks like empty.
  static bool IsCommon(const lumcore::UTF16String& inName);

 private:
  bool IsTarget(const Rows& inRows, const lumcore::UTF16String& inName) const;
  std::vector<OutlineRow*> FindRows() const;

  OutlineDocument& mDocument;
  std::function<void()> mChanged;
  bool mActive = false;
  Rows mRows;
  lumcore::UTF16String mName;
  lumcore::UTF16String mValue;
};

}  // namespace outliner
