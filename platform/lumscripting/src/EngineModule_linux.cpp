// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "EngineModule.h"

#include <dlfcn.h>

#include <filesystem>
#include <string>
#include <system_error>

#include "lumcore/config/Localizer.h"
#include "lumcore/filesupport/FileError.h"
#include "lumcore/utility/StringUtils.h"

namespace lumscripting {

namespace {

// Behind all links, since the library may be known to the system by a link in another folder. Where
// that folder cannot be told, the name alone, which the system looks for where it finds libraries.
std::string ModulePath() {
  Dl_info library = {};
  // Any address within the library will do.
  if (::dladdr(reinterpret_cast<const void*>(&FindInEngineModule), &library) == 0) return {};
  std::error_code failed;
  const auto file = std::filesystem::canonical(library.dli_fname, failed);
  return file.parent_path() / LUMSCRIPTING_ENGINE_FILE;
}

[[noreturn]] void ThrowLoadError(const std::string& inPath) {
  const char* const words = ::dlerror();
  const auto text = lumcore::config::Localizer::Get()->GetLocalizedString(
      "$$$/lumscripting/Error/Engine=\"@0\": the script engine cannot be loaded: @1");
  throw lumcore::filesupport::FileError(
      lumcore::utility::ReplaceInString(
          text, {lumcore::utility::ToUTF16(inPath), lumcore::utility::ToUTF16(words ? words : "")}),
      inPath, 0);
}

}  // namespace

void* FindInEngineModule(const char* inName) {
  const std::string path = ModulePath();
  // All that it refers to at once: what is missing shall be told here and not end a script later.
  void* const module = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  void* const function = module ? ::dlsym(module, inName) : nullptr;
  if (!function) ThrowLoadError(path);
  return function;
}

}  // namespace lumscripting
