// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "CommandsPane.h"

#include <algorithm>
#include <utility>

#include "CommandsView.h"
#include "Palette.h"
#include "Texts.h"
#include "lumui/controls/UI_ScrollView.h"
#include "lumui/drawbot/Drawbot.h"

namespace outliner {

using lumcore::UTF16String;
using lumui::controls::UI_ScrollView;

namespace {

constexpr float kMargin = 10;
constexpr float kSearchHeight = 28;
constexpr float kListTop = kSearchHeight + 2 * kMargin;

}  // namespace

CommandsPane::CommandsPane(std::function<void(int)> inRun)
    : mSearch(new lumui::controls::UI_TextEdit),
      mEdited(new lumui::controls::UI_InteractiveControlView::ChangedFunction(
          [this](auto*) { mList->SetFilter(mSearch->GetText()); })) {
  CommandsView::Functions functions;
  functions.run = std::move(inRun);
  functions.getSearch = [this] { return mSearch->GetText(); };
  functions.searchFor = [this](const UTF16String& inText) {
    mSearch->SetText(inText);
    mList->SetFilter(inText);
  };
  mList.reset(new CommandsView(std::move(functions)));
  mScrollView.reset(new UI_ScrollView(
      lumcore::utility::Flags<unsigned int>(UI_ScrollView::kNoHorizontalBar), mList));
  mList->SetScrollView(mScrollView.get());
  mSearch->UI_SetNodeID("search");
  mSearch->SetPlaceholder(Localized("$$$/outliner/Commands/Search=Search the commands"));
  mSearch->NotifyWhenChangedInteractively(mEdited);
  UI_AddChild(mSearch);
  UI_AddChild(mScrollView);
}

CommandsPane::~CommandsPane() {
  mEdited->clear();
}

void CommandsPane::FocusList() {
  mList->UI_SetKeyboardFocus(lumui::ui::kFocusOther);
}

void CommandsPane::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  UI_SubView::UI_SizeChanged(inRect);
  mSearch->UI_SetLocalRectF(
      {kMargin, kMargin, std::max(0.0f, inRect.width - 2 * kMargin), kSearchHeight});
  mScrollView->UI_SetLocalRectF(
      {0, kListTop, inRect.width, std::max(0.0f, inRect.height - kListTop)});
}

void CommandsPane::UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const {
  const auto& area = UI_GetLocalRectF();
  inDrawbot->FillRect({0, 0, area.width, area.height}, palette::Strip());
  inDrawbot->FillRect({0, kListTop - 1, area.width, 1}, palette::Line());
}

}  // namespace outliner
