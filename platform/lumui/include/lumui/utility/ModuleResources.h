// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "lumui/Export.h"

namespace lumui::utility {

// The resources that are built into a module. The build writes a source file with one of these at
// namespace scope: loading the module registers it, unloading takes it away. The module is the one
// that holds the bytes, and they must be an object of static duration there.
//
// Nothing is read before somebody asks for a resource of the module.
class LUMUI_API ModuleResources {
 public:
  // The checksum is that of the build. Bytes that do not fit it are reported to whoever asks.
  ModuleResources(const unsigned char* inBytes, std::size_t inSize, std::uint64_t inChecksum);
  ~ModuleResources();
  ModuleResources(const ModuleResources&) = delete;
  ModuleResources& operator=(const ModuleResources&) = delete;

 private:
  friend struct ResourceRegistry;
  struct Container;
  std::unique_ptr<Container> mContainer;
};

}  // namespace lumui::utility
