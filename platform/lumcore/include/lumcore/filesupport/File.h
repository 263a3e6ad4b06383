// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "lumcore/Export.h"
#include "lumcore/Strings.h"
#include "lumcore/filesupport/Dir.h"

namespace lumcore::filesupport {

// Names a file; nothing is opened. Paths are UTF-8 with the system's separators; on systems where a
// name may be any bytes, bytes that are no UTF-8 are kept as they are.
class LUMCORE_API File {
 public:
  File();
  explicit File(std::string_view inPath);
  explicit File(const UTF16String& inPath);
  File(const Dir& inDir, std::string_view inName);

  // False for a folder, and where the system does not let us look.
  bool Exists() const;
  // Whether there is nothing of that name, by the system's own word.
  bool IsAbsent() const;
  std::uint64_t GetSize() const;  // bytes; throws FileError
  const std::string& GetPath() const { return mPath; }
  // Absolute, with "." and ".." resolved by text; links stay. A File of this text names the same
  // file again: a byte that is no UTF-8 is a lone surrogate in it, U+DC80 to U+DCFF.
  UTF16String FullPath() const;
  UTF16String GetName() const;  // the last component
  // Behind the last dot, without it or with it; empty for ".profile".
  UTF16String GetExtension(bool inWithDot = false) const;
  std::int64_t Modified() const;  // seconds since the beginning of 1970; throws FileError
  Dir Parent() const;

  // The whole content. Throws FileError.
  UTF8String ReadAll() const;

  // Replaces the content in one step: writes a new file beside the old one, flushes it to disk,
  // gives it the old one's permissions and renames it over it. A link is followed, so that what it
  // points to is replaced and the link stays. A new file has the permissions that the process
  // gives. After a throw of FileError the old file is as it was and nothing is left beside it. A
  // file that may not be written, and what is no file (a device, a folder), is refused. Further
  // hard links keep the old content, and access lists do not pass to the new file. A process that
  // is killed meanwhile leaves a ".lumcore-save-..." behind, which the next save of the same user
  // in that folder deletes.
  void ReplaceContents(std::string_view inBytes) const;

  // Replaces the file itself: deletes it, creates it anew and writes it. So a link gives way to a
  // file, one that is write-protected is no hindrance, and the new file has the permissions that
  // the process gives. Until all is written the old file stands beside it under another name, and
  // after a throw of FileError it is back. What is no file (a device, a folder) is refused.
  void Recreate(std::string_view inBytes) const;

  void Remove() const;  // throws FileError; a file that is not there is no failure

 private:
  std::string mPath;
};

}  // namespace lumcore::filesupport
