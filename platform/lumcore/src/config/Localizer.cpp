// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/config/Localizer.h"

#include <string_view>
#include <utility>

#include "lumcore/utility/StringUtils.h"

namespace lumcore::config {

namespace {

std::unique_ptr<Localizer>& Instance() {
  static std::unique_ptr<Localizer> sInstance;
  return sInstance;
}

}  // namespace

Localizer::Localizer() = default;
Localizer::~Localizer() = default;

Localizer* Localizer::Get() {
  auto& instance = Instance();
  if (!instance) instance = std::make_unique<Localizer>();
  return instance.get();
}

void Localizer::Set(std::unique_ptr<Localizer> inLocalizer) {
  Instance() = std::move(inLocalizer);
}

UTF16String Localizer::GetLocalizedString(const char* inKey) const {
  return DoGetLocalizedString(inKey);
}

UTF16String Localizer::DoGetLocalizedString(const char* inKey) const {
  const std::string_view key(inKey);
  const auto equals = key.find('=');
  return equals == key.npos ? UTF16String() : utility::ToUTF16(key.substr(equals + 1));
}

}  // namespace lumcore::config
