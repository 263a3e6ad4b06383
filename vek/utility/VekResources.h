// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumcore/Strings.h"
#include "lumui/drawbot/Image.h"
#include "vek/config/Export.h"

namespace lumui::drawbot {
class SupplierInterface;
}
namespace lumui::utility {
class DrawbotImageResourceCache;
class ImageProvider;
class ResourceManager;
}  // namespace lumui::utility

namespace vek::utility {

// The library's own resources: images, and documents of the type "xml". What these give is owned by
// the library and borrowed by the caller, until DisposeVekResources.

// Made at the first call, also at the first one after a disposal.
VEK_API const lumui::utility::ResourceManager* GetResourceManager();
// Made when the library is loaded, and only then: null after a disposal.
VEK_API const lumui::utility::DrawbotImageResourceCache* GetDrawbotImageCache();
// One of the library's images, out of the cache as long as there is one: behind a disposal, as in a
// second application of the process, each call loads it anew. Null for one that there is not.
VEK_API boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetLibraryImage(
    const lumui::drawbot::SupplierInterface& inSupplier, const lumcore::UTF8String& inName);
// Made at the first call. Needs the application's workspace (a contract), whose draw supplier it
// takes.
VEK_API lumui::utility::ImageProvider* GetImageProvider();

// Deletes the resource manager and the image cache; images that somebody holds stay good. The image
// provider is left as it is, and GetImageProvider goes on answering it, though what it works with
// is gone: ask it for nothing after this.
VEK_API void DisposeVekResources();

}  // namespace vek::utility
