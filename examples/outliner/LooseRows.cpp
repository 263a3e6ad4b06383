// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "LooseRows.h"

#include <algorithm>

#include "OpmlReader.h"
#include "OpmlWriter.h"
#include "OutlineDocument.h"

namespace outliner {

using lumcore::UTF16String;

namespace {

// The branch of a row, as it would be at that depth.
void AppendBranch(const OutlineTree& inTree, const OutlineRow& inTop, std::size_t inDepth,
                  LooseRows& ioRows) {
  const auto& lines = inTree.GetLines();
  const std::size_t topDepth = inTop.GetDepth();
  const std::size_t end = inTree.GetEndLine(inTop);
  for (std::size_t line = inTree.GetLine(inTop); line < end; ++line) {
    const OutlineRow& row = *lines[line];
    LooseRow loose;
    loose.depth = inDepth + row.GetDepth() - topDepth;
    loose.text = row.GetText();
    for (std::size_t at = 0; at < row.GetAttributeCount(); ++at) {
      const auto& attribute = row.GetAttribute(at);
      loose.attributes.emplace_back(inTree.GetNames().Get(attribute.name), attribute.value);
    }
    ioRows.push_back(std::move(loose));
  }
}

bool IsBlank(unsigned short inUnit) {
  return inUnit == ' ' || inUnit == '\t' || inUnit == 0xA0;
}

}  // namespace

LooseRows RowsOfText(const UTF16String& inText) {
  constexpr std::size_t kTab = 4;  // beside blanks
  LooseRows rows;
  std::vector<std::size_t> indents;  // of the rows that the next one may be below
  for (std::size_t start = 0; start < inText.size();) {
    std::size_t end = start;
    while (end < inText.size() && inText[end] != '\n' && inText[end] != '\r')
      ++end;
    std::size_t first = start;
    std::size_t indent = 0;
    for (; first < end && IsBlank(inText[first]); ++first)
      indent += inText[first] == '\t' ? kTab : 1;
    std::size_t last = end;
    while (last > first && IsBlank(inText[last - 1]))
      --last;
    if (first < last) {
      while (!indents.empty() && indents.back() >= indent)
        indents.pop_back();
      indents.push_back(indent);
      rows.push_back({indents.size(), inText.substr(first, last - first), {}});
    }
    start = end + 1;
  }
  return rows;
}

LooseRows RowsOfFile(const lumcore::filesupport::File& inFile) {
  const auto tree = ReadOpml(inFile);
  LooseRows rows(1);
  rows.front().text =
      tree->GetEnvelope().title.empty() ? inFile.GetName() : tree->GetEnvelope().title;
  for (std::size_t child = 0; child < tree->GetRoot().GetChildCount(); ++child)
    AppendBranch(*tree, *tree->GetRoot().GetChild(child), 2, rows);
  return rows;
}

LooseRows RowsOfSelection(OutlineDocument& inDocument) {
  const OutlineTree& tree = inDocument.GetTree();
  LooseRows rows;
  std::size_t end = 0;  // behind the branch of the last row taken
  for (const OutlineRow* row : inDocument.GetSelectedRows()) {
    if (tree.GetLine(*row) < end) continue;
    end = tree.GetEndLine(*row);
    AppendBranch(tree, *row, 1, rows);
  }
  return rows;
}

UTF16String TextOfRows(const LooseRows& inRows) {
  UTF16String text;
  for (const LooseRow& row : inRows) {
    text.append(row.depth - 1, '\t');
    // A line of its own would be a row of its own.
    for (const unsigned short unit : row.text)
      text += unit == '\n' || unit == '\r' ? static_cast<unsigned short>(' ') : unit;
    text += '\n';
  }
  return text;
}

std::string OpmlOfRows(const LooseRows& inRows) {
  OutlineTree tree;
  tree.InsertRows(tree.GetRoot(), 0, MakeRows(tree, inRows));
  return WriteOpml(tree);
}

// From the end, so that what is below a row is there before it.
OutlineTree::Rows MakeRows(OutlineTree& ioTree, const LooseRows& inRows) {
  std::vector<OutlineTree::Rows> waiting(1);  // by depth, each in the opposite order
  for (auto loose = inRows.rbegin(); loose != inRows.rend(); ++loose) {
    if (waiting.size() < loose->depth + 1) waiting.resize(loose->depth + 1);
    OutlineTree::Rows below = std::exchange(waiting[loose->depth], {});
    std::reverse(below.begin(), below.end());
    auto row = ioTree.NewRow(loose->text, std::move(below));
    for (const auto& [name, value] : loose->attributes)
      ioTree.AddAttribute(*row, ioTree.GetNames().Intern(name), value);
    waiting[loose->depth - 1].push_back(std::move(row));
  }
  std::reverse(waiting.front().begin(), waiting.front().end());
  return std::move(waiting.front());
}

}  // namespace outliner
