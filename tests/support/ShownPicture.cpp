// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "support/ShownPicture.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QBackingStore>
#include <QWidget>
#include <algorithm>
#include <cstdlib>

#include "lumui/ui/Application.h"

namespace test_support {

namespace {

// Of 255. Where its clip cuts a curve, the painter counts the edge of that a little otherwise.
constexpr int kNoise = 4;

// What the active window's widgets are painted on.
QImage& Canvas() {
  QPaintDevice* const device = QApplication::activeWindow()->backingStore()->paintDevice();
  EXPECT_EQ(device->devType(), QInternal::Image);
  return *static_cast<QImage*>(device);
}

int DifferenceOf(QRgb inA, QRgb inB) {
  return std::max({std::abs(qRed(inA) - qRed(inB)), std::abs(qGreen(inA) - qGreen(inB)),
                   std::abs(qBlue(inA) - qBlue(inB))});
}

}  // namespace

QImage ShownPicture() {
  lumui::ui::Application::Get()->PumpPendingEvents();
  return Canvas().copy();
}

QImage WholePicture() {
  Canvas().fill(Qt::magenta);
  // The window's own update would leave out what is opaque.
  for (QWidget* const widget : QApplication::allWidgets())
    widget->update();
  return ShownPicture();
}

std::string Difference(const QImage& inShown, const QImage& inWhole) {
  if (inShown.size() != inWhole.size()) return "other sizes";
  if (inShown == inWhole) return "";
  int count = 0;
  int most = 0;
  QRect place;
  for (int y = 0; y < inShown.height(); ++y) {
    for (int x = 0; x < inShown.width(); ++x) {
      const int difference = DifferenceOf(inShown.pixel(x, y), inWhole.pixel(x, y));
      if (difference <= kNoise) continue;
      ++count;
      most = std::max(most, difference);
      place |= QRect(x, y, 1, 1);
    }
  }
  if (count == 0) return "";
  return std::to_string(count) + " pixels in " + std::to_string(place.width()) + " x " +
         std::to_string(place.height()) + " at " + std::to_string(place.x()) + ", " +
         std::to_string(place.y()) + " by up to " + std::to_string(most) + " of 255";
}

}  // namespace test_support
