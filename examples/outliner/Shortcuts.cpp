// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "Shortcuts.h"

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/make_shared.hpp>
#include <functional>
#include <string_view>

#include "CommandSystem.h"
#include "OutlinerApp.h"
#include "OutlinerCommands.h"
#include "Reports.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/filesupport/Dir.h"
#include "lumcore/proplist/PropList.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/OS_Window.h"
#include "vek/sharedui/KeyboardMapDialog.h"
#include "vek/uisupport/KeyCommandManager.h"
#include "vek/uisupport/ReportError.h"
#include "vek/uisupport/UserKeyMap.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::filesupport::Dir;
using lumcore::filesupport::File;
using lumcore::utility::ToUTF16;
using vek::uisupport::KeyCommandManager;

namespace {

constexpr int kAllChanged = -1;
constexpr const char* kCustomSet = "(Custom)";

// The sets as they are now, in the folder beside theirs.
void KeepShortcutFiles() {
  const Dir sets(Dir::PrefDir(), "Shortcuts");
  const Dir copies(Dir::PrefDir(), "Shortcuts.before");
  if (!sets.Exists()) return;
  if (copies.Exists()) copies.RemoveAll();
  copies.Create();
  for (const File& file : sets.GetFiles()) {
    const auto bytes = file.ReadAll();
    File(copies.FullPath() + ToUTF16("/") + file.GetName())
        .ReplaceContents(
            std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
  }
}

void AddLostKeys() {
  CommandSystem::AddLostKeys();
  KeyCommandManager::Get().NotifyOfKeyMappingsChanged(kAllChanged);
}

// Whatever a dialog leaves behind, the program can be ended and texts can be given up.
void ChangeKeys(const std::function<void()>& inRunDialog) {
  KeepShortcutFiles();
  try {
    inRunDialog();
  } catch (...) {  // for the caller
    AddLostKeys();
    throw;
  }
  AddLostKeys();
}

void SaveToCurrentSet(lumcore::proplist::PropList& ioSettings) {
  UTF16String set = ioSettings.Get(kCurrentSetKey, UTF16String());
  if (set.empty()) set = ToUTF16(kCustomSet);
  const File file = FileOfSet(set);
  const Dir folder = file.Parent();
  if (!folder.Exists()) folder.Create();
  KeyCommandManager::Get().SaveKeyMappings(file);
  ioSettings.Set(kCurrentSetKey, set);
}

}  // namespace

void EditShortcuts(OutlinerApp& ioApp) {
  ChangeKeys([&ioApp] {
    try {
      vek::uisupport::DoEditKeyShortcutsDialog(kCommandQuit);
    } catch (const lumcore::config::Error& error) {  // a set that cannot be read: its file stays
      vek::uisupport::ReportError(error, false);
      ioApp.GetAppSettings().Set(kCurrentSetKey, UTF16String());
    }
  });
}

void EditKeyboardMap(OutlinerApp& ioApp) {
  ChangeKeys([&ioApp] {
    bool isChanged = false;
    const auto changed =
        boost::make_shared<boost::function<void(int)>>([&isChanged](int) { isChanged = true; });
    KeyCommandManager::Get().AddKeyMappingsChangedCallback(changed);
    const boost::intrusive_ptr<vek::sharedui::KeyboardMapDialog> dialog(
        new vek::sharedui::KeyboardMapDialog(ioApp.FindMainWindow()));
    dialog->RunModal();
    KeyCommandManager::Get().RemoveKeyMappingsChangedCallback(changed);
    if (isChanged) SaveToCurrentSet(ioApp.GetAppSettings());
  });
}

}  // namespace outliner
