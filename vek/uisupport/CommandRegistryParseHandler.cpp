// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/CommandRegistryParseHandler.h"

#include <string>
#include <string_view>
#include <utility>

#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"
#include "vek/uisupport/CommandRegistry.h"
#include "vek/uisupport/KeyFileText.h"
#include "vek/uisupport/SyntheticCmdMgr.h"

namespace vek::uisupport {

using lumcore::UTF16String;

namespace {

enum State {
  kOutside = 0,
  kInCommand,
  kInName,
  kInDisplayName,
  kInId,
  kInDescription,
  kInRepeatable,
};

constexpr std::pair<std::string_view, State> kElements[] = {
    {"cmd", kInCommand},
    {"name", kInName},
    {"displayname", kInDisplayName},
    {"id", kInId},
    {"description", kInDescription},
    {"repeatable", kInRepeatable},
};

State StateFor(const UTF16String& inName) {
  for (const auto& [text, state] : kElements) {
    if (IsText(inName, text)) return state;
  }
  return kOutside;
}

// Each bracket goes for itself: one without its partner goes too.
void StripBrackets(std::string& ioKey) {
  if (ioKey.size() < 2) return;
  if (ioKey.front() == '(') ioKey.erase(0, 1);
  if (ioKey.back() == ')') ioKey.pop_back();
}

UTF16String Localize(const UTF16String& inText) {
  std::string key = lumcore::utility::ToStdString(inText);
  StripBrackets(key);
  return lumcore::config::Localizer::Get()->GetLocalizedString(key.c_str());
}

}  // namespace

CommandRegistryParseHandler::CommandRegistryParseHandler(bool inReserveSyntheticIds)
    : mState(kOutside), mReserveSyntheticIds(inReserveSyntheticIds), mSystemMatches(true) {}

CommandRegistryParseHandler::~CommandRegistryParseHandler() = default;

void CommandRegistryParseHandler::StartElement(const UTF16String& inName,
                                               const lumcore::xml::Attributes& inAttributes) {
  mState = StateFor(inName);
  if (mState == kInCommand) StartCommand(inAttributes);
}

void CommandRegistryParseHandler::StartCommand(const lumcore::xml::Attributes& inAttributes) {
  for (UTF16String* text : {&mName, &mDisplayName, &mId, &mDescription, &mRepeatable})
    text->clear();
  mSystemMatches = IsForThisSystem(inAttributes);
  if (const UTF16String* id = inAttributes.Find("id")) mId = *id;
}

void CommandRegistryParseHandler::Characters(const UTF16String& inText) {
  if (UTF16String* text = GetTextOfState()) *text += inText;
}

UTF16String* CommandRegistryParseHandler::GetTextOfState() {
  switch (mState) {
    case kInName:
      return &mName;
    case kInDisplayName:
      return &mDisplayName;
    case kInId:
      return &mId;
    case kInDescription:
      return &mDescription;
    case kInRepeatable:
      return &mRepeatable;
    default:
      return nullptr;
  }
}

void CommandRegistryParseHandler::EndElement(const UTF16String& inName) {
  mState = kOutside;
  if (!IsText(inName, "cmd") || !mSystemMatches) return;
  const int id = DetermineId();
  const UTF16String displayName = Localize(mDisplayName);
  const UTF16String description = Localize(mDescription);
  CommandRegistry::Get().RegisterCommand(id, mName, displayName, description,
                                         IsText(mRepeatable, "true"));
}

int CommandRegistryParseHandler::DetermineId() const {
  if (!mId.empty()) return ReadNumber<int>(mId);
  return mReserveSyntheticIds ? SyntheticCmdMgr::Get().ReserveCmd() : 0;
}

}  // namespace vek::uisupport
