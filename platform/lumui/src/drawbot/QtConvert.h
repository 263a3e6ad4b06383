// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <string_view>

#include "lumcore/Strings.h"
#include "lumcore/geom/Point.h"
#include "lumcore/geom/Rect.h"
#include "lumui/Export.h"
#include "lumui/drawbot/Color.h"
#include "lumui/drawbot/Path.h"

namespace lumui::drawbot {

inline QPointF ToQt(const lumcore::geom::PointT<float>& inPoint) {
  return QPointF(inPoint.x, inPoint.y);
}
inline QRectF ToQt(const lumcore::geom::RectT<float>& inRect) {
  return QRectF(inRect.x, inRect.y, inRect.width, inRect.height);
}
inline lumcore::geom::RectT<float> FromQt(const QRectF& inRect) {
  return lumcore::geom::RectT<float>(static_cast<float>(inRect.x()), static_cast<float>(inRect.y()),
                                     static_cast<float>(inRect.width()),
                                     static_cast<float>(inRect.height()));
}

// Parts outside 0 to 1 are cut off; one that is not a number counts as 0.
QColor ToQt(const ColorRGBA& inColor);
ColorRGBA FromQt(const QColor& inColor);
QPainterPath ToQt(const Path& inPath);

// Code unit for code unit: ill-formed text stays as it is.
LUMUI_API QString ToQt(const lumcore::UTF16String& inText);
LUMUI_API lumcore::UTF16String FromQt(const QString& inText);
QString ToQt(std::string_view inUTF8);

}  // namespace lumui::drawbot
