// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OpmlReader.h"

#include <string>
#include <string_view>
#include <utility>

#include "MarkupText.h"
#include "Texts.h"
#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/Parser.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::UTF8String;
using lumcore::utility::ToUTF16;

namespace {

// The parser decides by the same first bytes. Longer ones stand before those that they begin with.
struct Signature {
  std::string_view bytes;
  const char* encoding;
  bool isMark;
};

const Signature kSignatures[] = {
    {{"\xFF\xFE\0\0", 4}, "UTF-32LE", true}, {{"\0\0\xFE\xFF", 4}, "UTF-32BE", true},
    {{"<\0\0\0", 4}, "UTF-32LE", false},     {{"\0\0\0<", 4}, "UTF-32BE", false},
    {{"\xEF\xBB\xBF", 3}, "UTF-8", true},    {{"\xFF\xFE", 2}, "UTF-16LE", true},
    {{"\xFE\xFF", 2}, "UTF-16BE", true},     {{"<\0", 2}, "UTF-16LE", false},
    {{"\0<", 2}, "UTF-16BE", false},
};

// Builds the tree. What is no row is recorded as markup and put where it stood: before the body,
// after it, or in front of the row or end tag that comes next.
class OpmlHandler final : public lumcore::xml::AbstractParseHandler {
 public:
  explicit OpmlHandler(OutlineTree& outTree) : mTree(outTree), mEnvelope(outTree.GetEnvelope()) {
    mEnvelope = OutlineEnvelope();
  }

  void StartElement(const UTF16String& inName,
                    const lumcore::xml::Attributes& inAttributes) override;
  void EndElement(const UTF16String& inName) override;
  void Characters(const UTF16String& inText) override;
  void Comment(const UTF16String& inText) override;
  void ProcessingInstruction(const UTF16String& inTarget, const UTF16String& inData) override;
  void StartCDATA() override { mRecorder.StartCDATA(); }
  void EndCDATA() override { mRecorder.EndCDATA(); }
  void Declaration(const UTF16String& inVersion, const UTF16String& inEncoding,
                   int inStandalone) override;
  void DocumentType(const UTF16String& inText) override;

  UTF16String TakeRest() { return mRecorder.Take(); }

 private:
  bool IsBetweenRows() const { return mRow && mForeignDepth == 0; }
  void StartBody(const UTF16String& inName, const lumcore::xml::Attributes& inAttributes);
  void StartRow(const lumcore::xml::Attributes& inAttributes);
  void StartOther(const UTF16String& inName);
  TextPool::Id TakeMarkup();
  [[noreturn]] void Throw(const char* inKey, const UTF16String& inArgument) const;

  const UTF16String kRootName = ToUTF16("opml");
  const UTF16String kHeadName = ToUTF16("head");
  const UTF16String kTitleName = ToUTF16("title");
  const UTF16String kBodyName = ToUTF16("body");
  const UTF16String kRowName = ToUTF16("outline");
  const UTF16String kTextName = ToUTF16("text");

  OutlineTree& mTree;
  OutlineEnvelope& mEnvelope;
  MarkupRecorder mRecorder;
  OutlineRow* mRow = nullptr;     // the innermost open row, null outside of the body
  std::size_t mForeignDepth = 0;  // open elements in that row that are no rows
  std::size_t mDepth = 0;         // open elements outside of the body, the root included
  bool mHasBody = false;
  bool mRootHasEnded = false;
  bool mInHead = false;
  bool mInTitle = false;
  bool mHasTitle = false;
};

void OpmlHandler::StartElement(const UTF16String& inName,
                               const lumcore::xml::Attributes& inAttributes) {
  if (IsBetweenRows() && inName == kRowName) {
    StartRow(inAttributes);
  } else if (mRow) {
    mRecorder.StartElement(inName, inAttributes);
    ++mForeignDepth;
  } else if (mDepth == 1 && !mHasBody && inName == kBodyName) {
    StartBody(inName, inAttributes);
  } else {
    StartOther(inName);
    mRecorder.StartElement(inName, inAttributes);
  }
}

void OpmlHandler::StartBody(const UTF16String& inName,
                            const lumcore::xml::Attributes& inAttributes) {
  mRecorder.StartElement(inName, inAttributes);
  mEnvelope.before = mRecorder.Take();
  mRow = &mTree.GetRoot();
  mHasBody = true;
}

void OpmlHandler::StartRow(const lumcore::xml::Attributes& inAttributes) {
  const TextPool::Id leading = TakeMarkup();
  mRow = &mTree.AppendRow(*mRow);
  mTree.SetLeading(*mRow, leading);
  bool hasText = false;
  std::size_t place = 0;
  for (const auto& [name, value] : inAttributes) {
    if (name == kTextName) {
      hasText = true;
      mTree.SetText(*mRow, value);
      if (place > 0) mTree.SetTextPlace(*mRow, place);
    } else {
      mTree.AddAttribute(*mRow, mTree.GetNames().Intern(name), value);
    }
    ++place;
  }
  if (!hasText) mTree.MarkTextMissing(*mRow);
}

// Follows the path from the root to the title.
void OpmlHandler::StartOther(const UTF16String& inName) {
  ++mDepth;
  if (mDepth == 1 && inName != kRootName) {
    Throw(
        "$$$/outliner/Error/NotOpml=this is no outline: its outermost element is \"@0\", not "
        "\"opml\"",
        inName);
  }
  if (mDepth == 2) mInHead = inName == kHeadName;
  if (mDepth == 3) mInTitle = mInHead && !mHasTitle && inName == kTitleName;
}

void OpmlHandler::EndElement(const UTF16String& inName) {
  if (IsBetweenRows()) {
    mTree.SetTrailing(*mRow, TakeMarkup());
    mRow = mRow->GetParent();
    return;
  }
  if (!mRow && mDepth == 1 && !mHasBody) {
    Throw("$$$/outliner/Error/NoBody=this is no outline: the element \"@0\" ends without a body",
          inName);
  }
  mRecorder.EndElement(inName);
  if (mRow) {
    --mForeignDepth;
    return;
  }
  if (mDepth == 3 && mInTitle) {
    mInTitle = false;
    mHasTitle = true;
  }
  mRootHasEnded = --mDepth == 0;
}

void OpmlHandler::Characters(const UTF16String& inText) {
  mRecorder.Characters(inText);
  if (mInTitle && mDepth == 3) mEnvelope.title += inText;
}

// White space outside of the root element carries nothing and comes as no event: one item stands on
// a line there.
void OpmlHandler::Comment(const UTF16String& inText) {
  if (mRootHasEnded) mRecorder.Raw("\n");
  mRecorder.Comment(inText);
  if (mDepth == 0 && !mRootHasEnded) mRecorder.Raw("\n");
}

void OpmlHandler::ProcessingInstruction(const UTF16String& inTarget, const UTF16String& inData) {
  if (mRootHasEnded) mRecorder.Raw("\n");
  mRecorder.ProcessingInstruction(inTarget, inData);
  if (mDepth == 0 && !mRootHasEnded) mRecorder.Raw("\n");
}

void OpmlHandler::Declaration(const UTF16String& inVersion, const UTF16String& inEncoding,
                              int inStandalone) {
  mRecorder.Raw("<?xml version=\"");
  mRecorder.Raw(inVersion);
  if (!inEncoding.empty()) {
    mRecorder.Raw("\" encoding=\"");
    mRecorder.Raw(inEncoding);
    mEnvelope.encoding = lumcore::utility::ToStdString(inEncoding);
  }
  if (inStandalone >= 0) mRecorder.Raw(inStandalone ? "\" standalone=\"yes" : "\" standalone=\"no");
  mRecorder.Raw("\"?>\n");
}

void OpmlHandler::DocumentType(const UTF16String& inText) {
  mRecorder.Raw(inText);
  mRecorder.Raw("\n");
}

TextPool::Id OpmlHandler::TakeMarkup() {
  const TextPool::Id markup = mTree.GetMarkup().Intern(mRecorder.Peek());
  mRecorder.Clear();
  return markup;
}

void OpmlHandler::Throw(const char* inKey, const UTF16String& inArgument) const {
  ThrowParseError(lumcore::utility::ReplaceInString(Localized(inKey), {inArgument}));
}

// The last byte in front of inEnd that is not zero, as in text of two or four bytes a unit.
char LastByte(std::string_view inBytes, std::size_t inEnd) {
  const auto at = inEnd == 0 ? inBytes.npos : inBytes.find_last_not_of('\0', inEnd - 1);
  return at == inBytes.npos ? '\0' : inBytes[at];
}

void ReadForm(std::string_view inBytes, OutlineEnvelope& ioEnvelope) {
  if (ioEnvelope.encoding.empty()) ioEnvelope.encoding = "UTF-8";
  for (const Signature& signature : kSignatures) {
    if (inBytes.substr(0, signature.bytes.size()) != signature.bytes) continue;
    ioEnvelope.encoding = signature.encoding;
    if (signature.isMark) ioEnvelope.byteOrderMark = std::string(signature.bytes);
    break;
  }
  const auto lineEnd = inBytes.find('\n');
  ioEnvelope.endsLinesWithCR = lineEnd != inBytes.npos && LastByte(inBytes, lineEnd) == '\r';
  if (LastByte(inBytes, inBytes.size()) == '\n') ioEnvelope.after += '\n';
}

}  // namespace

std::unique_ptr<OutlineTree> ReadOpml(const lumcore::filesupport::File& inFile) {
  return ReadOpml(inFile.ReadAll(), ToUTF16(inFile.GetPath()));
}

std::unique_ptr<OutlineTree> ReadOpml(const UTF8String& inBytes, const UTF16String& inName) {
  auto tree = std::make_unique<OutlineTree>();
  auto* handler = new OpmlHandler(*tree);
  const auto parser =
      lumcore::xml::GetParser(std::auto_ptr<lumcore::xml::AbstractParseHandler>(handler));
  parser->Parse(inBytes, inName);
  tree->GetEnvelope().after = handler->TakeRest();
  ReadForm({reinterpret_cast<const char*>(inBytes.data()), inBytes.size()}, tree->GetEnvelope());
  tree->AdoptLayout();
  return tree;
}

}  // namespace outliner
