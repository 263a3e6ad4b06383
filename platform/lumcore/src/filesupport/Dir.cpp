// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/filesupport/Dir.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

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

// The names in a folder, sorted. Links count as what they point to; one that points nowhere is
// neither a file nor a folder, as File::Exists has it.
std::vector<std::string> Names(const std::string& inPath, bool inFolders) {
  constexpr const char* kKey = "$$$/lumcore/filesupport/Error/ListFolder=Cannot list \"@0\": @1";
  std::vector<std::string> names;
  std::error_code code;
  fs::directory_iterator at(paths::ToSystem(inPath), code);
  ThrowIfFailed(code, kKey, inPath);
  while (at != fs::directory_iterator()) {
    std::error_code ignored;
    const fs::file_status status = at->status(ignored);
    if (fs::exists(status) && fs::is_directory(status) == inFolders) {
      names.push_back(paths::FromSystem(at->path().filename()));
    }
    at.increment(code);
    ThrowIfFailed(code, kKey, inPath);
  }
  std::sort(names.begin(), names.end());
  return names;
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
  return utility::ToUTF16(paths::FromSystem(paths::Name(mPath)));
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
  for (const std::string& name : Names(mPath, false))
    files.emplace_back(*this, name);
  return files;
}

std::vector<Dir> Dir::GetDirs() const {
  std::vector<Dir> dirs;
  for (const std::string& name : Names(mPath, true))
    dirs.emplace_back(*this, name);
  return dirs;
}

}  // namespace lumcore::filesupport
