// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "hosts/MapHost.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/testing/SyntheticInput.h"
#include "outliner/OutlineEdits.h"
#include "support/ShownPicture.h"

namespace {

using lumui::testing::Position;
using lumui::ui::ModifierKeys;
using lumui::ui::PointerEvent;
using vek::trackview::Point;
using vek::trackview::Rect;

// Three levels, with long and short texts.
std::string Branches() {
  std::string outline;
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    const std::string name(1, letter);
    outline += name + " [" + name + "1 [" + name + "x " + name + "y " + name + "z] " + name +
               "222222222222 " + name + "3] ";
  }
  return outline;
}

// What is painted anew in the course of a gesture is all that it changes: the window looks as if it
// had been painted anew as a whole.
class MapRepaints : public testing::Test {
 protected:
  MapRepaints() {
    mHost.GetWindow().UI_SetSize(1600, 760);
    lumui::testing::ProcessEvents();
    ShowBranch();
  }

  void ShowBranch() {
    tests::Select(mHost.GetDocument(), "");
    tests::Select(mHost.GetDocument(), "M");
  }

  void Expect(const char* inWhat, const std::function<void()>& inChange) {
    const QImage before = test_support::ShownPicture();
    inChange();
    const QImage shown = test_support::ShownPicture();
    EXPECT_TRUE(shown != before) << inWhat;
    EXPECT_EQ(test_support::Difference(shown, test_support::WholePicture()), "") << inWhat;
  }
  void ExpectMoves(const char* inWhat, const std::vector<Position>& inPlaces) {
    for (const Position& place : inPlaces)
      Expect(inWhat, [&] { lumui::testing::MoveMouse(mHost.GetWindow(), place); });
  }
  void ExpectScrolls() {
    for (const Point& notches : {Point(0, 1), Point(0, -0.3f), Point(0, -2)}) {
      Expect("wheel", [&] {
        lumui::testing::TurnWheel(mHost.GetWindow(), mHost.PlaceIn("map", 150, 220), notches);
      });
    }
    mHost.Keys("H");
    const Position start = mHost.PlaceIn("map", 250, 200);
    lumui::testing::PressMouse(mHost.GetWindow(), start);
    ExpectMoves("hand", {start + Position(0, 31), start + Position(3, 70), start + Position(0, 5)});
    lumui::testing::ReleaseMouse(mHost.GetWindow(), start);
    mHost.Keys("V");
  }
  void ExpectBand() {
    const Position start = mHost.PlaceIn("map", 5, 120);
    lumui::testing::PressMouse(mHost.GetWindow(), start);
    ExpectMoves("band",
                {start + Position(40, 60), start + Position(301, 203), start + Position(306, 207),
                 start + Position(20, -71), start + Position(160, 90)});
    Expect("band let go",
           [&] { lumui::testing::ReleaseMouse(mHost.GetWindow(), start + Position(160, 90)); });
  }
  void ExpectMove() {
    ShowBranch();
    const Position from = mHost.Of("M3");
    const Position to = mHost.Of("M1");
    lumui::testing::PressMouse(mHost.GetWindow(), from);
    ExpectMoves("branch", {from + Position(30, 7), to + Position(0, 1), to + Position(30, -9),
                           to + Position(1, 1)});
    // The map may have scrolled to follow the pointer.
    Expect("branch let go",
           [&] { lumui::testing::ReleaseMouse(mHost.GetWindow(), mHost.Of("M1")); });
    Expect("branch back", [&] { mHost.Keys("Ctrl+Z"); });
  }
  void ExpectEdits() {
    ShowBranch();
    Expect("more", [&] { outliner::edits::NewChild(mHost.GetDocument()); });
    Expect("less", [&] { mHost.Keys("Ctrl+Z"); });
    Expect("selection", [&] { mHost.ClickOn("M1"); });
    Expect("idle selection", [&] { mHost.Map().GetScene().SetFocused(false); });
    Expect("other idle selection", [&] { tests::Select(mHost.GetDocument(), "M"); });
    mHost.Map().GetScene().SetFocused(true);
    lumui::testing::ForeignDrag drag(mHost.GetWindow());
    drag.AddText(lumcore::utility::ToUTF16("text"));
    Expect("drag", [&] { drag.Move(mHost.Of("M3")); });
    Expect("drag on", [&] { drag.Move(mHost.Of("M1")); });
    Expect("drag gone", [&] { drag.Leave(); });
  }
  void ExpectAll() {
    ExpectScrolls();
    ExpectBand();
    ExpectMove();
    ExpectEdits();
  }

  tests::MapHost mHost{Branches()};
};

TEST_F(MapRepaints, LeaveNothingAtScaleOne) {
  ExpectAll();
}

TEST_F(MapRepaints, LeaveNothingNearerOrFarther) {
  for (const char* const keys : {"Ctrl+=", "Ctrl+0 Ctrl+-", "Ctrl+- Ctrl+-"}) {
    Expect(keys, [&] { mHost.Keys(keys); });
    ShowBranch();
    SCOPED_TRACE(mHost.Track().GetCoordScale());
    ExpectAll();
  }
  Expect("wheel", [&] {
    lumui::testing::TurnWheel(mHost.GetWindow(), mHost.Of("M"), {0, 2},
                              ModifierKeys(lumui::ui::kModCommand));
  });
  Expect("fit", [&] { mHost.Keys("Ctrl+9"); });
  ExpectBand();
  ExpectEdits();
}

}  // namespace
