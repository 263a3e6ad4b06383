// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "drawbot/QtSupplier.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <algorithm>
#include <cmath>

#include "drawbot/ImageError.h"
#include "drawbot/QtFont.h"
#include "drawbot/QtImage.h"
#include "drawbot/QtSurface.h"
#include "lumcore/debug/Contract.h"
#include "lumui/ui/Fonts.h"

namespace lumui::drawbot {

namespace {

// More fonts than an application draws at once. Past it those that nobody holds are let go.
constexpr std::size_t kKeptFonts = 64;
// The rasteriser's limit for a glyph is below this; it also bounds a size that is out of its mind.
constexpr float kLargestFontSize = 2000;

const QtSupplier& TheSupplier() {
  return static_cast<const QtSupplier&>(*GetDefaultSupplier());
}

void ForgetFontsOfEndingApplication() {
  TheSupplier().ForgetFonts();
}

}  // namespace

SupplierInterface* GetDefaultSupplier() {
  static QtSupplier sSupplier;
  return &sSupplier;
}

FontP QtSupplier::NewFont(const char* inFamilyName, float inSize, FontStyle inStyle) const {
  LUM_INPUT_CONTRACT(qGuiApp != nullptr);
  const bool isNamed = inFamilyName != nullptr && *inFamilyName != '\0';
  const float size = inSize > 0 ? std::min(inSize, kLargestFontSize) : ui::GetFontSize(0);
  FontKey key(isNamed ? inFamilyName : ui::GetFontName(0),
              std::max(1, static_cast<int>(std::lround(size))), inStyle);
  if (const auto known = mFonts.find(key); known != mFonts.end()) return known->second;

  if (mFonts.size() >= kKeptFonts) DropUnusedFonts();
  // Routines run once, so each application object gets its own.
  if (mFonts.empty()) qAddPostRoutine(&ForgetFontsOfEndingApplication);
  FontP font(new QtFont(std::get<0>(key), std::get<1>(key), inStyle));
  mFonts.emplace(std::move(key), font);
  return font;
}

void QtSupplier::DropUnusedFonts() const {
  for (auto it = mFonts.begin(); it != mFonts.end();) {
    it = it->second->GetRefCount() == 1 ? mFonts.erase(it) : std::next(it);
  }
}

boost::intrusive_ptr<ImageInterface> QtSupplier::NewImageFromFile(std::string_view inPath,
                                                                  float inScale) const {
  return LoadImageFile(inPath, inScale);
}

boost::intrusive_ptr<ImageInterface> QtSupplier::NewImageFromBytes(std::string_view inBytes,
                                                                   std::string_view inName,
                                                                   float inScale) const {
  return LoadImageBytes(inBytes, inName, inScale);
}

boost::intrusive_ptr<ImageInterface> QtSupplier::NewMultiScaleImage(
    const std::vector<boost::intrusive_ptr<ImageInterface>>& inImages) const {
  return JoinImages(inImages);
}

boost::intrusive_ptr<Surface> QtSupplier::NewSurface(float inWidth, float inHeight,
                                                     float inScale) const {
  const double width = std::ceil(static_cast<double>(inWidth) * inScale);
  const double height = std::ceil(static_cast<double>(inHeight) * inScale);
  const bool fits = width >= 1 && height >= 1 && width <= kMaxSurfacePixels &&
                    height <= kMaxSurfacePixels && inScale > 0;
  if (!fits) ThrowBadSize("off-screen", width, height);
  QImage pixels(static_cast<int>(width), static_cast<int>(height),
                QImage::Format_ARGB32_Premultiplied);
  if (pixels.isNull()) throw std::bad_alloc();
  pixels.fill(Qt::transparent);
  return boost::intrusive_ptr<Surface>(
      new QtSurface(inWidth, inHeight, inScale, std::move(pixels)));
}

}  // namespace lumui::drawbot
