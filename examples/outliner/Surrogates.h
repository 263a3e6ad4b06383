// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

namespace outliner {

// The two units of a character that has two in UTF-16.
constexpr bool IsLeadSurrogate(unsigned short inUnit) {
  return (inUnit & 0xFC00) == 0xD800;
}
constexpr bool IsTrailSurrogate(unsigned short inUnit) {
  return (inUnit & 0xFC00) == 0xDC00;
}

}  // namespace outliner
