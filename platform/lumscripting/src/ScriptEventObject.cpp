// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumscripting/ScriptEventObject.h"

namespace lumscripting {

ScriptEventObject::ScriptEventObject() = default;

ScriptEventObject::~ScriptEventObject() = default;

}  // namespace lumscripting
