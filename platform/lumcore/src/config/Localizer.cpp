// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/config/Localizer.h"

#include <atomic>
#include <string_view>

#include "lumcore/filesupport/Dir.h"
#include "lumcore/utility/StringUtils.h"

namespace lumcore::config {

namespace {

std::atomic<Localizer*> sInPlace = nullptr;

}  // namespace

Localizer::Localizer() = default;

Localizer::~Localizer() {
  Localizer* self = this;
  sInPlace.compare_exchange_strong(self, nullptr);
}

Localizer* Localizer::Get() {
  // Never destroyed: texts are asked for until the process ends.
  static Localizer* const sWithoutCatalogues = new Localizer;
  Localizer* const inPlace = sInPlace;
  return inPlace ? inPlace : sWithoutCatalogues;
}

void Localizer::Set(Localizer* inLocalizer, const filesupport::Dir& inLocalizationDir) {
  if (inLocalizer) inLocalizer->DoSetLocalizationDir(inLocalizationDir);
  sInPlace = inLocalizer;
}

UTF16String Localizer::GetLocalizedString(const char* inKey) const {
  return DoGetLocalizedString(inKey);
}

UTF16String Localizer::DoGetLocalizedString(const char* inKey) const {
  const std::string_view key(inKey);
  const auto equals = key.find('=');
  return equals == key.npos ? UTF16String() : utility::ToUTF16(key.substr(equals + 1));
}

void Localizer::DoSetLocalizationDir(const filesupport::Dir&) {}

}  // namespace lumcore::config
