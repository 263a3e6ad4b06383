// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "Picture.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <cmath>

#include "Failure.h"

namespace resourcetool {

namespace {

constexpr int kDotsPerMeter = 3780;  // 96 dots an inch; else it is that of the machine's screen

}  // namespace

const char* ScaleSuffix(int inScale) {
  switch (inScale) {
    case 100:
      return "";
    case 150:
      return "_AT_3TO2X";
    case 200:
      return "_AT_2X";
    case 300:
      return "_AT_3X";
    default:
      return nullptr;
  }
}

Picture::Picture(const QString& inPath) : mPath(inPath) {
  QFile file(inPath);
  if (!file.open(QIODevice::ReadOnly)) throw Failure(inPath, file.errorString());
  mSource = file.readAll();
  Check();
}

void Picture::Check() const {
  QXmlStreamReader reader(mSource);
  bool isRoot = true;
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    const QString place = QString("%1:%2").arg(mPath).arg(reader.lineNumber());
    if (isRoot && reader.name() != QLatin1String("svg")) {
      throw Failure(place, "this is not an SVG picture");
    }
    if (reader.name() == QLatin1String("text")) {
      throw Failure(place, "a text depends on the fonts of the machine; draw it as a path");
    }
    isRoot = false;
  }
  if (reader.hasError()) {
    throw Failure(QString("%1:%2").arg(mPath).arg(reader.lineNumber()), reader.errorString());
  }
}

QByteArray Picture::RenderPNG(int inHeight, int inScale, const QString& inColor) const {
  QByteArray source = mSource;
  if (!inColor.isEmpty()) source.replace("currentColor", inColor.toUtf8());
  QSvgRenderer renderer;
  if (!renderer.load(source)) throw Failure(mPath, "its drawing cannot be understood");
  const QSizeF own = renderer.viewBoxF().size();
  if (own.isEmpty()) throw Failure(mPath, "it has no size");
  const QSizeF units = inHeight > 0 ? QSizeF(inHeight * own.width() / own.height(), inHeight)
                                    : renderer.defaultSize();
  const double scale = inScale / 100.0;
  const auto pixels = [scale](double inUnits) {
    return std::max(1, static_cast<int>(std::lround(inUnits * scale)));
  };
  QImage image(pixels(units.width()), pixels(units.height()), QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) throw Failure(mPath, "it is too large");
  image.fill(Qt::transparent);
  image.setDotsPerMeterX(kDotsPerMeter);
  image.setDotsPerMeterY(kDotsPerMeter);
  QPainter painter(&image);
  renderer.render(&painter);
  painter.end();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!image.save(&buffer, "PNG")) throw Failure(mPath, "it cannot be written as PNG");
  return bytes;
}

}  // namespace resourcetool
