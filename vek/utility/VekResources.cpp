// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/utility/VekResources.h"

#include "lumcore/debug/Contract.h"
#include "lumcore/utility/ScopedPtr.h"
#include "lumui/ui/ModuleHandle.h"
#include "lumui/utility/DrawbotImageResourceCache.h"
#include "lumui/utility/ImageProvider.h"
#include "lumui/utility/ResourceManager.h"
#include "vek/uisupport/MainWindowLookup.h"

namespace vek::utility {

using lumcore::utility::ScopedPtr;
using lumui::utility::DrawbotImageResourceCache;
using lumui::utility::ImageProvider;
using lumui::utility::ResourceManager;

namespace {

ScopedPtr<ResourceManager> sResourceManager;
ScopedPtr<DrawbotImageResourceCache> sImageCache(new DrawbotImageResourceCache);
ScopedPtr<ImageProvider> sImageProvider;

}  // namespace

const ResourceManager* GetResourceManager() {
  if (!sResourceManager) {
    // An object that nothing outside can stand for, as a function that is given out could.
    sResourceManager.Reset(new ResourceManager(lumui::ui::ModuleOfAddress(&sResourceManager)));
  }
  return sResourceManager.Get();
}

const DrawbotImageResourceCache* GetDrawbotImageCache() {
  return sImageCache.Get();
}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetLibraryImage(
    const lumui::drawbot::SupplierInterface& inSupplier, const lumcore::UTF8String& inName) {
  return ImageProvider(GetResourceManager(), &inSupplier, GetDrawbotImageCache()).GetImage(inName);
}

ImageProvider* GetImageProvider() {
  if (!sImageProvider) {
    const lumui::drawbot::SupplierInterface* const supplier = uisupport::FindDrawSupplier();
    LUM_INPUT_CONTRACT(supplier != nullptr);
    sImageProvider.Reset(new ImageProvider(GetResourceManager(), supplier, GetDrawbotImageCache()));
  }
  return sImageProvider.Get();
}

void DisposeVekResources() {
  sResourceManager.Reset();
  sImageCache.Reset();
}

}  // namespace vek::utility
