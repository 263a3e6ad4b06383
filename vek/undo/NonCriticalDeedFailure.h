// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>

#include "vek/config/Export.h"

namespace vek::undo {

// Thrown by a deed's RedoSelf within a MultiDeed: the group drops that deed and goes on with the
// others. A group that this leaves empty passes it on.
class VEK_API NonCriticalDeedFailure : public std::exception {
 public:
  NonCriticalDeedFailure();
  ~NonCriticalDeedFailure() override;

  const char* what() const noexcept override;
};

}  // namespace vek::undo
