// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <string_view>

namespace lumui::drawbot {

// Each throws a config::Error with the file's path, or the name of what was read, and the cause.
[[noreturn]] void ThrowCannotRead(std::string_view inName, const QString& inCause);
[[noreturn]] void ThrowDamaged(std::string_view inName, const QString& inCause);
[[noreturn]] void ThrowCannotWrite(std::string_view inName, const QString& inCause);
[[noreturn]] void ThrowBadSize(std::string_view inName, double inWidth, double inHeight);

}  // namespace lumui::drawbot
