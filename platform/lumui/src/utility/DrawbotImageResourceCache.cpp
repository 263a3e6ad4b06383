// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/utility/DrawbotImageResourceCache.h"

#include <map>
#include <tuple>
#include <vector>

#include "lumcore/utility/StringUtils.h"
#include "lumui/utility/ResourceManager.h"
#include "utility/ResourceImage.h"

namespace lumui::utility {

using lumcore::UTF16String;
using lumcore::UTF8String;

struct DrawbotImageResourceCache::Images {
  using Key = std::tuple<HINSTANCE, const drawbot::SupplierInterface*, UTF16String>;
  std::map<Key, boost::intrusive_ptr<drawbot::ImageInterface>> byKey;
};

DrawbotImageResourceCache::DrawbotImageResourceCache() : mImages(std::make_unique<Images>()) {}

DrawbotImageResourceCache::~DrawbotImageResourceCache() = default;

boost::intrusive_ptr<drawbot::ImageInterface> DrawbotImageResourceCache::GetImage(
    const ResourceManager& inResources, const drawbot::SupplierInterface& inSupplier,
    const UTF8String& inName) const {
  const UTF16String name = ImageNameWithoutEnding(lumcore::utility::ToUTF16(inName));
  const Images::Key key(inResources.GetModule(), &inSupplier, lumcore::utility::FoldCase(name));
  const auto found = mImages->byKey.find(key);
  if (found != mImages->byKey.end()) return found->second;
  const auto image = LoadResourceImage(inResources, inSupplier, name);
  mImages->byKey.emplace(key, image);
  return image;
}

}  // namespace lumui::utility
