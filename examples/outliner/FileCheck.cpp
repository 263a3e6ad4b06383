// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "FileCheck.h"

#include <algorithm>
#include <functional>
#include <ostream>

#include "FileRecords.h"
#include "Texts.h"
#include "lumcore/config/ClientInfo.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;

namespace {

UTF16String Text(const char* inKey, std::initializer_list<UTF16String> inArguments) {
  return lumcore::utility::ReplaceInString(Localized(inKey), inArguments);
}

// What keeps a file from being read to its end is a finding as well. False for that.
bool Try(Findings& ioFindings, const std::function<void()>& inCheck) {
  try {
    inCheck();
    return true;
  } catch (const lumcore::config::Error& error) {
    ioFindings.AddText(error.what());
    return false;
  }
}

std::vector<std::string> CheckIdentity() {
  std::vector<std::string> findings;
  for (const UTF16String& text :
       {lumcore::config::GetApplicationName(), lumcore::config::GetClientName(),
        lumcore::config::GetClientVersion()}) {
    if (!HasReservedCharacter(text)) continue;
    findings.push_back(ToStdString(
        Text("$$$/outliner/Check/Identity=outliner: the program's name or version \"@0\" holds "
             "\"&\", \"<\" or a quote, which a saved key map cannot carry",
             {text})));
  }
  return findings;
}

std::vector<FileRecord> ReadKeys(const CommandFiles& inFiles) {
  constexpr const char* kRecord = "keycmd";
  return inFiles.keys ? ReadRecords(*inFiles.keys, kRecord)
                      : ReadRecords(BuiltInKeys(), NameOfBuiltInKeys(), kRecord);
}

}  // namespace

bool HasReservedCharacter(const UTF16String& inText) {
  static const UTF16String sReserved = ToUTF16("&<\"");
  return inText.find_first_of(sReserved) != inText.npos;
}

bool CheckFiles(const CommandFiles& inFiles, std::ostream& outStream) {
  std::vector<CheckedCommand> commands;
  std::size_t keys = 0;
  const std::string nameOfKeys =
      inFiles.keys ? inFiles.keys->GetPath() : ToStdString(NameOfBuiltInKeys());
  Findings ofCommands(inFiles.commands.GetPath());
  Findings ofKeys(nameOfKeys);
  // Without all the commands, the keys could only be said to have none.
  if (Try(ofCommands, [&] { commands = CheckCommandFile(inFiles.commands, ofCommands); }))
    Try(ofKeys, [&] { keys = CheckKeyMap(ReadKeys(inFiles), commands, ofKeys); });
  std::vector<std::string> all = CheckIdentity();
  for (const Findings* findings : {&ofCommands, &ofKeys})
    all.insert(all.end(), findings->GetTexts().begin(), findings->GetTexts().end());
  for (const std::string& finding : all)
    outStream << finding << "\n";
  if (!all.empty()) return false;
  const UTF16String done =
      Text("$$$/outliner/Check/Done=@0: @1 commands, @2: @3 keys, nothing found",
           {ToUTF16(inFiles.commands.GetPath()), ToUTF16(std::to_string(commands.size())),
            ToUTF16(nameOfKeys), ToUTF16(std::to_string(keys))});
  outStream << ToStdString(done) << "\n";
  return true;
}

}  // namespace outliner
