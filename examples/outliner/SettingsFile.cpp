// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "SettingsFile.h"

#include <string>

#include "lumcore/utility/StringUtils.h"

namespace outliner {

using lumcore::filesupport::File;

// Written anew and then removed, so that at every moment the content stands under one name at
// least.
File SetAside(const File& inFile) {
  const std::string name = lumcore::utility::ToStdString(inFile.GetName());
  const std::size_t dot = std::min(name.rfind('.'), name.size());
  const auto numbered = [&](int inNumber) {
    const std::string number = inNumber > 1 ? "-" + std::to_string(inNumber) : "";
    return File(inFile.Parent(), name.substr(0, dot) + ".defective" + number + name.substr(dot));
  };
  int number = 1;
  while (!numbered(number).IsAbsent())
    ++number;
  const lumcore::UTF8String bytes = inFile.ReadAll();
  numbered(number).ReplaceContents(
      std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
  inFile.Remove();
  return numbered(number);
}

}  // namespace outliner
