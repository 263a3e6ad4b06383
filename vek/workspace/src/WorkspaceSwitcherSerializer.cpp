// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/workspace/WorkspaceSwitcherSerializer.h"

#include "vek/app/App.h"

namespace vek::workspace {

namespace {

using lumworkspace::sharedui::WorkspaceSwitcherManager;

constexpr const char* kListKey = "Workspace";
constexpr const char* kSwitcherKey = "Switcher";

}  // namespace

WorkspaceSwitcherSerializer::WorkspaceSwitcherSerializer() = default;

WorkspaceSwitcherSerializer::~WorkspaceSwitcherSerializer() {
  WorkspaceSwitcherManager::Get()->RemoveListener(this);
}

// The state is restored before the listener is attached, so that restoring writes nothing.
void WorkspaceSwitcherSerializer::Init() {
  const lumcore::UTF8String data =
      app::AppBase::GetOrCreateSubList(kListKey, &app::App::GetApp()->GetAppSettings())
          .GetOrAdd(kSwitcherKey, lumcore::UTF8String());
  if (!data.empty()) WorkspaceSwitcherManager::Get()->SetData(data);
  WorkspaceSwitcherManager::Get()->AddListener(this);
}

void WorkspaceSwitcherSerializer::WorkspacesConfigurationChanged() {
  app::AppBase::GetOrCreateSubList(kListKey, &app::App::GetApp()->GetAppSettings())
      .Set(kSwitcherKey, WorkspaceSwitcherManager::Get()->GetData());
}

}  // namespace vek::workspace
