// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/Font.h"
#include "lumui/drawbot/Image.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/drawbot/Surface.h"

namespace lumui::drawbot {

// These stand out of line so that each class has one vtable, in this library.
FontInterface::~FontInterface() = default;
ImageInterface::~ImageInterface() = default;
Surface::~Surface() = default;
SupplierInterface::~SupplierInterface() = default;
Drawbot::~Drawbot() = default;

}  // namespace lumui::drawbot
