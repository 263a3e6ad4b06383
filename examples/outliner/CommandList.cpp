// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "CommandList.h"

#include <algorithm>
#include <list>
#include <vector>

#include "Texts.h"
#include "lumcore/utility/DisplayWidth.h"
#include "lumcore/utility/StringUtils.h"
#include "vek/uisupport/CommandRegistry.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using vek::uisupport::CommandRegistry;

namespace {

using Row = std::vector<UTF16String>;

template <class MakeRow>
std::vector<Row> MakeRows(Row inHead, MakeRow inMakeRow) {
  std::vector<Row> rows{std::move(inHead)};
  const CommandRegistry& registry = CommandRegistry::Get();
  for (auto at = registry.RegistryBegin(); at != registry.RegistryEnd(); ++at)
    rows.push_back(inMakeRow(at->second));
  return rows;
}

std::string RenderLine(const Row& inRow, const std::vector<std::size_t>& inWidths) {
  std::string line;
  for (std::size_t column = 0; column < inRow.size(); ++column) {
    line += ToStdString(inRow[column]);
    const std::size_t width = lumcore::utility::GetDisplayWidth(inRow[column]);
    line.append(inWidths[column] - width + 2, ' ');
  }
  return line.erase(line.find_last_not_of(' ') + 1) + "\n";
}

std::string EscapeForPage(const UTF16String& inText) {
  std::string escaped;
  for (const char character : ToStdString(inText)) {
    // What would end the cell, or begin something else within it.
    if (std::string("|\\`*_<&[").find(character) != std::string::npos) escaped += '\\';
    escaped += character;
  }
  return escaped;
}

}  // namespace

// The dots at the end of a title begin no other one.
std::size_t TitleBegin(const UTF16String& inDisplayName) {
  const std::size_t dot = inDisplayName.find('.');
  if (dot == UTF16String::npos || dot + 1 == inDisplayName.size()) return 0;
  return inDisplayName[dot + 1] == '.' ? 0 : dot + 1;
}

UTF16String TitleOfCommand(int inCommand) {
  const CommandRegistry& registry = CommandRegistry::Get();
  const auto found = registry.FindCommandByID(inCommand);
  if (found == registry.RegistryEnd()) return {};
  const UTF16String name = found->second.GetDisplayName();
  return name.substr(TitleBegin(name));
}

// A key that has a mapping for its first press and one for being held stands here once. The key
// that menus show comes first.
UTF16String KeysOfCommand(int inCommand) {
  std::list<vek::uisupport::KeyCommand*> mappings;
  vek::uisupport::KeyCommandManager::Get().GetShortcutList(inCommand, mappings);
  std::vector<UTF16String> keys;
  for (auto mapping = mappings.rbegin(); mapping != mappings.rend(); ++mapping) {
    const UTF16String key = (*mapping)->GetAsString();
    if (!key.empty() && std::find(keys.begin(), keys.end(), key) == keys.end()) keys.push_back(key);
  }
  UTF16String text;
  for (const UTF16String& key : keys)
    text += text.empty() ? key : ToUTF16(", ") + key;
  return text;
}

std::string RenderCommandTable() {
  const Row head{Localized("$$$/outliner/List/Id=id"), Localized("$$$/outliner/List/Name=name"),
                 Localized("$$$/outliner/List/Text=text"),
                 Localized("$$$/outliner/List/Keys=keys")};
  const auto rows = MakeRows(head, [](const auto& inCommand) {
    return Row{ToUTF16(std::to_string(inCommand.GetCommandID())), inCommand.GetName(),
               TitleOfCommand(inCommand.GetCommandID()), KeysOfCommand(inCommand.GetCommandID())};
  });
  std::vector<std::size_t> widths(head.size());
  for (const Row& row : rows) {
    for (std::size_t column = 0; column < row.size(); ++column)
      widths[column] = std::max(widths[column], lumcore::utility::GetDisplayWidth(row[column]));
  }
  std::string table;
  for (const Row& row : rows)
    table += RenderLine(row, widths);
  return table;
}

std::string RenderCommandPage() {
  const Row head{Localized("$$$/outliner/Page/Name=Name"), Localized("$$$/outliner/Page/Text=Text"),
                 Localized("$$$/outliner/Page/Description=What it does"),
                 Localized("$$$/outliner/Page/Keys=Keys")};
  const auto rows = MakeRows(head, [](const auto& inCommand) {
    return Row{inCommand.GetName(), TitleOfCommand(inCommand.GetCommandID()),
               inCommand.GetDescription(), KeysOfCommand(inCommand.GetCommandID())};
  });
  std::string page =
      "# " + ToStdString(Localized("$$$/outliner/Page/Title=Commands of the outliner")) + "\n\n";
  bool isHead = true;
  for (const Row& row : rows) {
    for (const UTF16String& cell : row)
      page += "| " + EscapeForPage(cell) + (cell.empty() ? "" : " ");
    page += "|\n";
    if (isHead) page += "|---|---|---|---|\n";
    isHead = false;
  }
  return page + "\n" +
         ToStdString(Localized(
             "$$$/outliner/Page/Source=Printed by `outliner --list-commands=markdown`.")) +
         "\n";
}

}  // namespace outliner
