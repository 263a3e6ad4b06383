// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"

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
// Made at the first call. Needs the application's workspace (a contract), whose draw supplier it
// takes.
VEK_API lumui::utility::ImageProvider* GetImageProvider();

// Deletes the resource manager and the image cache; images that somebody holds stay good. The image
// provider is left as it is, and GetImageProvider goes on answering it, though what it works with
// is gone: ask it for nothing after this.
VEK_API void DisposeVekResources();

}  // namespace vek::utility
