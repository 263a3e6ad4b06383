// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <boost/intrusive_ptr.hpp>
#include <string>

#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/drawbot/Surface.h"

namespace test_support {

using lumui::drawbot::ColorRGBA;
using Point = lumui::drawbot::Drawbot::Point;
using Rect = lumui::drawbot::Drawbot::Rect;

inline constexpr ColorRGBA kRed(1, 0, 0);
inline constexpr ColorRGBA kGreen(0, 1, 0);
inline constexpr ColorRGBA kBlue(0, 0, 1);
inline constexpr ColorRGBA kBlack(0, 0, 0);

// A test that draws, with the supplier and pictures as text. Its program links UIApplication.cpp.
class DrawbotTest : public testing::Test {
 protected:
  boost::intrusive_ptr<lumui::drawbot::Surface> NewSurface(float inWidth, float inHeight,
                                                           float inScale = 1) const {
    return mSupplier.NewSurface(inWidth, inHeight, inScale);
  }

  const lumui::drawbot::SupplierInterface& mSupplier = *lumui::drawbot::GetDefaultSupplier();
};

// One line a row of pixels: '.' for transparent; R, G, B and K for the four colours above; '+' for
// any other, such as a pixel at the rim of a curve.
inline std::string ToText(const lumui::drawbot::Surface& inSurface) {
  std::string text;
  for (int y = 0; y < inSurface.GetPixelHeight(); ++y) {
    for (int x = 0; x < inSurface.GetPixelWidth(); ++x) {
      const ColorRGBA pixel = inSurface.GetPixel(x, y);
      text += pixel.alpha == 0  ? '.'
              : pixel == kRed   ? 'R'
              : pixel == kGreen ? 'G'
              : pixel == kBlue  ? 'B'
              : pixel == kBlack ? 'K'
                                : '+';
    }
    text += '\n';
  }
  return text;
}

}  // namespace test_support
