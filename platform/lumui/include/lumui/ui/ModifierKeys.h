// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/utility/Flags.h"

namespace lumui::ui {

// Held modifier keys. kModControl and kModOtherControl exist for key maps: no event ever has them.
using ModifierKeys = lumcore::utility::Flags<unsigned char>;

constexpr unsigned char kModControl = 1;
constexpr unsigned char kModShift = 2;
constexpr unsigned char kModCommand = 4;  // Ctrl
constexpr unsigned char kModOtherControl = 8;
constexpr unsigned char kModAlt = 16;

}  // namespace lumui::ui
