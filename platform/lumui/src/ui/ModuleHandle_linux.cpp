// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/ModuleHandle.h"

#include <dlfcn.h>

namespace lumui::ui {

// A module is known by the address at which it is loaded.
HINSTANCE ModuleOfAddress(const void* inAddress) {
  Dl_info info;
  return ::dladdr(inAddress, &info) != 0 ? static_cast<HINSTANCE>(info.dli_fbase) : nullptr;
}

std::string NameOfModule(HINSTANCE inModule) {
  Dl_info info;
  if (::dladdr(inModule, &info) == 0 || info.dli_fbase != inModule) return {};
  const std::string path = info.dli_fname;
  return path.substr(path.rfind('/') + 1);
}

}  // namespace lumui::ui
