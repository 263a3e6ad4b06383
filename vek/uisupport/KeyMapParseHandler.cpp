// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/KeyMapParseHandler.h"

#include <memory>
#include <string_view>
#include <utility>

#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/ModifierKeys.h"
#include "vek/uisupport/CommandRegistry.h"
#include "vek/uisupport/KeyFileText.h"

namespace vek::uisupport {

using lumcore::UTF16String;
using lumui::ui::KeyboardCode;

namespace {

constexpr unsigned short kNoControlCode = 0xFFFF;

enum Element {
  kMapping,
  kCommand,
  kCharacter,
  kControlCode,
  kContext,
  kShift,
  kCommandKey,
  kAlt,
  kHold,
  kExtended,
  kProtected,
  kOther,
};

constexpr std::pair<std::string_view, Element> kElements[] = {
    {"keycmd", kMapping},  {"cmd", kCommand},         {"uchar", kCharacter},
    {"key", kControlCode}, {"ctx", kContext},         {"shift", kShift},
    {"alt", kAlt},         {"cmdkey", kCommandKey},   {"hold", kHold},
    {"ext", kExtended},    {"protected", kProtected},
};

Element ElementFor(const UTF16String& inName) {
  for (const auto& [text, element] : kElements) {
    if (IsText(inName, text)) return element;
  }
  return kOther;
}

}  // namespace

KeyMapParseHandler::KeyMapParseHandler(KeyCommandList& ioGlobal, KeyCommandContexts& ioContexts)
    : mGlobal(ioGlobal), mContexts(ioContexts), mControlCode(kNoControlCode) {}

KeyMapParseHandler::~KeyMapParseHandler() = default;

void KeyMapParseHandler::StartElement(const UTF16String& inName,
                                      const lumcore::xml::Attributes& inAttributes) {
  switch (ElementFor(inName)) {
    case kMapping:
      return StartMapping(inAttributes);
    case kCommand:
    case kCharacter:
    case kControlCode:
    case kContext:
      return StartText();
    case kShift:
      return mModifiers.Set(lumui::ui::kModShift);
    case kCommandKey:
      return mModifiers.Set(lumui::ui::kModCommand);
    case kAlt:
      return mModifiers.Set(lumui::ui::kModAlt);
    case kHold:
      mHold = true;
      return;
    case kExtended:
      mExtended = true;
      return;
    case kProtected:
      mProtected = true;
      return;
    case kOther:
      return;
  }
}

void KeyMapParseHandler::StartMapping(const lumcore::xml::Attributes& inAttributes) {
  mKeyGivenByCode = false;
  mModifiers = KeyCommand::Modifiers();
  mHold = false;
  mControlCode = kNoControlCode;
  mCommandName.clear();
  mContext.clear();
  mExtended = false;
  mProtected = false;
  mSystemMatches = IsForThisSystem(inAttributes);
}

void KeyMapParseHandler::StartText() {
  mCollectingText = true;
  mCharacter = 0;
  mExtended = false;
}

void KeyMapParseHandler::Characters(const UTF16String& inText) {
  if (mCollectingText) mText += inText;
}

void KeyMapParseHandler::EndElement(const UTF16String& inName) {
  switch (ElementFor(inName)) {
    case kMapping:
      Commit();
      break;
    case kCommand:
      mCommandName = mText;
      break;
    case kCharacter:
      TakeCharacter();
      break;
    case kControlCode:
      TakeControlCode();
      break;
    case kContext:
      mContext = mText;
      break;
    default:
      break;
  }
  mText.clear();
  mCollectingText = false;
}

void KeyMapParseHandler::TakeCharacter() {
  mCharacter = mText.empty() ? 0 : mText.front();
  if (!mText.empty()) mKeyGivenByCode = false;
}

void KeyMapParseHandler::TakeControlCode() {
  mControlCode = ReadNumber<unsigned short>(mText);
  mKeyGivenByCode = true;
}

void KeyMapParseHandler::Commit() {
  if (!mSystemMatches) return;
  const int command = CommandRegistry::Get().CommandIDForName(mCommandName, false);
  if (command == 0) return;
  if (!mKeyGivenByCode && mCharacter == 0) return;
  const KeyboardCode code = mKeyGivenByCode
                                ? KeyboardCode::CreateFromControlCode(mControlCode, mExtended)
                                : KeyboardCode::CreateFromKeyboardChar(mCharacter, mExtended);
  auto mapping = std::make_unique<KeyCommand>(
      command, code, mModifiers, lumui::ui::KeyboardEvent::kActionKeyDown, mHold, mProtected);
  KeyCommandList& list = mContext.empty() ? mGlobal : mContexts[lumcore::utility::ToUTF8(mContext)];
  list.push_back(mapping.get());
  static_cast<void>(mapping.release());  // the list owns it now
}

}  // namespace vek::uisupport
