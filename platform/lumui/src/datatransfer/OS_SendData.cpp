// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/datatransfer/OS_SendData.h"

namespace lumui::datatransfer {

OS_SendDataBase::~OS_SendDataBase() = default;

OS_SendData::OS_SendData(const ui::OS_Event* inEvent)
    : mEvent(inEvent ? *inEvent : ui::OS_Event()) {}

OS_SendData::~OS_SendData() = default;

}  // namespace lumui::datatransfer
