// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "lumcore/Export.h"

namespace lumcore::filesupport {
class File;
}

namespace lumcore::debug {

// Switches for whoever looks for a fault: named values that a program reads with a default and that
// no user interface shows. They come from a text file of lines "Name = value", such as
//
//   # of the outliner
//   Show Windows Console = true
//
// with booleans "true" and "false", whole numbers in decimal, and texts that reach to the end of
// the line. A line that begins with '#' and an empty one say nothing; a later line goes before an
// earlier one of the same name. For one thread.
class LUMCORE_API DebugDatabase {
 public:
  static DebugDatabase& Instance();

  // A value of the file takes the place of one of the same name; all others stay. A file that is
  // not there holds none. Throws FileError, and config::Error with file and line for a line of
  // another form; the values then stay as they were.
  void Load(const filesupport::File& inFile);
  void Clear();

  // The default for a name without a value. A value of another type throws config::Error with the
  // file and the line that it comes from.
  bool GetBoolean(const std::string& inName, bool inDefault) const;
  std::int64_t GetInteger(const std::string& inName, std::int64_t inDefault) const;
  std::string GetText(const std::string& inName, const std::string& inDefault) const;

  // Until the program ends, or the next Load of a file that names it.
  void SetBoolean(const std::string& inName, bool inValue);
  void SetInteger(const std::string& inName, std::int64_t inValue);
  void SetText(const std::string& inName, const std::string& inValue);

 private:
  struct Value {
    std::string text;
    std::string origin;  // "file:line: ", empty for one that was set
  };
  const Value* Find(const std::string& inName) const;

  std::map<std::string, Value> mValues;
};

}  // namespace lumcore::debug
