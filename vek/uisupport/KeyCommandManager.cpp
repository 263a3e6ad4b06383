// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/KeyCommandManager.h"

#include <algorithm>
#include <memory>
#include <string_view>

#include "lumcore/config/Localizer.h"
#include "lumcore/filesupport/File.h"
#include "lumcore/xml/Parser.h"
#include "lumui/ui/ModifierKeys.h"
#include "vek/uisupport/CommandHandlerBase.h"
#include "vek/uisupport/KeyMapParseHandler.h"
#include "vek/uisupport/KeyMapWriter.h"
#include "vek/uisupport/KeyNames.h"

namespace vek::uisupport {

using lumcore::UTF16String;
using lumcore::UTF8String;
using lumui::ui::KeyboardCode;
using lumui::ui::KeyboardEvent;

namespace {

struct ManagerState {
  static ManagerState& Get() {
    // Never destroyed: who listens may have any static lifetime.
    static ManagerState* const sState = new ManagerState;
    return *sState;
  }
  bool mStarted = false;
  std::unique_ptr<KeyCommandManager> mInstance;
};

bool IsSameKey(const KeyCommand& inA, const KeyCommand& inB) {
  return inA.GetKeyboardCode() == inB.GetKeyboardCode() && inA.GetKeyType() == inB.GetKeyType() &&
         inA.GetModifiers() == inB.GetModifiers() && inA.GetIsRepeat() == inB.GetIsRepeat();
}

KeyCommand* FindFirst(const KeyCommandList& inList, const KeyboardEvent& inEvent) {
  for (KeyCommand* mapping : inList) {
    if (mapping->SameAs(inEvent)) return mapping;
  }
  return nullptr;
}

KeyCommand* FindLast(const KeyCommandList& inList, int inCommand) {
  const auto found = std::find_if(
      inList.rbegin(), inList.rend(),
      [inCommand](const KeyCommand* inMapping) { return inMapping->GetCommandID() == inCommand; });
  return found == inList.rend() ? nullptr : *found;
}

void DestroyAll(KeyCommandList& ioList) {
  for (const KeyCommand* mapping : ioList)
    delete mapping;
  ioList.clear();
}

CommandHandlerBase* FindChainStart() {
  CommandHandlerBase* const current = CommandHandlerBase::GetCurrentCommandHandler();
  return current ? current : CommandHandlerBase::GetDefaultCommandHandler();
}

}  // namespace

KeyCommandManager::KeyCommandManager() = default;

KeyCommandManager::~KeyCommandManager() {
  ClearMappings();
  DestroyAll(mUnlinked);
}

void KeyCommandManager::Init() {
  ManagerState::Get().mStarted = true;
}

KeyCommandManager& KeyCommandManager::Get() {
  auto& instance = ManagerState::Get().mInstance;
  if (!instance) instance.reset(new KeyCommandManager);
  return *instance;
}

void KeyCommandManager::Reset() {
  ManagerState::Get().mStarted = false;
  ManagerState::Get().mInstance.reset();
}

void KeyCommandManager::AddKeyMapping(const int& inCommand, KeyboardCode inCode,
                                      Modifiers inModifiers, Action inKeyType,
                                      const unsigned char* inContext, bool inRepeat,
                                      bool inIsProtected) {
  auto mapping = std::make_unique<KeyCommand>(inCommand, inCode, inModifiers, inKeyType, inRepeat,
                                              inIsProtected);
  KeyCommandList& list = GetList(inContext);
  const auto displaced = std::find_if(list.begin(), list.end(), [&](const KeyCommand* inOther) {
    return IsSameKey(*inOther, *mapping);
  });
  list.push_back(mapping.get());
  static_cast<void>(mapping.release());  // the list owns it now
  if (displaced != list.end()) Unlink(list, displaced);
}

void KeyCommandManager::RemoveKeyMapping(const int& inCommand, KeyboardCode inCode,
                                         Modifiers inModifiers, Action inKeyType,
                                         const unsigned char* inContext, bool inRepeat,
                                         bool inIsProtected) {
  const KeyCommand sought(inCommand, inCode, inModifiers, inKeyType, inRepeat, inIsProtected);
  KeyCommandList& list = GetList(inContext);
  const auto found = std::find_if(list.begin(), list.end(), [&](const KeyCommand* inMapping) {
    return IsSameKey(*inMapping, sought) && inMapping->GetCommandID() == inCommand;
  });
  if (found != list.end()) Unlink(list, found);
}

KeyCommandList& KeyCommandManager::GetList(const unsigned char* inContext) {
  return inContext ? mContextMappings[UTF8String(inContext)] : mGlobalMappings;
}

void KeyCommandManager::Unlink(KeyCommandList& ioList, KeyCommandList::iterator inMapping) {
  mUnlinked.splice(mUnlinked.end(), ioList, inMapping);
}

bool KeyCommandManager::GetShortcut(int inCommand, KeyboardCode& outCode,
                                    Modifiers& outModifiers) const {
  const KeyCommand* mapping = FindLast(mGlobalMappings, inCommand);
  if (!mapping) return false;
  outCode = mapping->GetKeyboardCode();
  outModifiers = mapping->GetModifiers();
  return true;
}

bool KeyCommandManager::GetShortcutString(int inCommand, UTF16String& outText) const {
  KeyCommand* const mapping = FindLast(mGlobalMappings, inCommand);
  if (!mapping) return false;
  outText = mapping->GetAsString();
  return true;
}

void KeyCommandManager::GetShortcutList(int inCommand, std::list<KeyCommand*>& outMappings) const {
  outMappings.clear();
  for (KeyCommand* mapping : mGlobalMappings) {
    if (mapping->GetCommandID() == inCommand) outMappings.push_back(mapping);
  }
}

UTF16String KeyCommandManager::GetShortcutString(KeyboardCode inCode, Modifiers inModifiers) {
  const auto localize = [](const char* inKey) {
    return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
  };
  UTF16String text;
  if (inModifiers.HasAny(lumui::ui::kModControl | lumui::ui::kModCommand))
    text += localize("$$$/vek/WinControlMod=Ctrl+");
  if (inModifiers.Has(lumui::ui::kModShift)) text += localize("$$$/vek/WinShiftMod=Shift+");
  if (inModifiers.Has(lumui::ui::kModAlt)) text += localize("$$$/vek/WinAltMod=Alt+");
  if (const UTF16String* name = FindKeyName(KeyboardCode(inCode.GetValue(true))))
    return text + *name;
  return inCode.IsPrintable() ? text + inCode.GetCharacter() : UTF16String();
}

int KeyCommandManager::GetCommandIdFromKeyEvent(const KeyboardEvent& inEvent, bool& outEndedHold) {
  outEndedHold = false;
  if (!ManagerState::Get().mStarted) return 0;
  if (inEvent.IsActionKeyUp() && mHandlingHold) {
    RouteEndHoldCommand();
    outEndedHold = true;
  }
  if (!inEvent.IsActionKeyDown()) return 0;
  const KeyCommand* mapping = FindFirst(mGlobalMappings, inEvent);
  return mapping ? mapping->GetCommandID() : 0;
}

bool KeyCommandManager::RouteKeyEvent(const KeyboardEvent& inEvent) {
  if (!ManagerState::Get().mStarted) return false;
  bool endedHold = false;
  const int global = GetCommandIdFromKeyEvent(inEvent, endedHold);
  if (endedHold) return true;
  const bool repeat = inEvent.IsRepeat();

  CommandHandlerBase* const handler = FindChainStart();
  if (!handler) return false;
  const KeyCommand* inContext = FindInContext(*handler, inEvent);
  if (inContext && RunIfKnown(inContext->GetCommandID(), repeat)) return true;
  return global != 0 && RunIfKnown(global, repeat);
}

const KeyCommand* KeyCommandManager::FindInContext(CommandHandlerBase& ioHandler,
                                                   const KeyboardEvent& inEvent) const {
  if (!ioHandler.HasCommandContext()) return nullptr;
  const auto found = mContextMappings.find(ioHandler.GetCommandContext());
  return found == mContextMappings.end() ? nullptr : FindFirst(found->second, inEvent);
}

bool KeyCommandManager::RunIfKnown(int inCommand, bool inRepeat) {
  bool enabled = false;
  bool checked = false;
  UTF16String title;
  if (!CommandHandlerBase::CallEnablementChain(inCommand, enabled, checked, title)) return false;
  if (enabled) CommandHandlerBase::CallCommandChain(inCommand);
  // A first press ends a hold without a word; the key up that follows ends nothing.
  mHandlingHold = inRepeat;
  if (inRepeat) {
    mHoldHandler = nullptr;
    mHeldCommand = inCommand;
  }
  return true;
}

bool KeyCommandManager::HasMappingFor(const KeyboardEvent& inEvent) const {
  if (!ManagerState::Get().mStarted || !inEvent.IsActionKeyDown()) return false;
  CommandHandlerBase* const handler = FindChainStart();
  if (!handler) return false;
  return FindInContext(*handler, inEvent) || FindFirst(mGlobalMappings, inEvent);
}

void KeyCommandManager::RouteEndHoldCommand() {
  if (!mHandlingHold) return;
  // A handler that throws has been told as well.
  struct StHoldEnd {
    ~StHoldEnd() {
      mManager.mHoldHandler = nullptr;
      mManager.mHandlingHold = false;
      mManager.mHeldCommand = 0;
    }
    KeyCommandManager& mManager;
  } holdEnd{*this};
  if (mHoldHandler) {
    mHoldHandler->CallMyEndHoldCommand(mHeldCommand);
  } else {
    CommandHandlerBase::CallEndHoldCommand(mHeldCommand);
  }
}

void KeyCommandManager::AddKeyMappingsChangedCallback(
    const boost::shared_ptr<MappingsChangedFunction>& inCallback) {
  mMappingsChanged.Add(inCallback);
}

void KeyCommandManager::RemoveKeyMappingsChangedCallback(
    const boost::shared_ptr<MappingsChangedFunction>& inCallback) {
  mMappingsChanged.Remove(inCallback);
}

void KeyCommandManager::NotifyOfKeyMappingsChanged(int inChange) const {
  mMappingsChanged.CallEach([inChange] { return inChange; });
}

void KeyCommandManager::ClearMappings() {
  DestroyAll(mGlobalMappings);
  for (auto& context : mContextMappings)
    DestroyAll(context.second);
  mContextMappings.clear();
}

template <class Read>
void KeyCommandManager::Load(Read inRead) {
  ClearMappings();
  try {
    const auto parser = lumcore::xml::GetParser(std::auto_ptr<lumcore::xml::AbstractParseHandler>(
        new KeyMapParseHandler(mGlobalMappings, mContextMappings)));
    inRead(*parser);
  } catch (...) {  // whatever it is, the caller gets it, and no half-read map
    ClearMappings();
    throw;
  }
}

void KeyCommandManager::LoadKeyMappings(const lumcore::filesupport::File& inFile) {
  Load([&](lumcore::xml::Parser& ioParser) {
    ioParser.Parse(lumcore::filesupport::File(inFile.FullPath()));
  });
}

void KeyCommandManager::LoadKeyMappingsFromBuffer(const UTF8String& inBytes) {
  if (inBytes.empty()) return ClearMappings();
  Load([&](lumcore::xml::Parser& ioParser) { ioParser.Parse(inBytes, UTF16String()); });
}

void KeyCommandManager::SaveKeyMappings(const lumcore::filesupport::File& inFile) const {
  UTF8String bytes;
  SaveKeyMappingsToBuffer(bytes);
  inFile.Recreate(std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
}

void KeyCommandManager::SaveKeyMappingsToBuffer(UTF8String& outBytes) const {
  outBytes = RenderKeyMap(mGlobalMappings);
}

}  // namespace vek::uisupport
