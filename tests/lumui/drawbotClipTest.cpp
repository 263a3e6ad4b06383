// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <stdexcept>

#include "lumcore/config/ThrowError.h"
#include "support/DrawbotPictures.h"

using namespace lumui::drawbot;
using namespace test_support;

namespace {

std::string ToText(const Rect& inRect) {
  char text[80];
  std::snprintf(text, sizeof text, "%g %g %g %g", inRect.x, inRect.y, inRect.width, inRect.height);
  return text;
}

}  // namespace

class Clipping : public DrawbotTest {};

TEST_F(Clipping, NestedClipsNarrowAndThePopWidensAgain) {
  auto surface = NewSurface(8, 6);
  Drawbot& drawbot = surface->GetDrawbot();
  {
    StDrawbotState outer(drawbot, Rect(1, 1, 6, 4));
    {
      StDrawbotState inner(drawbot, Rect(3, 0, 9, 3));
      drawbot.FillRect(Rect(-10, -10, 99, 99), kRed);
      EXPECT_EQ(ToText(drawbot.GetClipBounds()), "3 1 4 2");
    }
    EXPECT_EQ(ToText(drawbot.GetClipBounds()), "1 1 6 4");
    drawbot.FillRect(Rect(0, 3, 8, 9), kBlue);
  }
  EXPECT_EQ(ToText(drawbot.GetClipBounds()), "0 0 8 6");
  drawbot.FillRect(Rect(0, 5, 2, 1), kGreen);
  EXPECT_EQ(test_support::ToText(*surface),
            "........\n"
            "...RRRR.\n"
            "...RRRR.\n"
            ".BBBBBB.\n"
            ".BBBBBB.\n"
            "GG......\n");
}

TEST_F(Clipping, BoundsAreInCurrentCoordinatesUnderTranslationAndScale) {
  auto surface = NewSurface(12, 10, 2);
  Drawbot& drawbot = surface->GetDrawbot();
  EXPECT_EQ(drawbot.GetScale(), 2);
  StDrawbotState state(drawbot);
  drawbot.Translate(4, 2);
  drawbot.Scale(2, 4);
  EXPECT_EQ(drawbot.GetScale(), 8);
  EXPECT_EQ(ToText(drawbot.GetClipBounds()), "-2 -0.5 6 2.5");
  drawbot.ClipRect(Rect(-1, 0, 2, 1));
  drawbot.Translate(1, 0);
  EXPECT_EQ(ToText(drawbot.GetClipBounds()), "-2 0 2 1");
  drawbot.FillRect(Rect(-50, -50, 100, 100), kRed);
  EXPECT_EQ(surface->GetPixel(4, 4), kRed);
  EXPECT_EQ(surface->GetPixel(11, 11), kRed);
  EXPECT_EQ(surface->GetPixel(3, 4).alpha, 0);
  EXPECT_EQ(surface->GetPixel(12, 11).alpha, 0);
  EXPECT_EQ(surface->GetPixel(11, 12).alpha, 0);
}

TEST_F(Clipping, NothingIsDrawnThroughClipsThatDoNotMeet) {
  const Rect never[] = {Rect(5, 5, 3, 3), Rect(1, 1, 0, 2), Rect(4, 4, -3, -3)};
  for (const Rect& clip : never) {
    auto surface = NewSurface(8, 8);
    Drawbot& drawbot = surface->GetDrawbot();
    StDrawbotState outer(drawbot, Rect(0, 0, 4, 4));
    StDrawbotState inner(drawbot, clip);
    EXPECT_EQ(ToText(drawbot.GetClipBounds()), "0 0 0 0");
    // What has come to nothing stays nothing.
    drawbot.ClipRect(Rect(0, 0, 8, 8));
    drawbot.FillRect(Rect(0, 0, 8, 8), kRed);
    drawbot.StrokeLine(Point(0, 2), Point(8, 2), Pen(kRed, 2));
    EXPECT_EQ(test_support::ToText(*surface), test_support::ToText(*NewSurface(8, 8)))
        << ToText(clip);
  }
}

TEST_F(Clipping, PathClipsToItsShapeAndReportsItsBounds) {
  auto surface = NewSurface(6, 4);
  Drawbot& drawbot = surface->GetDrawbot();
  Path path;
  path.AddRect(Rect(0, 0, 2, 2));
  path.AddRect(Rect(3, 1, 2, 2));
  {
    StDrawbotState state(drawbot);
    drawbot.ClipPath(path);
    EXPECT_EQ(ToText(drawbot.GetClipBounds()), "0 0 5 3");
    drawbot.FillRect(Rect(0, 0, 6, 4), kGreen);
  }
  EXPECT_EQ(test_support::ToText(*surface),
            "GG....\n"
            "GG.GG.\n"
            "...GG.\n"
            "......\n");
}

TEST_F(Clipping, StateComesBackAfterAThrowAndAPopTooManyIsRefused) {
  auto surface = NewSurface(4, 1);
  Drawbot& drawbot = surface->GetDrawbot();
  try {
    StDrawbotState state(drawbot, Rect(0, 0, 1, 1));
    drawbot.Translate(3, 0);
    throw std::runtime_error("in the middle of a paint");
  } catch (const std::runtime_error&) {
  }
  EXPECT_THROW(drawbot.PopState(), lumcore::config::Error);
  drawbot.FillRect(Rect(1, 0, 2, 1), kRed);
  EXPECT_EQ(test_support::ToText(*surface), ".RR.\n");
}
