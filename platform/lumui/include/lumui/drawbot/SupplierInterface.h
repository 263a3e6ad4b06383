// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <string_view>
#include <vector>

#include "lumcore/Strings.h"
#include "lumui/Export.h"
#include "lumui/drawbot/Brush.h"
#include "lumui/drawbot/Font.h"
#include "lumui/drawbot/Path.h"
#include "lumui/drawbot/Pen.h"

namespace lumui::drawbot {

class ImageInterface;
class Surface;

// Makes what a drawbot draws with. Suppliers are borrowed wherever they are passed; the default one
// lives as long as the process. Fonts and surfaces need a running application object.
class LUMUI_API SupplierInterface {
 public:
  virtual ~SupplierInterface();

  // Family names are UTF-8; null or empty takes the interface font's. The size is in units; 0 or
  // less takes the interface font's size, and others are rounded to whole units.
  virtual FontP NewFont(const char* inFamilyName, float inSize,
                        FontStyle inStyle = FontStyle::kPlain) const = 0;

  // PNG and SVG, known by their first bytes, not by their name. A damaged, empty, oversized or
  // unknown picture throws a config::Error that names the path (or inName) and the cause. inScale
  // is the pixels of a raster in one unit; an SVG's own size is in units and it takes any scale.
  virtual boost::intrusive_ptr<ImageInterface> NewImageFromFile(std::string_view inPath,
                                                                float inScale = 1.0f) const = 0;
  virtual boost::intrusive_ptr<ImageInterface> NewImageFromBytes(std::string_view inBytes,
                                                                 std::string_view inName,
                                                                 float inScale = 1.0f) const = 0;
  // One image out of rasters of the same picture at several scales. Its size is that of the first:
  // those of odd scales may differ from it by a part of a unit, and are drawn to it.
  virtual boost::intrusive_ptr<ImageInterface> NewMultiScaleImage(
      const std::vector<boost::intrusive_ptr<ImageInterface>>& inImages) const = 0;

  // Throws a config::Error when the size is empty or over kMaxSurfacePixels a side.
  virtual boost::intrusive_ptr<Surface> NewSurface(float inWidth, float inHeight,
                                                   float inScale = 1.0f) const = 0;

  // These are values; the supplier makes them so that a caller need not know it.
  Path NewPath() const { return Path(); }
  Pen NewPen(const ColorRGBA& inColor, float inWidth = 1.0f) const { return Pen(inColor, inWidth); }
  Brush NewBrush(const ColorRGBA& inColor) const { return Brush(inColor); }

  // Also the limit for the sides of a loaded picture. It keeps a damaged header from claiming
  // gigabytes, and lies within what the rasteriser's 16-bit coordinates can hold.
  static constexpr int kMaxSurfacePixels = 16384;
};

LUMUI_API SupplierInterface* GetDefaultSupplier();

}  // namespace lumui::drawbot
