// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/src/ShortcutTexts.h"

#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"

namespace vek::sharedui {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;

namespace {

constexpr std::size_t kLongestFileName = 255;  // bytes, of every file system in use

const char* KeyOf(ShortcutText inText) {
  switch (inText) {
    case ShortcutText::kDefaultSet:
      return "$$$/vek/sharedui/ShortcutDialog/DefaultSet=Default Set (read-only)";
    case ShortcutText::kCustom:
      return "$$$/vek/sharedui/ShortcutDialog/Custom=(Custom)";
    case ShortcutText::kProposedName:
      return "$$$/vek/sharedui/ShortcutDialog/Shortcuts=Shortcuts";
    case ShortcutText::kAlreadyInUse:
      return "$$$/vek/sharedui/ShortcutDialog/ShortcutWasAlreadyInUse=The shortcut \"@0\" was "
             "already in use for command \"@1 > @2\".  It has been removed from that command.";
    case ShortcutText::kReserved:
      return "$$$/vek/sharedui/ShortcutDialog/ShortcutReserved=The selected shortcut is reserved "
             "and cannot be used.";
    case ShortcutText::kReplaceSet:
      return "$$$/vek/sharedui/ShortcutDialog/ShortCutSetAlreadyExistsReplace=A shortcut set with "
             "the entered name already exists. Replace?";
    case ShortcutText::kDeleteSet:
      return "$$$/vek/sharedui/ShortcutDialog/DeleteShortcutSet=Are you sure you want to delete "
             "the current shortcut set? This cannot be undone.";
    case ShortcutText::kSaveSet:
      return "$$$/vek/sharedui/ShortcutDialog/SaveShortcutSet=Do you want the current shortcuts "
             "set to be saved before switching to another set?";
    case ShortcutText::kNotPermitted:
      return "$$$/vek/sharedui/ShortcutDialog/CannotUseCustomName=The name \"@0\" is not "
             "permitted.";
  }
  return "";
}

bool CanBeFileName(const UTF16String& inName) {
  if (inName.empty()) return false;
  if (inName == ToUTF16(".") || inName == ToUTF16("..")) return false;
  for (const unsigned short unit : inName) {
    if (unit == '/' || unit == '\\' || unit == 0) return false;
  }
  const UTF16String file = inName + ToUTF16(".xml");
  const lumcore::UTF8String bytes = lumcore::utility::ToUTF8(file);
  // Ill-formed text would come back from the folder as another name.
  return bytes.size() <= kLongestFileName && ToUTF16(bytes) == file;
}

}  // namespace

UTF16String LocalizedText(ShortcutText inText) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(KeyOf(inText));
}

UTF16String LocalizedText(ShortcutText inText, std::initializer_list<UTF16String> inArguments) {
  return lumcore::utility::ReplaceInString(LocalizedText(inText), inArguments);
}

const UTF16String& CustomSetName() {
  static const UTF16String sName = ToUTF16("(Custom)");
  return sName;
}

const UTF16String& DirtyMark() {
  static const UTF16String sMark = ToUTF16(" *");
  return sMark;
}

bool EndsWith(const UTF16String& inText, const UTF16String& inEnd) {
  return inText.size() >= inEnd.size() &&
         inText.compare(inText.size() - inEnd.size(), inEnd.size(), inEnd) == 0;
}

bool IsPermittedSetName(const UTF16String& inName) {
  return inName != LocalizedText(ShortcutText::kDefaultSet) &&
         inName != LocalizedText(ShortcutText::kCustom) && inName != CustomSetName() &&
         !EndsWith(inName, DirtyMark()) && CanBeFileName(inName);
}

}  // namespace vek::sharedui
