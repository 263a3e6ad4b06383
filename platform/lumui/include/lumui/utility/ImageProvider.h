// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumcore/Strings.h"
#include "lumui/Export.h"
#include "lumui/drawbot/Image.h"

namespace lumui::drawbot {
class SupplierInterface;
}

namespace lumui::utility {

class DrawbotImageResourceCache;
class ResourceManager;

// Gives images by name alone, for who has a fixed module and supplier. It borrows all three of what
// it is made of and touches none of them but in GetImage.
class LUMUI_API ImageProvider {
 public:
  // Manager and supplier are not null (a contract); without a cache each image is read anew.
  ImageProvider(const ResourceManager* inResources, const drawbot::SupplierInterface* inSupplier,
                const DrawbotImageResourceCache* inCache);

  // See DrawbotImageResourceCache::GetImage.
  boost::intrusive_ptr<drawbot::ImageInterface> GetImage(const lumcore::UTF8String& inName) const;

 private:
  const ResourceManager* mResources;
  const drawbot::SupplierInterface* mSupplier;
  const DrawbotImageResourceCache* mCache;
};

}  // namespace lumui::utility
