// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/sharedui/LUMAboutDlog.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/Application.h"

namespace lumui::sharedui {

namespace {

constexpr int kWidth = 420;
constexpr int kHeight = 200;
constexpr float kMargin = 32;
constexpr float kNameSize = 28;
constexpr float kDetailsSize = 12;
constexpr float kNameHeight = 48;
constexpr float kLineHeight = 18;
constexpr drawbot::ColorRGBA kGround(0.16f, 0.17f, 0.19f);
constexpr drawbot::ColorRGBA kName(0.94f, 0.94f, 0.95f);
constexpr drawbot::ColorRGBA kDetails(0.70f, 0.72f, 0.75f);

lumcore::geom::RectT<int> MiddleOfScreen() {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  if (!screen) return {0, 0, kWidth, kHeight};
  const QRect area = screen->availableGeometry();
  return {area.x() + (area.width() - kWidth) / 2, area.y() + (area.height() - kHeight) / 2, kWidth,
          kHeight};
}

}  // namespace

LUMAboutDlog::LUMAboutDlog(const lumcore::UTF16String& inName,
                           const lumcore::UTF16String& inDetails)
    : OS_Window(nullptr, false), mName(inName), mDetails(inDetails) {
  UI_SetWindowStyleFlags(0);
  UI_SetTitle(inName);
}

LUMAboutDlog::~LUMAboutDlog() = default;

// The start that it covers handles no events, so it is painted here and now.
void LUMAboutDlog::Show(bool inShow) {
  if (inShow) {
    const auto place = MiddleOfScreen();
    UI_ConstructWindow(&place);
  }
  UI_Show(inShow);
  if (inShow) ui::Application::Get()->PumpPendingEvents();
}

void LUMAboutDlog::UI_Draw(drawbot::Drawbot* ioDrawbot) const {
  const auto& area = UI_GetLocalRectF();
  ioDrawbot->FillRect({0, 0, area.width, area.height}, kGround);
  const auto* supplier = ioDrawbot->GetSupplier();
  const auto large = supplier->NewFont(nullptr, kNameSize, drawbot::FontStyle::kBold);
  const auto small = supplier->NewFont(nullptr, kDetailsSize);
  float top = kMargin;
  const float room = std::max(0.0f, area.width - 2 * kMargin);
  ioDrawbot->DrawStringInRect(mName, large, kName, {kMargin, top, room, kNameHeight});
  top += kNameHeight;
  for (std::size_t start = 0; start < mDetails.size();) {
    const std::size_t end = std::min(mDetails.find('\n', start), mDetails.size());
    ioDrawbot->DrawStringInRect(mDetails.substr(start, end - start), small, kDetails,
                                {kMargin, top, room, kLineHeight});
    top += kLineHeight;
    start = end + 1;
  }
}

}  // namespace lumui::sharedui
