// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/KeyMapWriter.h"

#include <string>
#include <string_view>

#include "lumcore/config/ClientInfo.h"
#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/Parser.h"
#include "lumui/ui/ModifierKeys.h"
#include "vek/uisupport/CommandRegistry.h"

namespace vek::uisupport {

using lumcore::UTF16String;
using lumcore::UTF8String;
using lumcore::utility::ToUTF16;
using lumcore::utility::ToUTF8;
using lumui::ui::KeyboardCode;

namespace {

void Append(UTF8String& ioFile, std::string_view inText) {
  ioFile.append(inText.begin(), inText.end());
}

void AppendLine(UTF8String& ioFile, std::string_view inText) {
  Append(ioFile, inText);
  Append(ioFile, "\r\n");
}

void AppendElement(UTF8String& ioFile, std::string_view inName, const UTF8String& inText) {
  Append(ioFile, "<");
  Append(ioFile, inName);
  Append(ioFile, ">");
  ioFile += inText;
  Append(ioFile, "</");
  Append(ioFile, inName);
  AppendLine(ioFile, ">");
}

void AppendKey(UTF8String& ioFile, KeyboardCode inCode) {
  if (inCode.IsPrintable()) {
    const UTF16String character(1, inCode.GetCharacter());
    AppendElement(ioFile, "uchar",
                  ToUTF8(lumcore::xml::utils::EncodeReservedCharacters(character)));
  } else {
    AppendElement(ioFile, "key", ToUTF8(std::to_string(inCode.GetControlCode(false))));
  }
  if (inCode.IsExtended()) AppendLine(ioFile, "<ext/>");
}

// Modifiers that no line stands for still get the element around them.
void AppendModifiers(UTF8String& ioFile, KeyCommand::Modifiers inModifiers) {
  if (inModifiers.IsEmpty()) return;
  AppendLine(ioFile, "<mod>");
  if (inModifiers.Has(lumui::ui::kModShift)) AppendLine(ioFile, "<shift/>");
  if (inModifiers.Has(lumui::ui::kModCommand)) AppendLine(ioFile, "<cmdkey/>");
  if (inModifiers.Has(lumui::ui::kModAlt)) AppendLine(ioFile, "<alt/>");
  AppendLine(ioFile, "</mod>");
}

void AppendMapping(UTF8String& ioFile, const KeyCommand& inMapping) {
  const CommandRegistry& registry = CommandRegistry::Get();
  const auto command = registry.FindCommandByID(inMapping.GetCommandID());
  if (command == registry.RegistryEnd()) return;
  AppendLine(ioFile, "<keycmd>");
  AppendElement(ioFile, "cmd", ToUTF8(command->second.BorrowName()));
  AppendKey(ioFile, inMapping.GetKeyboardCode());
  if (inMapping.GetIsRepeat()) AppendLine(ioFile, "<hold/>");
  if (inMapping.GetIsProtected()) AppendLine(ioFile, "<protected/>");
  AppendModifiers(ioFile, inMapping.GetModifiers());
  AppendLine(ioFile, "</keycmd>");
}

}  // namespace

UTF8String RenderKeyMap(const KeyCommandList& inMappings) {
  UTF8String file;
  AppendLine(file, "<?xml version='1.0'?>");
  file += ToUTF8(lumcore::utility::ReplaceInString(
      ToUTF16("<keymap app=\"@0\" version=\"@1\">\r\n"),
      {lumcore::config::GetApplicationName(), lumcore::config::GetClientVersion()}));
  for (const KeyCommand* mapping : inMappings)
    AppendMapping(file, *mapping);
  Append(file, "</keymap>");
  return file;
}

}  // namespace vek::uisupport
