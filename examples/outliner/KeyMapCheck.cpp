// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <iterator>
#include <map>
#include <string>
#include <tuple>

#include "FileCheck.h"
#include "FileRecords.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/KeyboardCode.h"
#include "lumui/ui/ModifierKeys.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;
using lumui::ui::KeyboardCode;
using vek::uisupport::KeyCommandManager;

namespace {

constexpr int kLastKeyCode = 0xFFFF;

constexpr const char* kTextElements[] = {"cmd", "uchar", "key", "ctx"};
constexpr const char* kOtherElements[] = {"mod", "shift", "cmdkey", "alt", "hold", "protected"};

bool Holds(const char* const* inBegin, const char* const* inEnd, const std::string& inName) {
  return std::find(inBegin, inEnd, inName) != inEnd;
}

// What the reader makes of an entry, by its rules: the start of an element with a text forgets the
// character and the extended form that stood before it.
struct Entry {
  UTF16String command;
  UTF16String context;
  unsigned short character = 0;
  int code = 0;
  bool isByCode = false;
  bool isExtended = false;
  bool isHold = false;
  KeyCommandManager::Modifiers modifiers;

  KeyboardCode GetKey() const {
    return isByCode
               ? KeyboardCode::CreateFromControlCode(static_cast<unsigned short>(code), isExtended)
               : KeyboardCode::CreateFromKeyboardChar(character, isExtended);
  }
};

class KeyMapChecker {
 public:
  KeyMapChecker(const std::vector<CheckedCommand>& inCommands, Findings& ioFindings)
      : mCommands(inCommands), mFindings(ioFindings) {}

  void Check(const FileRecord& inRecord) {
    Entry entry;
    for (const FileItem& item : inRecord.items)
      Take(item, entry);
    CheckCommand(inRecord, entry);
    if (!entry.isByCode && entry.character == 0) {
      mFindings.Add(inRecord.line,
                    "$$$/outliner/Check/NoKey=the entry has no key: \"uchar\" must stand behind "
                    "\"cmd\" and \"ctx\"");
      return;
    }
    CheckExtended(inRecord, entry);
    CheckUnique(inRecord, entry);
  }

 private:
  void Take(const FileItem& inItem, Entry& ioEntry) {
    if (Holds(std::begin(kTextElements), std::end(kTextElements), inItem.name)) {
      ioEntry.character = 0;
      ioEntry.isExtended = false;
      TakeText(inItem, ioEntry);
    } else if (inItem.name == "ext") {
      ioEntry.isExtended = true;
    } else if (inItem.name == "hold") {
      ioEntry.isHold = true;
    } else if (inItem.name == "shift") {
      ioEntry.modifiers.Set(lumui::ui::kModShift);
    } else if (inItem.name == "cmdkey") {
      ioEntry.modifiers.Set(lumui::ui::kModCommand);
    } else if (inItem.name == "alt") {
      ioEntry.modifiers.Set(lumui::ui::kModAlt);
    } else if (!Holds(std::begin(kOtherElements), std::end(kOtherElements), inItem.name)) {
      mFindings.Add(inItem.line, "$$$/outliner/Check/KeyElement=\"@0\" means nothing in a key map",
                    ToUTF16(inItem.name));
    }
  }

  void TakeText(const FileItem& inItem, Entry& ioEntry) {
    if (inItem.name == "cmd") {
      ioEntry.command = inItem.text;
    } else if (inItem.name == "ctx") {
      ioEntry.context = inItem.text;
    } else if (inItem.name == "key") {
      ioEntry.isByCode = true;
      if (ReadWholeNumber(inItem.text, 1, kLastKeyCode, ioEntry.code)) return;
      mFindings.Add(inItem.line, "$$$/outliner/Check/KeyCode=\"@0\" is no key code", inItem.text);
    } else if (!inItem.text.empty()) {
      ioEntry.character = inItem.text.front();
      ioEntry.isByCode = false;
      if (inItem.text.size() == 1) return;
      mFindings.Add(inItem.line,
                    "$$$/outliner/Check/Character=\"@0\" is more than one character, and only the "
                    "first counts",
                    inItem.text);
    }
  }

  void CheckCommand(const FileRecord& inRecord, const Entry& inEntry) {
    const auto found = std::find_if(
        mCommands.begin(), mCommands.end(),
        [&](const CheckedCommand& inCommand) { return inCommand.name == inEntry.command; });
    if (found == mCommands.end()) {
      mFindings.Add(inRecord.line,
                    "$$$/outliner/Check/UnknownCommand=no command has the name \"@0\"",
                    inEntry.command);
    } else if (inEntry.isHold && !found->isRepeatable) {
      mFindings.Add(inRecord.line,
                    "$$$/outliner/Check/Hold=the command \"@0\" does not repeat, so its key cannot "
                    "be held",
                    inEntry.command);
    }
  }

  void CheckExtended(const FileRecord& inRecord, const Entry& inEntry) {
    const bool wantsExtended =
        std::any_of(inRecord.items.begin(), inRecord.items.end(),
                    [](const FileItem& inItem) { return inItem.name == "ext"; });
    if (wantsExtended && !inEntry.isExtended) {
      mFindings.Add(
          inRecord.line,
          "$$$/outliner/Check/ExtendedLost=\"ext\" is lost: it must stand behind \"cmd\", "
          "\"ctx\" and the key");
    } else if (inEntry.isExtended && inEntry.isByCode) {
      mFindings.Add(inRecord.line,
                    "$$$/outliner/Check/ExtendedCode=no key press matches a key code with \"ext\": "
                    "without it, the code stands for both forms of the key");
    }
  }

  void CheckUnique(const FileRecord& inRecord, const Entry& inEntry) {
    const KeyboardCode key = inEntry.GetKey();
    const auto [known, isNew] = mLineOfKey.emplace(
        Key(inEntry.context, key.GetValue(true), inEntry.modifiers.GetBits(), inEntry.isHold),
        inRecord.line);
    if (isNew) return;
    mFindings.Add(inRecord.line, "$$$/outliner/Check/SameKey=the key \"@0\" is taken by line @1",
                  KeyCommandManager::GetShortcutString(key, inEntry.modifiers),
                  ToUTF16(std::to_string(known->second)));
  }

  using Key = std::tuple<UTF16String, std::uint32_t, unsigned, bool>;

  const std::vector<CheckedCommand>& mCommands;
  Findings& mFindings;
  std::map<Key, std::size_t> mLineOfKey;
};

}  // namespace

std::size_t CheckKeyMap(const std::vector<FileRecord>& inRecords,
                        const std::vector<CheckedCommand>& inCommands, Findings& ioFindings) {
  KeyMapChecker checker(inCommands, ioFindings);
  for (const FileRecord& record : inRecords) {
    if (record.isForThisSystem) checker.Check(record);
  }
  return inRecords.size();
}

}  // namespace outliner
