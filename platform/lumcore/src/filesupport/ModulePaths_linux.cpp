// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "filesupport/ModulePaths.h"

#include <dlfcn.h>

#include <filesystem>
#include <system_error>

#include "filesupport/Paths.h"

namespace lumcore::filesupport::system {

Dir LibraryDir() {
  Dl_info info = {};
  // Any address within the library will do.
  if (!dladdr(reinterpret_cast<const void*>(&LibraryDir), &info) || !info.dli_fname) return Dir();
  std::error_code failed;
  const std::filesystem::path real = std::filesystem::canonical(info.dli_fname, failed);
  return failed ? Dir() : Dir(paths::FromSystem(real.parent_path()));
}

}  // namespace lumcore::filesupport::system
