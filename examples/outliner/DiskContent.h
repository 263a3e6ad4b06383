// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string_view>

#include "lumcore/filesupport/File.h"

namespace outliner {

// What a file held when it was read or written last: enough to see that another program has changed
// it since. Times are not asked, so a file that was only touched, or written again as it was, is
// the same.
class DiskContent {
 public:
  DiskContent() = default;  // of a file that is not there
  explicit DiskContent(std::string_view inBytes);
  explicit DiskContent(const lumcore::UTF8String& inBytes);

  // False for a file that is not there, as there is nothing to lose. Throws FileError for one that
  // cannot be read.
  bool DiffersFrom(const lumcore::filesupport::File& inFile) const;

 private:
  bool mIsThere = false;
  std::size_t mSize = 0;
  std::size_t mHash = 0;
};

}  // namespace outliner
