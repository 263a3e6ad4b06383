// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <memory>
#include <string_view>

#include "filesupport/SystemFile.h"
#include "filesupport/ThrowFileError.h"

namespace lumcore::filesupport::system {

namespace {

constexpr const char* kListKey = "$$$/lumcore/filesupport/Error/ListFolder=Cannot list \"@0\": @1";

enum class Kind { kNothing, kFile, kFolder };

// Most file systems say it along with the name; what stands behind a link has to be looked at.
Kind KindOf(const dirent& inEntry, int inFolder) {
  if (inEntry.d_type == DT_DIR) return Kind::kFolder;
  if (inEntry.d_type != DT_LNK && inEntry.d_type != DT_UNKNOWN) return Kind::kFile;
  struct stat status = {};
  if (::fstatat(inFolder, inEntry.d_name, &status, 0) != 0) return Kind::kNothing;
  return S_ISDIR(status.st_mode) ? Kind::kFolder : Kind::kFile;
}

}  // namespace

FolderNames ListFolder(const std::string& inPath) {
  if (inPath.find('\0') != inPath.npos) ThrowSystemError(kListKey, inPath, EINVAL);
  const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir(inPath.c_str()), &::closedir);
  if (!folder) ThrowSystemError(kListKey, inPath, errno);
  FolderNames names;
  for (;;) {
    errno = 0;
    const dirent* const entry = ::readdir(folder.get());
    if (!entry) break;
    const std::string_view name = entry->d_name;
    if (name == "." || name == "..") continue;
    const Kind kind = KindOf(*entry, ::dirfd(folder.get()));
    if (kind == Kind::kFile) names.files.emplace_back(name);
    if (kind == Kind::kFolder) names.folders.emplace_back(name);
  }
  if (errno != 0) ThrowSystemError(kListKey, inPath, errno);
  return names;
}

bool AreSameFolder(const std::string& inA, const std::string& inB) {
  struct stat a = {};
  struct stat b = {};
  return ::stat(inA.c_str(), &a) == 0 && ::stat(inB.c_str(), &b) == 0 && S_ISDIR(a.st_mode) &&
         a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

std::int64_t ModifiedTime(const std::string& inPath) {
  constexpr const char* kKey = "$$$/lumcore/filesupport/Error/Size=Cannot measure \"@0\": @1";
  struct stat status = {};
  if (inPath.find('\0') != inPath.npos) ThrowSystemError(kKey, inPath, EINVAL);
  if (::stat(inPath.c_str(), &status) != 0) ThrowSystemError(kKey, inPath, errno);
  return status.st_mtim.tv_sec;
}

}  // namespace lumcore::filesupport::system
