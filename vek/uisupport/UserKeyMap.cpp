// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/UserKeyMap.h"

#include <boost/intrusive_ptr.hpp>
#include <vector>

#include "lumcore/Locale.h"
#include "lumcore/filesupport/Dir.h"
#include "lumcore/filesupport/File.h"
#include "lumcore/proplist/PropList.h"
#include "lumcore/proplist/Utils.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/KeyboardCode.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/ModifierKeys.h"
#include "lumui/utility/ResourceManager.h"
#include "vek/app/App.h"
#include "vek/sharedui/ShortcutDialog.h"
#include "vek/uisupport/KeyCommandManager.h"
#include "vek/uisupport/KeyEventHandler.h"

namespace vek::uisupport {

using lumcore::UTF16String;
using lumcore::UTF8String;
using lumcore::filesupport::Dir;
using lumcore::filesupport::File;
using lumcore::utility::ToUTF16;

namespace {

constexpr const char* kCurrentSetKey = "currentShortcutSet";
constexpr const char* kDialogBoundsKey = "shortcutDialogBounds";
constexpr std::uint32_t kKeyQ = 0x80000051;

lumcore::proplist::PropList& Settings() {
  return app::App::GetApp()->GetAppSettings();
}

UTF16String CurrentSetName() {
  return Settings().Get(kCurrentSetKey, UTF16String());
}

// False for a set that is not there or cannot be read.
bool LoadSet(const UTF16String& inName) {
  if (inName.empty()) return false;
  const Dir dir(Dir::PrefDir(), "Shortcuts");
  try {
    KeyCommandManager::Get().LoadKeyMappings(
        File(dir.FullPath() + ToUTF16("/") + inName + ToUTF16(".xml")));
    return true;
  } catch (...) {  // whatever it is: the default map takes its place, for whoever starts
    return false;
  }
}

}  // namespace

KeyEventHandler::KeyEventHandler() = default;

KeyEventHandler::~KeyEventHandler() = default;

UTF8String GetDefaultKeyMap() {
  const std::string language = lumcore::Locale::ApplicationLangauge();
  const Dir folder(Dir(Dir(Dir::AppDir(), "Resources"), language), "Shortcuts");
  const File file(folder, "DefaultKeyMap.xml");
  if (folder.Exists() && file.Exists()) return file.ReadAll();
  const auto* const resources = app::App::GetApp()->GetAppResourceManager();
  if (!resources) return UTF8String();
  UTF16String name = ToUTF16("DefaultKeyMap");
  const UTF16String localized = name + ToUTF16("-" + language);
  if (resources->HasBinary(localized, "xml")) name = localized;
  std::vector<unsigned char> bytes;
  resources->GetBinary(name, "xml", bytes);
  return UTF8String(bytes.begin(), bytes.end());
}

void LoadUserKeyMap(const int& inQuitCommand) {
  if (LoadSet(CurrentSetName())) return;
  KeyCommandManager& manager = KeyCommandManager::Get();
  manager.LoadKeyMappingsFromBuffer(GetDefaultKeyMap());
  manager.AddKeyMapping(inQuitCommand, lumui::ui::KeyboardCode(kKeyQ),
                        lumui::ui::ModifierKeys(lumui::ui::kModCommand),
                        lumui::ui::KeyboardEvent::kActionKeyDown, nullptr, false, false);
}

void DoEditKeyShortcutsDialog(const int&) {
  namespace utils = lumcore::proplist::utils;
  boost::intrusive_ptr<sharedui::ShortcutDialog> dialog(
      new sharedui::ShortcutDialog(CurrentSetName(), GetDefaultKeyMap(), true));
  lumcore::geom::RectT<float> bounds;
  utils::ReadRect32(Settings(), kDialogBoundsKey, bounds);
  if (bounds.width >= 1 && bounds.height >= 1) dialog->SetBounds(bounds);
  const int result = dialog->RunModal();
  utils::WriteRect32(Settings(), kDialogBoundsKey, dialog->GetBounds());
  if (result == lumui::ui::UI_Dialog::kOK) {
    Settings().Set(kCurrentSetKey, dialog->GetCurrentShortcutSetName());
  }
}

}  // namespace vek::uisupport
