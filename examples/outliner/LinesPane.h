// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "LinesView.h"
#include "Palette.h"
#include "lumui/controls/UI_ScrollView.h"
#include "lumui/drawbot/Drawbot.h"

namespace outliner {

// A LinesView in a view that fills a panel, or a part of one, and scrolls it.
template <class List>
class LinesPane final : public lumui::ui::UI_SubView {
 public:
  // A list that stands below something else has a line above it.
  explicit LinesPane(bool inHasLineAbove = false)
      : mLine(inHasLineAbove ? 1.0f : 0.0f), mList(new List), mScrollView(mList->MakeScrollView()) {
    UI_AddChild(mScrollView);
  }

  List& GetList() { return *mList; }
  void FocusList() { mList->UI_SetKeyboardFocus(lumui::ui::kFocusOther); }

  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override {
    if (mLine > 0) inDrawbot->FillRect({0, 0, UI_GetLocalRectF().width, mLine}, palette::Line());
  }

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override {
    UI_SubView::UI_SizeChanged(inRect);
    mScrollView->UI_SetLocalRectF(
        {0, mLine, inRect.width, inRect.height > mLine ? inRect.height - mLine : 0});
    mList->LinesChanged();
  }

 private:
  const float mLine;  // its height in units
  boost::intrusive_ptr<List> mList;
  boost::intrusive_ptr<lumui::controls::UI_ScrollView> mScrollView;
};

}  // namespace outliner
