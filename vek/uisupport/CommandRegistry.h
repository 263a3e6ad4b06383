// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <unordered_map>

#include "lumcore/Strings.h"
#include "lumcore/utility/TextHash.h"
#include "vek/config/Export.h"
#include "vek/uisupport/RegisteredCommand.h"

namespace lumcore::filesupport {
class File;
}

namespace vek::uisupport {

// Names for command ids, one registry for the process. The command chain never asks it; key maps,
// menus and scripts do. It is filled from a command file and added to by calls; a load throws away
// all that was there before.
//
// The last registration wins, by id and by name, and nothing is reported. An id that is registered
// again under another name is still found under the old one. A name that moves to a new id leaves
// the old id's record with it. Id 0 is no command: it is what an unknown name gives.
//
// Key map files hold names as they are, so a name must not contain "&", "<" or a quote.
class VEK_API CommandRegistry {
 public:
  using CommandMap = std::map<int, RegisteredCommand>;
  using const_iterator = CommandMap::const_iterator;

  // Made on first use, alive until the process ends.
  static CommandRegistry& Get();
  virtual ~CommandRegistry();
  CommandRegistry(const CommandRegistry&) = delete;
  CommandRegistry& operator=(const CommandRegistry&) = delete;

  void RegisterCommand(int inCommand, const lumcore::UTF16String& inName,
                       const lumcore::UTF16String& inDisplayName,
                       const lumcore::UTF16String& inDescription, bool inRepeatable);
  // Without a display name.
  void RegisterCommand(int inCommand, const lumcore::UTF16String& inName,
                       const lumcore::UTF16String& inDescription, bool inRepeatable);
  // The record's name goes too, also where it has come to mean another id. An unknown id does
  // nothing.
  void UnregisterCommand(int inCommand);

  // 0 for a name that is not known to the letter. The bool means nothing.
  int CommandIDForName(const lumcore::UTF16String& inName, bool inUnused) const;
  int GetCommandID(const char* inName, bool inUnused) const;  // UTF-8

  // False for an unknown id, and then the other arguments stay as they are.
  bool CommandLookup(int inCommand, lumcore::UTF16String& outName,
                     lumcore::UTF16String& outDescription) const;
  bool CommandLookup(int inCommand, lumcore::UTF16String& outName,
                     lumcore::UTF16String& outDescription, bool& outRepeatable) const;
  const_iterator FindCommandByID(int inCommand) const;  // or RegistryEnd()

  // In ascending order of the ids.
  const_iterator RegistryBegin() const { return mCommands.begin(); }
  const_iterator RegistryEnd() const { return mCommands.end(); }

  // Reads a command file in the place of all that is registered. A file that is not there gives an
  // empty registry. Throws what reading and parsing throw, and then the registry is empty. With
  // inReserveIds, commands without an id take one from the SyntheticCmdMgr, in the file's order.
  void LoadFromFile(const lumcore::filesupport::File& inFile, bool inReserveIds);
  // An empty buffer gives an empty registry.
  void LoadFromBuffer(const lumcore::UTF8String& inBytes, bool inReserveIds);

 private:
  CommandRegistry();
  void Clear();
  template <class Read>
  void Load(Read inRead);

  CommandMap mCommands;
  // A key map asks for hundreds of names; nobody asks for their order.
  std::unordered_map<lumcore::UTF16String, int, lumcore::utility::TextHash> mIds;
};

}  // namespace vek::uisupport
