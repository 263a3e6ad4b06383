// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/ModuleInfo.h"

#include <list>

namespace lumui::ui {

namespace {

// Never destroyed: modules leave it when their own statics go.
std::list<ModuleInfo*>& Table() {
  static auto* const sTable = new std::list<ModuleInfo*>;
  return *sTable;
}

}  // namespace

ModuleInfo::ModuleInfo() {
  Table().push_back(this);
}

ModuleInfo::ModuleInfo(const ModuleInfo&) : ModuleInfo() {}

ModuleInfo::~ModuleInfo() {
  Table().remove(this);
}

void ModuleInfo::InitializeAll() {
  for (ModuleInfo* module : Table())
    module->Initialize();
}

}  // namespace lumui::ui
