// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace lumui::utility {

// Where a container has a resource: the same for all ways to write its name and type in capital and
// small letters, so that it is found without a look at the others. Empty for what no resource is
// called.
inline QString ResourceKey(const QString& inType, const QString& inName) {
  for (const QString& part : {inType, inName}) {
    if (part.isEmpty() || part == QLatin1String(".") || part == QLatin1String("..") ||
        part.contains(QLatin1Char('/'))) {
      return {};
    }
  }
  return (inType + QLatin1Char('/') + inName).toUpper().toCaseFolded();
}

}  // namespace lumui::utility
