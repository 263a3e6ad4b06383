// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/MessageException.h"

#include "lumcore/config/Localizer.h"

namespace vek::uisupport {

MessageException::~MessageException() = default;

StringException::StringException(const lumcore::UTF16String& inMessage) : mMessage(inMessage) {}

StringException::~StringException() = default;

void StringException::GetMsg(lumcore::UTF16String& outMessage) const {
  outMessage = mMessage;
}

StringKeyException::StringKeyException(const char* inKey) : mKey(inKey) {}

StringKeyException::~StringKeyException() = default;

void StringKeyException::GetMsg(lumcore::UTF16String& outMessage) const {
  outMessage = lumcore::config::Localizer::Get()->GetLocalizedString(mKey.c_str());
  if (!outMessage.empty()) return;
  // Unit by unit: a key is no text, and the user shall see it as it is.
  for (const char unit : mKey)
    outMessage += static_cast<unsigned char>(unit);
}

void StringKeyException::GetKey(std::string& outKey) const {
  outKey = mKey;
}

}  // namespace vek::uisupport
