// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QIcon>
#include <QProxyStyle>

#include "lumui/ui/ThemeColors.h"

namespace lumui::ui {

// A colour of the theme in force as the toolkit has them.
QColor ThemeColor(themev5::Color inColor);

// How the toolkit's controls look where a theme is in force. It draws what no palette reaches,
// borders, states and marks, and leaves places, sizes and the rest to the style below it, but for
// the heads of columns, whose texts would touch the border. It asks the theme anew at each
// painting.
class ThemeStyle final : public QProxyStyle {
 public:
  ThemeStyle();

  void drawPrimitive(PrimitiveElement inElement, const QStyleOption* inOption, QPainter* inPainter,
                     const QWidget* inWidget) const override;
  QIcon standardIcon(StandardPixmap inIcon, const QStyleOption* inOption,
                     const QWidget* inWidget) const override;
  void drawControl(ControlElement inElement, const QStyleOption* inOption, QPainter* inPainter,
                   const QWidget* inWidget) const override;
  void drawComplexControl(ComplexControl inControl, const QStyleOptionComplex* inOption,
                          QPainter* inPainter, const QWidget* inWidget) const override;
  int pixelMetric(PixelMetric inMetric, const QStyleOption* inOption,
                  const QWidget* inWidget) const override;

 private:
  void DrawScrollBar(const QStyleOptionComplex& inOption, QPainter& ioPainter,
                     const QWidget* inWidget) const;
  void DrawSpinBox(const QStyleOptionComplex& inOption, QPainter& ioPainter,
                   const QWidget* inWidget) const;
  void DrawSlider(const QStyleOptionComplex& inOption, QPainter& ioPainter,
                  const QWidget* inWidget) const;
  void DrawArrow(PrimitiveElement inArrow, const QRect& inRect, bool inEnabled, QPainter& ioPainter,
                 const QWidget* inWidget) const;
};

}  // namespace lumui::ui
