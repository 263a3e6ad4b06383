// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "lumcore/Export.h"
#include "lumcore/config/ThrowError.h"

namespace lumcore::filesupport {

// A file operation that failed: what was tried, on which path, and the system's own words.
class LUMCORE_API FileError : public config::Error {
 public:
  FileError(const UTF16String& inText, std::string inPath, int inSystemCode);
  ~FileError() override;

  const std::string& GetPath() const;  // UTF-8
  // errno, or GetLastError() on Windows; 0 where the system said nothing.
  int GetSystemCode() const;
  UTF16String GetSystemWords() const;  // what the system says about that code; empty for 0

 private:
  std::string mPath;
  int mSystemCode;
};

}  // namespace lumcore::filesupport
