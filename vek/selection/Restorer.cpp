// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/selection/Restorer.h"

namespace vek::selection {

Restorer::~Restorer() = default;

bool Restorer::MergeIn(const Restorer*) {
  return false;
}

RestorerFactory::~RestorerFactory() = default;

}  // namespace vek::selection
