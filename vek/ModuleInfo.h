// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/utility/ScopedPtr.h"
#include "lumui/ui/ModuleInfo.h"
#include "vek/config/Export.h"

namespace vek {

// The library's entry in the platform's module table. Nothing in the library makes it: a host that
// wants the library in the table calls Get before it makes the application object.
class VEK_API ModuleInfo : public lumui::ui::ModuleInfo {
 public:
  ModuleInfo(const ModuleInfo&) = default;
  ModuleInfo& operator=(const ModuleInfo&) = default;

  // The one entry, made at the first call and kept until the library is unloaded.
  static ModuleInfo* Get();

  // The library needs nothing.
  void Initialize() override;

 protected:
  ModuleInfo() = default;
  ~ModuleInfo() override;

 private:
  friend class lumcore::utility::ScopedPtr<ModuleInfo>;
  static lumcore::utility::ScopedPtr<ModuleInfo> S_instanceP;
};

}  // namespace vek
