// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lumcore/Export.h"
#include "lumcore/Strings.h"
#include "lumcore/filesupport/Dir.h"

namespace lumcore::filesupport {

// A file system that holds files of users: its topmost folder, and what the system calls the place
// where it is stored (a device, or a folder of another machine).
struct Volume {
  Dir dir;
  std::string source;
};

// All that are there now, by their paths. Where the system does not tell, the one at the top.
LUMCORE_API std::vector<Volume> GetVolumes();

// What the user, or whoever made the volume, has called it; empty for one without a name, nothing
// where it cannot be asked.
LUMCORE_API std::optional<UTF16String> FindVolumeLabel(const Volume& inVolume);

// For systems with one list of mounted file systems: what GetVolumes makes of that list's text, in
// the form of the kernel's "mountinfo". Views into the kernel, and file systems that live in memory
// alone, are no volumes, but for the one at the top. Of several at one place the last is seen.
LUMCORE_API std::vector<Volume> ReadMountTable(std::string_view inTable);

}  // namespace lumcore::filesupport
