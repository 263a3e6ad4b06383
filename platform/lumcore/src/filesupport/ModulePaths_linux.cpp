// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "filesupport/ModulePaths.h"

#include <dlfcn.h>

#include <filesystem>
#include <system_error>

#include "filesupport/Paths.h"

namespace lumcore::filesupport::system {

namespace {

Dir FolderOf(const std::filesystem::path& inFile) {
  std::error_code failed;
  const std::filesystem::path real = std::filesystem::canonical(inFile, failed);
  return failed ? Dir() : Dir(paths::FromSystem(real.parent_path()));
}

}  // namespace

Dir ProgramDir() {
  return FolderOf("/proc/self/exe");
}

Dir LibraryDir() {
  Dl_info info = {};
  // Any address within the library will do.
  if (!dladdr(reinterpret_cast<const void*>(&FolderOf), &info) || !info.dli_fname) return Dir();
  return FolderOf(info.dli_fname);
}

}  // namespace lumcore::filesupport::system
