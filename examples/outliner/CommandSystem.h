// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "lumcore/Strings.h"
#include "lumcore/filesupport/File.h"

namespace outliner {

// What the host's commands and keys come from.
struct CommandFiles {
  lumcore::filesupport::File commands;
  // In the place of the key map that is built into the program.
  std::optional<lumcore::filesupport::File> keys;
};

// The command file beside the program, as in the build tree, or else that of the installation; it
// need not be there.
CommandFiles FindCommandFiles();

// The key map that is built in, and the name for it in error texts.
lumcore::UTF8String BuiltInKeys();
const lumcore::UTF16String& NameOfBuiltInKeys();

// The name for key maps of what has the keyboard while a text is edited.
const lumcore::UTF8String& TextContext();
// That of the map, whose tools have letters for keys.
const lumcore::UTF8String& MapContext();

// The setting with the name of the set of keys that the user works with; empty for the host's own.
inline constexpr const char* kCurrentSetKey = "currentShortcutSet";
// Among the user's settings, as the shortcut dialog keeps it.
lumcore::filesupport::File FileOfSet(const lumcore::UTF16String& inName);

// Gives commands their names and then their keys, from the files, for as long as it lives: it fills
// the framework's registry and key map, of which a process has one each, and leaves them as they
// were before any host. One at a time.
class CommandSystem {
 public:
  // Throws a config::Error "path: cause", also for a file that does not fit the host's commands:
  // without them the host could neither be driven nor ended.
  explicit CommandSystem(const CommandFiles& inFiles);
  ~CommandSystem();
  CommandSystem(const CommandSystem&) = delete;
  CommandSystem& operator=(const CommandSystem&) = delete;

  // Throws what reading the host's key map throws.
  void LoadKeys();
  // Puts a user's keys in the place of the host's own. A map that cannot be read, or that has no
  // key for any command, is reported, and the host's keys stay.
  void LoadUserKeys(const lumcore::filesupport::File& inFile);
  // The same with one that the user keeps under a name, which need not have any key.
  void LoadUserSet(const lumcore::UTF16String& inName);
  // Adds to the keys in force what a saved map does not have: those of contexts, and Ctrl+Q, unless
  // quitting has a key already or another command has this one.
  static void AddLostKeys();

 private:
  void LoadOwnKeys();
  void LoadInPlaceOfOwn(const lumcore::filesupport::File& inFile, bool inMayBeEmpty);

  // The ids for commands without one.
  struct SyntheticIds {
    SyntheticIds();
    ~SyntheticIds();
  };

  CommandFiles mFiles;
  SyntheticIds mSyntheticIds;
};

}  // namespace outliner
