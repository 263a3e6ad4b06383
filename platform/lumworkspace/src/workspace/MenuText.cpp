// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "workspace/MenuText.h"

namespace lumworkspace::workspace {

lumcore::UTF16String MenuText(const lumcore::UTF16String& inName) {
  lumcore::UTF16String text;
  for (const unsigned short unit : inName) {
    if (unit == '&') text += unit;
    text += unit == '\t' ? static_cast<unsigned short>(' ') : unit;
  }
  return text;
}

}  // namespace lumworkspace::workspace
