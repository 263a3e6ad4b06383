// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/filesupport/File.h"

#include "filesupport/Paths.h"
#include "filesupport/SystemFile.h"
#include "filesupport/ThrowFileError.h"
#include "lumcore/utility/StringUtils.h"

namespace lumcore::filesupport {

File::File() = default;

File::File(std::string_view inPath) : mPath(inPath) {}

File::File(const UTF16String& inPath) : mPath(paths::FromText(inPath)) {}

File::File(const Dir& inDir, std::string_view inName)
    : mPath(paths::Join(inDir.GetPath(), inName)) {}

bool File::Exists() const {
  return system::FileExists(mPath);
}

bool File::IsAbsent() const {
  return system::IsAbsent(mPath);
}

std::uint64_t File::GetSize() const {
  return system::FileSize(mPath);
}

UTF16String File::FullPath() const {
  return paths::ToText(paths::Full(mPath));
}

UTF16String File::GetName() const {
  return utility::ToUTF16(paths::NameText(mPath));
}

UTF16String File::GetExtension(bool inWithDot) const {
  const std::string extension =
      paths::FromSystem(paths::ToSystem(paths::NameText(mPath)).extension());
  if (extension.empty()) return UTF16String();
  return utility::ToUTF16(std::string_view(extension).substr(inWithDot ? 0 : 1));
}

std::int64_t File::Modified() const {
  return system::ModifiedTime(mPath);
}

Dir File::Parent() const {
  return Dir(paths::Parent(mPath));
}

UTF8String File::ReadAll() const {
  system::Handle handle(system::OpenForReading(mPath), mPath);
  // The size is a hint: a file may grow while it is read, and some report none.
  constexpr std::size_t kLeastRoom = 4096;
  UTF8String content(static_cast<std::size_t>(handle.GetSizeHint()) + 1, 0);
  std::size_t length = 0;
  while (const std::size_t count =
             handle.ReadSome(content.data() + length, content.size() - length)) {
    length += count;
    if (length == content.size()) content.resize(length * 2 + kLeastRoom);
  }
  content.resize(length);
  return content;
}

void File::ReplaceContents(std::string_view inBytes) const {
  system::ReplaceFile(mPath, inBytes);
}

void File::Recreate(std::string_view inBytes) const {
  system::RecreateFile(mPath, inBytes);
}

void File::Remove() const {
  system::RemoveFile(mPath);
}

}  // namespace lumcore::filesupport
