// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/MainWindowLookup.h"

#include <utility>

namespace vek::uisupport {

namespace {

boost::function<lumui::ui::UI_Node*()>& Lookup() {
  static boost::function<lumui::ui::UI_Node*()> sLookup;
  return sLookup;
}

}  // namespace

lumui::ui::UI_Node* FindMainWindow() {
  return Lookup() ? Lookup()() : nullptr;
}

void SetMainWindowLookup(boost::function<lumui::ui::UI_Node*()> inLookup) {
  Lookup() = std::move(inLookup);
}

}  // namespace vek::uisupport
