// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OpmlWriter.h"

#include <cstddef>
#include <vector>

#include "MarkupText.h"
#include "lumcore/utility/Encoding.h"
#include "lumcore/utility/StringUtils.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;

namespace {

// Walks with a stack of its own, as rows may lie deeper than calls can.
class RowWriter {
 public:
  RowWriter(const OutlineTree& inTree, UTF16String& outText) : mTree(inTree), mText(outText) {}

  // Everything below the root, and the end of the body, whose start tag is still open.
  void WriteBody() {
    const OutlineRow* row = &mTree.GetRoot();
    OpenContent(*row, 0);
    std::vector<std::size_t> next{0};  // for each open row, its child that comes next
    while (!next.empty()) {
      const std::size_t depth = next.size();
      if (next.back() < row->GetChildCount()) {
        row = row->GetChild(next.back()++);
        mTree.AppendLeading(*row, depth, mText);
        WriteTag(*row);
        OpenContent(*row, depth);
        next.push_back(0);
      } else {
        CloseContent(*row, depth - 1);
        row = row->GetParent();
        next.pop_back();
      }
    }
  }

 private:
  void WriteTag(const OutlineRow& inRow) {
    mText += '<';
    mText += kRowName;
    for (std::size_t place = 0; place <= inRow.GetAttributeCount(); ++place) {
      if (place == inRow.GetTextPlace() && inRow.WritesText()) {
        WriteAttribute(kTextName, inRow.GetText());
      }
      if (place == inRow.GetAttributeCount()) break;
      const OutlineRow::Attribute& attribute = inRow.GetAttribute(place);
      WriteAttribute(mTree.GetNames().Get(attribute.name), attribute.value);
    }
  }

  void WriteAttribute(const UTF16String& inName, const UTF16String& inValue) {
    mText += ' ';
    mText += inName;
    mText += kEquals;
    AppendAttributeValue(inValue, mText);
    mText += '"';
  }

  void OpenContent(const OutlineRow& inRow, std::size_t inDepth) {
    mTrailing.clear();
    if (inRow.GetChildCount() == 0) mTree.AppendTrailing(inRow, inDepth, mTrailing);
    mIsShort = inRow.GetChildCount() == 0 && mTrailing.empty();
    mText += mIsShort ? kShortEnd : kTagEnd;
  }

  void CloseContent(const OutlineRow& inRow, std::size_t inDepth) {
    if (inRow.GetChildCount() > 0) {
      mTree.AppendTrailing(inRow, inDepth, mText);
    } else if (mIsShort) {
      return;
    } else {
      mText += mTrailing;
    }
    mText += kEndTagStart;
    mText += inDepth == 0 ? kBodyName : kRowName;
    mText += '>';
  }

  const UTF16String kRowName = ToUTF16("outline");
  const UTF16String kBodyName = ToUTF16("body");
  const UTF16String kTextName = ToUTF16("text");
  const UTF16String kEquals = ToUTF16("=\"");
  const UTF16String kShortEnd = ToUTF16("/>");
  const UTF16String kTagEnd = ToUTF16(">");
  const UTF16String kEndTagStart = ToUTF16("</");

  const OutlineTree& mTree;
  UTF16String& mText;
  // Of the row without children that was opened last.
  UTF16String mTrailing;
  bool mIsShort = false;
};

UTF16String WithCarriageReturns(const UTF16String& inText) {
  UTF16String result;
  result.reserve(inText.size() + inText.size() / 32);
  for (const unsigned short unit : inText) {
    if (unit == '\n') result += '\r';
    result += unit;
  }
  return result;
}

}  // namespace

std::string WriteOpml(const OutlineTree& inTree) {
  const OutlineEnvelope& envelope = inTree.GetEnvelope();
  UTF16String text = envelope.before;
  RowWriter(inTree, text).WriteBody();
  text += envelope.after;
  if (envelope.endsLinesWithCR) text = WithCarriageReturns(text);
  return envelope.byteOrderMark + lumcore::utility::ToEncoding(text, envelope.encoding);
}

}  // namespace outliner
