// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "docking/TitleBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPalette>
#include <QStyle>
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
constexpr int kMargin = 4;
constexpr int kIconSize = 14;

}  // namespace

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
  mMenuButton =
      AddButton(QStyle::SP_TitleBarUnshadeButton, "$$$/lumworkspace/Dock/Menu=Panel Menu");
  // The picture of the style is black, which no dark ground shows; the arrow follows the palette.
  mMenuButton->setArrowType(Qt::DownArrow);
  mFloatButton = AddButton(QStyle::SP_TitleBarNormalButton, kFloatKey);
  const auto guarded = [](const std::function<void()>& inAction) {
    lumui::ui::EventGate::Get()->RunGuarded(inAction);
  };
  const auto actions = std::move(inActions);
  connect(mMenuButton, &QToolButton::clicked, this,
          [=] { guarded([&] { actions.openMenu(*mMenuButton); }); });
  connect(mFloatButton, &QToolButton::clicked, this, [=] { guarded(actions.toggleFloating); });
  mMenuButton->hide();
  if (!actions.close) return;
  QToolButton* const close =
      AddButton(QStyle::SP_TitleBarCloseButton, "$$$/lumworkspace/Dock/Close=Close Panel");
  connect(close, &QToolButton::clicked, this, [=] { guarded(actions.close); });
}

QToolButton* TitleBar::AddButton(int inIcon, const char* inNameKey) {
  auto* const button = new QToolButton(this);
  button->setAutoRaise(true);
  // The keyboard stays where it is.
  button->setFocusPolicy(Qt::NoFocus);
  button->setIconSize(QSize(kIconSize, kIconSize));
  button->setIcon(style()->standardIcon(static_cast<QStyle::StandardPixmap>(inIcon)));
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
