// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumworkspace/sharedui/WorkspaceSwitcherManager.h"
#include "vek/config/Export.h"

namespace vek::workspace {

// Keeps what the user has arranged in the workspace switcher in the application's settings. Nothing
// goes to disk here: the settings are saved at the end.
class VEK_API WorkspaceSwitcherSerializer final
    : public lumworkspace::sharedui::WorkspaceSwitcherListener {
 public:
  WorkspaceSwitcherSerializer();
  ~WorkspaceSwitcherSerializer() override;
  WorkspaceSwitcherSerializer(const WorkspaceSwitcherSerializer&) = delete;
  WorkspaceSwitcherSerializer& operator=(const WorkspaceSwitcherSerializer&) = delete;

  // Restores the state from the settings and listens from then on. The application exists.
  void Init();

  void WorkspacesConfigurationChanged() override;
};

}  // namespace vek::workspace
