// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/CommandRegistry.h"

#include <memory>

#include "lumcore/filesupport/File.h"
#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/Parser.h"
#include "vek/uisupport/CommandRegistryParseHandler.h"

namespace vek::uisupport {

using lumcore::UTF16String;
using lumcore::UTF8String;
using lumcore::filesupport::File;

namespace {

std::auto_ptr<lumcore::xml::Parser> MakeParser(bool inReserveIds) {
  return lumcore::xml::GetParser(std::auto_ptr<lumcore::xml::AbstractParseHandler>(
      new CommandRegistryParseHandler(inReserveIds)));
}

}  // namespace

CommandRegistry::CommandRegistry() = default;
CommandRegistry::~CommandRegistry() = default;

CommandRegistry& CommandRegistry::Get() {
  static CommandRegistry* const sRegistry = new CommandRegistry;
  return *sRegistry;
}

void CommandRegistry::RegisterCommand(int inCommand, const UTF16String& inName,
                                      const UTF16String& inDisplayName,
                                      const UTF16String& inDescription, bool inRepeatable) {
  mCommands.insert_or_assign(
      inCommand, RegisteredCommand(inCommand, inName, inDisplayName, inDescription, inRepeatable));
  mIds[inName] = inCommand;
}

void CommandRegistry::RegisterCommand(int inCommand, const UTF16String& inName,
                                      const UTF16String& inDescription, bool inRepeatable) {
  RegisterCommand(inCommand, inName, UTF16String(), inDescription, inRepeatable);
}

void CommandRegistry::UnregisterCommand(int inCommand) {
  const auto found = mCommands.find(inCommand);
  if (found == mCommands.end()) return;
  mIds.erase(found->second.GetName());
  mCommands.erase(found);
}

int CommandRegistry::CommandIDForName(const UTF16String& inName, bool) const {
  const auto found = mIds.find(inName);
  return found == mIds.end() ? 0 : found->second;
}

int CommandRegistry::GetCommandID(const char* inName, bool inUnused) const {
  return CommandIDForName(lumcore::utility::ToUTF16(inName), inUnused);
}

bool CommandRegistry::CommandLookup(int inCommand, UTF16String& outName,
                                    UTF16String& outDescription) const {
  bool repeatable;
  return CommandLookup(inCommand, outName, outDescription, repeatable);
}

bool CommandRegistry::CommandLookup(int inCommand, UTF16String& outName,
                                    UTF16String& outDescription, bool& outRepeatable) const {
  const auto found = FindCommandByID(inCommand);
  if (found == RegistryEnd()) return false;
  outName = found->second.GetName();
  outDescription = found->second.GetDescription();
  outRepeatable = found->second.GetRepeatable();
  return true;
}

CommandRegistry::const_iterator CommandRegistry::FindCommandByID(int inCommand) const {
  return mCommands.find(inCommand);
}

void CommandRegistry::LoadFromFile(const File& inFile, bool inReserveIds) {
  Load([&] {
    const File file(inFile.FullPath());
    // What cannot be read goes on to the parser, which says why.
    if (file.IsAbsent()) return;
    MakeParser(inReserveIds)->Parse(file);
  });
}

void CommandRegistry::LoadFromBuffer(const UTF8String& inBytes, bool inReserveIds) {
  Load([&] {
    if (!inBytes.empty()) MakeParser(inReserveIds)->Parse(inBytes, UTF16String());
  });
}

template <class Read>
void CommandRegistry::Load(Read inRead) {
  Clear();
  try {
    inRead();
  } catch (...) {  // whatever it is, the caller gets it, and no half-read registry
    Clear();
    throw;
  }
}

void CommandRegistry::Clear() {
  mCommands.clear();
  mIds.clear();
}

}  // namespace vek::uisupport
