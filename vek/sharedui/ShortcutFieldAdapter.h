// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/ui/UI_NodeAdapter.h"
#include "vek/config/Export.h"
#include "vek/sharedui/ShortcutField.h"

namespace vek::sharedui {

// Makes "vek::ShortcutField" of node archives, with the properties "keyboardCode" and "modifiers",
// both numbers. An App registers it when it starts.
class VEK_API ShortcutFieldAdapter : public lumui::ui::UI_NodeAdapterT<ShortcutField> {
 public:
  ShortcutFieldAdapter();
  ~ShortcutFieldAdapter() override;
};

}  // namespace vek::sharedui
