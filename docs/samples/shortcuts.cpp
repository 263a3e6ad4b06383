// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// The lines around the shortcut dialog, as docs/shortcuts.md has them.

#include <string_view>

#include "lumcore/config/ThrowError.h"
#include "lumcore/filesupport/Dir.h"
#include "lumcore/filesupport/File.h"
#include "lumcore/utility/StringUtils.h"
#include "vek/app/App.h"
#include "vek/uisupport/KeyCommandManager.h"
#include "vek/uisupport/ReportError.h"
#include "vek/uisupport/UserKeyMap.h"

namespace samples {

using lumcore::utility::ToUTF16;

constexpr int kCommandQuit = 1001;

void AddContextKeys();

class HostApp : public vek::app::App {
 public:
  void LoadKeys();
  void EditShortcuts();
};

void HostApp::LoadKeys() {
  vek::uisupport::LoadUserKeyMap(kCommandQuit);  // the user's set, or the default one and Ctrl+Q
  AddContextKeys();                              // what key map files do not keep
}

using vek::uisupport::KeyCommandManager;

// The sets as they were before the dialog last opened, in the folder beside theirs.
void KeepShortcutFiles() {
  using lumcore::filesupport::Dir;
  using lumcore::filesupport::File;
  const Dir sets(Dir::PrefDir(), "Shortcuts");
  const Dir copies(Dir::PrefDir(), "Shortcuts.before");
  if (!sets.Exists()) return;
  if (copies.Exists()) copies.RemoveAll();
  copies.Create();
  for (const File& file : sets.GetFiles()) {
    const auto bytes = file.ReadAll();
    File(copies.FullPath() + ToUTF16("/") + file.GetName())
        .ReplaceContents({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  }
}

// Ctrl+Q for the command, unless it has a key already, or another command has this one.
void AddQuitKey() {
  using namespace lumui::ui;
  const auto code = KeyboardCode::CreateFromKeyboardChar('Q', false);
  const ModifierKeys command(kModCommand);
  for (const auto* mapping : KeyCommandManager::Get().GetGlobalMappings()) {
    if (mapping->GetCommandID() == kCommandQuit) return;
    if (mapping->GetKeyboardCode() == code && mapping->GetModifiers() == command) return;
  }
  KeyCommandManager::Get().AddKeyMapping(kCommandQuit, code, command, KeyboardEvent::kActionKeyDown,
                                         nullptr, false, false);
}

void HostApp::EditShortcuts() {
  KeepShortcutFiles();
  try {
    vek::uisupport::DoEditKeyShortcutsDialog(kCommandQuit);
  } catch (const lumcore::config::Error& error) {  // a set that cannot be read: its file stays
    vek::uisupport::ReportError(error, false);
    GetAppSettings().Set("currentShortcutSet", lumcore::UTF16String());
  }
  AddContextKeys();
  AddQuitKey();
  KeyCommandManager::Get().NotifyOfKeyMappingsChanged(-1);
}

}  // namespace samples
