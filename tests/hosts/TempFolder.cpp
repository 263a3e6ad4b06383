// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "hosts/TempFolder.h"

#include <random>
#include <string>

namespace tests {

using lumcore::filesupport::Dir;

TempFolder::TempFolder() {
  std::random_device random;
  do {
    mDir = Dir(Dir::TempDir(), "vek-outliner-" + std::to_string(random()));
  } while (mDir.Exists());
  mDir.Create();
}

TempFolder::~TempFolder() {
  try {
    mDir.RemoveAll();
  } catch (...) {
    // A destructor has nobody to tell; the folder lies among temporary files.
  }
}

}  // namespace tests
