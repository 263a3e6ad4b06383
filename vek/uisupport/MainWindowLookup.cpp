// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/MainWindowLookup.h"

#include <utility>

namespace vek::uisupport {

namespace {

// Never destroyed: a static application takes its lookups back when the process ends.
struct Lookups {
  static Lookups& Get() {
    static auto* const sLookups = new Lookups;
    return *sLookups;
  }
  boost::function<lumui::ui::UI_Node*()> mainWindow;
  boost::function<lumui::drawbot::SupplierInterface*()> drawSupplier;
};

}  // namespace

lumui::ui::UI_Node* FindMainWindow() {
  const auto& lookup = Lookups::Get().mainWindow;
  return lookup ? lookup() : nullptr;
}

void SetMainWindowLookup(boost::function<lumui::ui::UI_Node*()> inLookup) {
  Lookups::Get().mainWindow = std::move(inLookup);
}

lumui::drawbot::SupplierInterface* FindDrawSupplier() {
  const auto& lookup = Lookups::Get().drawSupplier;
  return lookup ? lookup() : nullptr;
}

void SetDrawSupplierLookup(boost::function<lumui::drawbot::SupplierInterface*()> inLookup) {
  Lookups::Get().drawSupplier = std::move(inLookup);
}

}  // namespace vek::uisupport
