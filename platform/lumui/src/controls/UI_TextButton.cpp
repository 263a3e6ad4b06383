// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/UI_TextButton.h"

#include <QPushButton>
#include <QStylePainter>
#include <memory>
#include <utility>

#include "controls/ButtonPeer.h"
#include "drawbot/QtConvert.h"

namespace lumui::controls {

namespace {

// Qt's button draws its text in the middle and nowhere else.
class PushButton : public QPushButton {
 public:
  using QPushButton::QPushButton;

  // In the frame of Qt's button; null offsets and no alignment leave all to Qt.
  void PlaceText(Qt::Alignment inAlignment, int inIndent, const ButtonOptions& inOptions) {
    mAlignment = inAlignment;
    mIndent = inIndent;
    mOffset = QPointF(inOptions.contentOffsetX, inOptions.contentOffsetY).toPoint();
    mDownOffset = QPointF(inOptions.downOffsetX, inOptions.downOffsetY).toPoint();
  }

 protected:
  void paintEvent(QPaintEvent* inEvent) override {
    const QPoint offset = mOffset + (isDown() || isChecked() ? mDownOffset : QPoint());
    if (mAlignment == Qt::AlignHCenter && offset.isNull()) return QPushButton::paintEvent(inEvent);
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    const QRect inner = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    const bool right = mAlignment == Qt::AlignRight;
    const bool underlines = style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) != 0;
    painter.drawItemText(
        inner.adjusted(right ? 0 : mIndent, 0, right ? -mIndent : 0, 0).translated(offset),
        int(mAlignment | Qt::AlignVCenter) |
            (underlines ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
        option.palette, isEnabled(), text(), QPalette::ButtonText);
  }

 private:
  Qt::Alignment mAlignment = Qt::AlignHCenter;
  int mIndent = 0;
  QPoint mOffset;
  QPoint mDownOffset;
};

class TextButtonPeer : public ButtonPeer {
  QWidget* DoMakeControl(QWidget* inParent) override {
    auto* const button = new ButtonWidgetT<PushButton, QStyleOptionButton>(*this, inParent);
    // Enter presses the one that has the keyboard.
    button->setAutoDefault(true);
    return Connect(button);
  }
};

Qt::Alignment QtFromAlignment(drawbot::TextAlignment inAlignment) {
  switch (inAlignment) {
    case drawbot::TextAlignment::kLeft:
      return Qt::AlignLeft;
    case drawbot::TextAlignment::kRight:
      return Qt::AlignRight;
    default:
      return Qt::AlignHCenter;
  }
}

}  // namespace

UI_TextButton::UI_TextButton() : UI_TextButton(std::make_unique<TextButtonPeer>()) {
  UI_SetNodeID("UI_TextButton");
}

UI_TextButton::UI_TextButton(std::unique_ptr<ui::NodePeer> inPeer) : UI_Button(std::move(inPeer)) {}

UI_TextButton::~UI_TextButton() = default;

void UI_TextButton::SetText(const lumcore::UTF16String& inText) {
  mText = inText;
  ShowState();
}

void UI_TextButton::SetTextAlignment(drawbot::TextAlignment inAlignment) {
  mAlignment = inAlignment;
  ShowState();
}

void UI_TextButton::SetTextIndent(float inIndent) {
  mIndent = inIndent;
  ShowState();
}

lumcore::UTF16String UI_TextButton::DoGetAccessibleName() const {
  return mText.empty() ? UI_Button::DoGetAccessibleName() : mText;
}

void UI_TextButton::DoShowState() {
  UI_Button::DoShowState();
  auto* const widget = static_cast<QAbstractButton*>(GetPeer()->GetWidget());
  const QString text = drawbot::ToQt(mText);
  if (widget->text() != text) widget->setText(text);
  auto* const button = dynamic_cast<PushButton*>(widget);
  if (!button) return;
  button->setDefault(GetOptions().defaultAppearance);
  button->PlaceText(QtFromAlignment(mAlignment), qRound(mIndent), GetOptions());
}

}  // namespace lumui::controls
