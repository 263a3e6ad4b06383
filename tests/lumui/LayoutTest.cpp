// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <sstream>
#include <vector>

#include "UITest.h"

namespace lumui::test {

namespace {

using ui::AutoLayout;
using ui::LayoutBindings;
using View = boost::intrusive_ptr<ui::UI_SubView>;

View MakeView(const Rect& inRect) {
  const View view(new ui::UI_SubView);
  view->UI_SetLocalRectF(inRect);
  return view;
}

std::string At(const ui::UI_Node& inNode) {
  const Rect& rect = inNode.UI_GetLocalRectF();
  std::ostringstream text;
  text << rect.x << "," << rect.y << " " << rect.width << "x" << rect.height;
  return text.str();
}

std::string Row(const ui::UI_Node& inParent) {
  std::ostringstream text;
  for (std::size_t i = 0; i < inParent.UI_GetChildCount(); ++i) {
    const Rect& rect = inParent.UI_GetChild(i)->UI_GetLocalRectF();
    text << (i ? " " : "") << rect.x << "+" << rect.width;
  }
  return text.str();
}

}  // namespace

TEST(SubViewLayout, EdgesFollowTheParentAndComeBack) {
  struct Case {
    LayoutBindings bindings;
    ui::LayoutConstraints limits;
    const char* larger;   // 160 by 120, from 100 by 80
    const char* smaller;  // 40 by 30
  };
  const std::vector<Case> cases = {
      {{}, {}, "35,20 30x40", "35,20 30x40"},
      {{false, true, false, true}, {}, "35,20 90x80", "35,20 0x0"},
      {{true, true, true, true}, {}, "95,60 30x40", "-25,-30 30x40"},
      {{true, false, false, true}, {}, "95,20 0x80", "-25,20 90x0"},
      {{false, false, false, false, true, true}, {}, "65,40 30x40", "5,-5 30x40"},
      {{false, true, false, true}, {25, 15, 60, 50}, "35,20 60x50", "35,20 25x15"},
      {{true, true, true, true, true}, {50, 50}, "55,50 50x50", "-5,-40 50x50"},
  };
  for (const Case& row : cases) {
    const View parent = MakeView(Rect(0, 0, 100, 80));
    const View child = MakeView(Rect(35, 20, 30, 40));
    child->SetBindings(row.bindings);
    child->SetConstraints(row.limits);
    parent->UI_AddChild(child);
    parent->UI_SetLocalRectF(Rect(0, 0, 160, 120));
    EXPECT_EQ(At(*child), row.larger);
    parent->UI_SetLocalRectF(Rect(5, 5, 40, 30));
    EXPECT_EQ(At(*child), row.smaller);
    child->SetConstraints({});
    parent->UI_SetLocalRectF(Rect(0, 0, 100, 80));
    EXPECT_EQ(At(*child), "35,20 30x40");
  }
}

TEST(SubViewLayout, StartsAnewFromARectangleThatSomebodyGives) {
  const View parent = MakeView(Rect());
  const View child = MakeView(Rect(10, 0, 30, 10));
  child->SetBindings({true, true});
  parent->UI_AddChild(child);
  // The first size is the one that the rectangles are meant for.
  parent->UI_SetLocalRectF(Rect(0, 0, 100, 10));
  EXPECT_EQ(At(*child), "10,0 30x10");
  parent->UI_SetLocalRectF(Rect(0, 0, 150, 10));
  child->UI_SetLocalRectF(Rect(20, 0, 5, 5));
  parent->UI_SetLocalRectF(Rect(0, 0, 160, 10));
  EXPECT_EQ(At(*child), "30,0 5x5");
  const View other = MakeView(Rect(0, 0, 40, 10));
  other->UI_AddChild(child);
  other->UI_SetLocalRectF(Rect(0, 0, 47, 10));
  EXPECT_EQ(At(*child), "37,0 5x5");
  other->SetLayoutChildren(false);
  other->UI_SetLocalRectF(Rect(0, 0, 90, 10));
  EXPECT_EQ(At(*child), "37,0 5x5");
}

TEST(SubViewLayout, LinesUpChildren) {
  struct Case {
    bool maintainMargins;
    bool scaleChildren;
    const char* doubled;  // 200, from 100
    const char* tiny;     // 30
    const char* hidden;   // 200 without the second
  };
  const std::vector<Case> cases = {
      {true, false, "10+20 40+30 75+5", "10+20 40+30 75+5", "10+20 40+30 35+5"},
      {false, false, "32.2222+20 84.4444+30 130.556+5", "0+20 20+30 50+5", "50+20 84.4444+30 95+5"},
      {true, true, "10+56.3636 76.3636+84.5455 165.909+14.0909", "10+0 20+0 25+0",
       "10+132 76.3636+84.5455 147+33"},
      {false, true, "20+40 80+60 150+10", "3+6 12+9 22.5+1.5",
       "33.3333+66.6667 80+60 116.667+16.6667"},
  };
  for (const Case& row : cases) {
    const View parent = MakeView(Rect(0, 0, 100, 10));
    for (const Rect& rect : {Rect(10, 0, 20, 10), Rect(40, 0, 30, 10), Rect(75, 0, 5, 10)})
      parent->UI_AddChild(MakeView(rect));
    parent->SetAutoLayout({true, true, row.maintainMargins, row.scaleChildren});
    const auto rowAt = [&](float inWidth) {
      parent->UI_SetLocalRectF(Rect(0, 0, inWidth, 10));
      return Row(*parent);
    };
    EXPECT_EQ(rowAt(200), row.doubled);
    EXPECT_EQ(rowAt(30), row.tiny);
    EXPECT_EQ(rowAt(200), row.doubled);
    parent->UI_GetChild(1)->UI_Show(false);
    parent->LayOutChildren();
    EXPECT_EQ(Row(*parent), row.hidden);
  }
}

}  // namespace lumui::test
