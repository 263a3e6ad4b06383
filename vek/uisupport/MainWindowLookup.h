// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>

#include "vek/config/Export.h"

namespace lumui::drawbot {
class SupplierInterface;
}
namespace lumui::ui {
class UI_Node;
}

namespace vek::uisupport {

// The main top-level window of the application's workspace, or null while there is none: the parent
// of the boxes that belong to no other window.
VEK_API lumui::ui::UI_Node* FindMainWindow();
// Who has the workspace says how to find it. Empty for none.
VEK_API void SetMainWindowLookup(boost::function<lumui::ui::UI_Node*()> inLookup);
// The supplier that the application's workspace draws with, or null while there is none.
VEK_API lumui::drawbot::SupplierInterface* FindDrawSupplier();
VEK_API void SetDrawSupplierLookup(boost::function<lumui::drawbot::SupplierInterface*()> inLookup);

}  // namespace vek::uisupport
