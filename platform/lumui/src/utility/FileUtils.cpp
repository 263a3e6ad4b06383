// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/utility/FileUtils.h"

#include <sstream>

#include "lumcore/utility/StringUtils.h"
#include "lumui/dialogs/FileDialog.h"

namespace lumui::utility::FileUtils {

lumcore::UTF16String DoSimpleFileDialog(const lumcore::UTF8String& inTypes, bool inOpen,
                                        ui::OS_Window* inParent) {
  dialogs::FileDialogArgs args;
  args.kind = inOpen ? dialogs::FileDialogArgs::kOpen : dialogs::FileDialogArgs::kSave;
  args.owner = inParent;
  dialogs::FileFilter filter;
  std::istringstream types(lumcore::utility::ToStdString(inTypes));
  for (std::string type; std::getline(types, type, ';');) {
    if (!type.empty()) filter.extensions.push_back(lumcore::utility::ToUTF16(type));
  }
  if (!filter.extensions.empty()) {
    args.saveExtension = filter.extensions.front();
    args.filters.push_back(filter);
  }
  return dialogs::RunFileDialog(args);
}

}  // namespace lumui::utility::FileUtils
