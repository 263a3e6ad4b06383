// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/InputCapture.h"

#include "lumcore/debug/Contract.h"

namespace lumui::ui {

PointerCapture::~PointerCapture() = default;

void PointerCapture::DoBegin() {}

void PointerCapture::DoEnd() {}

bool PointerCapture::DoMouseEvent(const MouseEvent&) {
  return false;
}

InputCapture::InputCapture(UI_Node* inNode) : mNode(inNode) {
  LUM_INPUT_CONTRACT(inNode != nullptr);
}

InputCapture::~InputCapture() = default;

}  // namespace lumui::ui
