// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <unistd.h>

#include <string>
#include <string_view>

#include "lumcore/Strings.h"
#include "lumcore/filesupport/Dir.h"
#include "lumcore/filesupport/File.h"
#include "lumcore/utility/StringUtils.h"

// Command and key map files as texts, and a folder for them that goes with its owner.

inline lumcore::UTF8String Bytes(std::string_view inText) {
  return lumcore::UTF8String(inText.begin(), inText.end());
}

inline lumcore::UTF16String U16(std::string_view inText) {
  return lumcore::utility::ToUTF16(inText);
}

inline std::string U8(const lumcore::UTF16String& inText) {
  return lumcore::utility::ToStdString(inText);
}

class ScratchFolder {
 public:
  ScratchFolder()
      : mDir(lumcore::filesupport::Dir::TempDir(), "vek-keys-" + std::to_string(getpid())) {
    mDir.Create();
  }
  ~ScratchFolder() { mDir.RemoveAll(); }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const lumcore::filesupport::Dir& GetDir() const { return mDir; }
  lumcore::filesupport::File Name(std::string_view inName) const {
    return lumcore::filesupport::File(mDir, inName);
  }
  lumcore::filesupport::File Write(std::string_view inName, std::string_view inBytes) const {
    const lumcore::filesupport::File file = Name(inName);
    file.ReplaceContents(inBytes);
    return file;
  }

 private:
  lumcore::filesupport::Dir mDir;
};

// What inCall throws, in its own words; empty when it throws nothing.
template <class Call>
std::string WordsOf(Call inCall) {
  try {
    inCall();
  } catch (const std::exception& error) {
    return error.what();
  }
  return std::string();
}
