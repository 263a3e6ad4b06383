// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumworkspace/workspace/Workspace.h"
#include "vek/config/Export.h"

namespace vek::workspace {

// The windows of an application of this framework.
class VEK_API Workspace : public lumworkspace::workspace::Workspace {
 public:
  explicit Workspace(lumui::drawbot::SupplierInterface* inSupplier);
  ~Workspace() override;
};

}  // namespace vek::workspace
