// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/filesupport/Dir.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <system_error>
#include <utility>

#include "filesupport/Paths.h"
#include "filesupport/SystemFile.h"
#include "filesupport/ThrowFileError.h"
#include "lumcore/config/ClientInfo.h"
#include "lumcore/filesupport/File.h"
#include "lumcore/utility/StringUtils.h"

namespace lumcore::filesupport {

namespace fs = std::filesystem;

namespace {

void ThrowIfFailed(const std::error_code& inCode, const char* inKey, const std::string& inPath) {
  if (inCode) ThrowSystemError(inKey, inPath, inCode.value());
}

std::vector<std::string> Sorted(std::vector<std::string> inNames) {
  std::sort(inNames.begin(), inNames.end());
  return inNames;
}

bool IsHidden(const std::string& inName) {
  return inName.front() == '.';
}

// Only what is the same in every language.
unsigned char ToLower(char inByte) {
  return static_cast<unsigned char>(inByte >= 'A' && inByte <= 'Z' ? inByte + ('a' - 'A') : inByte);
}

// Names in one folder are often long and begin alike.
std::size_t CommonPrefix(const std::vector<std::string>& inNames) {
  std::size_t length = inNames.empty() ? 0 : inNames.front().size();
  for (const std::string& name : inNames) {
    length = std::min(length, name.size());
    const auto end = inNames.front().begin() + static_cast<std::ptrdiff_t>(length);
    const auto differs = std::mismatch(inNames.front().begin(), end, name.begin()).first;
    length = static_cast<std::size_t>(differs - inNames.front().begin());
  }
  return length;
}

void Sort(std::vector<std::string>& ioNames) {
  const std::size_t prefix = CommonPrefix(ioNames);
  std::sort(ioNames.begin(), ioNames.end(), [&](const std::string& inA, const std::string& inB) {
    if (IsHidden(inA) != IsHidden(inB)) return IsHidden(inB);
    const std::size_t length = std::min(inA.size(), inB.size());
    for (std::size_t at = prefix; at < length; ++at) {
      const unsigned char a = ToLower(inA[at]);
      const unsigned char b = ToLower(inB[at]);
      if (a != b) return a < b;
    }
    return inA.size() != inB.size() ? inA.size() < inB.size() : inA < inB;
  });
}

template <class Item>
DirIterator<Item> Walk(const std::string& inPath, std::vector<std::string> inNames,
                       bool inSkipHidden) {
  if (inSkipHidden)
    inNames.erase(std::remove_if(inNames.begin(), inNames.end(), IsHidden), inNames.end());
  Sort(inNames);
  return DirIterator<Item>(paths::Join(inPath, ""), std::move(inNames));
}

}  // namespace

Dir::Dir() = default;

Dir::Dir(std::string_view inPath) : mPath(inPath) {}

Dir::Dir(const UTF16String& inPath) : mPath(paths::FromText(inPath)) {}

Dir::Dir(const Dir& inParent, std::string_view inName)
    : mPath(paths::Join(inParent.mPath, inName)) {}

Dir Dir::TempDir() {
  std::error_code code;
  const fs::path path = fs::temp_directory_path(code);
  ThrowIfFailed(code, "$$$/lumcore/filesupport/Error/TempFolder=No folder for temporary files: @1",
                paths::FromSystem(path));
  return Dir(paths::FromSystem(path));
}

Dir Dir::AppDir() {
  return Dir(paths::Parent(system::ProgramPath()));
}

Dir Dir::PrefDir() {
  const UTF16String& chosen = config::GetClientPrefsDir();
  if (!chosen.empty()) return Dir(chosen);
  Dir dir(system::SettingsPath());
  for (const UTF16String* const part : {&config::GetCompanyName(), &config::GetClientName()}) {
    if (!part->empty()) dir = Dir(dir, utility::ToStdString(*part));
  }
  return dir;
}

bool Dir::Exists() const {
  return system::FolderExists(mPath);
}

UTF16String Dir::FullPath() const {
  return paths::ToText(paths::Full(mPath));
}

UTF16String Dir::GetName() const {
  return utility::ToUTF16(paths::NameText(mPath));
}

Dir Dir::Parent() const {
  return Dir(paths::Parent(mPath));
}

void Dir::Create() const {
  std::error_code code;
  fs::create_directories(paths::ToSystem(mPath), code);
  ThrowIfFailed(code, "$$$/lumcore/filesupport/Error/CreateFolder=Cannot create folder \"@0\": @1",
                mPath);
}

void Dir::RemoveAll() const {
  std::error_code code;
  fs::remove_all(paths::ToSystem(mPath), code);
  ThrowIfFailed(code, "$$$/lumcore/filesupport/Error/RemoveFolder=Cannot delete folder \"@0\": @1",
                mPath);
}

std::vector<File> Dir::GetFiles() const {
  std::vector<File> files;
  for (const std::string& name : Sorted(system::ListFolder(mPath).files))
    files.emplace_back(*this, name);
  return files;
}

std::vector<Dir> Dir::GetDirs() const {
  std::vector<Dir> dirs;
  for (const std::string& name : Sorted(system::ListFolder(mPath).folders))
    dirs.emplace_back(*this, name);
  return dirs;
}

Dir::FileIterator Dir::BeginFiles(bool inSkipHidden) const {
  return Walk<File>(mPath, system::ListFolder(mPath).files, inSkipHidden);
}

Dir::SubdirIterator Dir::BeginSubdirs(bool inSkipHidden) const {
  return Walk<Dir>(mPath, system::ListFolder(mPath).folders, inSkipHidden);
}

Dir::Contents Dir::BeginContents(bool inSkipHidden) const {
  system::FolderNames names = system::ListFolder(mPath);
  return {Walk<Dir>(mPath, std::move(names.folders), inSkipHidden),
          Walk<File>(mPath, std::move(names.files), inSkipHidden)};
}

bool Dir::IsTopLevelDir() const {
  const fs::path path = paths::ToSystem(paths::Full(mPath));
  return !path.has_relative_path() || path == path.parent_path();
}

bool Dir::IsSameFolder(const Dir& inOther) const {
  return system::AreSameFolder(mPath, inOther.mPath);
}

bool operator==(const Dir& inA, const Dir& inB) {
  return inA.mPath == inB.mPath || paths::Full(inA.mPath) == paths::Full(inB.mPath);
}

}  // namespace lumcore::filesupport
