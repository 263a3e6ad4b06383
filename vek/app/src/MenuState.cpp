// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/app/src/MenuState.h"

#include "lumcore/Strings.h"
#include "lumui/ui/OS_Menu.h"
#include "lumui/ui/UI_NodeManager.h"
#include "lumworkspace/workspace/CommandCheckStyle.h"
#include "vek/uisupport/CommandHandlerBase.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace vek::app {

using lumcore::UTF16String;
using lumui::ui::MenuItemInfo;
using lumui::ui::OS_Menu;

namespace {

constexpr unsigned kReadMask = lumui::ui::kMenuMaskState | lumui::ui::kMenuMaskID |
                               lumui::ui::kMenuMaskCheckMarks | lumui::ui::kMenuMaskString;
constexpr unsigned kWriteMask =
    lumui::ui::kMenuMaskState | lumui::ui::kMenuMaskString | lumui::ui::kMenuMaskType;
constexpr std::size_t kTextLimit = 511;  // UTF-16 units
constexpr int kFirstSystemCommand = 61440;
constexpr int kLastSystemCommand = 61824;

void DisableUnanswered(HMENU inMenu, unsigned inPosition, int inCommand) {
  const bool system = inCommand >= kFirstSystemCommand && inCommand <= kLastSystemCommand;
  if (system || OS_Menu::GetSubMenu(inMenu, inPosition)) return;
  OS_Menu::EnableItem(inMenu, inPosition, false);
  OS_Menu::CheckItem(inMenu, inPosition, false);
}

UTF16String WithShortcut(const UTF16String& inText, int inCommand, bool inUpdateShortcuts) {
  constexpr unsigned short kTab = '\t';
  UTF16String text = inText.substr(0, inText.find(kTab));
  UTF16String shortcut;
  if (inUpdateShortcuts &&
      uisupport::KeyCommandManager::Get().GetShortcutString(inCommand, shortcut)) {
    text += kTab;
    text += shortcut;
  }
  return text;
}

}  // namespace

void UpdateMenuState(HMENU inMenu, bool inUpdateShortcuts, bool inDisableUnanswered,
                     int inFirstCommand) {
  const unsigned count = OS_Menu::GetItemCount(inMenu);
  if (count == lumui::ui::kMenuFailed) return;
  for (unsigned i = 0; i < count; ++i) {
    MenuItemInfo item;
    item.mask = kReadMask;
    item.textLimit = kTextLimit;
    if (!OS_Menu::GetItemInfo(inMenu, i, item) || item.id == 0) continue;
    const int command = static_cast<int>(item.id);
    bool enabled = false;
    bool checked = false;
    UTF16String text;
    if (!uisupport::CommandHandlerBase::CallEnablementChain(command, enabled, checked, text)) {
      if (inDisableUnanswered && command >= inFirstCommand) DisableUnanswered(inMenu, i, command);
      continue;
    }
    const bool radio = lumworkspace::workspace::IsCommandCheckStyleRadio(command);
    item.mask = kWriteMask;
    item.state = (enabled ? 0 : lumui::ui::kMenuStateDisabled) |
                 (checked ? lumui::ui::kMenuStateChecked : 0);
    item.type = radio ? lumui::ui::kMenuTypeRadio : 0;
    item.text = WithShortcut(text.empty() ? item.text : text, command, inUpdateShortcuts);
    OS_Menu::SetItemInfo(inMenu, i, item);
    if (radio && checked) OS_Menu::CheckRadioItem(inMenu, i, i, i);
  }
}

void ReleaseInputCapture() {
  auto* const manager = lumui::ui::UI_NodeManager::Get(false);
  if (manager && manager->GetInputCapture()) manager->EndInputCapture(true);
}

}  // namespace vek::app
