// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/undo/NonCriticalDeedFailure.h"

namespace vek::undo {

NonCriticalDeedFailure::NonCriticalDeedFailure() = default;
NonCriticalDeedFailure::~NonCriticalDeedFailure() = default;

const char* NonCriticalDeedFailure::what() const noexcept {
  return "A deed could not be done and was left out";
}

}  // namespace vek::undo
