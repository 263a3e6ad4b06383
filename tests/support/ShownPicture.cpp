// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "support/ShownPicture.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QBackingStore>
#include <QWidget>

#include "lumui/ui/Application.h"

namespace test_support {

namespace {

// What the active window's widgets are painted on.
QImage& Canvas() {
  QPaintDevice* const device = QApplication::activeWindow()->backingStore()->paintDevice();
  EXPECT_EQ(device->devType(), QInternal::Image);
  return *static_cast<QImage*>(device);
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
  if (getenv("DUMP")) {
    static int n = 0;
    ++n;
    QImage d(inShown.size(), QImage::Format_RGB32);
    for (int y = 0; y < d.height(); ++y)
      for (int x = 0; x < d.width(); ++x)
        d.setPixel(x, y, inShown.pixel(x, y) == inWhole.pixel(x, y) ? 0xff000000 : 0xffffffff);
    std::string p = std::string(getenv("DUMP")) + std::to_string(n);
    inShown.save((p + "s.png").c_str());
    inWhole.save((p + "w.png").c_str());
    d.save((p + "d.png").c_str());
  }
  if (inShown.size() != inWhole.size()) return "other sizes";
  if (inShown == inWhole) return "";
  int count = 0;
  QRect place;
  for (int y = 0; y < inShown.height(); ++y) {
    for (int x = 0; x < inShown.width(); ++x) {
      if (inShown.pixel(x, y) == inWhole.pixel(x, y)) continue;
      ++count;
      place |= QRect(x, y, 1, 1);
    }
  }
  return std::to_string(count) + " pixels in " + std::to_string(place.width()) + " x " +
         std::to_string(place.height()) + " at " + std::to_string(place.x()) + ", " +
         std::to_string(place.y());
}

}  // namespace test_support
