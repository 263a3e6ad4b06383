// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "hosts/OutlineText.h"

#include "lumcore/utility/StringUtils.h"
#include "outliner/OpmlReader.h"

namespace tests {

std::unique_ptr<outliner::OutlineTree> Read(const std::string& inBytes) {
  return outliner::ReadOpml(lumcore::UTF8String(inBytes.begin(), inBytes.end()),
                            lumcore::utility::ToUTF16("o.opml"));
}

}  // namespace tests
