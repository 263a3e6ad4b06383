// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/skins/core/SkinManager.h"

#include <utility>

namespace lumui::skins::core {

namespace {

std::unique_ptr<SkinSet>& DefaultSet() {
  static std::unique_ptr<SkinSet> sSet;
  return sSet;
}

}  // namespace

Skin::~Skin() = default;

SkinSet::SkinSet(std::string_view inName) : mName(inName) {}

SkinSet::~SkinSet() = default;

void SkinSet::RegisterSkin(std::string_view inClass, std::shared_ptr<const Skin> inSkin) {
  const std::string name(inClass);
  if (inSkin) {
    mSkins[name] = std::move(inSkin);
  } else {
    mSkins.erase(name);
  }
}

const Skin* SkinSet::FindSkin(std::string_view inClass) const {
  const auto found = mSkins.find(inClass);
  return found == mSkins.end() ? nullptr : found->second.get();
}

void SkinManager::Initialize(std::string_view inSetName) {
  DefaultSet() = std::make_unique<SkinSet>(inSetName);
}

void SkinManager::Terminate() {
  DefaultSet().reset();
}

SkinSet* SkinManager::GetDefaultSet() {
  return DefaultSet().get();
}

}  // namespace lumui::skins::core
