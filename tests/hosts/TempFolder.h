// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/filesupport/Dir.h"

namespace tests {

// An empty folder of its own for one test, gone at the end of the scope with all that is in it.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const lumcore::filesupport::Dir& GetDir() const { return mDir; }

 private:
  lumcore::filesupport::Dir mDir;
};

}  // namespace tests
