// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "drawbot/QtConvert.h"

#include <algorithm>

namespace lumui::drawbot {

namespace {

float Part(float inValue) {
  // The comparison is false for what is not a number.
  return inValue > 0 ? std::min(inValue, 1.0f) : 0.0f;
}

}  // namespace

QColor ToQt(const ColorRGBA& inColor) {
  return QColor::fromRgbF(Part(inColor.red), Part(inColor.green), Part(inColor.blue),
                          Part(inColor.alpha));
}

ColorRGBA FromQt(const QColor& inColor) {
  return ColorRGBA(inColor.redF(), inColor.greenF(), inColor.blueF(), inColor.alphaF());
}

QPainterPath ToQt(const Path& inPath) {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  for (const auto& element : inPath.GetElements()) {
    const auto* p = element.points;
    switch (element.verb) {
      case Path::Verb::kMove:
        path.moveTo(ToQt(p[0]));
        break;
      case Path::Verb::kLine:
        path.lineTo(ToQt(p[0]));
        break;
      case Path::Verb::kBezier:
        path.cubicTo(ToQt(p[0]), ToQt(p[1]), ToQt(p[2]));
        break;
      case Path::Verb::kClose:
        path.closeSubpath();
        break;
    }
  }
  return path;
}

QString ToQt(const lumcore::UTF16String& inText) {
  static_assert(sizeof(QChar) == sizeof(lumcore::UTF16String::value_type));
  return QString(reinterpret_cast<const QChar*>(inText.data()),
                 static_cast<qsizetype>(inText.size()));
}

lumcore::UTF16String FromQt(const QString& inText) {
  return lumcore::UTF16String(inText.utf16(), static_cast<std::size_t>(inText.size()));
}

QString ToQt(std::string_view inUTF8) {
  return QString::fromUtf8(inUTF8.data(), static_cast<qsizetype>(inUTF8.size()));
}

}  // namespace lumui::drawbot
