// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <string>

#include "hosts/OutlineListHost.h"
#include "lumcore/utility/StringUtils.h"
#include "outliner/OutlineDocument.h"
#include "outliner/OutlineEdits.h"
#include "vek/trackview/TrackView.h"

namespace {

using Host = tests::OutlineListHost;
using lumcore::utility::ToStdString;
using outliner::OutlineRow;

TEST(OutlineListKeys, KeysOpenAndCloseAndWhatIsClosedStandsForWhatWasSelectedBelow) {
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

TEST(OutlineListKeys, KeysGoToRowsAndSelectRanges) {
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

TEST(OutlineListKeys, RangesOfTheKeyboardGoOnFromThoseOfThePointerAndByTheRowsThatShow) {
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

TEST(OutlineListKeys, APageIsWhatTheViewShowsButOneRow) {
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

}  // namespace
