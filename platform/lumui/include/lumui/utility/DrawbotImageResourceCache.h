// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <memory>

#include "lumcore/Strings.h"
#include "lumui/Export.h"
#include "lumui/drawbot/Image.h"

namespace lumui::drawbot {
class SupplierInterface;
}

namespace lumui::utility {

class ResourceManager;

// Images out of the resources of modules, each read once. A picture's rasters stand in the module
// as PNG resources of its name at the scales 1, 1.5, 2 and 3, with nothing, "_AT_3TO2X", "_AT_2X"
// and "_AT_3X" behind the name; they become one image, which draws the raster that fits the screen.
// Where a module has no raster of the name, an SVG resource of one of the same names is taken.
//
// It keeps no reference to a manager or a supplier, but knows both by their module and address: the
// modules stay loaded while it lives.
class LUMUI_API DrawbotImageResourceCache {
 public:
  DrawbotImageResourceCache();
  ~DrawbotImageResourceCache();
  DrawbotImageResourceCache(const DrawbotImageResourceCache&) = delete;
  DrawbotImageResourceCache& operator=(const DrawbotImageResourceCache&) = delete;

  // Without regard to case; an ending ".png" or ".svg" of the name does not count. Never null:
  // throws a config::Error that names the module and the image if it is not there or damaged.
  boost::intrusive_ptr<drawbot::ImageInterface> GetImage(
      const ResourceManager& inResources, const drawbot::SupplierInterface& inSupplier,
      const lumcore::UTF8String& inName) const;

 private:
  struct Images;
  std::unique_ptr<Images> mImages;
};

}  // namespace lumui::utility
