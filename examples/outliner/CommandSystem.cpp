// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "CommandSystem.h"

#include <algorithm>
#include <initializer_list>
#include <list>
#include <string>

#include "OutlinerCommands.h"
#include "Texts.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/filesupport/Dir.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/ModuleHandle.h"
#include "lumui/utility/ResourceManager.h"
#include "vek/app/App.h"
#include "vek/uisupport/CommandRegistry.h"
#include "vek/uisupport/KeyCommandManager.h"
#include "vek/uisupport/ReportError.h"
#include "vek/uisupport/SyntheticCmdMgr.h"
#include "vek/uisupport/UserKeyMap.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::filesupport::Dir;
using lumcore::filesupport::File;
using lumcore::utility::ToUTF16;
using vek::uisupport::CommandRegistry;
using vek::uisupport::KeyCommandManager;

namespace {

constexpr const char* kCommandFileName = "outliner.cmdreg.xml";
constexpr const char* kKeyMapName = "DefaultKeyMap";

// Above the host's own ids, and below those of the system's menu commands.
constexpr int kFirstSyntheticId = 32768;

UTF16String Text(const char* inKey, std::initializer_list<UTF16String> inArguments) {
  return lumcore::utility::ReplaceInString(Localized(inKey), inArguments);
}

void ThrowUnlessKnown(const File& inFile, int inCommand) {
  const CommandRegistry& registry = CommandRegistry::Get();
  if (registry.FindCommandByID(inCommand) != registry.RegistryEnd()) return;
  throw lumcore::config::Error(
      Text("$$$/outliner/Commands/Missing=@0: the command @1 is missing",
           {ToUTF16(inFile.GetPath()), ToUTF16(std::to_string(inCommand))}));
}

void LoadCommands(const File& inFile) {
  // The registry takes a missing file for an empty one.
  if (!inFile.Exists()) {
    throw lumcore::config::Error(Text("$$$/outliner/Commands/NoFile=@0: there is no command file",
                                      {ToUTF16(inFile.GetPath())}));
  }
  CommandRegistry& registry = CommandRegistry::Get();
  registry.LoadFromFile(inFile, true);
  for (int command = kCommandsBegin; command < kCommandsEnd; ++command)
    ThrowUnlessKnown(inFile, command);
  for (auto at = registry.RegistryBegin(); at != registry.RegistryEnd(); ++at) {
    if (IsOwnCommand(at->first)) continue;
    throw lumcore::config::Error(Text(
        "$$$/outliner/Commands/Unanswered=@0: nobody answers for the command @1, \"@2\"",
        {ToUTF16(inFile.GetPath()), ToUTF16(std::to_string(at->first)), at->second.GetName()}));
  }
}

// A key map that was saved has lost what is bound to contexts, so the host adds its own behind
// every load.
void AddContextKeys() {
  using lumui::ui::KeyboardCode;
  const auto letter = [](char inLetter) {
    return KeyboardCode::CreateFromKeyboardChar(static_cast<unsigned short>(inLetter), false);
  };
  const struct {
    int command;
    KeyboardCode key;
    const lumcore::UTF8String& context;
  } keys[] = {{kCommandGiveUpText, KeyboardCode(KeyboardCode::kEscape), TextContext()},
              {kCommandMapSelect, letter('V'), MapContext()},
              {kCommandMapHand, letter('H'), MapContext()},
              {kCommandMapZoom, letter('Z'), MapContext()},
              {kCommandMapGoToRow, KeyboardCode(KeyboardCode::kReturn), MapContext()},
              {kCommandMapGoToRow, KeyboardCode::CreateFromControlCode(KeyboardCode::kEnter, true),
               MapContext()}};
  for (const auto& each : keys) {
    KeyCommandManager::Get().AddKeyMapping(each.command, each.key, KeyCommandManager::Modifiers(),
                                           lumui::ui::KeyboardEvent::kActionKeyDown,
                                           each.context.c_str(), false, true);
  }
}

void AddQuitKey() {
  const auto code = lumui::ui::KeyboardCode::CreateFromKeyboardChar('Q', false);
  const lumui::ui::ModifierKeys command(lumui::ui::kModCommand);
  KeyCommandManager& manager = KeyCommandManager::Get();
  for (const auto* mapping : manager.GetGlobalMappings()) {
    if (mapping->GetCommandID() == kCommandQuit) return;
    if (mapping->GetKeyboardCode() == code && mapping->GetModifiers() == command) return;
  }
  manager.AddKeyMapping(kCommandQuit, code, command, lumui::ui::KeyboardEvent::kActionKeyDown,
                        nullptr, false, false);
}

void LoadKeysFrom(const File& inFile) {
  KeyCommandManager::Get().LoadKeyMappings(inFile);
  AddContextKeys();
}

bool HasAnyKey() {
  const CommandRegistry& registry = CommandRegistry::Get();
  return std::any_of(registry.RegistryBegin(), registry.RegistryEnd(), [](const auto& inEntry) {
    std::list<vek::uisupport::KeyCommand*> keys;
    KeyCommandManager::Get().GetShortcutList(inEntry.first, keys);
    return !keys.empty();
  });
}

}  // namespace

CommandFiles FindCommandFiles() {
  const Dir program = Dir::AppDir();
  Dir folder(program, "Resources");
  if (!folder.Exists()) folder = Dir(Dir(program, OUTLINER_INSTALLED_RESOURCES).FullPath());
  return {File(folder, kCommandFileName), std::nullopt};
}

lumcore::UTF8String BuiltInKeys() {
  const lumui::utility::ResourceManager resources(
      lumui::ui::ModuleOfAddress(reinterpret_cast<void*>(&BuiltInKeys)));
  const auto bytes = resources.GetRequiredBinary(ToUTF16(kKeyMapName), "xml");
  return lumcore::UTF8String(bytes.begin(), bytes.end());
}

const UTF16String& NameOfBuiltInKeys() {
  static const UTF16String sName = ToUTF16(std::string(kKeyMapName) + ".xml");
  return sName;
}

const lumcore::UTF8String& TextContext() {
  static const lumcore::UTF8String sContext = lumcore::utility::ToUTF8("outliner.text");
  return sContext;
}

const lumcore::UTF8String& MapContext() {
  static const lumcore::UTF8String sContext = lumcore::utility::ToUTF8("outliner.map");
  return sContext;
}

File FileOfSet(const UTF16String& inName) {
  return File(Dir(Dir::PrefDir(), "Shortcuts").FullPath() + ToUTF16("/") + inName +
              ToUTF16(".xml"));
}

CommandSystem::SyntheticIds::SyntheticIds() {
  vek::uisupport::SyntheticCmdMgr::InitSyntheticCmdMgr(kFirstSyntheticId);
}

CommandSystem::SyntheticIds::~SyntheticIds() {
  vek::uisupport::SyntheticCmdMgr::ResetSyntheticCmdMgr();
}

CommandSystem::CommandSystem(const CommandFiles& inFiles) : mFiles(inFiles) {
  LoadCommands(mFiles.commands);
}

CommandSystem::~CommandSystem() {
  KeyCommandManager::Reset();
  CommandRegistry::Get().LoadFromBuffer(lumcore::UTF8String(), false);
}

void CommandSystem::LoadKeys() {
  KeyCommandManager::Init();
  LoadOwnKeys();
}

// A running program takes what the shortcut dialog takes for its default set.
void CommandSystem::LoadOwnKeys() {
  if (mFiles.keys) return LoadKeysFrom(*mFiles.keys);
  KeyCommandManager::Get().LoadKeyMappingsFromBuffer(
      vek::app::App::GetApp() ? vek::uisupport::GetDefaultKeyMap() : BuiltInKeys());
  AddContextKeys();
}

void CommandSystem::LoadUserKeys(const File& inFile) {
  LoadInPlaceOfOwn(inFile, false);
}

void CommandSystem::LoadUserSet(const UTF16String& inName) {
  LoadInPlaceOfOwn(FileOfSet(inName), true);
  AddQuitKey();
}

void CommandSystem::AddLostKeys() {
  AddContextKeys();
  AddQuitKey();
}

void CommandSystem::LoadInPlaceOfOwn(const File& inFile, bool inMayBeEmpty) {
  UTF16String cause;
  try {
    LoadKeysFrom(inFile);
    if (inMayBeEmpty || HasAnyKey()) return;
    cause = Text("$$$/outliner/Keys/None=@0: there is no key for any command of the outliner",
                 {ToUTF16(inFile.GetPath())});
  } catch (const lumcore::config::Error& error) {
    cause = error.GetText();
  }
  // Before the report: a box lets events through.
  LoadOwnKeys();
  vek::uisupport::ReportError(
      Text("$$$/outliner/Keys/Fallback=@0. The outliner's own keys are used.", {cause}), 0, false);
}

}  // namespace outliner
