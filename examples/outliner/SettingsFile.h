// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/filesupport/File.h"

namespace outliner {

// Gives a file another name beside its own, one that is free: "AppPrefs.defective.xml", then
// "AppPrefs.defective-2.xml". Throws FileError; the file then keeps its name.
lumcore::filesupport::File SetAside(const lumcore::filesupport::File& inFile);

}  // namespace outliner
