// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

namespace lumui::ui {

class UI_NodeAdapterRegistry;

void RegisterNodeAdapters(UI_NodeAdapterRegistry& ioRegistry);
void RegisterControlAdapters(UI_NodeAdapterRegistry& ioRegistry);

}  // namespace lumui::ui
