// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/workspace/Workspace.h"

namespace vek::workspace {

Workspace::Workspace(lumui::drawbot::SupplierInterface* inSupplier)
    : lumworkspace::workspace::Workspace(inSupplier) {}

Workspace::~Workspace() = default;

}  // namespace vek::workspace
