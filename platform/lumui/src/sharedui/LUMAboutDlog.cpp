// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/sharedui/LUMAboutDlog.h"

#include <QPalette>
#include <algorithm>

#include "drawbot/QtConvert.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/Fonts.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/PointerEvent.h"
#include "ui/NodePeer.h"

namespace lumui::sharedui {

namespace {

using Rect = lumcore::geom::RectT<float>;

constexpr float kMargin = 24;
constexpr float kLeastWidth = 360;
constexpr float kNameFontSize = 26;
constexpr float kLineSpacing = 1.5f;  // of the font's size

drawbot::ColorRGBA ColorOf(QPalette::ColorRole inRole) {
  return drawbot::FromQt(QGuiApplication::palette().color(inRole));
}

}  // namespace

LUMAboutDlog::LUMAboutDlog(const Content& inContent, ui::UI_Node* inParent)
    : UI_Dialog(lumcore::UTF16String(inContent.name), inParent), mContent(inContent) {
  UI_SetNodeID("LUMAboutDlog");
  // The text is drawn by the window itself.
  GetContent().UI_Show(false);
  float width = kLeastWidth;
  float top = kMargin;
  if (mContent.picture) {
    width = std::max(width, mContent.picture->GetWidth());
    top += mContent.picture->GetHeight() + kMargin;
  }
  const auto addLine = [&](const lumcore::UTF16String& inText, float inFontSize) {
    mLines.push_back({inText, inFontSize, top});
    const auto font = drawbot::GetDefaultSupplier()->NewFont(nullptr, inFontSize);
    width = std::max(width, font->MeasureWidthOnce(inText) + 2 * kMargin);
    top += inFontSize * kLineSpacing;
  };
  const float size = ui::GetFontSize(0);
  addLine(mContent.name, kNameFontSize);
  if (!mContent.version.empty()) addLine(mContent.version, size);
  if (!mContent.text.empty()) top += size;
  for (std::size_t at = 0; at < mContent.text.size();) {
    const std::size_t end = std::min(mContent.text.find('\n', at), mContent.text.size());
    addLine(mContent.text.substr(at, end - at), size);
    at = end + 1;
  }
  UI_SetWindowStyleFlags(0);
  SetSize(width, top + kMargin);
}

LUMAboutDlog::LUMAboutDlog(const lumcore::UTF16String& inName,
                           const lumcore::UTF16String& inDetails)
    : LUMAboutDlog(Content{nullptr, inName, lumcore::UTF16String(), inDetails}) {}

LUMAboutDlog::~LUMAboutDlog() = default;

void LUMAboutDlog::Show(bool inShow) {
  if (inShow) {
    PlaceInMiddle();
    // The main window comes behind it, and the keyboard goes to that one. Of the type that Qt has
    // for splash screens, showing it would empty the whole queue.
    QWidget* const widget = GetPeer()->GetWidget();
    widget->setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    widget->setAttribute(Qt::WA_ShowWithoutActivating);
    widget->winId();
  }
  UI_Show(inShow);
  UI_PaintNow();
}

void LUMAboutDlog::UI_Draw(drawbot::Drawbot* inDrawbot) const {
  const float width = GetBounds().width;
  const float height = GetBounds().height;
  const drawbot::SupplierInterface& supplier = *inDrawbot->GetSupplier();
  inDrawbot->FillRect(Rect(0, 0, width, height), supplier.NewBrush(ColorOf(QPalette::Base)));
  if (mContent.picture) {
    // One as wide as the window is a banner; a smaller one is an icon over the texts.
    const float inset = mContent.picture->GetWidth() < width ? kMargin : 0;
    inDrawbot->DrawImage(*mContent.picture, lumcore::geom::PointT<float>(inset, inset));
  }
  const drawbot::ColorRGBA ink = ColorOf(QPalette::Text);
  for (const Line& line : mLines) {
    inDrawbot->DrawStringInRect(
        line.text, supplier.NewFont(nullptr, line.fontSize), ink,
        Rect(kMargin, line.top, width - 2 * kMargin, line.fontSize * kLineSpacing));
  }
  inDrawbot->StrokeRect(Rect(0.5f, 0.5f, width - 1, height - 1),
                        supplier.NewPen(ColorOf(QPalette::Mid)));
}

bool LUMAboutDlog::UI_DoMouseEvent(ui::UI_Node*, const ui::MouseEvent& inEvent) {
  if (inEvent.GetAction() != ui::PointerEvent::kActionPress) return false;
  EndDialog(kOK);
  return true;
}

bool LUMAboutDlog::UI_DoKeyboardEvent(ui::UI_Node* inNode, const ui::KeyboardEvent& inEvent) {
  if (UI_Dialog::UI_DoKeyboardEvent(inNode, inEvent)) {
    // There is no button for Enter to press.
    EndDialog(kOK);
    return true;
  }
  return false;
}

}  // namespace lumui::sharedui
