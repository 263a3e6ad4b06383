// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "lumcore/Strings.h"
#include "lumcore/filesupport/File.h"

namespace outliner {

// An element within a record, at whatever depth.
struct FileItem {
  std::string name;
  std::size_t line = 0;
  lumcore::UTF16String text;
};

// One record of a command file or a key map, as it stands there: its items in the order of their
// start tags, each with the text up to the next tag, which is what the readers of these files take.
struct FileRecord {
  std::size_t line = 0;
  lumcore::UTF16String id;  // the attribute
  bool isForThisSystem = true;
  std::vector<FileItem> items;

  // The texts of all items of a name, one behind the other.
  lumcore::UTF16String GetText(const char* inName) const;
};

// Throws FileError and ParseError.
std::vector<FileRecord> ReadRecords(const lumcore::filesupport::File& inFile,
                                    const char* inRecordName);
// Of a file's bytes, whose name stands in errors.
std::vector<FileRecord> ReadRecords(const lumcore::UTF8String& inBytes,
                                    const lumcore::UTF16String& inName, const char* inRecordName);

// What is wrong with a file, "path:line: cause" each, in the order found.
class Findings {
 public:
  explicit Findings(const std::string& inPath) : mPath(inPath) {}

  // Placeholders of the key's text are replaced.
  void Add(std::size_t inLine, const char* inKey, const lumcore::UTF16String& inFirst = {},
           const lumcore::UTF16String& inSecond = {});
  // For what has a place of its own in its text.
  void AddText(const std::string& inText) { mTexts.push_back(inText); }

  const std::vector<std::string>& GetTexts() const { return mTexts; }

 private:
  std::string mPath;
  std::vector<std::string> mTexts;
};

// Whether the text consists of digits only and is a number from inLeast to inMost.
bool ReadWholeNumber(const lumcore::UTF16String& inText, int inLeast, int inMost, int& outNumber);

}  // namespace outliner
