// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "DiskContent.h"

#include <functional>

namespace outliner {

DiskContent::DiskContent(std::string_view inBytes)
    : mIsThere(true), mSize(inBytes.size()), mHash(std::hash<std::string_view>()(inBytes)) {}

DiskContent::DiskContent(const lumcore::UTF8String& inBytes)
    : DiskContent(std::string_view(reinterpret_cast<const char*>(inBytes.data()), inBytes.size())) {
}

bool DiskContent::DiffersFrom(const lumcore::filesupport::File& inFile) const {
  if (inFile.IsAbsent()) return false;
  // A file of another size need not be read.
  if (!mIsThere || inFile.GetSize() != mSize) return true;
  const DiskContent now(inFile.ReadAll());
  return now.mSize != mSize || now.mHash != mHash;
}

}  // namespace outliner
