// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <iterator>
#include <map>
#include <string>

#include "CommandList.h"
#include "FileCheck.h"
#include "FileRecords.h"
#include "OutlinerCommands.h"
#include "Texts.h"
#include "lumcore/utility/StringUtils.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;

namespace {

constexpr int kLastId = 61439;  // behind it begin the ids of the system's menu commands

constexpr const char* kElements[] = {"name", "displayname", "id", "description", "repeatable"};

class CommandFileChecker {
 public:
  explicit CommandFileChecker(Findings& ioFindings) : mFindings(ioFindings) {}

  void Check(const FileRecord& inRecord) {
    CheckElements(inRecord);
    CheckName(inRecord);
    CheckId(inRecord);
    CheckTexts(inRecord);
  }
  // At the file's first line: what is missing has no line of its own.
  void CheckMissing() {
    for (int command = kCommandsBegin; command < kCommandsEnd; ++command) {
      if (mLineOfId.count(command) != 0) continue;
      mFindings.Add(1, "$$$/outliner/Check/MissingId=the command @0 is missing",
                    NumberText(static_cast<std::size_t>(command)));
    }
  }

 private:
  void CheckElements(const FileRecord& inRecord) {
    for (const FileItem& item : inRecord.items) {
      if (std::find(std::begin(kElements), std::end(kElements), item.name) != std::end(kElements))
        continue;
      mFindings.Add(item.line, "$$$/outliner/Check/Element=\"@0\" means nothing in a command file",
                    ToUTF16(item.name));
    }
  }

  void CheckName(const FileRecord& inRecord) {
    const UTF16String name = inRecord.GetText("name");
    if (name.empty()) {
      mFindings.Add(inRecord.line, "$$$/outliner/Check/NoName=the command has no name");
      return;
    }
    if (HasReservedCharacter(name)) {
      mFindings.Add(inRecord.line,
                    "$$$/outliner/Check/Reserved=the name \"@0\" holds \"&\", \"<\" or a quote, "
                    "which a saved key map cannot carry",
                    name);
    }
    const auto [known, isNew] = mLineOfName.emplace(name, inRecord.line);
    if (isNew) return;
    mFindings.Add(inRecord.line, "$$$/outliner/Check/SameName=the name \"@0\" is taken by line @1",
                  name, NumberText(known->second));
  }

  void CheckId(const FileRecord& inRecord) {
    const UTF16String text = inRecord.id + inRecord.GetText("id");
    int id = 0;
    if (!ReadWholeNumber(text, 1, kLastId, id)) {
      mFindings.Add(inRecord.line, "$$$/outliner/Check/Id=\"@0\" is no id from 1 to @1", text,
                    NumberText(kLastId));
      return;
    }
    if (!IsOwnCommand(id)) {
      mFindings.Add(inRecord.line,
                    "$$$/outliner/Check/Unanswered=nobody answers for the command @0", text);
    }
    const auto [known, isNew] = mLineOfId.emplace(id, inRecord.line);
    if (isNew) return;
    mFindings.Add(inRecord.line, "$$$/outliner/Check/SameId=the id @0 is taken by line @1", text,
                  NumberText(known->second));
  }

  void CheckTexts(const FileRecord& inRecord) {
    std::string key = ToStdString(inRecord.GetText("displayname"));
    if (!key.empty() && key.back() == ')') key.pop_back();
    const UTF16String name = Localized(key.c_str());
    if (name.empty()) {
      mFindings.Add(inRecord.line,
                    "$$$/outliner/Check/NoDisplayName=there is no display name that gives a text");
    } else if (TitleBegin(name) == 0) {
      mFindings.Add(inRecord.line,
                    "$$$/outliner/Check/NoCategory=the display name \"@0\" has no category: it "
                    "reads as \"category.name\"",
                    name);
    }
    const std::string repeatable = ToStdString(inRecord.GetText("repeatable"));
    if (!repeatable.empty() && repeatable != "true" && repeatable != "false") {
      mFindings.Add(inRecord.line,
                    "$$$/outliner/Check/Repeatable=\"@0\" counts as \"false\" for \"repeatable\"",
                    ToUTF16(repeatable));
    }
  }

  Findings& mFindings;
  std::map<UTF16String, std::size_t> mLineOfName;
  std::map<int, std::size_t> mLineOfId;
};

}  // namespace

std::vector<CheckedCommand> CheckCommandFile(const lumcore::filesupport::File& inFile,
                                             Findings& ioFindings) {
  CommandFileChecker checker(ioFindings);
  std::vector<CheckedCommand> commands;
  for (const FileRecord& record : ReadRecords(inFile, "cmd")) {
    if (!record.isForThisSystem) continue;
    checker.Check(record);
    commands.push_back({record.GetText("name"), record.GetText("repeatable") == ToUTF16("true")});
  }
  checker.CheckMissing();
  return commands;
}

}  // namespace outliner
