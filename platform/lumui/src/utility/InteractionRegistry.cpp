// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/utility/InteractionRegistry.h"

namespace lumui::utility {

InteractionRegistry& InteractionRegistry::Get() {
  static InteractionRegistry sRegistry;
  return sRegistry;
}

void InteractionRegistry::Note() {
  if (!IsPaused()) ++mCount;
}

ScPauseResumeInteractionRegistry::ScPauseResumeInteractionRegistry() {
  ++InteractionRegistry::Get().mPauses;
}

ScPauseResumeInteractionRegistry::~ScPauseResumeInteractionRegistry() {
  --InteractionRegistry::Get().mPauses;
}

}  // namespace lumui::utility
