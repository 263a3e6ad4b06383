// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/utility/RefCounted.h"
#include "lumui/Export.h"

namespace lumui::drawbot {

// A picture with a size in units, made by the supplier and shared by count. It holds one or more
// rasters of different scale (pixels in a unit), or a vector picture that has every scale; drawing
// takes the raster that fits the scale of the surface. It never changes after it is made.
class LUMUI_API ImageInterface : public lumcore::utility::RefCountedObject {
 public:
  ~ImageInterface() override;

  virtual float GetWidth() const = 0;
  virtual float GetHeight() const = 0;

  // The scale that is drawn on a surface of inSurfaceScale: the least that is not below it,
  // otherwise the largest there is; a vector picture answers inSurfaceScale itself.
  virtual float PickScale(float inSurfaceScale) const = 0;

  // The opacity with which controls draw the image of something that is disabled.
  static constexpr float kDisabledOpacity = 0.4f;
};

}  // namespace lumui::drawbot
