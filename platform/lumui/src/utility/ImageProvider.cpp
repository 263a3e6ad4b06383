// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/utility/ImageProvider.h"

#include "lumcore/debug/Contract.h"
#include "lumui/utility/DrawbotImageResourceCache.h"

namespace lumui::utility {

ImageProvider::ImageProvider(const ResourceManager* inResources,
                             const drawbot::SupplierInterface* inSupplier,
                             const DrawbotImageResourceCache* inCache)
    : mResources(inResources), mSupplier(inSupplier), mCache(inCache) {
  LUM_INPUT_CONTRACT(mResources != nullptr);
  LUM_INPUT_CONTRACT(mSupplier != nullptr);
}

boost::intrusive_ptr<drawbot::ImageInterface> ImageProvider::GetImage(
    const lumcore::UTF8String& inName) const {
  if (mCache) return mCache->GetImage(*mResources, *mSupplier, inName);
  return DrawbotImageResourceCache().GetImage(*mResources, *mSupplier, inName);
}

}  // namespace lumui::utility
