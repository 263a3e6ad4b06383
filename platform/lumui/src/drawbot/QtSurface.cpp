// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "drawbot/QtSurface.h"

#include <QImageWriter>
#include <QSaveFile>
#include <utility>

#include "drawbot/ImageError.h"
#include "drawbot/QtConvert.h"
#include "drawbot/QtImage.h"

namespace lumui::drawbot {

namespace {

// The picture's own device pixel ratio would do this too, but not below 1.
QPainter& Scaled(QPainter& inPainter, float inScale) {
  inPainter.scale(inScale, inScale);
  return inPainter;
}

}  // namespace

QtSurface::QtSurface(float inWidth, float inHeight, float inScale, QImage inPixels)
    : mWidth(inWidth),
      mHeight(inHeight),
      mScale(inScale),
      mPixels(std::move(inPixels)),
      mPainter(&mPixels),
      mDrawbot(Scaled(mPainter, inScale), lumcore::geom::RectT<float>(0, 0, inWidth, inHeight)) {}

ColorRGBA QtSurface::GetPixel(int inX, int inY) const {
  if (!mPixels.valid(inX, inY)) return ColorRGBA(0, 0, 0, 0);
  return FromQt(mPixels.pixelColor(inX, inY));
}

boost::intrusive_ptr<ImageInterface> QtSurface::MakeImage() const {
  // A deep copy: the open painter writes to these bytes without asking who shares them.
  return MakeRasterImage(mPixels.copy(), mScale);
}

void QtSurface::SavePNG(std::string_view inPath) const {
  QSaveFile file(ToQt(inPath));
  if (!file.open(QIODevice::WriteOnly)) ThrowCannotWrite(inPath, file.errorString());
  QImageWriter writer(&file, "png");
  if (!writer.write(mPixels)) ThrowCannotWrite(inPath, writer.errorString());
  if (!file.commit()) ThrowCannotWrite(inPath, file.errorString());
}

}  // namespace lumui::drawbot
