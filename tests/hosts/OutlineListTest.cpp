// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <string>

#include "hosts/OutlineListHost.h"
#include "hosts/Refusal.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_TextEdit.h"
#include "lumui/testing/Menus.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/UI_NodeManager.h"
#include "outliner/OutlineEdits.h"
#include "outliner/RowEditor.h"
#include "vek/trackview/PlatformView.h"
#include "vek/trackview/TrackView.h"

namespace {

using Host = tests::OutlineListHost;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using lumui::testing::ForeignDrag;
using outliner::OutlineRow;

// Rows with attributes, in a file of the folder.
lumcore::filesupport::File MakeFeeds(const TemporaryFolder& inFolder) {
  const auto file = inFolder.GetFile("feeds.opml");
  file.ReplaceContents(
      "<opml version=\"2.0\"><head/><body>"
      "<outline text=\"b\" type=\"x\" created=\"Mon, 02 Mar 2026 10:00:00 GMT\" rank=\"10\"/>"
      "<outline text=\"C\" type=\"x\" created=\"Sat, 28 Feb 2026 23:00:00 -0230\" rank=\"9\"/>"
      "<outline text=\"a\" created=\"Sun, 01 Mar 2026 01:00:00 GMT\" url=\"u:1\">"
      "<outline text=\"z\"/><outline text=\"y\" rank=\"1.5\"/></outline></body></opml>");
  return file;
}

TEST(OutlineList, ShowsTheColumnsThatRowsHaveAndSortsByWhatTheyMean) {
  TemporaryFolder folder;
  {
    Host host(folder);
    host.GetApp().OpenOutline(MakeFeeds(folder));
    EXPECT_EQ(host.Titles(), "Text Type Created Links ");
    EXPECT_EQ(host.Shown(), "b C a [z y]");
    const std::string order = host.Show();
    host.ClickTitle(0);
    EXPECT_EQ(host.Shown(), "a [y z] b C");
    host.ClickTitle(0);
    EXPECT_EQ(host.Shown(), "C b a [z y]");
    EXPECT_EQ(host.Titles(), "Textv Type Created Links ");
    host.ClickTitle(2);
    EXPECT_EQ(host.Shown(), "a [z y] C b") << "the time of the second is of another zone";
    host.ClickTitle(2);
    host.ClickTitle(2);
    EXPECT_EQ(host.Shown(), "b C a [z y]");
    EXPECT_EQ(host.Titles(), "Text Type Created Links ");
    EXPECT_EQ(host.Show(), order);
    EXPECT_FALSE(host.GetDocument().IsDirty());

    // Columns come by the menu of the titles, and stay from then on.
    const auto choose = [&](float inX, const lumui::testing::MenuPath& inPath) {
      lumui::ui::UI_NodeManager::Get(true)->GetExecutor()->Post(
          [&host, inPath] { lumui::testing::ChooseMenuItem(host.GetWindow(), inPath); });
      lumui::testing::ClickMouse(host.GetWindow(), host.PlaceIn("columns", inX, 10),
                                 lumui::ui::PointerEvent::kRightButton);
      lumui::testing::ProcessEvents();
    };
    choose(host.Rows().GetColumnStartLoc(3) + 20, {ToUTF16("Hide This")});
    choose(20, {ToUTF16("Columns"), ToUTF16("rank")});
    EXPECT_EQ(host.Titles(), "Text Type Created rank ");
    host.ClickTitle(3);
    EXPECT_EQ(host.Shown(), "C b a [y z]") << "numbers by size, and nothing at the end";
    host.Rows().SetColumnWidth(1, 91);
  }
  Host later(folder);
  later.GetApp().OpenOutline(folder.GetFile("feeds.opml"));
  EXPECT_EQ(later.Titles(), "Text Type Created rank ");
  EXPECT_EQ(later.Rows().GetColumnWidth(1), 91);
  // The text takes what the others leave.
  EXPECT_NEAR(later.Rows().GetTotalColumnWidth(), later.Rows().GetTrackView()->LocalArea().width,
              1);
}

TEST(OutlineList, FindsRowsAndWhatIsAboveThem) {
  Host host("Tea [green black [Earl]] milk Sugar");
  host.Keys("Down Down");
  host.Keys("Ctrl+Shift+F");
  host.Type("EA");
  EXPECT_EQ(host.Shown(), "Tea [black [Earl]]");
  EXPECT_EQ(host.Show(), "Tea [green black [Earl]] milk Sugar") << "out of sight is not selected";
  host.Keys("Return");
  EXPECT_EQ(host.Show(), "Tea* [green black [Earl]] milk Sugar");
  host.Keys("Ctrl+A");
  EXPECT_EQ(host.Show(), "Tea* [green black* [Earl*]] milk Sugar") << "only what shows";
  // What is selected or written meanwhile is let in.
  tests::Select(host.GetDocument(), "milk");
  EXPECT_EQ(host.Shown(), "Tea [black [Earl]] milk");
  host.Keys("Return");
  host.Type("x");
  host.Keys("Ctrl+Shift+F");
  EXPECT_EQ(host.Shown(), "Tea [black [Earl]] milk x");
  host.Keys("Escape");
  EXPECT_EQ(host.Shown(), "Tea [green black [Earl]] milk x Sugar");
  EXPECT_EQ(host.Show(), "Tea [green black [Earl]] milk x* Sugar");
  host.Type("nothing");
  EXPECT_EQ(host.Shown(), "");
  host.Keys("Escape Escape Up");
  EXPECT_EQ(host.Shown(), "Tea [green black [Earl]] milk x Sugar");
  EXPECT_EQ(host.GetDocument().GetSelectedRows().size(), 1U);
}

TEST(OutlineList, TakesRowsToWhereTheLineIsInOneStep) {
  const struct {
    const char* selected;
    int from;
    int line;
    float share;
    float x;
    const char* after;
  } kCases[] = {
      // a 0, b 1, c 2, d 3, e 4, f 5, g 6
      {"", 6, 0, 0.1f, 120, "g* a [b c [d e]] f"},      // before the first
      {"", 6, 1, 0.5f, 120, "a [b [g*] c [d e]] f"},    // onto one
      {"", 6, 0, 0.9f, 120, "a [g* b c [d e]] f"},      // below an open one: its first
      {"", 6, 4, 0.9f, 120, "a [b c [d e g*]] f"},      // behind the last of a branch
      {"", 6, 4, 0.9f, 12, "a [b c [d e] g*] f"},       // the same, of the branch around it
      {"", 6, 4, 0.9f, 2, "a [b c [d e]] g* f"},        // and of the one around that
      {"b g", 1, 3, 0.1f, 120, "a [c [b* g* d e]] f"},  // several keep their order
      {"c d", 3, 1, 0.1f, 120, "a [c* [d* e] b] f g"},  // what is below goes along
      {"", 1, 20, 0.5f, 120, "a [c [d e]] f g b*"},     // below all rows
      // Where it is, onto itself and below itself nothing happens.
      {"", 1, 2, 0.1f, 120, "a [b* c [d e]] f g"},
      {"", 2, 4, 0.5f, 120, "a [b c* [d e]] f g"},
      {"f g", 5, 6, 0.9f, 120, "a [b c [d e]] f* g*"},
  };
  for (const auto& each : kCases) {
    SCOPED_TRACE(each.after);
    Host host("a [b c [d e]] f g");
    tests::Select(host.GetDocument(), each.selected);
    host.Drag(host.At(each.from, 0.5f), host.At(each.line, each.share, each.x));
    EXPECT_EQ(host.Show(), each.after);
    if (!host.GetDocument().IsDirty()) continue;
    EXPECT_EQ(host.GetDocument().GetUndoer().size(), 1U);
    host.Keys("Ctrl+Z");
    EXPECT_EQ(host.Shown(), "a [b c [d e]] f g");
    EXPECT_FALSE(host.GetDocument().IsDirty());
  }
  // Rows in another order than the outline's go only below others.
  Host host("b a c");
  host.ClickTitle(0);
  host.Drag(host.At(2, 0.5f), host.At(0, 0.1f));
  EXPECT_EQ(host.Show(), "b a [c*]");
}

TEST(OutlineList, RowsAreDraggedBetweenItAndTheMap) {
  Host host("a [b] c d");
  host.GetWindow().UI_SetSize(790, 780);  // a screen that is none has 800 units
  host.Keys("Ctrl+4");
  tests::Select(host.GetDocument(), "d");  // the map scrolls to what is selected
  host.Drag(host.At(3, 0.5f), host.InMap("c"));
  EXPECT_EQ(host.Show(), "a [b] c [d*]");
  host.Drag(host.InMap("c"), host.At(1, 0.1f));
  EXPECT_EQ(host.Show(), "a [c* [d] b]");
  host.Drag(host.InMap("a"), host.At(3, 0.5f));
  EXPECT_EQ(host.Show(), "a* [c [d] b]") << "not below itself";
  host.Keys("Ctrl+Z Ctrl+Z");
  EXPECT_EQ(host.Show(), "a [b] c d*");
  EXPECT_FALSE(host.GetDocument().IsDirty());
  EXPECT_EQ(host.TakeMessages(), "");
}

TEST(OutlineList, TakesTextAndOutlinesOfOtherPrograms) {
  Host host("a [b] c");
  {
    ForeignDrag drag(host.GetWindow());
    drag.AddText(ToUTF16("one\n\ttwo\nthree"));
    EXPECT_EQ(drag.Move(host.At(1, 0.1f)), lumui::ui::kDropCopy);
    EXPECT_EQ(drag.Drop(host.At(1, 0.1f)), lumui::ui::kDropCopy);
  }
  EXPECT_EQ(host.Show(), "a [one* [two] three* b] c");
  host.MakeFile("n.opml", "x [y]");
  {
    ForeignDrag drag(host.GetWindow());
    drag.AddFiles({ToUTF16(host.GetPath("n.opml"))});
    drag.Move(host.At(5, 0.9f));
    drag.Drop(host.At(5, 0.9f));
  }
  EXPECT_EQ(host.Show(), "a [one [two] three b] c n.opml* [x [y]]");
  {
    ForeignDrag drag(host.GetWindow());
    drag.AddFiles({ToUTF16(host.GetPath("none.opml"))});
    drag.Move(host.At(0, 0.5f));
    EXPECT_EQ(drag.Drop(host.At(0, 0.5f)), lumui::ui::kDropNone);
  }
  lumui::testing::ProcessEvents();
  EXPECT_NE(host.TakeMessages().find("none.opml"), std::string::npos);
  host.Keys("Ctrl+Z Ctrl+Z");
  EXPECT_EQ(host.Show(), "a [b] c");
}

TEST(OutlineList, ACommitThatFailsLeavesTheTextInItsField) {
  Host host("a b");
  host.Keys("Down");
  host.Type("xy");
  tests::Refusal refusal;
  host.GetDocument().GetUndoer().SetHooks(&refusal);
  host.Keys("Return");
  EXPECT_NE(host.TakeMessages().find("no deed today"), std::string::npos);
  EXPECT_EQ(host.Show(), "a* b / axy|");
  host.Keys("Ctrl+Shift+F");
  EXPECT_NE(host.TakeMessages().find("no deed today"), std::string::npos);
  EXPECT_EQ(ToStdString(host.GetDocument().GetEditor().GetText()), "axy");
  host.GetDocument().GetUndoer().SetHooks(nullptr);
  host.Keys("Ctrl+S");
  EXPECT_EQ(host.Show(), "axy* b");
  EXPECT_EQ(host.TakeMessages(), "");
}

TEST(OutlineList, TheFieldGoesWithItsRow) {
  std::string rows = "r0";
  for (int row = 1; row < 100; ++row)
    rows += " r" + std::to_string(row);
  Host host(rows);
  host.Keys("Down F2");
  auto& field = *host.GetWindow().UI_GetNodeForID(lumcore::utility::ToUTF8("rowtext"));
  const float top = field.UI_GetLocalRectF().y;
  host.Rows().GetTrackView()->GetPlatformView().DataPos({0, 38}, false);
  EXPECT_EQ(field.UI_GetLocalRectF().y, top - 38);
  host.Type("!");
  EXPECT_EQ(ToStdString(host.GetDocument().GetEditor().GetText()), "r0!");
  host.Keys("Escape");
  EXPECT_FALSE(field.UI_IsVisible());
  // Escape gives up that text and nothing else.
  host.Keys("Return");
  host.Type("new");
  host.Keys("Return");
  host.Type("other");
  host.Keys("Escape");
  EXPECT_EQ(host.Show().substr(0, 12), "r0 new -* r1");
}

}  // namespace
