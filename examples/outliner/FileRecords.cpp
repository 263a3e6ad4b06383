// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "FileRecords.h"

#include <charconv>
#include <memory>
#include <utility>

#include "Texts.h"
#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/Parser.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;

namespace {

class RecordHandler : public lumcore::xml::AbstractParseHandler {
 public:
  RecordHandler(std::string inRecordName, std::vector<FileRecord>& outRecords)
      : mRecordName(std::move(inRecordName)), mRecords(outRecords) {}

  void StartElement(const UTF16String& inName,
                    const lumcore::xml::Attributes& inAttributes) override {
    const std::string name = ToStdString(inName);
    mTakesText = false;
    if (name == mRecordName) {
      FileRecord& record = mRecords.emplace_back();
      record.line = GetLine();
      if (const UTF16String* id = inAttributes.Find("id")) record.id = *id;
      const UTF16String* system = inAttributes.Find("os");
      record.isForThisSystem = !system || *system == ToUTF16("win");
      mIsInRecord = true;
    } else if (mIsInRecord) {
      mRecords.back().items.push_back({name, GetLine(), UTF16String()});
      mTakesText = true;
    }
  }
  void EndElement(const UTF16String& inName) override {
    mTakesText = false;
    if (ToStdString(inName) == mRecordName) mIsInRecord = false;
  }
  void Characters(const UTF16String& inText) override {
    if (mTakesText) mRecords.back().items.back().text += inText;
  }

 private:
  std::string mRecordName;
  std::vector<FileRecord>& mRecords;
  bool mIsInRecord = false;
  bool mTakesText = false;
};

std::auto_ptr<lumcore::xml::Parser> MakeParser(const char* inRecordName,
                                               std::vector<FileRecord>& outRecords) {
  return lumcore::xml::GetParser(std::auto_ptr<lumcore::xml::AbstractParseHandler>(
      new RecordHandler(inRecordName, outRecords)));
}

}  // namespace

UTF16String FileRecord::GetText(const char* inName) const {
  UTF16String text;
  for (const FileItem& item : items) {
    if (item.name == inName) text += item.text;
  }
  return text;
}

std::vector<FileRecord> ReadRecords(const lumcore::filesupport::File& inFile,
                                    const char* inRecordName) {
  std::vector<FileRecord> records;
  MakeParser(inRecordName, records)->Parse(inFile);
  return records;
}

std::vector<FileRecord> ReadRecords(const lumcore::UTF8String& inBytes, const UTF16String& inName,
                                    const char* inRecordName) {
  std::vector<FileRecord> records;
  MakeParser(inRecordName, records)->Parse(inBytes, inName);
  return records;
}

void Findings::Add(std::size_t inLine, const char* inKey, const UTF16String& inFirst,
                   const UTF16String& inSecond) {
  const UTF16String cause =
      lumcore::utility::ReplaceInString(Localized(inKey), {inFirst, inSecond});
  mTexts.push_back(mPath + ":" + std::to_string(inLine) + ": " + ToStdString(cause));
}

bool ReadWholeNumber(const UTF16String& inText, int inLeast, int inMost, int& outNumber) {
  const std::string text = ToStdString(inText);
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, outNumber);
  return result.ec == std::errc() && result.ptr == end && outNumber >= inLeast &&
         outNumber <= inMost;
}

}  // namespace outliner
