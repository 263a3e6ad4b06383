// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "CommandSystem.h"

namespace outliner {

// Looks in a command file and a key map for what their readers pass over in silence, and in the
// program's own name for what would break a key map when it is saved. Writes each finding as
// "path:line: cause", or a line that says what was looked at. True when nothing was found. The
// registry and the key map in force stay as they are.
bool CheckFiles(const CommandFiles& inFiles, std::ostream& outStream);

// One record of a command file, as a key map needs it.
struct CheckedCommand {
  lumcore::UTF16String name;
  bool isRepeatable = false;
};

class Findings;
struct FileRecord;

// Throws FileError and ParseError.
std::vector<CheckedCommand> CheckCommandFile(const lumcore::filesupport::File& inFile,
                                             Findings& ioFindings);
// The number of entries.
std::size_t CheckKeyMap(const std::vector<FileRecord>& inRecords,
                        const std::vector<CheckedCommand>& inCommands, Findings& ioFindings);

// Files of the framework carry such texts as they are, so that these characters would break them.
bool HasReservedCharacter(const lumcore::UTF16String& inText);

}  // namespace outliner
