// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "DocumentTabs.h"

#include <algorithm>

#include "Palette.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/PointerEvent.h"

namespace outliner {

using lumui::ui::MouseEvent;

namespace {

constexpr float kWidestTab = 220;
constexpr float kTextSize = 12;
constexpr float kMargin = 14;
constexpr float kCrossRoom = 30;  // at the right end of a tab
constexpr float kCrossSize = 7;
constexpr float kMark = 2;  // the line that marks the current tab

}  // namespace

void DocumentTabs::SetTabs(const std::vector<lumcore::UTF16String>& inTitles,
                           std::size_t inCurrent) {
  if (inTitles == mTitles && inCurrent == mCurrent) return;
  mTitles = inTitles;
  mCurrent = inCurrent;
  UI_InvalidateAll();
}

float DocumentTabs::GetTabWidth() const {
  return std::min(kWidestTab, UI_GetLocalRectF().width / static_cast<float>(mTitles.size()));
}

void DocumentTabs::UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const {
  const auto& area = UI_GetLocalRectF();
  inDrawbot->FillRect({0, 0, area.width, area.height}, palette::Strip());
  inDrawbot->FillRect({0, area.height - 1, area.width, 1}, palette::Line());
  for (std::size_t tab = 0; tab < mTitles.size(); ++tab)
    DrawTab(*inDrawbot, tab);
}

void DocumentTabs::DrawTab(lumui::drawbot::Drawbot& ioDrawbot, std::size_t inTab) const {
  const float width = GetTabWidth();
  const float left = static_cast<float>(inTab) * width;
  const float height = UI_GetLocalRectF().height;
  const bool isCurrent = inTab == mCurrent;
  if (isCurrent) {
    ioDrawbot.FillRect({left, 0, width, height}, palette::Paper());
    ioDrawbot.FillRect({left, 0, width, kMark}, palette::Accent());
  }
  ioDrawbot.FillRect({left + width - 1, 0, 1, height}, palette::Line());
  const auto font = ioDrawbot.GetSupplier()->NewFont(nullptr, kTextSize);
  ioDrawbot.DrawStringInRect(mTitles[inTab], font, isCurrent ? palette::Ink() : palette::FaintInk(),
                             {left + kMargin, 0, width - kMargin - kCrossRoom, height},
                             lumui::drawbot::TextAlignment::kLeft,
                             lumui::drawbot::TextTruncation::kMiddle);
  const float x = left + width - kCrossRoom / 2 - kCrossSize / 2;
  const float y = (height - kCrossSize) / 2;
  const lumui::drawbot::Pen pen(palette::FaintInk(), 1);
  ioDrawbot.StrokeLine({x, y}, {x + kCrossSize, y + kCrossSize}, pen);
  ioDrawbot.StrokeLine({x, y + kCrossSize}, {x + kCrossSize, y}, pen);
}

bool DocumentTabs::UI_DoMouseEvent(lumui::ui::UI_Node*, const MouseEvent& inEvent) {
  if (inEvent.GetAction() != MouseEvent::kActionPress || mTitles.empty()) return false;
  const float width = GetTabWidth();
  const float x = std::max(0.0f, inEvent.GetPosition().x);
  const auto tab = static_cast<std::size_t>(x / width);
  if (tab >= mTitles.size()) return false;
  const bool isOnCross = x - static_cast<float>(tab) * width > width - kCrossRoom;
  if (inEvent.IsButton(MouseEvent::kMiddleButton)) {
    mClose(tab);
  } else if (inEvent.IsButton(MouseEvent::kLeftButton)) {
    isOnCross ? mClose(tab) : mChoose(tab);
  }
  return true;
}

}  // namespace outliner
