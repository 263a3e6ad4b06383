// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "docking/TitleBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPalette>
#include <QToolButton>
#include <utility>

#include "drawbot/QtConvert.h"
#include "lumcore/config/Localizer.h"
#include "ui/EventGate.h"

namespace lumworkspace::docking {

namespace {

QString Localized(const char* inKey) {
  return lumui::drawbot::ToQt(lumcore::config::Localizer::Get()->GetLocalizedString(inKey));
}

constexpr const char* kFloatKey = "$$$/lumworkspace/Dock/Float=Move to Own Window";
constexpr const char* kDockKey = "$$$/lumworkspace/Dock/Dock=Move to Main Window";
constexpr int kMargin = 10;
constexpr int kButtonSize = 20;
constexpr qreal kGlyphSize = 8;
constexpr qreal kLineWidth = 1.4;

}  // namespace

// Draws what it is for in the colour of the title: the style's own pictures are made for one
// ground.
class TitleBar::Button : public QToolButton {
 public:
  Button(QWidget* inParent, Glyph inGlyph) : QToolButton(inParent), mGlyph(inGlyph) {
    setAutoRaise(true);
    setFixedSize(kButtonSize, kButtonSize);
    // The keyboard stays where it is.
    setFocusPolicy(Qt::NoFocus);
  }

 protected:
  void paintEvent(QPaintEvent* inEvent) override {
    QToolButton::paintEvent(inEvent);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::WindowText), kLineWidth, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    const QPointF offset(kGlyphSize / 2, kGlyphSize / 2);
    const QPointF middle = QRectF(rect()).center();
    DrawGlyph(painter, QRectF(middle - offset, middle + offset));
  }

 private:
  void DrawGlyph(QPainter& ioPainter, const QRectF& inBox) const {
    if (mGlyph == Glyph::kClose) {
      ioPainter.drawLine(inBox.topLeft(), inBox.bottomRight());
      ioPainter.drawLine(inBox.bottomLeft(), inBox.topRight());
    } else if (mGlyph == Glyph::kMenu) {
      for (const qreal y : {inBox.top(), inBox.center().y(), inBox.bottom()})
        ioPainter.drawLine(QPointF(inBox.left(), y), QPointF(inBox.right(), y));
    } else {
      const qreal step = kGlyphSize / 4;
      ioPainter.drawRect(inBox.adjusted(0, step, -step, 0));
      ioPainter.drawPolyline(QPolygonF({inBox.topLeft() + QPointF(step, 0), inBox.topRight(),
                                        inBox.bottomRight() - QPointF(0, step)}));
    }
  }

  Glyph mGlyph;
};

TitleBar::TitleBar(QWidget* inParent, Actions inActions)
    : QWidget(inParent), mLabel(new QLabel(this)) {
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(kMargin, 1, 1, 1);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Midlight);
  row->setSpacing(0);
  mLabel->setTextFormat(Qt::PlainText);
  mLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  row->addWidget(mLabel, 1);
  mMenuButton = AddButton(Glyph::kMenu, "$$$/lumworkspace/Dock/Menu=Panel Menu");
  mFloatButton = AddButton(Glyph::kFloat, kFloatKey);
  const auto guarded = [](const std::function<void()>& inAction) {
    lumui::ui::EventGate::Get()->RunGuarded(inAction);
  };
  const auto actions = std::move(inActions);
  connect(mMenuButton, &QToolButton::clicked, this,
          [=] { guarded([&] { actions.openMenu(*mMenuButton); }); });
  connect(mFloatButton, &QToolButton::clicked, this, [=] { guarded(actions.toggleFloating); });
  mMenuButton->hide();
  if (!actions.close) return;
  QToolButton* const close = AddButton(Glyph::kClose, "$$$/lumworkspace/Dock/Close=Close Panel");
  connect(close, &QToolButton::clicked, this, [=] { guarded(actions.close); });
}

QToolButton* TitleBar::AddButton(Glyph inGlyph, const char* inNameKey) {
  auto* const button = new Button(this, inGlyph);
  button->setToolTip(Localized(inNameKey));
  button->setAccessibleName(Localized(inNameKey));
  layout()->addWidget(button);
  return button;
}

void TitleBar::SetTitle(const QString& inTitle) {
  mTitle = inTitle;
  FitText();
}

void TitleBar::ShowMenuButton(bool inShow) {
  mMenuButton->setVisible(inShow);
}

void TitleBar::ShowFloating(bool inFloating) {
  const QString name = Localized(inFloating ? kDockKey : kFloatKey);
  mFloatButton->setToolTip(name);
  mFloatButton->setAccessibleName(name);
}

void TitleBar::resizeEvent(QResizeEvent* inEvent) {
  QWidget::resizeEvent(inEvent);
  layout()->activate();
  FitText();
}

void TitleBar::FitText() {
  const QString fitting = fontMetrics().elidedText(mTitle, Qt::ElideRight, mLabel->width());
  mLabel->setText(fitting);
  mLabel->setToolTip(fitting == mTitle ? QString() : mTitle.toHtmlEscaped());
  mLabel->setAccessibleName(mTitle);
}

}  // namespace lumworkspace::docking
