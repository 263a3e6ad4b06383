// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <variant>

#include "lumcore/Strings.h"

namespace lumscripting {

// What passes between a script and its host: nothing, a truth value, a number or a text.
using ScriptValue = std::variant<std::monostate, bool, double, lumcore::UTF16String>;

}  // namespace lumscripting
