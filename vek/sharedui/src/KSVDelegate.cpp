// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/KSVDelegate.h"

#include <algorithm>
#include <list>

#include "lumcore/config/Localizer.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/utility/StringUtils.h"
#include "vek/uisupport/Alert.h"
#include "vek/uisupport/CommandRegistry.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace vek::sharedui {

namespace {

using lumcore::UTF16String;
using lumui::ui::KeyboardCode;
using lumui::ui::KeyboardEvent;
using lumui::ui::ModifierKeys;
using uisupport::CommandRegistry;
using uisupport::KeyCommand;
using uisupport::KeyCommandManager;
namespace Alert = uisupport::Alert;

constexpr int kAllMappings = -1;  // for whoever listens to changes: look at everything anew

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

UTF16String Title() {
  return Localized("$$$/vek/sharedui/ShortcutDialog/KeyboardShortcuts=Keyboard Shortcuts");
}

std::list<KeyCommand*> MappingsOf(int inCommand) {
  std::list<KeyCommand*> mappings;
  KeyCommandManager::Get().GetShortcutList(inCommand, mappings);
  return mappings;
}

// Between a category and a name; the dots of "Open..." are none.
std::size_t FindSeparator(const UTF16String& inText) {
  const std::size_t dot = inText.find('.');
  const bool separates =
      dot != UTF16String::npos && dot + 1 < inText.size() && inText[dot + 1] != '.';
  return separates ? dot : UTF16String::npos;
}

lumui::utility::ksv::Command Described(const uisupport::RegisteredCommand& inCommand) {
  lumui::utility::ksv::Command command;
  command.id = inCommand.GetCommandID();
  command.description = inCommand.GetDescription();
  const UTF16String display = inCommand.GetDisplayName();
  const std::size_t dot = FindSeparator(display);
  if (dot != UTF16String::npos) {
    command.category = display.substr(0, dot);
    command.name = display.substr(dot + 1);
  } else {
    command.name = display.empty() ? inCommand.GetName() : display;
  }
  return command;
}

UTF16String PathOf(int inCommand) {
  const auto found = CommandRegistry::Get().FindCommandByID(inCommand);
  const auto command = Described(found->second);
  if (command.category.empty()) return command.name;
  return command.category + lumcore::utility::ToUTF16(" > ") + command.name;
}

}  // namespace

KSVDelegate::KSVDelegate(lumui::ui::UI_Node* inQuestionParent)
    : mQuestionParent(inQuestionParent),
      mMappingsChanged(new boost::function<void(int)>([this](int) { KeysChanged(); })) {
  KeyCommandManager::Get().AddKeyMappingsChangedCallback(mMappingsChanged);
  ReadKeys();
}

KSVDelegate::~KSVDelegate() {
  mMappingsChanged->clear();
}

KSVDelegate::Key KSVDelegate::KeyOf(KeyboardCode inCode, ModifierKeys inModifiers) {
  ModifierKeys modifiers = inModifiers;
  modifiers.Clear(lumui::ui::kModOtherControl);
  return Key(inCode.GetValue(inCode.IsPrintable()), modifiers.GetBits());
}

// As a press finds it: the first of a key's mappings in the order of the list, the plain ones
// before those of its repetitions.
void KSVDelegate::ReadKeys() {
  mUses.clear();
  const CommandRegistry& registry = CommandRegistry::Get();
  for (const bool repeat : {false, true}) {
    for (const KeyCommand* mapping : KeyCommandManager::Get().GetGlobalMappings()) {
      if (mapping->GetIsRepeat() != repeat) continue;
      if (mapping->GetKeyType() != KeyboardEvent::kActionKeyDown) continue;
      const int command = mapping->GetCommandID();
      if (registry.FindCommandByID(command) == registry.RegistryEnd()) continue;
      mUses.emplace(KeyOf(mapping->GetKeyboardCode(), mapping->GetModifiers()),
                    KeyUse{command, mapping->GetIsProtected()});
    }
  }
}

void KSVDelegate::KeysChanged() {
  ReadKeys();
  const auto changed = mChanged;
  if (changed) changed();
}

void KSVDelegate::SetChangedFunction(const boost::function<void()>& inFunction) {
  mChanged = inFunction;
}

std::vector<KSVDelegate::Command> KSVDelegate::GetCommands() const {
  std::vector<Command> commands;
  const CommandRegistry& registry = CommandRegistry::Get();
  for (auto entry = registry.RegistryBegin(); entry != registry.RegistryEnd(); ++entry) {
    if (entry->first != 0) commands.push_back(Described(entry->second));
  }
  std::stable_sort(commands.begin(), commands.end(), [](const Command& inA, const Command& inB) {
    return std::tie(inA.category, inA.name) < std::tie(inB.category, inB.name);
  });
  return commands;
}

KSVDelegate::KeyUse KSVDelegate::GetUse(KeyboardCode inCode, ModifierKeys inModifiers) const {
  const auto found = mUses.find(KeyOf(inCode, inModifiers));
  return found == mUses.end() ? KeyUse() : found->second;
}

UTF16String KSVDelegate::GetKeyText(KeyboardCode inCode, ModifierKeys inModifiers) const {
  return KeyCommandManager::GetShortcutString(inCode, inModifiers);
}

UTF16String KSVDelegate::GetKeyTextOf(int inCommand) const {
  UTF16String text;
  for (KeyCommand* mapping : MappingsOf(inCommand)) {
    if (mapping->GetIsRepeat()) continue;
    if (!text.empty()) text += lumcore::utility::ToUTF16(", ");
    text += mapping->GetAsString();
  }
  return text;
}

bool KSVDelegate::Assign(int inCommand, KeyboardCode inCode, ModifierKeys inModifiers) {
  const CommandRegistry& registry = CommandRegistry::Get();
  UTF16String name;
  UTF16String description;
  bool isRepeatable = false;
  LUM_INPUT_CONTRACT(registry.CommandLookup(inCommand, name, description, isRepeatable));
  if (inCode == KeyboardCode()) return false;
  const Key key = KeyOf(inCode, inModifiers);
  std::vector<int> holders;
  for (auto entry = registry.RegistryBegin(); entry != registry.RegistryEnd(); ++entry) {
    for (const KeyCommand* mapping : MappingsOf(entry->first)) {
      if (KeyOf(mapping->GetKeyboardCode(), mapping->GetModifiers()) != key) continue;
      if (holders.empty() || holders.back() != entry->first) holders.push_back(entry->first);
    }
  }
  if (std::count(holders.begin(), holders.end(), inCommand) > 0 && holders.size() == 1)
    return false;
  if (!MayTake(holders, inCommand, key, GetKeyText(inCode, inModifiers))) return false;
  for (const int holder : holders)
    RemoveBoth(holder, key);
  const KeyCommand::Modifiers modifiers(key.second);
  for (const bool repeat : {false, true}) {
    if (repeat && !isRepeatable) break;
    KeyCommandManager::Get().AddKeyMapping(inCommand, inCode, modifiers,
                                           KeyboardEvent::kActionKeyDown, nullptr, repeat, false);
  }
  Tell();
  return true;
}

// Asked before anything is changed, so that a refusal leaves all as it was.
bool KSVDelegate::MayTake(const std::vector<int>& inHolders, int inCommand, const Key& inKey,
                          const UTF16String& inKeyText) {
  UTF16String others;
  for (const int holder : inHolders) {
    for (const KeyCommand* mapping : MappingsOf(holder)) {
      const bool same = KeyOf(mapping->GetKeyboardCode(), mapping->GetModifiers()) == inKey;
      if (!same || !mapping->GetIsProtected()) continue;
      Alert::ShowStop(Title(),
                      Localized("$$$/vek/sharedui/ShortcutDialog/ShortcutReserved=The selected "
                                "shortcut is reserved and cannot be used."),
                      mQuestionParent);
      return false;
    }
    if (holder == inCommand) continue;
    if (!others.empty()) others += lumcore::utility::ToUTF16(", ");
    others += PathOf(holder);
  }
  if (others.empty()) return true;
  const UTF16String question = lumcore::utility::ReplaceInString(
      Localized("$$$/vek/sharedui/ShortcutDialog/ReplaceShortcut=The shortcut \"@0\" is already in "
                "use for command \"@1\". Replace it?"),
      {inKeyText, others});
  return Alert::Show(Alert::eTypeYesNo, Alert::eIconCaution, Title(), question, mQuestionParent) ==
         Alert::eResponseYes;
}

bool KSVDelegate::Remove(KeyboardCode inCode, ModifierKeys inModifiers) {
  const Key key = KeyOf(inCode, inModifiers);
  const KeyUse use = GetUse(inCode, inModifiers);
  if (use.command == 0 || !MayTake({use.command}, use.command, key, UTF16String())) return false;
  RemoveBoth(use.command, key);
  Tell();
  return true;
}

// As they stand in the map, which may have the extended form or the other platform's control key.
void KSVDelegate::RemoveBoth(int inCommand, const Key& inKey) {
  for (const KeyCommand* mapping : MappingsOf(inCommand)) {
    if (KeyOf(mapping->GetKeyboardCode(), mapping->GetModifiers()) != inKey) continue;
    KeyCommandManager::Get().RemoveKeyMapping(
        inCommand, mapping->GetKeyboardCode(), mapping->GetModifiers(), mapping->GetKeyType(),
        nullptr, mapping->GetIsRepeat(), mapping->GetIsProtected());
  }
}

void KSVDelegate::Tell() {
  KeyCommandManager::Get().NotifyOfKeyMappingsChanged(kAllMappings);
}

}  // namespace vek::sharedui
