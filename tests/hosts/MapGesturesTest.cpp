// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <string>

#include "hosts/MapHost.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/testing/SyntheticInput.h"
#include "outliner/OutlineEdits.h"

namespace {

using lumcore::utility::ToUTF16;
using lumui::testing::ForeignDrag;
using lumui::testing::Position;
using lumui::ui::ModifierKeys;
using outliner::MapLayout;
using Host = tests::MapHost;
using vek::trackview::Point;
using vek::trackview::Rect;

constexpr unsigned char kShift = lumui::ui::kModShift;
constexpr unsigned char kCtrl = lumui::ui::kModCommand;

// Taller than the view, so that it has to scroll.
std::string Tall() {
  std::string outline;
  for (char letter = 'A'; letter <= 'Z'; ++letter)
    outline += std::string(1, letter) + " [" + letter + "1 " + letter + "2] ";
  return outline;
}

TEST(MapGestures, SelectAsInTheOutline) {
  Host host("a [b c [d e]] f");
  host.ClickOn("c");
  EXPECT_EQ(host.Show(), "a [b c* [d e]] f");
  host.ClickOn("e", kShift);
  EXPECT_EQ(host.Show(), "a [b c* [d* e*]] f");
  host.ClickOn("d", kCtrl);
  host.ClickOn("f", kCtrl);
  EXPECT_EQ(host.Show(), "a [b c* [d e*]] f*");
  // One of several selected rows keeps the others until it is let go, as they may be dragged.
  host.ClickOn("e");
  EXPECT_EQ(host.Show(), "a [b c [d e*]] f");
  host.Keys("Left");
  EXPECT_EQ(host.Show(), "a [b c* [d e]] f");
  host.Keys("Left Left Down");
  EXPECT_EQ(host.Show(), "a [b* c [d e]] f");
  host.Keys("Right Down Right");
  EXPECT_EQ(host.Show(), "a [b c [d* e]] f");
}

TEST(MapGestures, ARightPressLeavesSeveralSelectedRowsToTheirMenu) {
  Host host("a [b c] d");
  tests::Select(host.GetDocument(), "b d");
  lumui::testing::PressMouse(host.GetWindow(), host.Of("d"), lumui::ui::PointerEvent::kRightButton);
  EXPECT_EQ(host.Show(), "a [b* c] d*");
  lumui::testing::ReleaseMouse(host.GetWindow(), host.Place(host.Box("a").Origin()),
                               lumui::ui::PointerEvent::kRightButton);
  EXPECT_EQ(host.Show(), "a [b* c] d*");
}

TEST(MapGestures, ARubberBandSelectsWhatItTouchesWhenItIsLetGo) {
  Host host("a [b c [d e]] f");
  const Rect b = host.Box("b");
  const Rect d = host.Box("d");
  const Position from = host.Place(Point(b.x - 10, b.y - 3));
  const Position to = host.Place(Point(d.x + 1, d.Bottom() - 1));
  host.ClickOn("f");
  host.Drag(from, to);
  EXPECT_EQ(host.Show(), "a [b* c* [d* e]] f");
  host.ClickOn("f");
  host.Drag(to + Position(0, 200), host.Place(Point(b.x - 5, b.y - 20)), kCtrl);
  EXPECT_EQ(host.Show(), "a [b* c* [d* e*]] f*");
  host.Drag(from, to, 0, "Escape");
  EXPECT_EQ(host.Show(), "a [b c [d e]] f");
  host.ClickOn("b");
  lumui::testing::ClickMouse(host.GetWindow(), from);
  EXPECT_EQ(host.Show(), "a [b c [d e]] f");
}

TEST(MapGestures, MoveBranchesByDragInOneStep) {
  const struct {
    const char* selected;
    const char* from;
    const char* to;
    const char* after;
  } kCases[] = {
      {"", "c", "f", "a [b] f [c* [d e]] g"},
      {"", "d", "a", "a [b c [e] d*] f g"},
      {"", "d", "The outline itself", "a [b c [e]] f g d*"},
      {"b e f", "b", "g", "a [c [d]] g [b* e* f*]"},
      {"d c", "d", "f", "a [b] f [c* [d* e]] g"},  // c takes d along
      {"b e", "b", "c", "a [c [d e* b*]] f g"},    // e is there already
      // Refused: onto itself, below itself, and where it is.
      {"", "c", "c", "a [b c* [d e]] f g"},
      {"", "c", "d", "a [b c* [d e]] f g"},
      {"a f", "f", "e", "a* [b c [d e]] f* g"},
      {"", "d", "c", "a [b c [d* e]] f g"},
  };
  for (const auto& each : kCases) {
    SCOPED_TRACE(std::string(each.from) + " to " + each.to);
    Host host("a [b c [d e]] f g");
    tests::Select(host.GetDocument(), each.selected);
    host.Drag(host.Of(each.from), host.Of(each.to));
    EXPECT_EQ(host.Show(), each.after);
    const bool isMoved = host.GetDocument().IsDirty();
    EXPECT_EQ(isMoved, std::string(each.after).substr(0, 15) != "a [b c* [d e]] " &&
                           std::string(each.after).substr(0, 2) != "a*" &&
                           std::string(each.after) != "a [b c [d* e]] f g");
    if (!isMoved) continue;
    host.Keys("Ctrl+Z");
    EXPECT_FALSE(host.GetDocument().IsDirty());
    EXPECT_FALSE(outliner::edits::CanUndo(host.GetDocument()));
  }
}

TEST(MapGestures, AMoveIsGivenUpByEscapeAndOutlivesItsRow) {
  Host host("a [b c] d");
  host.Drag(host.Of("b"), host.Of("d"), 0, "Escape");
  EXPECT_EQ(host.Show(), "a [b* c] d");
  host.Drag(host.Of("b"), host.Of("d"), 0, "Delete");
  EXPECT_EQ(host.Show(), "a [c*] d");
  host.Drag(host.Of("c"), host.Of("d"), 0, "Ctrl+W");
  EXPECT_EQ(host.ShowDocuments(), "[*o.opml]");  // the question was not answered
  EXPECT_EQ(host.TakeMessages().substr(0, 4), "box:");
}

TEST(MapGestures, TheWayToTheOutlineAndBack) {
  Host host(Tall());
  lumui::testing::DoubleClickMouse(host.GetWindow(), host.Of("M1"));
  host.Type("!");
  EXPECT_NE(host.Show().find("M [M1* M2]"), std::string::npos) << host.Show();
  EXPECT_NE(host.Show().find(" / M1!|"), std::string::npos);
  host.Keys("Escape");
  // What is selected there comes into view here.
  tests::Select(host.GetDocument(), "");
  EXPECT_FALSE(host.IsInView("Z2"));
  host.Keys("Up");
  EXPECT_TRUE(host.IsInView("Z2"));
  // In the map Return goes there, and what begins a text goes along.
  for (const char* const key : {"Return", "F2"}) {
    host.Map().FocusMap();
    host.Keys(key);
    host.Type("?");
    EXPECT_NE(host.Show().find(" / Z2?|"), std::string::npos) << key;
    host.Keys("Escape");
  }
}

TEST(MapGestures, ToolsHaveTheirKeysOnlyInTheMap) {
  Host host(Tall());
  const Point start = host.Track().DataArea().Origin();
  const Position middle = host.PlaceIn("map", 250, 200);
  host.Keys("H");
  host.Drag(middle, middle - Position(60, 90));
  EXPECT_EQ(host.Track().DataArea().Origin(), start + Point(0, 90));  // it has room upward only
  EXPECT_EQ(host.Show().find('*'), std::string::npos);
  host.Keys("Z");
  lumui::testing::ClickMouse(host.GetWindow(), middle);
  EXPECT_EQ(host.Track().GetCoordScale(), 2);
  lumui::testing::ClickMouse(host.GetWindow(), middle, lumui::ui::PointerEvent::kLeftButton,
                             ModifierKeys(lumui::ui::kModAlt));
  EXPECT_EQ(host.Track().GetCoordScale(), 1);
  host.Keys("V");
  host.ClickOn("M");
  EXPECT_NE(host.Show().find("M*"), std::string::npos);
  host.Keys("Return H");
  EXPECT_NE(host.Show().find(" / Mh|"), std::string::npos);
}

TEST(MapGestures, ZoomKeepsThePlaceUnderThePointer) {
  Host host(Tall());
  const Position middle = host.PlaceIn("map", 150, 220);
  Point before(150, 220);
  before = before + host.Track().DataArea().Origin();
  for (const float notches : {-1.0f, -2.0f, 1.0f}) {
    lumui::testing::TurnWheel(host.GetWindow(), middle, {0, notches}, ModifierKeys(kCtrl));
    const float scale = host.Track().GetCoordScale();
    const Point after = host.Track().DataArea().Origin() + Point(150 / scale, 220 / scale);
    EXPECT_NE(scale, 1);
    EXPECT_NEAR(after.y, before.y, 1.5f);
  }
  host.Keys("Ctrl+9");
  EXPECT_EQ(host.Track().DataArea().Intersection(host.Box("A1")), host.Box("A1"));
  EXPECT_TRUE(host.IsInView("Z2"));
  host.Keys("Ctrl+0 Ctrl+=");
  EXPECT_EQ(host.Track().GetCoordScale(), 1.25f);
}

TEST(MapGestures, TheOverviewMovesTheView) {
  Host host(Tall());
  ASSERT_FALSE(host.IsInView("A1"));
  lumui::testing::ClickMouse(host.GetWindow(), host.PlaceIn("overview", 60, 3));
  EXPECT_TRUE(host.IsInView("A1"));
  host.Drag(host.PlaceIn("overview", 60, 3), host.PlaceIn("overview", 60, 300));
  EXPECT_TRUE(host.IsInView("Z2"));
}

TEST(MapGestures, AnEditLeavesWhatIsInViewWhereItIs) {
  Host host(Tall());
  const Position before = host.Of("P");
  tests::Select(host.GetDocument(), "P");
  outliner::edits::NewChild(host.GetDocument());
  outliner::edits::MoveUp(host.GetDocument());
  tests::Select(host.GetDocument(), "A");
  host.Keys("Ctrl+Z Ctrl+Z");
  tests::Select(host.GetDocument(), "P");
  outliner::edits::Indent(host.GetDocument());
  EXPECT_NEAR(host.Of("P").x, before.x, 200);
  EXPECT_TRUE(host.IsInView("P"));
}

TEST(MapGestures, TakeTextAndOutlinesOfOtherPrograms) {
  Host host("a [b] c");
  {
    ForeignDrag drag(host.GetWindow());
    drag.AddText(ToUTF16("one\n\n\ttwo \n\t  three\r\n    four\nfive"));
    EXPECT_EQ(drag.Move(host.Of("b")), lumui::ui::kDropCopy);
    EXPECT_EQ(drag.Drop(host.Of("b")), lumui::ui::kDropCopy);
  }
  EXPECT_EQ(host.Show(), "a [b [one* [two [three] four] five*]] c");
  host.MakeFile("n.opml", "x [y z]");
  {
    ForeignDrag drag(host.GetWindow());
    drag.AddFiles({ToUTF16(host.GetPath("n.opml")), ToUTF16(host.GetPath("n.opml"))});
    drag.Move(host.Of("a"));
    EXPECT_EQ(drag.Drop(host.Of("The outline itself")), lumui::ui::kDropCopy);
  }
  EXPECT_EQ(host.Show(),
            "a [b [one [two [three] four] five]] c n.opml* [x [y z]] n.opml* [x [y z]]");
  host.Keys("Ctrl+Z Ctrl+Z");
  EXPECT_EQ(host.Show(), "a [b] c");
  // Of several files the one that cannot be read keeps out all.
  {
    ForeignDrag drag(host.GetWindow());
    drag.AddFiles({ToUTF16(host.GetPath("n.opml")), ToUTF16(host.GetPath("none.opml"))});
    drag.Move(host.Of("c"));
    drag.Drop(host.Of("c"));
  }
  lumui::testing::ProcessEvents();
  EXPECT_EQ(host.Show(), "a [b] c");
  EXPECT_NE(host.TakeMessages().find("none.opml"), std::string::npos);
}

TEST(MapGestures, TheMapFollowsTheCurrentDocument) {
  Host host("a b");
  host.GetApp().NewOutline();
  EXPECT_EQ(host.Layout().GetNodes().size(), 1U);
  host.Keys("Ctrl+W");
  EXPECT_EQ(host.Layout().GetNodes().size(), 3U);
  host.Keys("Ctrl+W");
  EXPECT_EQ(host.Map().GetDocument(), nullptr);
  host.Map().FocusMap();
  host.Keys("Z H V Ctrl+9 Return Left F2");
  EXPECT_EQ(host.TakeMessages(), "");
  host.Keys("Ctrl+4");
  EXPECT_EQ(host.GetApp().FindMap(), nullptr);
}

}  // namespace
