// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/KeyboardEvent.h"

#include "ui/EventGate.h"

namespace lumui::ui {

void FlushPostActionKeyEvents(const KeyboardEvent& inEvent) {
  EventGate* const gate = EventGate::Get();
  if (gate && inEvent.IsActionKeyDown()) gate->DropPendingCharacters();
}

}  // namespace lumui::ui
