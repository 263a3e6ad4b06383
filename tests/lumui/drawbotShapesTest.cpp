// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <cmath>

#include "lumcore/config/ThrowError.h"
#include "support/DrawbotPictures.h"

using namespace lumui::drawbot;
using namespace test_support;

namespace {

void ExpectNear(const Rect& inActual, const Rect& inExpected) {
  EXPECT_NEAR(inActual.x, inExpected.x, 0.01);
  EXPECT_NEAR(inActual.y, inExpected.y, 0.01);
  EXPECT_NEAR(inActual.width, inExpected.width, 0.01);
  EXPECT_NEAR(inActual.height, inExpected.height, 0.01);
}

}  // namespace

class Shapes : public DrawbotTest {};

TEST_F(Shapes, BoundsFollowTheCurveAndNotItsControlPoints) {
  Path arch;
  arch.MoveTo(Point(0, 0));
  arch.BezierTo(Point(0, 12), Point(8, 12), Point(8, 0));
  ExpectNear(arch.GetBounds(), Rect(0, 0, 8, 9));

  Path ellipse;
  ellipse.AddEllipse(Rect(-5, 2, 30, 7));
  ExpectNear(ellipse.GetBounds(), Rect(-5, 2, 30, 7));

  // From the right over the bottom to the left of a circle of radius 10 around (10, 10).
  Path arc;
  arc.AddArc(Rect(0, 0, 20, 20), 0, 180);
  ExpectNear(arc.GetBounds(), Rect(0, 10, 20, 10));
  Path back;
  back.AddArc(Rect(0, 0, 20, 20), -45, -90);
  const float reach = 10 * std::sqrt(0.5f);
  ExpectNear(back.GetBounds(), Rect(10 - reach, 0, 2 * reach, 10 - reach));
}

TEST_F(Shapes, RoundedRectangleLosesOnlyItsCorners) {
  auto surface = NewSurface(12, 8);
  Path path;
  path.AddRoundedRect(Rect(1, 1, 10, 6), 2);
  surface->GetDrawbot().FillPath(path, kRed);
  EXPECT_EQ(ToText(*surface),
            "............\n"
            ".++RRRRRR++.\n"
            ".+RRRRRRRR+.\n"
            ".RRRRRRRRRR.\n"
            ".RRRRRRRRRR.\n"
            ".+RRRRRRRR+.\n"
            ".++RRRRRR++.\n"
            "............\n");
}

TEST_F(Shapes, RadiusIsCutToTheRectangleAndEmptyOnesAddNothing) {
  Path pill;
  pill.AddRoundedRect(Rect(0, 0, 30, 10), 500);
  ExpectNear(pill.GetBounds(), Rect(0, 0, 30, 10));
  Path plain;
  plain.AddRoundedRect(Rect(0, 0, 30, 10), -1);
  EXPECT_EQ(plain.GetElements().size(), 5u);
  Path empty;
  empty.AddRect(Rect(0, 0, 5, 0));
  empty.AddRoundedRect(Rect(0, 0, -5, 5), 2);
  empty.AddEllipse(Rect());
  empty.AddArc(Rect(), 0, 90);
  EXPECT_TRUE(empty.IsEmpty());
}

TEST_F(Shapes, FigureMayGoOnWhereItWasClosedButNotBeginWithALine) {
  Path path;
  EXPECT_THROW(path.LineTo(Point(1, 1)), lumcore::config::Error);
  EXPECT_THROW(path.Close(), lumcore::config::Error);
  path.AddRect(Rect(2, 0, 2, 2));
  // From (2, 0), where the rectangle began: the triangle of the left column.
  path.LineTo(Point(0, 0));
  path.LineTo(Point(0, 2));
  path.LineTo(Point(2, 2));
  auto surface = NewSurface(5, 3);
  surface->GetDrawbot().FillPath(path, kBlue);
  EXPECT_EQ(ToText(*surface), "BBBB.\nBBBB.\n.....\n");
}

TEST_F(Shapes, FiguresOfOneDirectionOverlapWithoutAHole) {
  Path path;
  path.AddRect(Rect(0, 0, 3, 2));
  path.AddRect(Rect(1, 0, 3, 2));
  auto surface = NewSurface(5, 2);
  surface->GetDrawbot().FillPath(path, kGreen);
  EXPECT_EQ(ToText(*surface), "GGGG.\nGGGG.\n");
}

TEST_F(Shapes, StrokesLieWithTheirMiddleOnTheOutline) {
  auto surface = NewSurface(7, 5);
  Drawbot& drawbot = surface->GetDrawbot();
  drawbot.StrokeRect(Rect(0.5f, 0.5f, 4, 4), Pen(kRed, 1));
  drawbot.StrokeLine(Point(6, 0), Point(6, 5), Pen(kBlue, 2, {2, 1}));
  EXPECT_EQ(ToText(*surface),
            "RRRRRBB\n"
            "R...RBB\n"
            "R...R..\n"
            "R...RBB\n"
            "RRRRRBB\n");

  // Paths have whole corners too, and inside a stroke wider than the rectangle no hole is left.
  auto second = NewSurface(9, 5);
  Path path;
  path.AddRect(Rect(0.5f, 0.5f, 4, 4));
  second->GetDrawbot().StrokePath(path, Pen(kRed, 1));
  second->GetDrawbot().StrokeRect(Rect(6, 2, 2, 1), Pen(kBlue, 2));
  EXPECT_EQ(ToText(*second),
            "RRRRR....\n"
            "R...RBBBB\n"
            "R...RBBBB\n"
            "R...RBBBB\n"
            "RRRRR....\n");
}

TEST_F(Shapes, PensWithoutWidthDrawNothing) {
  auto surface = NewSurface(4, 4);
  Drawbot& drawbot = surface->GetDrawbot();
  drawbot.StrokeLine(Point(0, 2), Point(4, 2), Pen(kRed, 0));
  drawbot.StrokeRect(Rect(1, 1, 2, 2), Pen(kRed, -1));
  drawbot.StrokeRect(Rect(3, 3, -2, -2), Pen(kRed, 2));
  drawbot.FillRect(Rect(3, 3, -2, -2), kRed);
  EXPECT_EQ(ToText(*surface), ToText(*NewSurface(4, 4)));
}

TEST_F(Shapes, GradientHasItsColoursAtAndBeyondItsEndsAndRunsEvenlyBetween) {
  auto surface = NewSurface(40, 2);
  Drawbot& drawbot = surface->GetDrawbot();
  drawbot.Translate(4, 0);
  drawbot.FillRect(Rect(-4, 0, 40, 2), Brush(Point(0, 0), kRed, Point(32, 0), kBlue));
  EXPECT_EQ(surface->GetPixel(0, 0), kRed);
  EXPECT_EQ(surface->GetPixel(3, 1), kRed);
  EXPECT_EQ(surface->GetPixel(36, 0), kBlue);
  EXPECT_EQ(surface->GetPixel(39, 1), kBlue);
  for (int x = 0; x < 32; ++x) {
    const ColorRGBA pixel = surface->GetPixel(x + 4, 1);
    const float share = (static_cast<float>(x) + 0.5f) / 32;
    EXPECT_NEAR(pixel.red, 1 - share, 0.02) << x;
    EXPECT_NEAR(pixel.blue, share, 0.02) << x;
  }
}

TEST_F(Shapes, ColoursBlendByAlphaAndAreCutToTheirRange) {
  auto surface = NewSurface(3, 1);
  Drawbot& drawbot = surface->GetDrawbot();
  drawbot.FillRect(Rect(0, 0, 1, 1), ColorRGBA(7, -1, std::nanf(""), 2));
  drawbot.FillRect(Rect(1, 0, 1, 1), kBlue);
  drawbot.FillRect(Rect(1, 0, 1, 1), kRed.WithAlpha(0.25f));
  EXPECT_EQ(surface->GetPixel(0, 0), kRed);
  const ColorRGBA mixed = surface->GetPixel(1, 0);
  EXPECT_NEAR(mixed.red, 0.25f, 0.01);
  EXPECT_NEAR(mixed.blue, 0.75f, 0.01);
  EXPECT_EQ(mixed.alpha, 1);
  EXPECT_EQ(surface->GetPixel(2, 0).alpha, 0);
  EXPECT_EQ(surface->GetPixel(0, 5).alpha, 0);
}
