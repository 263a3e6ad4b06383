// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/ModuleInfo.h"

namespace vek {

lumcore::utility::ScopedPtr<ModuleInfo> ModuleInfo::S_instanceP;

ModuleInfo::~ModuleInfo() = default;

ModuleInfo* ModuleInfo::Get() {
  if (!S_instanceP) S_instanceP.Reset(new ModuleInfo);
  return S_instanceP.Get();
}

void ModuleInfo::Initialize() {}

}  // namespace vek
