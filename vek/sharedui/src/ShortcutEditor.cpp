// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/ShortcutEditor.h"

#include <algorithm>
#include <utility>

#include "lumcore/debug/Contract.h"
#include "lumcore/utility/StringUtils.h"
#include "vek/sharedui/ShortcutEditorView.h"
#include "vek/sharedui/src/ShortcutTexts.h"
#include "vek/uisupport/CommandRegistry.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace vek::sharedui {

using lumcore::UTF16String;
using lumui::ui::KeyboardCode;
using lumui::ui::KeyboardEvent;
using lumui::ui::ModifierKeys;
using uisupport::CommandRegistry;
using uisupport::KeyCommand;
using uisupport::KeyCommandManager;

namespace {

bool IsKey(const KeyCommand& inMapping, KeyboardCode inCode, ModifierKeys inModifiers) {
  return inMapping.GetKeyboardCode() == inCode && inMapping.GetModifiers() == inModifiers;
}

std::list<KeyCommand*> MappingsOf(int inCommand) {
  std::list<KeyCommand*> mappings;
  KeyCommandManager::Get().GetShortcutList(inCommand, mappings);
  return mappings;
}

// The mappings of a key that are not the command's, in the order of the commands' ids.
std::vector<const KeyCommand*> OthersWith(int inCommand, KeyboardCode inCode,
                                          ModifierKeys inModifiers) {
  const CommandRegistry& registry = CommandRegistry::Get();
  std::vector<const KeyCommand*> others;
  for (const KeyCommand* mapping : KeyCommandManager::Get().GetGlobalMappings()) {
    const int command = mapping->GetCommandID();
    if (command == inCommand || !IsKey(*mapping, inCode, inModifiers)) continue;
    if (registry.FindCommandByID(command) != registry.RegistryEnd()) others.push_back(mapping);
  }
  std::stable_sort(others.begin(), others.end(), [](const KeyCommand* inA, const KeyCommand* inB) {
    return inA->GetCommandID() < inB->GetCommandID();
  });
  return others;
}

bool IsRepeatable(int inCommandID) {
  const CommandRegistry& registry = CommandRegistry::Get();
  UTF16String commandName;
  UTF16String description;
  bool isRepeatable = false;
  LUM_INPUT_CONTRACT(registry.CommandLookup(inCommandID, commandName, description, isRepeatable));
  return isRepeatable;
}

void Remove(const KeyCommand& inKey, bool inRepeat) {
  KeyCommandManager::Get().RemoveKeyMapping(inKey.GetCommandID(), inKey.GetKeyboardCode(),
                                            inKey.GetModifiers(), KeyboardEvent::kActionKeyDown,
                                            nullptr, inRepeat, false);
}

}  // namespace

// One that is both is an edit of the default set: its name is not to be found in the popup.
void ShortcutEditor::MarkEdited() {
  const int index = mView.GetSetIndex();
  mDirty = true;
  if (index == 0) mCustom = true;
  ShowSetState(index);
}

void ShortcutEditor::AddKey(const KeyCommand& inKey) {
  const auto add = [&](bool inRepeat) {
    KeyCommandManager::Get().AddKeyMapping(inKey.GetCommandID(), inKey.GetKeyboardCode(),
                                           inKey.GetModifiers(), KeyboardEvent::kActionKeyDown,
                                           nullptr, inRepeat, false);
  };
  add(false);
  if (IsRepeatable(inKey.GetCommandID())) add(true);
}

void ShortcutEditor::RemoveBoth(const KeyCommand& inKey) {
  Remove(inKey, false);
  Remove(inKey, true);
}

void ShortcutEditor::RefreshCommand(int inCommand) {
  if (!mCaches.Has(inCommand)) return;
  mCaches.Refresh(inCommand);
  mView.CommandChanged(inCommand);
}

bool ShortcutEditor::AssignKey(KeyCommand& ioKey, bool inIsNew, KeyboardCode inCode,
                               ModifierKeys inModifiers) {
  ModifierKeys modifiers = inModifiers;
  modifiers.Clear(lumui::ui::kModOtherControl);
  mGotoCommand = -1;
  mView.UpdateButtons();
  if (inCode == KeyboardCode(0)) return false;
  const int command = ioKey.GetCommandID();
  std::vector<const KeyCommand*> others = OthersWith(command, inCode, modifiers);
  const bool reserved = (!inIsNew && ioKey.GetIsProtected()) ||
                        std::any_of(others.begin(), others.end(), [](const KeyCommand* inOther) {
                          return inOther->GetIsProtected();
                        });
  if (reserved) {
    mView.Tell(LocalizedText(ShortcutText::kReserved));
    return false;
  }
  for (const KeyCommand* mapping : MappingsOf(command)) {
    if (IsKey(*mapping, inCode, modifiers)) return false;
  }
  IsRepeatable(command);  // fails before anything has changed
  const KeyCommand newKey(command, inCode, modifiers, KeyboardEvent::kActionKeyDown, false, false);
  const bool taken = !others.empty();
  MarkEdited();
  mUndoKind = (inIsNew ? kNewKey : kReplaced) + (taken ? 1 : 0);
  mRemovedKeys.clear();
  mOldKey = ioKey;
  mNewKey = newKey;
  // With several, the last one is told and comes back; a file alone can bring that about.
  for (const KeyCommand* other : others) {
    mDisplacedKey = *other;
    RemoveBoth(mDisplacedKey);
  }
  if (!inIsNew) RemoveBoth(mOldKey);
  AddKey(newKey);
  ioKey = newKey;
  if (taken) {
    mGotoCommand = mDisplacedKey.GetCommandID();
    const auto other = CommandRegistry::Get().FindCommandByID(mGotoCommand);
    const auto [category, name] = SplitDisplayName(other->second.GetDisplayName());
    mView.SetWarningText(
        LocalizedText(ShortcutText::kAlreadyInUse,
                      {KeyCommandManager::GetShortcutString(inCode, modifiers), category, name}));
    RefreshCommand(mGotoCommand);
  }
  RefreshCommand(command);
  mView.UpdateButtons();
  return true;
}

bool ShortcutEditor::RemoveKey(const KeyCommand& inKey) {
  if (inKey.GetIsProtected()) {
    mView.Tell(LocalizedText(ShortcutText::kReserved));
    return false;
  }
  return RemoveKeys({inKey});
}

bool ShortcutEditor::RemoveKeys(const std::vector<KeyCommand>& inKeys) {
  std::list<KeyCommand> removed;
  for (const KeyCommand& key : inKeys) {
    if (!key.GetIsProtected()) removed.push_back(key);
  }
  if (removed.empty()) return false;
  MarkEdited();
  for (const KeyCommand& key : removed)
    Remove(key, false);
  mRemovedKeys.swap(removed);
  mUndoKind = kRemoved;
  RefreshCommand(mRemovedKeys.front().GetCommandID());
  mView.UpdateButtons();
  return true;
}

void ShortcutEditor::Undo() {
  const int kind = std::exchange(mUndoKind, kNothing);
  mGotoCommand = -1;
  std::list<KeyCommand> back;
  std::vector<int> touched;
  if (kind == kRemoved) {
    back.swap(mRemovedKeys);
    touched.push_back(back.front().GetCommandID());
  } else if (kind != kNothing) {
    touched.push_back(mNewKey.GetCommandID());
    RemoveBoth(mNewKey);
    if (kind == kReplaced || kind == kReplacedTaken) back.push_back(mOldKey);
    if (kind == kNewKeyTaken || kind == kReplacedTaken) {
      back.push_back(mDisplacedKey);
      touched.push_back(mDisplacedKey.GetCommandID());
    }
  }
  for (const KeyCommand& key : back)
    AddKey(key);
  for (const int command : touched)
    RefreshCommand(command);
  mView.RebuildField();
  mView.UpdateButtons();
}

void ShortcutEditor::SetFilter(const UTF16String& inText, bool inMatchCase) {
  mFilter = inText;
  mFilterLower = lumcore::utility::ToLowerCase(inText);
  mMatchCase = inMatchCase;
}

bool ShortcutEditor::IsShown(CommandCache& inCache) const {
  return HasText(inCache, mMatchCase ? mFilter : mFilterLower, mMatchCase);
}

ShortcutEditorView::~ShortcutEditorView() = default;

}  // namespace vek::sharedui
