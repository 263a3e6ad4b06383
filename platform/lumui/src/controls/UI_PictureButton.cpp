// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/UI_PictureButton.h"

#include <QStylePainter>
#include <QToolButton>
#include <memory>

#include "controls/ButtonPeer.h"
#include "drawbot/QtConvert.h"
#include "drawbot/QtDrawbot.h"

namespace lumui::controls {

namespace {

// Qt's button draws the frame; an image picks its raster by the scale that it is drawn at.
class ToolButton : public QToolButton {
 public:
  using QToolButton::QToolButton;

  boost::intrusive_ptr<drawbot::ImageInterface> mImage;
  QPointF mOffset;
  QPointF mDownOffset;

 protected:
  void paintEvent(QPaintEvent*) override {
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
    if (!mImage) return;
    QRectF place(0, 0, mImage->GetWidth(), mImage->GetHeight());
    place.moveCenter(QRectF(rect()).center());
    place.translate(mOffset + (isDown() || isChecked() ? mDownOffset : QPointF()));
    drawbot::QtDrawbot drawbot(painter, drawbot::FromQt(QRectF(rect())));
    drawbot.DrawImage(*mImage, drawbot::FromQt(place),
                      isEnabled() ? 1.0f : drawbot::ImageInterface::kDisabledOpacity);
  }
};

class PictureButtonPeer : public ButtonPeer {
  QWidget* DoMakeControl(QWidget* inParent) override {
    auto* const button = new ButtonWidgetT<ToolButton, QStyleOptionToolButton>(*this, inParent);
    button->setAutoRaise(true);
    return Connect(button);
  }
};

}  // namespace

UI_PictureButton::UI_PictureButton() : UI_Button(std::make_unique<PictureButtonPeer>()) {
  UI_SetNodeID("UI_PictureButton");
}

UI_PictureButton::~UI_PictureButton() = default;

void UI_PictureButton::SetImage(const boost::intrusive_ptr<drawbot::ImageInterface>& inImage) {
  mImage = inImage;
  ShowState();
}

void UI_PictureButton::DoShowState() {
  UI_Button::DoShowState();
  auto* const widget = static_cast<ToolButton*>(GetPeer()->GetWidget());
  const ButtonOptions& options = GetOptions();
  widget->mImage = mImage;
  widget->mOffset = QPointF(options.contentOffsetX, options.contentOffsetY);
  widget->mDownOffset = QPointF(options.downOffsetX, options.downOffsetY);
}

}  // namespace lumui::controls
