// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "AttributeEdits.h"

#include <algorithm>

#include "MarkupText.h"
#include "OutlineDocument.h"
#include "OutlineEdit.h"
#include "SetAttributeDeed.h"
#include "SetTextDeed.h"
#include "Texts.h"
#include "lumcore/utility/StringUtils.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;

namespace attributes {

const UTF16String& Text() {
  static const UTF16String sName = ToUTF16("text");
  return sName;
}

const UTF16String& Type() {
  static const UTF16String sName = ToUTF16("type");
  return sName;
}

const UTF16String& Created() {
  static const UTF16String sName = ToUTF16("created");
  return sName;
}

const UTF16String& Link() {
  static const UTF16String sName = ToUTF16("url");
  return sName;
}

const UTF16String& Note() {
  static const UTF16String sName = ToUTF16("_note");
  return sName;
}

}  // namespace attributes

namespace edits {

namespace {

using Value = std::optional<UTF16String>;

// Null for an attribute that is not there.
const UTF16String* FindValue(const OutlineDocument& inDocument, const OutlineRow& inRow,
                             TextView inName) {
  if (inName == attributes::Text()) return &inRow.GetText();
  return inDocument.GetTree().FindAttribute(inRow, inName);
}

UTF16String WithPlainEnds(const UTF16String& inText) {
  UTF16String lines;
  for (std::size_t at = 0; at < inText.size(); ++at) {
    const unsigned short unit = inText[at];
    const bool isOneEnd = unit == '\r' && at + 1 < inText.size() && inText[at + 1] == '\n';
    if (!isOneEnd) lines += unit == '\r' ? static_cast<unsigned short>('\n') : unit;
  }
  return lines;
}

UTF16String WithEndsOf(const UTF16String* inOld, const UTF16String& inLines) {
  const bool hasCR = inOld && inOld->find('\r') != inOld->npos;
  const bool hasLF = inOld && inOld->find('\n') != inOld->npos;
  UTF16String text;
  for (const unsigned short unit : inLines) {
    if (unit == '\n' && hasCR) text += '\r';
    if (unit != '\n' || hasLF || !hasCR) text += unit;
  }
  return text;
}

// What would change nothing adds no deed.
void Add(OutlineEdit& ioEdit, const OutlineDocument& inDocument, const OutlineRow& inRow,
         const UTF16String& inName, const Value& inValue) {
  const UTF16String* const old = FindValue(inDocument, inRow, inName);
  const bool isSame = inValue ? old && WithPlainEnds(*old) == CleanText(*inValue) : !old;
  if (isSame) return;
  if (inName == attributes::Text()) {
    ioEdit.Add<SetTextDeed>(inRow, inValue ? WithEndsOf(old, *inValue) : UTF16String());
  } else {
    ioEdit.Add<SetAttributeDeed>(inRow, inName,
                                 inValue ? Value(WithEndsOf(old, *inValue)) : Value());
  }
}

UTF16String DeedName(const UTF16String& inAttribute, bool inWasThere, bool inWillBeThere) {
  if (inAttribute == attributes::Text())
    return Localized("$$$/outliner/Edit/ChangeText=Change Text");
  if (inAttribute == attributes::Note())
    return Localized("$$$/outliner/Edit/ChangeNote=Change Note");
  const char* const key = !inWillBeThere ? "$$$/outliner/Edit/RemoveAttribute=Remove \"@0\""
                          : inWasThere   ? "$$$/outliner/Edit/ChangeAttribute=Change \"@0\""
                                         : "$$$/outliner/Edit/AddAttribute=Add \"@0\"";
  return lumcore::utility::ReplaceInString(Localized(key), {inAttribute});
}

std::vector<OutlineRow::Id> IdsOf(const std::vector<OutlineRow*>& inRows) {
  std::vector<OutlineRow::Id> ids;
  for (const OutlineRow* row : inRows)
    ids.push_back(row->GetId());
  return ids;
}

bool IsLetter(unsigned short inUnit) {
  return (inUnit >= 'a' && inUnit <= 'z') || (inUnit >= 'A' && inUnit <= 'Z') || inUnit == '_' ||
         (inUnit >= 0xC0 && inUnit <= 0xFF && inUnit != 0xD7 && inUnit != 0xF7);
}

bool IsInName(unsigned short inUnit) {
  return IsLetter(inUnit) || (inUnit >= '0' && inUnit <= '9') || inUnit == '-' || inUnit == '.';
}

}  // namespace

UTF16String GetAttribute(const OutlineDocument& inDocument, const OutlineRow& inRow,
                         TextView inName) {
  const UTF16String* const value = FindValue(inDocument, inRow, inName);
  return value ? WithPlainEnds(*value) : UTF16String();
}

bool HasAttribute(const OutlineDocument& inDocument, const OutlineRow& inRow, TextView inName) {
  return FindValue(inDocument, inRow, inName) != nullptr;
}

// Readers differ in what they take for a letter. What a file has had is good for it in any case;
// so is a prefix, which the file declares.
bool CanBeAttribute(const OutlineDocument& inDocument, const UTF16String& inName) {
  TextPool::Id ignored = 0;
  if (inName.empty() || inName == attributes::Text()) return false;
  if (inDocument.GetTree().GetNames().Find(inName, ignored)) return true;
  return inName != ToUTF16("xmlns") && IsLetter(inName.front()) &&
         std::all_of(inName.begin(), inName.end(), IsInName);
}

void SetAttribute(OutlineDocument& ioDocument, const std::vector<OutlineRow*>& inRows,
                  const UTF16String& inName, const Value& inValue) {
  const bool wasThere = std::any_of(inRows.begin(), inRows.end(), [&](const OutlineRow* inRow) {
    return HasAttribute(ioDocument, *inRow, inName);
  });
  OutlineEdit edit(ioDocument, DeedName(inName, wasThere, inValue.has_value()));
  for (const OutlineRow* row : inRows)
    Add(edit, ioDocument, *row, inName, inValue);
  edit.SelectWhenUndone(IdsOf(inRows));
  edit.PostKeepingSelection();
}

void AddAttribute(OutlineDocument& ioDocument, const std::vector<OutlineRow*>& inRows,
                  const UTF16String& inName) {
  OutlineEdit edit(ioDocument, DeedName(inName, false, true));
  for (const OutlineRow* row : inRows) {
    if (!HasAttribute(ioDocument, *row, inName)) Add(edit, ioDocument, *row, inName, UTF16String());
  }
  edit.SelectWhenUndone(IdsOf(inRows));
  edit.PostKeepingSelection();
}

UTF16String GetNote(const OutlineDocument& inDocument, const OutlineRow& inRow) {
  return GetAttribute(inDocument, inRow, attributes::Note());
}

void SetNote(OutlineDocument& ioDocument, OutlineRow& ioRow, const UTF16String& inNote) {
  if (inNote == GetNote(ioDocument, ioRow)) return;
  SetAttribute(ioDocument, {&ioRow}, attributes::Note(), inNote.empty() ? Value() : Value(inNote));
}

void SetTexts(OutlineDocument& ioDocument, const std::vector<NewTexts>& inTexts,
              const UTF16String& inDeedName) {
  OutlineEdit edit(ioDocument, inDeedName);
  for (const NewTexts& texts : inTexts) {
    const OutlineRow* const row = ioDocument.GetTree().FindRow(texts.row);
    if (!row) continue;
    if (texts.text) Add(edit, ioDocument, *row, attributes::Text(), texts.text);
    if (texts.note) Add(edit, ioDocument, *row, attributes::Note(), texts.note);
  }
  edit.PostKeepingSelection();
}

}  // namespace edits

}  // namespace outliner
