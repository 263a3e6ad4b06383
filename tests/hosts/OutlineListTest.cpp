// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "hosts/OutlineText.h"
#include "hosts/RunningOutliner.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_TextEdit.h"
#include "lumui/testing/Menus.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/UI_NodeManager.h"
#include "outliner/DocumentPane.h"
#include "outliner/MapPane.h"
#include "outliner/OutlineEdits.h"
#include "outliner/OutlineEntries.h"
#include "outliner/OutlineList.h"
#include "outliner/OutlineTreeList.h"
#include "outliner/RowEditor.h"
#include "outliner/TextSearch.h"
#include "support/Seeds.h"
#include "vek/hierarchyview/TreeListGeometry.h"
#include "vek/trackview/PlatformView.h"
#include "vek/trackview/TrackView.h"
#include "vek/undo/MultiUndoerHooks.h"

namespace {

using lumcore::UTF16String;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using lumui::testing::ForeignDrag;
using lumui::testing::Position;
using outliner::OutlineColumns;
using outliner::OutlineEntry;
using outliner::OutlineRow;
using outliner::OutlineTreeList;
using tests::RunningOutliner;
using vek::hierarchyview::kNodeCollapsed;

class Host : public RunningOutliner {
 public:
  explicit Host(const std::string& inOutline) : RunningOutliner(inOutline) { Widen(); }
  explicit Host(TemporaryFolder& ioFolder) : RunningOutliner(ioFolder) { Widen(); }

  outliner::OutlineList& List() { return GetApp().FindPane()->GetList(); }
  OutlineTreeList& Rows() { return List().GetRows(); }

  // The rows that show, closed ones with "+": "a [b] c+".
  std::string Shown() { return Branch(*Rows().GetRootEntry()); }
  // The titles, with an arrow at the column that the rows are sorted by.
  std::string Titles() {
    std::string titles;
    for (unsigned short column = 0; column < Rows().GetNumberOfColumns(); ++column) {
      UTF16String title;
      Rows().GetColumnDescriptor(column, title);
      titles += ToStdString(title);
      if (column == Rows().GetSortColumn()) titles += Rows().GetSortIsAscending() ? "^" : "v";
      titles += ' ';
    }
    return titles;
  }
  void ClickTitle(unsigned short inColumn) {
    lumui::testing::ClickMouse(GetWindow(),
                               PlaceIn("columns", Rows().GetColumnStartLoc(inColumn) + 20, 10));
    lumui::testing::ProcessEvents();
  }
  // A share of the height of a line of the list, from its top.
  Position At(int inLine, float inShare, float inX = 120) {
    const float height = vek::hierarchyview::TreeListGeometry::kRowHeight;
    return PlaceIn("rows", inX, (static_cast<float>(inLine) + inShare) * height);
  }
  Position InMap(const std::string& inText) {
    outliner::MapPane& map = *GetApp().FindMap();
    const auto& layout = map.GetScene().GetLayout();
    const OutlineRow* const row = tests::FindRow(GetDocument(), inText);
    const auto box = layout.GetBox(layout.FindRow(row->GetId()));
    vek::trackview::Point point(box.x + box.width / 2, box.y + box.height / 2);
    map.GetTrackView().DataToLocal(point);
    point = point - map.GetTrackView().LocalArea().Origin();
    return PlaceIn("map", point.x, point.y);
  }
  // A drag that the window system carries: it moves and drops while the press is being handled.
  void Drag(const Position& inFrom, const Position& inTo) {
    lumui::testing::PressMouse(GetWindow(), inFrom);
    lumui::ui::UI_NodeManager::Get(true)->GetExecutor()->Post([this, inTo] {
      lumui::testing::MoveMouse(GetWindow(), inTo);
      lumui::testing::MoveMouse(GetWindow(), inTo + Position(1, 0));
      lumui::testing::ReleaseMouse(GetWindow(), inTo + Position(1, 0));
    });
    lumui::testing::MoveMouse(GetWindow(), inFrom + Position(-6, 0));
    lumui::testing::MoveMouse(GetWindow(), inTo);
    lumui::testing::ProcessEvents();
    lumui::testing::ReleaseMouse(GetWindow(), inTo);
    lumui::testing::ProcessEvents();
  }

 private:
  void Widen() { GetWindow().UI_SetSize(1600, 1000); }

  static std::string Branch(const vek::hierarchyview::HierarchyEntryBase& inParent) {
    std::string text;
    for (const auto& child : inParent.GetChildren()) {
      UTF16String cell;
      child->GetCellText(OutlineColumns::kText, cell);
      text += (text.empty() ? "" : " ") + (cell.empty() ? "-" : ToStdString(cell));
      if (child->GetChildren().empty()) continue;
      const bool isClosed = child->GetNodeState() == kNodeCollapsed;
      text += isClosed ? "+" : " [" + Branch(*child) + "]";
    }
    return text;
  }
};

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

TEST(OutlineList, KeysOpenAndCloseAndWhatIsClosedStandsForWhatWasSelectedBelow) {
  Host host("a [b [c d] e] f");
  host.Keys("Down Left");
  EXPECT_EQ(host.Shown(), "a+ f");
  host.Keys("Down");
  EXPECT_EQ(host.Show(), "a [b [c d] e] f*");
  host.Keys("Up Right Down Down");
  EXPECT_EQ(host.Show(), "a [b [c* d] e] f");
  host.Keys("Ctrl+Shift+E");
  EXPECT_EQ(host.Shown(), "a+ f");
  EXPECT_EQ(host.Show(), "a* [b [c d] e] f");
  host.Keys("Ctrl+E");
  EXPECT_EQ(host.Shown(), "a [b [c d] e] f");
  // A row that is selected from elsewhere is shown: by undo, and by a new row.
  host.Keys("Down Down Delete Up Up Left");
  EXPECT_EQ(host.Shown(), "a+ f");
  host.Keys("Ctrl+Z");
  EXPECT_EQ(host.Shown(), "a [b [c d] e] f");
  EXPECT_EQ(host.Show(), "a [b [c* d] e] f");
  host.Keys("Up Left Ctrl+Return");
  EXPECT_EQ(host.Shown(), "a [b [c d -] e] f");
  // A branch that is moved, taken out and put back is as open as it was.
  host.Keys("Escape");
  tests::Select(host.GetDocument(), "b");
  host.Keys("Left Shift+Tab Delete Ctrl+Z Ctrl+Z");
  EXPECT_EQ(host.Shown(), "a [b+ e] f");
}

TEST(OutlineList, KeysGoToRowsAndSelectRanges) {
  const struct {
    const char* keys;
    const char* after;
  } kCases[] = {
      {"Shift+Down", "a* [b c [d e]] f g"},
      {"Shift+Up", "a [b c [d e]] f g*"},
      {"Down Shift+Down Shift+Down", "a* [b* c* [d e]] f g"},
      {"Down Shift+Down Shift+Down Shift+Up", "a* [b* c [d e]] f g"},
      {"Down Down Down Shift+Down Shift+Up Shift+Up", "a [b* c* [d e]] f g"},
      {"Down Shift+Down Down", "a [b c* [d e]] f g"},
      {"Down Down Shift+End", "a [b* c* [d* e*]] f* g*"},
      {"Down Down Shift+End Shift+Home", "a* [b* c [d e]] f g"},
      {"Down Down Ctrl+Shift+End Shift+Up", "a [b* c* [d* e*]] f* g"},
      {"Ctrl+End", "a [b c [d e]] f g*"},
      {"End Home", "a* [b c [d e]] f g"},
      {"End Shift+PageUp", "a* [b* c* [d* e*]] f* g*"},
      {"Home PageDown", "a [b c [d e]] f g*"},
      // From row to row across the levels; a row that opens or closes does only that.
      {"Down Right", "a [b* c [d e]] f g"},
      {"Down Right Right Left", "a* [b c [d e]] f g"},
      {"Down Left Right", "a* [b c [d e]] f g"},
      {"Down Left Left", "a* [b c [d e]] f g"},
      {"Down Right Down Right Left Left Left", "a* [b c [d e]] f g"},
      {"Down Left Shift+Down", "a* [b c [d e]] f* g"},
      {"Down Shift+Down Right", "a* [b* c [d e]] f g"},
      // What was typed is done first, and Home and End in the field are the text's.
      {"Down x Home y Shift+Down", "yax* [b* c [d e]] f g"},
      {"Down x PageDown", "ax [b c [d e]] f g*"},
  };
  for (const auto& [keys, after] : kCases) {
    SCOPED_TRACE(keys);
    Host host("a [b c [d e]] f g");
    host.Keys(keys);
    EXPECT_EQ(host.Show(), after);
  }
}

TEST(OutlineList, RangesOfTheKeyboardGoOnFromThoseOfThePointerAndByTheRowsThatShow) {
  Host host("d [x] a [y] c b");
  host.Click(4);
  host.Click(2, "Shift");
  EXPECT_EQ(host.Show(), "d [x] a* [y*] c* b");
  host.Keys("Shift+Down");
  EXPECT_EQ(host.Show(), "d [x] a [y*] c* b");
  // What is selected apart from the row with the focus goes.
  host.Click(0, "Ctrl");
  host.Keys("Shift+Down");
  EXPECT_EQ(host.Show(), "d* [x*] a [y] c b");
  host.ClickTitle(0);
  EXPECT_EQ(host.Shown(), "a [y] b c d [x]");
  host.Keys("End Up Shift+Up Shift+Up");
  EXPECT_EQ(host.Show(), "d* [x] a [y] c* b*");
}

TEST(OutlineList, APageIsWhatTheViewShowsButOneRow) {
  std::string rows = "r0";
  for (int row = 1; row < 300; ++row)
    rows += " r" + std::to_string(row);
  Host host(rows);
  const auto selected = [&] {
    std::string texts;
    for (const OutlineRow* row : host.GetDocument().GetSelectedRows())
      texts += ToStdString(row->GetText()) + " ";
    return texts;
  };
  const float height = host.Rows().GetTrackView()->DataArea().height;
  const int page = static_cast<int>(height / vek::hierarchyview::TreeListGeometry::kRowHeight) - 1;
  host.Keys("Home PageDown");
  EXPECT_EQ(selected(), "r" + std::to_string(page) + " ");
  host.Keys("PageDown");
  EXPECT_EQ(selected(), "r" + std::to_string(2 * page) + " ");
  const auto shows = [&](int inRow) {
    const auto rect = host.Rows().FindTextRect(
        tests::FindRow(host.GetDocument(), "r" + std::to_string(inRow))->GetId());
    return rect && host.Rows().GetTrackView()->DataArea().Contains({rect->x, rect->y + 1});
  };
  EXPECT_TRUE(shows(2 * page) && shows(page)) << "one row of the page before stays in sight";
  host.Keys("Shift+PageUp");
  EXPECT_EQ(host.GetDocument().GetSelectedRows().size(), static_cast<std::size_t>(page + 1));
  host.Keys("PageUp PageUp");
  EXPECT_EQ(selected(), "r0 ");
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

// Refuses whatever is posted.
class Refusal : public vek::undo::MultiUndoerHooks {
 public:
  void WillPostDeed(vek::undo::Deed*) override {
    throw lumcore::config::Error(ToUTF16("no deed today"));
  }
  void DidPostDeed(vek::undo::Deed*) override {}
  void WillUndoDeed(vek::undo::Deed*) override {}
  void DidUndoDeed(vek::undo::Deed*) override {}
  void WillRedoDeed(vek::undo::Deed*) override {}
  void DidRedoDeed(vek::undo::Deed*) override {}
};

TEST(OutlineList, ACommitThatFailsLeavesTheTextInItsField) {
  Host host("a b");
  host.Keys("Down");
  host.Type("xy");
  Refusal refusal;
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

// After each of some hundred random steps the list shows what the outline, the rows that are open,
// the order and the filter make of it, whatever it has reused.
class Model {
 public:
  explicit Model(Host& inHost) : mHost(inHost) {}

  std::string Expected() const { return Branch(mHost.GetDocument().GetTree().GetRoot()); }
  void SetFilter(const std::string& inText) { mFilter = inText; }
  void SetSorted(bool inSorted) { mSorted = inSorted; }

 private:
  bool IsIn(const OutlineRow& inRow) const {
    if (ToStdString(inRow.GetText()).find(mFilter) != std::string::npos) return true;
    if (mHost.GetDocument().IsSelected(inRow)) return true;
    for (std::size_t child = 0; child < inRow.GetChildCount(); ++child) {
      if (IsIn(*inRow.GetChild(child))) return true;
    }
    return false;
  }
  std::string Branch(const OutlineRow& inParent) const {
    std::vector<const OutlineRow*> rows;
    for (std::size_t child = 0; child < inParent.GetChildCount(); ++child) {
      if (IsIn(*inParent.GetChild(child))) rows.push_back(inParent.GetChild(child));
    }
    if (mSorted) {
      std::stable_sort(rows.begin(), rows.end(), [](const auto* inA, const auto* inB) {
        if (inA->GetText().empty() || inB->GetText().empty()) {
          return !inA->GetText().empty() && inB->GetText().empty();
        }
        return inA->GetText() < inB->GetText();
      });
    }
    std::string text;
    for (const OutlineRow* row : rows) {
      text += (text.empty() ? "" : " ");
      text += row->GetText().empty() ? "-" : ToStdString(row->GetText());
      const std::string below = Branch(*row);
      if (below.empty()) continue;
      const OutlineEntry* const entry = mHost.Rows().GetEntries()->Find(row->GetId());
      const bool isClosed =
          entry && const_cast<OutlineEntry*>(entry)->GetNodeState() == kNodeCollapsed;
      text += isClosed ? "+" : " [" + below + "]";
    }
    return text;
  }

  Host& mHost;
  std::string mFilter;
  bool mSorted = false;
};

TEST(OutlineList, FollowsAnyEdits) {
  namespace edits = outliner::edits;
  for (const unsigned seed : test_support::Seeds(4)) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto upTo = [&](std::size_t inCount) {
      return static_cast<std::size_t>(random() % inCount);
    };
    Host host("a [b c [d e]] f [g] h");
    Model model(host);
    auto& document = host.GetDocument();
    const auto any = [&] {
      const auto& lines = document.GetTree().GetLines();
      return lines[upTo(lines.size())];
    };
    const std::function<void()> steps[] = {
        [&] {
          edits::SetText(document, edits::NewSibling(document),
                         ToUTF16(std::string(1, static_cast<char>('a' + upTo(8)))));
        },
        [&] { edits::NewChild(document); },
        [&] {
          edits::SetText(document, *any(),
                         ToUTF16(std::string(1, static_cast<char>('a' + upTo(8)))));
        },
        [&] {
          document.GetTree().GetLines().size() > 6 ? edits::Delete(document)
                                                   : edits::Undo(document);
        },
        [&] { edits::Indent(document); },
        [&] { edits::Outdent(document); },
        [&] { edits::MoveUp(document); },
        [&] { edits::MoveBelow(document, *any()); },
        [&] {
          edits::MoveTo(document, {upTo(2) == 0 ? outliner::MoveTarget::kBefore
                                                : outliner::MoveTarget::kAfter,
                                   any()->GetId()});
        },
        [&] { edits::Undo(document); },
        [&] { edits::Undo(document); },
        [&] { edits::Redo(document); },
        [&] { document.SelectRows({any()}); },
        [&] { host.Rows().SelectedHasChildrenCollapse(); },
        [&] { host.Rows().SelectedHasChildrenExpand(); },
        [&] { upTo(2) == 0 ? host.Rows().CollapseAll() : host.Rows().ExpandAll(); },
        [&] {
          const char* const kKeys[] = {"Shift+Down", "Shift+Up", "Shift+End", "Home",
                                       "PageDown",   "Left",     "Right",     "Up"};
          host.Keys(kKeys[upTo(std::size(kKeys))]);
        },
        [&] {
          const bool sorts = upTo(2) == 0;
          sorts ? host.Rows().SetSortColumn(0) : host.Rows().UnsortRows();
          model.SetSorted(sorts);
        },
        [&] {
          const std::string text =
              upTo(2) == 0 ? std::string(1, static_cast<char>('a' + upTo(8))) : "";
          model.SetFilter(text);
          host.Rows().SetFilter(outliner::TextSearch({ToUTF16(text)}));
        },
    };
    std::string last;
    for (int step = 0; step < 300; ++step) {
      const std::size_t what = upTo(std::size(steps));
      steps[what]();
      // Rows that were let in stay for as long as the filter, so that begins anew each time.
      const auto filter = host.Rows().GetEntries()->GetFilter();
      if (!filter.IsEmpty()) host.Rows().SetFilter(filter);
      ASSERT_EQ(host.Shown(), model.Expected())
          << "step " << step << " was " << what << " after " << last;
      last = host.Shown();
    }
  }
}

}  // namespace
