// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <string_view>

#include "lumcore/utility/RefCounted.h"
#include "lumui/Export.h"
#include "lumui/drawbot/Color.h"

namespace lumui::drawbot {

class Drawbot;
class ImageInterface;

// An off-screen picture to draw on, made by the supplier; at first every pixel is transparent.
// Its drawbot works in units; the picture has size times scale pixels, rounded up.
class LUMUI_API Surface : public lumcore::utility::RefCountedObject {
 public:
  ~Surface() override;

  virtual float GetWidth() const = 0;   // units
  virtual float GetHeight() const = 0;  // units
  virtual float GetScale() const = 0;
  virtual int GetPixelWidth() const = 0;
  virtual int GetPixelHeight() const = 0;

  // Owned by the surface and valid as long as it.
  virtual Drawbot& GetDrawbot() = 0;

  // Counted in pixels from the top left. Outside the surface the answer is transparent black.
  virtual ColorRGBA GetPixel(int inX, int inY) const = 0;
  // A picture of what is drawn so far; later drawing does not change it.
  virtual boost::intrusive_ptr<ImageInterface> MakeImage() const = 0;
  // Throws a config::Error that names the path and the cause. The file is replaced in one step.
  virtual void SavePNG(std::string_view inPath) const = 0;
};

}  // namespace lumui::drawbot
