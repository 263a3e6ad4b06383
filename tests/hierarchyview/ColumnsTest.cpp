// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>
#include <functional>

#include "support/RecordingListener.h"
#include "support/RecordingPlatformView.h"
#include "support/TestTree.h"
#include "vek/hierarchyview/BasicTreeListRowGeometry.h"
#include "vek/hierarchyview/MultiColumnHeaderView.h"
#include "vek/trackview/TrackView.h"

namespace {

using namespace test_support;
using namespace vek::hierarchyview;
using tv::Point;
using tv::Rect;

lumcore::UTF16String Wide(const std::string& inText) {
  return lumcore::UTF16String(inText.begin(), inText.end());
}

// A list on a view of its own that tells its resizes. Attribute 1 is the entry's name, 2 its name
// twice.
class List : public TreeListControlBase {
 public:
  List(tv::TrackView* inView, EventLog& inLog, bool inHideRoot = false)
      : TreeListControlBase(inView, inHideRoot, 10, false, false), mLog(inLog) {
    SetFont(lumui::drawbot::FontP(new FixedFont));
  }
  ~List() override { mLog.Add("~list"); }

  std::string Columns() const {
    std::string text;
    for (unsigned short column = 0; column < GetNumberOfColumns(); ++column) {
      lumcore::UTF16String title;
      GetColumnDescriptor(column, title);
      text += std::string(title.begin(), title.end()) + Joined(GetColumnWidth(column)) +
              (column == GetSortColumn() ? (GetSortIsAscending() ? "^" : "v") : "") + "|";
    }
    return text;
  }
  void Add(const std::string& inTitle, float inWidth, unsigned int inAttribute = 1,
           boost::shared_ptr<CompareFunction> inCompare = nullptr) {
    InsertColumn(inAttribute, inWidth, 20, Wide(inTitle).c_str(), inCompare);
  }
  void Show(const std::string& inShape, bool inHasIcon) {
    mRoot = ReadTree(inShape);
    mHasIcon = inHasIcon;
    BuildHierarchy();
  }

  void ResizeHierarchy() override { mLog.Add("resize"); }
  int NumSelectedEntries() override { return 0; }
  vek::selection::Manager* GetSelectionManager() const override { return nullptr; }
  vek::selection::Manager* GetSelectionManager() override { return nullptr; }
  void DoBuildHierarchy() override { SetRootEntry(mRoot); }
  std::auto_ptr<TreeRowGeometryFactory> CreateRowGeometryFactory() override {
    return std::auto_ptr<TreeRowGeometryFactory>(
        new BasicTreeListRowGeoFactory(this, GetTrackView(), mHasIcon, false));
  }
  void DoDeselectAll() override {}
  void DoSelectEntry(HierarchyEntryBase*, bool) override {}
  void DoToggleEntrySelectionState(EntryList&) override {}

  EntryP mRoot;

 private:
  EventLog& mLog;
  bool mHasIcon = false;
};

// A list with its header above it, each in a view 200 wide, and who listens to its columns.
struct Pair {
  explicit Pair(bool inHideRoot = false) {
    tv::TrackView& listView = mListPlatform.Show(false, 1, 1);
    mList = Install(listView, new List(&listView, mLog, inHideRoot));
    tv::TrackView& headerView = mHeaderPlatform.Show(false, 1, 1);
    headerView.ResizeDataSize(Point(1, 20), false);
    mHeader = Install(headerView, new MultiColumnHeaderView(&headerView, true));
    mHeader->SetViewHeight(20);
    mHeader->SetMultiColumnView(mList);
    mList->GetColumnStateChangedNoter()->AddListener(mHeader);
    mList->GetColumnStateChangedNoter()->AddListener(&mListener);
    mLog.Take();
  }
  template <class Kind>
  static Kind* Install(tv::TrackView& ioView, Kind* inOverlay) {
    std::auto_ptr<tv::Overlay> overlay(inOverlay);
    ioView.InstallOverlay(overlay, false);
    return inOverlay;
  }
  tv::TrackView& HeaderView() { return *mHeaderPlatform.GetTrackView(); }

  // A press, moves and the release, at the middle of the header's height.
  void Drag(std::initializer_list<float> inPlaces) {
    const Point start(*inPlaces.begin(), 10);
    const auto tracker = HeaderView().AcquireTracker(start, false, nullptr);
    tracker->BeginTracking({}, start, false);
    Point last = start;
    for (const float x : inPlaces) {
      last.x = x;
      if (last != start) tracker->ContinueTracking({}, last);
      mTrace += mList->Columns() + " ";
    }
    tracker->EndTracking({}, last, true);
  }

  EventLog mLog, mIgnored;
  RecordingPlatformView mListPlatform{mIgnored, Point(200, 100)};
  RecordingPlatformView mHeaderPlatform{mIgnored, Point(200, 20)};
  List* mList = nullptr;
  MultiColumnHeaderView* mHeader = nullptr;
  RecordingListener<ColumnStateChangeMessage const> mListener{
      mLog, [this](const ColumnStateChangeMessage& inMessage) {
        return Joined(inMessage.GetChangeType()) + "@" + Joined(inMessage.GetAffectedColumn()) +
               ":" + mList->Columns();
      }};
  std::string mTrace;
};

TEST(Columns, TellEachChangeBeforeTheRowsFollow) {
  Pair pair;
  List& list = *pair.mList;
  list.Add("a", 60, 7);
  list.Add("b", 40.5f, 8);
  list.InsertColumn(8, 30, 20, nullptr, nullptr);
  EXPECT_EQ(pair.mLog.Take(), "0@0:a60^| resize 0@1:a60^|b40.5| resize 0@2:a60^|b40.5|30| resize");
  list.SetColumnWidth(1, 5);  // below its minimum
  list.SetColumnWidth(3, 50);
  list.MoveColumn(0, 3);
  list.MoveColumn(2, 1);
  list.MoveColumn(3, 0);
  list.MoveColumn(0, 4);
  EXPECT_EQ(pair.mLog.Take(), "2@1:a60^|b5|30| resize 1@0:b5^|30|a60| 1@2:b5^|a60|30|");
  EXPECT_EQ(Joined(list.GetColumnStartLoc(2), list.GetColumnStartLoc(3), list.GetColumnWidth(3),
                   list.GetColumnAttr(1), list.GetMinColumnWidth(2), list.GetTotalColumnWidth()),
            "65,0,0,7,20,95");
  unsigned short found = 9;
  EXPECT_TRUE(list.HasColumnForAttr(8, found));
  EXPECT_EQ(found, 0);  // the first of two
  // Both edges count, and the left column is asked first.
  for (const auto& [x, column] : {std::pair(0.0f, 0), {5.0f, 0}, {5.5f, 1}, {65.0f, 1}, {95, 2}}) {
    EXPECT_TRUE(list.GetColumnHitByPoint(Point(x, -7), found));
    EXPECT_EQ(found, column) << x;
  }
  EXPECT_FALSE(list.GetColumnHitByPoint(Point(95.5f, 0), found));
  EXPECT_FALSE(list.GetColumnHitByPoint(Point(-0.5f, 0), found));
}

// Removing the sort column sorts nothing; what is left of it may be no column at all.
TEST(Columns, SortTheWholeTreeByTheirFunctionOrTheDefault) {
  Pair pair;
  List& list = *pair.mList;
  list.Show("r [b C [y x z] a]", false);
  list.Add("name", 60);
  list.Add("rank", 60, 2,
           boost::make_shared<CompareFunction>([](unsigned int inAttribute,
                                                  const HierarchyEntryBase* inA,
                                                  const HierarchyEntryBase* inB) {
             return inAttribute == 2 && std::tolower(NameOf(inA)[0]) < std::tolower(NameOf(inB)[0]);
           }));
  list.SortIsAscending(true);
  EXPECT_EQ(ShapeOf(*list.mRoot), "r [b a C [z y x]]");  // the greater text first
  list.SetSortColumn(1);
  EXPECT_EQ(ShapeOf(*list.mRoot), "r [a b C [x y z]]");
  pair.mLog.Take();
  pair.mIgnored.Take();
  list.SortIsAscending(false);
  EXPECT_EQ(ShapeOf(*list.mRoot), "r [C [z y x] b a]");
  EXPECT_EQ(pair.mLog.Take(), "4@1:name60|rank60v|");
  EXPECT_EQ(pair.mIgnored.Take(), "draw:0,0,200,100");
  list.RemoveColumn(1);
  list.RemoveColumn(0);
  list.SortIsAscending(true);
  EXPECT_EQ(pair.mLog.Take(), "3@1:name60v| resize 3@0: resize 4@65535:");
  EXPECT_EQ(ShapeOf(*list.mRoot), "r [C [z y x] b a]");
}

TEST(Columns, FitTheWidestCellOfTheRowsThatShow) {
  Pair pair(true);
  List& list = *pair.mList;
  list.mRoot = EntryP(new NamedEntry("a hidden root of great width", nullptr));
  const EntryP open(new NamedEntry("open", list.mRoot.get()));
  list.mRoot->AddChild(open, false);
  open->AddChild(EntryP(new NamedEntry("child", open.get())), false);
  const EntryP closed(new NamedEntry("c", list.mRoot.get(), kNodeCollapsed));
  list.mRoot->AddChild(closed, false);
  closed->AddChild(EntryP(new NamedEntry("a long text that does not show", closed.get())), false);
  list.Add("a", 1);
  list.Add("b", 1);
  list.SizeColumnToMaxStringLength(0);    // without icons nothing stands before the text
  EXPECT_EQ(list.Columns(), "a20^|b1|");  // no rows yet: the minimum
  list.BuildHierarchy();
  list.SizeColumnToMaxStringLength(0);
  list.SizeColumnToMaxStringLength(1);
  list.SizeColumnToMaxStringLength(2);
  EXPECT_EQ(list.Columns(), "a44^|b48|");  // 35 + 1 + 8, and 4 more
  EntryP root = list.mRoot;
  list.Show("r [a [b]]", true);
  list.SizeColumnToMaxStringLength(0);
  EXPECT_EQ(list.Columns(), "a59^|b48|");  // b: its icon ends at 10 + 17 + 16, 7 + 1 + 8 behind
}

// A point on the border belongs to the handle of the column left of it; 7 units are the handle's.
TEST(Headers, FindHandlesLeftOfTheEdges) {
  Pair pair;
  pair.mList->Add("a", 60);
  pair.mList->Add("b", 5);
  pair.mList->Add("c", 40);
  std::string text;
  for (const float x : {52.75f, 53.0f, 60.0f, 60.5f, 65.0f, 65.5f, 98.0f, 105.0f, 105.5f}) {
    unsigned short column = 9;
    text += pair.mHeader->PointInResizeHandle(Point(x, 0), column) ? Joined(column) : "-";
  }
  EXPECT_EQ(text, "-0011-22-");
  pair.mList->SetColumnWidth(0, 5);
  unsigned short narrow = 9;
  EXPECT_TRUE(pair.mHeader->PointInResizeHandle(Point(-1, 0), narrow));
  EXPECT_FALSE(pair.mHeader->PointInResizeHandle(Point(-3, 0), narrow));
  pair.mList->SetColumnWidth(0, 60);
  text.clear();
  for (const Rect& rect : {Rect(0, 0, 53, 20), Rect(0, 0, 53.5f, 20), Rect(60, 0, 1, 20),
                           Rect(70, 0, 20, 20), Rect(106, 0, 9, 20)}) {
    unsigned short column = 9;
    Rect handle;
    text += pair.mHeader->RectContainsResizeHandle(rect, column, handle)
                ? Joined(column) + "(" + AsText(handle) + ") "
                : "- ";
  }
  EXPECT_EQ(text, "- 0(57,0,3,20) 1(62,0,3,20) - 2(102,0,3,20) ");
}

TEST(Headers, SortByAClickAndFitByADoubleClick) {
  Pair pair;
  pair.mList->Show("r [a]", false);
  pair.mList->Add("a", 60);
  pair.mList->Add("b", 60);
  for (const float x : {20.0f, 80.0f, 80.0f, 130.0f, -3.0f}) {
    pair.Drag({x});
  }
  EXPECT_EQ(pair.mTrace, "a60^|b60| a60v|b60| a60|b60v| a60|b60^| a60|b60^| ");
  EXPECT_TRUE(pair.HeaderView().DoubleClick({}, Point(118, 5)));
  EXPECT_FALSE(pair.HeaderView().DoubleClick({}, Point(20, 5)));
  EXPECT_EQ(pair.mList->Columns(), "a60|b20^|");
  EXPECT_EQ(pair.HeaderView().DataSize(), Point(80, 20));

  MultiColumnHeaderView still(&pair.HeaderView(), false);
  still.SetMultiColumnView(pair.mList);
  still.HandleClickInColumn(0);
  EXPECT_EQ(pair.mList->Columns(), "a60|b20^|");
}

TEST(Headers, ResizeDownToTheMinimumAndBackWithThePointer) {
  Pair pair;
  pair.mList->Add("a", 60);
  pair.mList->Add("b", 60);
  pair.Drag({58, 30, 10, 25, 28});
  EXPECT_EQ(pair.mTrace, "a60^|b60| a32^|b60| a20^|b60| a27^|b60| a30^|b60| ");
}

TEST(Headers, MoveTheColumnThatIsDragged) {
  struct {
    std::initializer_list<float> places;
    const char* columns;
  } const kCases[] = {
      {{70, 125}, "a50^|c50|b50|d50|"},   // its right edge enters the handle of c
      {{70, 90}, "a50^|b50|c50|d50|"},    // only its own
      {{70, 400}, "a50^|c50|d50|b50|"},   // behind all
      {{170, 110}, "a50^|b50|d50|c50|"},  // its left edge passes that of c
      {{170, 60}, "a50^|d50|b50|c50|"},
      {{120, 80}, "a50^|b50|c50|d50|"},  // the handle of that neighbour is touched first
      {{70, 60}, "a50^|b50|c50|d50|"},   // behind its left neighbour it stands already
      {{20, 150}, "a50v|b50|c50|d50|"},  // the first one stays: a click
  };
  for (const auto& [places, columns] : kCases) {
    Pair pair;
    for (const char* title : {"a", "b", "c", "d"})
      pair.mList->Add(title, 50);
    pair.mLog.Take();
    pair.Drag(places);
    EXPECT_EQ(pair.mList->Columns(), columns) << *places.begin() << " to " << *(places.end() - 1);
  }
  Pair two;
  two.mList->Add("a", 50);
  two.mList->Add("b", 50);
  two.Drag({70, 10});
  EXPECT_EQ(two.mList->Columns(), "a50|b50^|");  // a click all the same
}

// Whoever hears of the columns may take the list, the header or both.
TEST(Columns, MayTakeTheListOrTheHeaderAway) {
  for (const bool takesList : {true, false}) {
    Pair pair;
    pair.mList->Add("a", 60);
    pair.mList->Add("b", 60);
    pair.mLog.Take();
    pair.mListener.Once([&] {
      pair.mHeader->SetMultiColumnView(nullptr);
      if (takesList) pair.mListPlatform.GetTrackView()->RemoveOverlay(pair.mList);
      if (!takesList) pair.HeaderView().RemoveOverlay(pair.mHeader);
    });
    const auto tracker = pair.HeaderView().AcquireTracker(Point(58, 5), false, nullptr);
    tracker->BeginTracking({}, Point(58, 5), false);
    tracker->ContinueTracking({}, Point(68, 5));
    tracker->ContinueTracking({}, Point(78, 5));
    tracker->EndTracking({}, Point(78, 5), true);
    EXPECT_EQ(pair.mLog.Take(), takesList ? "2@0:a70^|b60| ~list" : "2@0:a70^|b60| resize");
  }
  Pair clicked;
  clicked.mList->Add("a", 60);
  clicked.mLog.Take();
  clicked.mListener.Once([&] { clicked.HeaderView().RemoveOverlay(clicked.mHeader); });
  clicked.mHeader->HandleClickInColumn(0);
  EXPECT_EQ(clicked.mLog.Take(), "4@0:a60v|");
}

// Icon from 117 to 133, text of 28 from 138: cut off where the first column ends. The highlight
// that takes clicks is the control's, which is without the indent.
TEST(ListRows, TakeClicksOnTheTextsOfTheirCells) {
  Pair pair;
  List& list = *pair.mList;
  list.Show("r", true);
  list.Add("a", 160);
  list.Add("b", 20);
  const EntryP entry(new NamedEntry("abcd", nullptr));
  BasicTreeListRowGeoFactory factory(&list, list.GetTrackView(), true, false);
  const auto row = factory.ServeRowGeometry(entry.get(), Point(100, 50));
  EXPECT_EQ(TextOf(row->GetHighlightRect()), "136,50 21x16");
  EXPECT_EQ(TextOf(list.GetTextBoundingRect(row.get(), entry.get(), 1)), "158,52 19x16");
  EXPECT_EQ(TextOf(list.GetTextBoundingRect(row.get(), entry.get(), 2)), "138,52 28x16");
  EXPECT_FALSE(row->DrawFocusMarquee());
  std::string hits;
  for (const float x : {29.0f, 31.0f, 36.0f, 100.0f, 132.0f, 133.5f, 159.0f, 161.0f, 178.0f}) {
    const bool hit = row->PointInSelectArea(Point(x, 60));
    EXPECT_EQ(row->RectOverlapsSelectArea(Rect(x, 60, 0.25f, 0.25f)), hit || x == 159) << x;
    hits += hit ? "+" : "-";
  }
  EXPECT_EQ(hits, "+-+++--+-");
}

}  // namespace
