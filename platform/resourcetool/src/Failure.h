// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <stdexcept>

namespace resourcetool {

// What stops the build: file, line where there is one, and cause.
class Failure : public std::runtime_error {
 public:
  Failure(const QString& inPlace, const QString& inCause)
      : std::runtime_error((inPlace + ": " + inCause).toStdString()) {}
};

}  // namespace resourcetool
