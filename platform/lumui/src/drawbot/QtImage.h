// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QSize>
#include <boost/intrusive_ptr.hpp>
#include <string_view>
#include <vector>

#include "lumui/drawbot/Image.h"

namespace lumui::drawbot {

// The image behind every handle: it answers with the raster to draw.
class QtImage : public ImageInterface {
 public:
  QtImage(float inWidth, float inHeight) : mWidth(inWidth), mHeight(inHeight) {}

  float GetWidth() const override { return mWidth; }
  float GetHeight() const override { return mHeight; }

  // inPixels is the size that the image takes on the surface. A raster answers with the one that
  // PickScale names, in its own size; a vector picture with one of just that size.
  virtual const QImage& GetRaster(float inSurfaceScale, const QSize& inPixels) const = 0;

 private:
  float mWidth;
  float mHeight;
};

boost::intrusive_ptr<ImageInterface> MakeRasterImage(const QImage& inPixels, float inScale);

// See SupplierInterface.
boost::intrusive_ptr<ImageInterface> LoadImageFile(std::string_view inPath, float inScale);
boost::intrusive_ptr<ImageInterface> LoadImageBytes(std::string_view inBytes,
                                                    std::string_view inName, float inScale);
boost::intrusive_ptr<ImageInterface> JoinImages(
    const std::vector<boost::intrusive_ptr<ImageInterface>>& inImages);

// Fails the contract for an image that another supplier made.
const QtImage& AsQtImage(const ImageInterface& inImage);

}  // namespace lumui::drawbot
