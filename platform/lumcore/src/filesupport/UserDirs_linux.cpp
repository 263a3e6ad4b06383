// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/filesupport/UserDirs.h"

#include <string>
#include <string_view>

#include "filesupport/Paths.h"
#include "filesupport/SystemFile.h"
#include "lumcore/filesupport/File.h"
#include "lumcore/filesupport/FileError.h"

namespace lumcore::filesupport {

namespace {

constexpr std::string_view kHomeVariable = "$HOME";

// A value as a shell would read it within double quotes.
std::string Unquote(std::string_view inQuoted) {
  std::string text;
  for (std::size_t at = 0; at < inQuoted.size() && inQuoted[at] != '"'; ++at) {
    if (inQuoted[at] == '\\' && at + 1 < inQuoted.size()) ++at;
    text += inQuoted[at];
  }
  return text;
}

// From lines like XDG_DESKTOP_DIR="$HOME/Desktop"; the last one counts. Empty where there is none,
// or where it is no absolute path.
std::string Chosen(std::string_view inLines, std::string_view inVariable) {
  std::string chosen;
  while (!inLines.empty()) {
    const std::size_t end = inLines.find('\n');
    std::string_view line = inLines.substr(0, end);
    inLines.remove_prefix(end == inLines.npos ? inLines.size() : end + 1);
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    if (line.substr(0, inVariable.size()) != inVariable) continue;
    line.remove_prefix(inVariable.size());
    const std::size_t quote = line.find('"');
    if (quote == line.npos || line.substr(0, quote).find_first_not_of(" \t=") != line.npos)
      continue;
    line.remove_prefix(quote + 1);
    if (line.substr(0, kHomeVariable.size()) == kHomeVariable) {
      const std::string rest = Unquote(line.substr(kHomeVariable.size()));
      chosen = paths::Join(system::HomePath(),
                           rest.substr(std::min(rest.find_first_not_of('/'), rest.size())));
    } else if (!line.empty() && line.front() == '/') {
      chosen = Unquote(line);
    }
  }
  return chosen;
}

std::string ReadChoice(std::string_view inVariable) {
  const File file(Dir(system::SettingsPath()), "user-dirs.dirs");
  if (!file.Exists()) return std::string();
  const UTF8String lines = file.ReadAll();
  return Chosen(std::string_view(reinterpret_cast<const char*>(lines.data()), lines.size()),
                inVariable);
}

}  // namespace

std::optional<Dir> FindUserDir(UserDir inWhich) {
  const bool isDesktop = inWhich == UserDir::kDesktop;
  try {
    std::string path = ReadChoice(isDesktop ? "XDG_DESKTOP_DIR" : "XDG_DOCUMENTS_DIR");
    if (path.empty()) path = paths::Join(system::HomePath(), isDesktop ? "Desktop" : "Documents");
    const Dir dir(paths::Full(path));
    if (!dir.Exists()) dir.Create();
    return dir;
  } catch (const FileError&) {
    // A choice that cannot be read, or a folder that cannot be made: the caller does without.
    return std::nullopt;
  }
}

}  // namespace lumcore::filesupport
