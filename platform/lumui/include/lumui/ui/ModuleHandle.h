// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "lumui/Export.h"
#include "lumui/ui/OSTypes.h"

namespace lumui::ui {

// The loaded program or library that holds an object or a function. Null for an address that lies
// in none, such as one on the heap. Ask for an object that is private to the module: the address of
// what a library gives out may be taken in the program that uses it.
LUMUI_API HINSTANCE ModuleOfAddress(const void* inAddress);
// The module's file name without its folder, in UTF-8, for messages; empty for an unknown handle.
LUMUI_API std::string NameOfModule(HINSTANCE inModule);

}  // namespace lumui::ui
