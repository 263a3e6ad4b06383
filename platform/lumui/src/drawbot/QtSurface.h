// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPainter>

#include "drawbot/QtDrawbot.h"
#include "lumui/drawbot/Surface.h"

namespace lumui::drawbot {

class QtSurface : public Surface {
 public:
  // inPixels is empty (all transparent) and as large as the size times the scale, rounded up.
  QtSurface(float inWidth, float inHeight, float inScale, QImage inPixels);

  float GetWidth() const override { return mWidth; }
  float GetHeight() const override { return mHeight; }
  float GetScale() const override { return mScale; }
  int GetPixelWidth() const override { return mPixels.width(); }
  int GetPixelHeight() const override { return mPixels.height(); }
  Drawbot& GetDrawbot() override { return mDrawbot; }
  ColorRGBA GetPixel(int inX, int inY) const override;
  boost::intrusive_ptr<ImageInterface> MakeImage() const override;
  void SavePNG(std::string_view inPath) const override;

 private:
  float mWidth;
  float mHeight;
  float mScale;
  QImage mPixels;
  QPainter mPainter;
  QtDrawbot mDrawbot;
};

}  // namespace lumui::drawbot
