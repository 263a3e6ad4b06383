// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "hosts/OutlineText.h"

#include <sstream>
#include <vector>

#include "lumcore/utility/StringUtils.h"
#include "outliner/OpmlReader.h"

namespace tests {

using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using outliner::OutlineDocument;
using outliner::OutlineRow;
using outliner::OutlineTree;

std::unique_ptr<OutlineTree> Read(const std::string& inBytes) {
  return outliner::ReadOpml(lumcore::UTF8String(inBytes.begin(), inBytes.end()), ToUTF16("o.opml"));
}

namespace {

void ShowRows(OutlineDocument& inDocument, const OutlineRow& inParent, std::string& outText) {
  for (std::size_t child = 0; child < inParent.GetChildCount(); ++child) {
    const OutlineRow& row = *inParent.GetChild(child);
    if (child > 0) outText += ' ';
    outText += row.GetText().empty() ? "-" : ToStdString(row.GetText());
    if (inDocument.IsSelected(row)) outText += '*';
    if (row.GetChildCount() == 0) continue;
    outText += " [";
    ShowRows(inDocument, row, outText);
    outText += ']';
  }
}

}  // namespace

std::string Show(OutlineDocument& inDocument) {
  std::string text;
  ShowRows(inDocument, inDocument.GetTree().GetRoot(), text);
  return text;
}

std::unique_ptr<OutlineDocument> MakeDocument(const std::string& inOutline) {
  auto tree = std::make_unique<OutlineTree>();
  OutlineRow* parent = &tree->GetRoot();
  std::vector<OutlineRow::Id> selected;
  std::string text;
  const auto finishRow = [&] {
    if (text.empty()) return;
    const bool isSelected = text.back() == '*';
    if (isSelected) text.pop_back();
    OutlineRow& row = tree->AppendRow(*parent);
    tree->SetText(row, ToUTF16(text));
    if (isSelected) selected.push_back(row.GetId());
    text.clear();
  };
  for (const char letter : inOutline + " ") {
    if (letter != ' ' && letter != '[' && letter != ']') {
      text += letter;
      continue;
    }
    finishRow();
    if (letter == '[') parent = parent->GetChild(parent->GetChildCount() - 1);
    if (letter == ']') parent = parent->GetParent();
  }
  auto document =
      std::make_unique<OutlineDocument>(std::move(tree), lumcore::filesupport::File("o.opml"));
  std::vector<OutlineRow*> rows;
  for (const OutlineRow::Id id : selected)
    rows.push_back(document->GetTree().FindRow(id));
  document->SelectRows(rows);
  return document;
}

void Select(OutlineDocument& ioDocument, const std::string& inTexts) {
  std::vector<OutlineRow*> rows;
  std::istringstream texts(inTexts);
  for (std::string text; texts >> text;)
    rows.push_back(FindRow(ioDocument, text));
  ioDocument.SelectRows(rows);
}

OutlineRow* FindRow(OutlineDocument& inDocument, const std::string& inText) {
  for (OutlineRow* row : inDocument.GetTree().GetLines()) {
    if (ToStdString(row->GetText()) == inText) return row;
  }
  return nullptr;
}

}  // namespace tests
