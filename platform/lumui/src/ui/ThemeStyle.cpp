// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/ThemeStyle.h"

#include <QDockWidget>
#include <QGroupBox>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>
#include <algorithm>

#include "lumui/ui/Theme.h"

namespace lumui::ui {

using namespace themev5;

namespace {

// In units.
constexpr qreal kRadius = 3.0;
constexpr qreal kMarkWidth = 1.8;
constexpr int kMargin = 3;
constexpr int kHeaderMargin = 5;
constexpr int kGrooveHeight = 4;
constexpr int kUnderline = 2;

bool Is(const QStyleOption& inOption, QStyle::StateFlag inFlag) {
  return inOption.state.testFlag(inFlag);
}
bool IsHovered(const QStyleOption& inOption) {
  return Is(inOption, QStyle::State_Enabled) && Is(inOption, QStyle::State_MouseOver);
}

void DrawBox(QPainter& ioPainter, const QRectF& inRect, const QBrush& inFill,
             const QColor& inStroke, qreal inWidth = 1.0, qreal inRadius = kRadius) {
  ioPainter.save();
  ioPainter.setRenderHint(QPainter::Antialiasing);
  ioPainter.setBrush(inFill);
  ioPainter.setPen(QPen(inStroke, inWidth));
  const qreal inset = inWidth / 2;
  ioPainter.drawRoundedRect(inRect.adjusted(inset, inset, -inset, -inset), inRadius, inRadius);
  ioPainter.restore();
}

// Two angles that say of a bar that more of it is hidden. The pictures that the toolkit has for
// this stay dark on a dark ground, and the first of them makes it load every reader of pictures.
class MoreIcon final : public QIconEngine {
 public:
  explicit MoreIcon(bool inDownwards) : mDownwards(inDownwards) {}

  QIconEngine* clone() const override { return new MoreIcon(*this); }
  QPixmap pixmap(const QSize& inSize, QIcon::Mode inMode, QIcon::State inState) override {
    QPixmap picture(inSize);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), inSize), inMode, inState);
    return picture;
  }
  void paint(QPainter* inPainter, const QRect& inRect, QIcon::Mode inMode, QIcon::State) override {
    const qreal side = std::min(inRect.width(), inRect.height());
    const QColor ink =
        ThemeColor(inMode == QIcon::Disabled ? kColor_TextDisabled : kColor_TextSecondary);
    inPainter->save();
    inPainter->setRenderHint(QPainter::Antialiasing);
    inPainter->setPen(QPen(ink, 0.13, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    inPainter->translate(QRectF(inRect).center());
    if (mDownwards) inPainter->rotate(90);
    inPainter->scale(side, side);
    for (const qreal tip : {0.0, 0.35}) {
      const QPointF angle[] = {{tip - 0.2, -0.25}, {tip, 0.0}, {tip - 0.2, 0.25}};
      inPainter->drawPolyline(angle, 3);
    }
    inPainter->restore();
  }

 private:
  bool mDownwards;
};

void DrawButtonPanel(const QStyleOption& inOption, QPainter& ioPainter) {
  const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(&inOption);
  const bool accent = button && button->features.testFlag(QStyleOptionButton::DefaultButton);
  const bool down = Is(inOption, QStyle::State_Sunken) || Is(inOption, QStyle::State_On);
  Color fill = accent ? kColor_AccentButtonBackground : kColor_ButtonBackground;
  Color stroke = accent ? kColor_AccentButtonBackground : kColor_ButtonBorder;
  if (!Is(inOption, QStyle::State_Enabled)) {
    fill = kColor_ButtonBackgroundDisabled;
    stroke = kColor_Divider;
  } else if (down) {
    fill = accent ? kColor_AccentButtonBackgroundDown : kColor_ButtonBackgroundDown;
  } else if (IsHovered(inOption)) {
    fill = accent ? kColor_AccentButtonBackgroundHover : kColor_ButtonBackgroundHover;
  }
  const bool focus = Is(inOption, QStyle::State_HasFocus);
  // The ring stands off a fill of its own hue.
  DrawBox(ioPainter, inOption.rect, ThemeColor(fill), ThemeColor(focus ? kColor_Focus : stroke),
          focus ? 2.0 : 1.0);
  if (focus && accent) {
    DrawBox(ioPainter, QRectF(inOption.rect).adjusted(2, 2, -2, -2), Qt::NoBrush,
            ThemeColor(kColor_PanelBackground), 1.0, kRadius - 1);
  }
}

QColor FieldStroke(const QStyleOption& inOption) {
  if (!Is(inOption, QStyle::State_Enabled)) return ThemeColor(kColor_Divider);
  if (Is(inOption, QStyle::State_HasFocus)) return ThemeColor(kColor_Focus);
  return ThemeColor(IsHovered(inOption) ? kColor_FieldBorderHover : kColor_FieldBorder);
}

void DrawFieldFrame(const QStyleOption& inOption, QPainter& ioPainter, const QBrush& inFill) {
  const bool focus = Is(inOption, QStyle::State_HasFocus);
  DrawBox(ioPainter, inOption.rect, inFill, FieldStroke(inOption), focus ? 2.0 : 1.0);
}

void DrawCheck(const QStyleOption& inOption, QPainter& ioPainter, bool inRound) {
  const bool enabled = Is(inOption, QStyle::State_Enabled);
  const bool partly = Is(inOption, QStyle::State_NoChange);
  const bool on = Is(inOption, QStyle::State_On) || partly;
  const int side = std::min(inOption.rect.width(), inOption.rect.height());
  QRectF box(0, 0, side, side);
  box.moveCenter(QRectF(inOption.rect).center());
  QColor fill = ThemeColor(kColor_CheckBackground);
  QColor stroke = ThemeColor(IsHovered(inOption) ? kColor_FieldBorderHover : kColor_CheckBorder);
  QColor mark = ThemeColor(kColor_CheckMark);
  if (!enabled) {
    fill = Qt::transparent;
    stroke = mark = ThemeColor(kColor_CheckMarkDisabled);
  } else if (on) {
    fill = ThemeColor(kColor_CheckBackgroundOn);
  }
  DrawBox(ioPainter, box, fill, stroke, 1.0, inRound ? side / 2.0 : kRadius);
  if (!on) return;
  ioPainter.save();
  ioPainter.setRenderHint(QPainter::Antialiasing);
  if (inRound) {
    ioPainter.setPen(Qt::NoPen);
    ioPainter.setBrush(mark);
    ioPainter.drawEllipse(box.center(), side * 0.2, side * 0.2);
  } else {
    const auto at = [&box](qreal inX, qreal inY) {
      return QPointF(box.x() + box.width() * inX, box.y() + box.height() * inY);
    };
    ioPainter.setPen(QPen(mark, kMarkWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (partly) {
      ioPainter.drawLine(at(0.28, 0.5), at(0.72, 0.5));
    } else {
      ioPainter.drawPolyline(QPolygonF({at(0.25, 0.52), at(0.43, 0.70), at(0.76, 0.31)}));
    }
  }
  ioPainter.restore();
}

void DrawTab(const QStyleOptionTab& inOption, QPainter& ioPainter) {
  const bool selected = Is(inOption, QStyle::State_Selected);
  Color fill = kColor_TabBackground;
  if (selected) {
    fill = kColor_TabBackgroundSelected;
  } else if (IsHovered(inOption)) {
    fill = kColor_TabBackgroundHover;
  }
  ioPainter.fillRect(inOption.rect, ThemeColor(fill));
  if (!selected) return;
  // The line lies on the side that is away from the page.
  QRect line = inOption.rect;
  switch (inOption.shape) {
    case QTabBar::RoundedSouth:
    case QTabBar::TriangularSouth:
      line.setTop(line.bottom() + 1 - kUnderline);
      break;
    case QTabBar::RoundedWest:
    case QTabBar::TriangularWest:
      line.setWidth(kUnderline);
      break;
    case QTabBar::RoundedEast:
    case QTabBar::TriangularEast:
      line.setLeft(line.right() + 1 - kUnderline);
      break;
    default:
      line.setHeight(kUnderline);
  }
  ioPainter.fillRect(line, ThemeColor(kColor_Focus));
}

void DrawHeaderSection(const QStyleOption& inOption, QPainter& ioPainter) {
  ioPainter.fillRect(inOption.rect, ThemeColor(kColor_HeaderBackground));
  ioPainter.setPen(ThemeColor(kColor_HeaderLine));
  ioPainter.drawLine(inOption.rect.bottomLeft(), inOption.rect.bottomRight());
  ioPainter.drawLine(inOption.rect.topRight() + QPoint(0, kMargin),
                     inOption.rect.bottomRight() - QPoint(0, kMargin));
}

void DrawProgress(const QStyleOptionProgressBar& inOption, QPainter& ioPainter) {
  const bool horizontal = Is(inOption, QStyle::State_Horizontal);
  const double range = double(inOption.maximum) - inOption.minimum;
  // Without an end it is half full and moves nothing.
  const double share =
      range > 0 ? std::clamp((inOption.progress - inOption.minimum) / range, 0.0, 1.0) : 0.5;
  QRectF bar = inOption.rect;
  if (!horizontal) {
    bar.setTop(bar.bottom() - bar.height() * share);
  } else if ((inOption.direction == Qt::RightToLeft) != inOption.invertedAppearance) {
    bar.setLeft(bar.right() - bar.width() * share);
  } else {
    bar.setWidth(bar.width() * share);
  }
  if (share > 0) {
    DrawBox(ioPainter, bar, ThemeColor(kColor_ProgressFill), Qt::transparent, 0.0);
  }
}

// The style below this one puts the title above the frame and leaves that much room.
int GroupTitleHeight(const QWidget* inWidget) {
  const auto* const group = qobject_cast<const QGroupBox*>(inWidget);
  if (!group || (group->title().isEmpty() && !group->isCheckable())) return 0;
  return std::max(group->fontMetrics().height(),
                  group->style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, group)) +
         kMargin;
}

}  // namespace

QColor ThemeColor(Color inColor) {
  const auto theme = Theme::Get();
  if (!theme) return Qt::magenta;
  const auto color = theme->GetColor(inColor);
  return QColor::fromRgbF(color.red, color.green, color.blue, color.alpha);
}

ThemeStyle::ThemeStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

int ThemeStyle::pixelMetric(PixelMetric inMetric, const QStyleOption* inOption,
                            const QWidget* inWidget) const {
  if (inMetric == PM_HeaderMargin) return kHeaderMargin;
  return QProxyStyle::pixelMetric(inMetric, inOption, inWidget);
}

void ThemeStyle::drawPrimitive(PrimitiveElement inElement, const QStyleOption* inOption,
                               QPainter* inPainter, const QWidget* inWidget) const {
  switch (inElement) {
    case PE_PanelButtonCommand:
      return DrawButtonPanel(*inOption, *inPainter);
    case PE_FrameLineEdit:
      return DrawFieldFrame(*inOption, *inPainter, Qt::NoBrush);
    case PE_PanelLineEdit:
      // One that stands within another control, such as a spin box, has no frame of its own.
      if (const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(inOption);
          frame && frame->lineWidth > 0) {
        DrawFieldFrame(*inOption, *inPainter, inOption->palette.base());
      } else {
        inPainter->fillRect(inOption->rect, inOption->palette.base());
      }
      return;
    case PE_IndicatorCheckBox:
      return DrawCheck(*inOption, *inPainter, false);
    case PE_IndicatorRadioButton:
      return DrawCheck(*inOption, *inPainter, true);
    case PE_FrameFocusRect:
      return DrawBox(*inPainter, inOption->rect, Qt::NoBrush, ThemeColor(kColor_Focus));
    case PE_Frame:
      return DrawBox(*inPainter, inOption->rect, Qt::NoBrush,
                     ThemeColor(Is(*inOption, State_HasFocus) ? kColor_Focus : kColor_ListBorder),
                     1.0, 0);
    case PE_PanelMenu:
      return DrawBox(*inPainter, inOption->rect, ThemeColor(kColor_MenuBackground),
                     ThemeColor(kColor_MenuBorder), 1.0, 0);
    case PE_PanelTipLabel:
      return DrawBox(*inPainter, inOption->rect, ThemeColor(kColor_ToolTipBackground),
                     ThemeColor(kColor_ToolTipBorder), 1.0, 0);
    case PE_FrameTabWidget:
      return DrawBox(*inPainter, inOption->rect, ThemeColor(kColor_TabBackgroundSelected),
                     ThemeColor(kColor_Divider), 1.0, 0);
    case PE_FrameTabBarBase:
      return inPainter->fillRect(inOption->rect, ThemeColor(kColor_Divider));
    case PE_FrameGroupBox:
      return DrawBox(*inPainter, inOption->rect.adjusted(0, GroupTitleHeight(inWidget), 0, 0),
                     Qt::NoBrush, ThemeColor(kColor_ListBorder));
    default:
      QProxyStyle::drawPrimitive(inElement, inOption, inPainter, inWidget);
  }
}

void ThemeStyle::drawControl(ControlElement inElement, const QStyleOption* inOption,
                             QPainter* inPainter, const QWidget* inWidget) const {
  switch (inElement) {
    case CE_TabBarTabShape:
      if (const auto* const tab = qstyleoption_cast<const QStyleOptionTab*>(inOption)) {
        DrawTab(*tab, *inPainter);
      }
      return;
    case CE_TabBarTabLabel:
      if (const auto* const tab = qstyleoption_cast<const QStyleOptionTab*>(inOption)) {
        QStyleOptionTab option = *tab;
        const bool selected = Is(option, State_Selected);
        const QColor text = ThemeColor(selected ? kColor_TabTextSelected : kColor_TabText);
        for (const auto group : {QPalette::Active, QPalette::Inactive})
          option.palette.setColor(group, QPalette::WindowText, text);
        option.state.setFlag(State_HasFocus, false);
        QProxyStyle::drawControl(inElement, &option, inPainter, inWidget);
      }
      return;
    case CE_PushButtonLabel:
      if (const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(inOption)) {
        QStyleOptionButton option = *button;
        if (option.features.testFlag(QStyleOptionButton::DefaultButton)) {
          for (const auto group : {QPalette::Active, QPalette::Inactive})
            option.palette.setColor(group, QPalette::ButtonText,
                                    ThemeColor(kColor_AccentButtonText));
        }
        QProxyStyle::drawControl(inElement, &option, inPainter, inWidget);
      }
      return;
    case CE_HeaderSection:
    case CE_HeaderEmptyArea:
      return DrawHeaderSection(*inOption, *inPainter);
    case CE_ProgressBarGroove:
      return DrawBox(*inPainter, inOption->rect, ThemeColor(kColor_SliderTrack), Qt::transparent,
                     0.0);
    case CE_ProgressBarContents:
      if (const auto* const bar = qstyleoption_cast<const QStyleOptionProgressBar*>(inOption)) {
        DrawProgress(*bar, *inPainter);
      }
      return;
    case CE_ProgressBarLabel:
      if (const auto* const bar = qstyleoption_cast<const QStyleOptionProgressBar*>(inOption)) {
        QStyleOptionProgressBar option = *bar;
        option.palette.setColor(QPalette::Text, ThemeColor(kColor_Text));
        option.palette.setColor(QPalette::HighlightedText, ThemeColor(kColor_PanelBackground));
        QProxyStyle::drawControl(inElement, &option, inPainter, inWidget);
      }
      return;
    case CE_Splitter:
      return inPainter->fillRect(inOption->rect, ThemeColor(kColor_Divider));
    default:
      QProxyStyle::drawControl(inElement, inOption, inPainter, inWidget);
  }
}

void ThemeStyle::drawComplexControl(ComplexControl inControl, const QStyleOptionComplex* inOption,
                                    QPainter* inPainter, const QWidget* inWidget) const {
  switch (inControl) {
    case CC_ScrollBar:
      return DrawScrollBar(*inOption, *inPainter, inWidget);
    case CC_SpinBox:
      return DrawSpinBox(*inOption, *inPainter, inWidget);
    case CC_Slider:
      return DrawSlider(*inOption, *inPainter, inWidget);
    default:
      QProxyStyle::drawComplexControl(inControl, inOption, inPainter, inWidget);
  }
}

QIcon ThemeStyle::standardIcon(StandardPixmap inIcon, const QStyleOption* inOption,
                               const QWidget* inWidget) const {
  switch (inIcon) {
    case SP_ToolBarHorizontalExtensionButton:
      return QIcon(new MoreIcon(false));
    case SP_ToolBarVerticalExtensionButton:
      return QIcon(new MoreIcon(true));
    case SP_TitleBarNormalButton:
    case SP_TitleBarCloseButton:
      // A dock makes these for a title bar of Qt's. Ours have another, so nobody sees them.
      if (qobject_cast<const QDockWidget*>(inWidget)) return QIcon();
      break;
    default:
      break;
  }
  return QProxyStyle::standardIcon(inIcon, inOption, inWidget);
}

void ThemeStyle::DrawArrow(PrimitiveElement inArrow, const QRect& inRect, bool inEnabled,
                           QPainter& ioPainter, const QWidget* inWidget) const {
  QStyleOption arrow;
  arrow.rect = inRect;
  arrow.state = inEnabled ? State_Enabled : State_None;
  const QColor ink = ThemeColor(inEnabled ? kColor_TextSecondary : kColor_TextDisabled);
  for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
    arrow.palette.setColor(role, ink);
  QProxyStyle::drawPrimitive(inArrow, &arrow, &ioPainter, inWidget);
}

void ThemeStyle::DrawScrollBar(const QStyleOptionComplex& inOption, QPainter& ioPainter,
                               const QWidget* inWidget) const {
  const auto place = [&](SubControl inPart) {
    return proxy()->subControlRect(CC_ScrollBar, &inOption, inPart, inWidget);
  };
  const bool horizontal = Is(inOption, State_Horizontal);
  const bool enabled = Is(inOption, State_Enabled);
  ioPainter.fillRect(inOption.rect, ThemeColor(kColor_ScrollTrack));
  DrawArrow(horizontal ? PE_IndicatorArrowLeft : PE_IndicatorArrowUp, place(SC_ScrollBarSubLine),
            enabled, ioPainter, inWidget);
  DrawArrow(horizontal ? PE_IndicatorArrowRight : PE_IndicatorArrowDown, place(SC_ScrollBarAddLine),
            enabled, ioPainter, inWidget);
  if (!enabled) return;
  const bool active = inOption.activeSubControls.testFlag(SC_ScrollBarSlider);
  Color fill = kColor_ScrollThumb;
  if (active && Is(inOption, State_Sunken)) {
    fill = kColor_ScrollThumbDown;
  } else if (active && IsHovered(inOption)) {
    fill = kColor_ScrollThumbHover;
  }
  QRectF thumb = place(SC_ScrollBarSlider);
  thumb.adjust(horizontal ? 0 : kMargin, horizontal ? kMargin : 0, horizontal ? 0 : -kMargin,
               horizontal ? -kMargin : 0);
  const qreal radius = std::min(thumb.width(), thumb.height()) / 2;
  DrawBox(ioPainter, thumb, ThemeColor(fill), Qt::transparent, 0.0, radius);
}

void ThemeStyle::DrawSpinBox(const QStyleOptionComplex& inOption, QPainter& ioPainter,
                             const QWidget* inWidget) const {
  const auto* const box = qstyleoption_cast<const QStyleOptionSpinBox*>(&inOption);
  if (!box) return;
  DrawFieldFrame(inOption, ioPainter, inOption.palette.base());
  if (box->buttonSymbols == QAbstractSpinBox::NoButtons) return;
  const bool plus = box->buttonSymbols == QAbstractSpinBox::PlusMinus;
  const auto draw = [&](SubControl inPart, QAbstractSpinBox::StepEnabledFlag inStep,
                        PrimitiveElement inArrow, PrimitiveElement inSign) {
    const QRect rect = proxy()->subControlRect(CC_SpinBox, &inOption, inPart, inWidget);
    const bool enabled = Is(inOption, State_Enabled) && box->stepEnabled.testFlag(inStep);
    if (enabled && inOption.activeSubControls.testFlag(inPart)) {
      ioPainter.fillRect(rect,
                         ThemeColor(Is(inOption, State_Sunken) ? kColor_ButtonBackgroundDown
                                                               : kColor_ButtonBackgroundHover));
    }
    DrawArrow(plus ? inSign : inArrow, rect, enabled, ioPainter, inWidget);
  };
  draw(SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled, PE_IndicatorArrowUp, PE_IndicatorSpinPlus);
  draw(SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled, PE_IndicatorArrowDown,
       PE_IndicatorSpinMinus);
}

void ThemeStyle::DrawSlider(const QStyleOptionComplex& inOption, QPainter& ioPainter,
                            const QWidget* inWidget) const {
  const auto* const slider = qstyleoption_cast<const QStyleOptionSlider*>(&inOption);
  if (!slider) return;
  if (inOption.subControls.testFlag(SC_SliderTickmarks)) {
    QStyleOptionSlider ticks = *slider;
    ticks.subControls = SC_SliderTickmarks;
    QProxyStyle::drawComplexControl(CC_Slider, &ticks, &ioPainter, inWidget);
  }
  const bool horizontal = slider->orientation == Qt::Horizontal;
  const bool enabled = Is(inOption, State_Enabled);
  const QRectF handle = proxy()->subControlRect(CC_Slider, &inOption, SC_SliderHandle, inWidget);
  QRectF groove = proxy()->subControlRect(CC_Slider, &inOption, SC_SliderGroove, inWidget);
  const QPointF center = handle.center();
  if (horizontal) {
    groove = QRectF(groove.x(), center.y() - kGrooveHeight / 2.0, groove.width(), kGrooveHeight);
  } else {
    groove = QRectF(center.x() - kGrooveHeight / 2.0, groove.y(), kGrooveHeight, groove.height());
  }
  DrawBox(ioPainter, groove, ThemeColor(kColor_SliderTrack), Qt::transparent, 0.0,
          kGrooveHeight / 2.0);
  // The filled part lies on the side of the least value.
  QRectF filled = groove;
  if (horizontal) {
    slider->upsideDown ? filled.setLeft(center.x()) : filled.setRight(center.x());
  } else {
    slider->upsideDown ? filled.setTop(center.y()) : filled.setBottom(center.y());
  }
  if (enabled) {
    DrawBox(ioPainter, filled, ThemeColor(kColor_SliderTrackFilled), Qt::transparent, 0.0,
            kGrooveHeight / 2.0);
  }
  const qreal side = std::min(handle.width(), handle.height()) - 1;
  QRectF thumb(0, 0, side, side);
  thumb.moveCenter(center);
  const bool active = inOption.activeSubControls.testFlag(SC_SliderHandle);
  Color fill = active ? kColor_SliderThumbHover : kColor_SliderThumb;
  if (!enabled) fill = kColor_TextDisabled;
  const bool focus = Is(inOption, State_HasFocus);
  DrawBox(ioPainter, thumb, ThemeColor(fill),
          ThemeColor(focus ? kColor_Focus : kColor_PanelBackground), 2.0, side / 2);
}

}  // namespace lumui::ui
