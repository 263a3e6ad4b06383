// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/EventGate.h"

namespace lumui::dialogs {

// Tells the gate that the modal window of this scope has somebody to answer it.
class StAnnouncedModal {
 public:
  StAnnouncedModal() { ui::EventGate::Get()->AnnounceModal(true); }
  ~StAnnouncedModal() { ui::EventGate::Get()->AnnounceModal(false); }
  StAnnouncedModal(const StAnnouncedModal&) = delete;
  StAnnouncedModal& operator=(const StAnnouncedModal&) = delete;
};

}  // namespace lumui::dialogs
