// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/ModuleHandle.h"

namespace lumui::ui {

HINSTANCE ModuleOfAddress(const void* inAddress) {
  HMODULE module = nullptr;
  const DWORD flags =
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  return ::GetModuleHandleExW(flags, static_cast<LPCWSTR>(inAddress), &module) ? module : nullptr;
}

std::string NameOfModule(HINSTANCE inModule) {
  constexpr DWORD kLongestPath = 32767;  // in code units
  std::wstring path(kLongestPath, L'\0');
  path.resize(inModule ? ::GetModuleFileNameW(inModule, &path[0], kLongestPath) : 0);
  path.erase(0, path.rfind(L'\\') + 1);
  return lumcore::utility::ToStdString(lumcore::UTF16String(path.begin(), path.end()));
}

}  // namespace lumui::ui
