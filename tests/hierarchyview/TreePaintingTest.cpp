// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <functional>
#include <sstream>
#include <utility>

#include "support/RecordingDrawbot.h"
#include "support/TreeRig.h"

namespace {

using namespace test_support;

class TreePainting : public TreeRig {
 protected:
  std::string Paint(const tv::Rect& inDamage) {
    mTrack.ImageRect(inDamage, mDrawbot, nullptr);
    return mDrawbot.Take();
  }
  // Only what is drawn between the background and the end, without rows and their clips.
  std::string PaintExtras(const tv::Rect& inDamage) {
    std::istringstream lines(Paint(inDamage));
    std::string kept, line;
    while (std::getline(lines, line)) {
      const bool isRow = line.compare(0, 4, "text") == 0 || line.compare(0, 4, "line") == 0 ||
                         line.compare(0, 4, "clip") == 0 || line.compare(0, 1, "p") == 0;
      if (!isRow) kept += line + '\n';
    }
    return kept;
  }
  // What the cache answers for some heights.
  std::string Cached() {
    std::string names;
    for (const float y : {-5.0f, 0.0f, 19.0f, 20.0f, 57.0f, 58.0f, 400.0f})
      names += NameOf(*mTree->FindEntryInCache(tv::Point(0, y)));
    return names;
  }
  RecordingDrawbot mDrawbot;
};

TEST_F(TreePainting, DrawsTheRowsThatTheDamageTouchesEachInItsBand) {
  Build("a B [x] c [d] e f g");
  Select("c");
  EXPECT_EQ(Paint(tv::Rect(30, 40, 100, 20)),
            "fill 30,40,100,20 #1,1,1,1\n"
            "push\n"
            "clip 0,38,200,19\n"
            "fill 0,38,200,19 #0.7,0.8,1,1\n"
            "text c 22,49\n"
            "line 0,57 200,57 #0.9,0.9,0.9,1 by 1\n"
            "fill 3,44.5-13,44.5-8,50.5 #0.5,0.5,0.5,1\n"
            "pop\n"
            "push\n"
            "clip 10,57,200,19\n"
            "text d 32,68\n"
            "line 10,76 210,76 #0.9,0.9,0.9,1 by 1\n"
            "pop\n");
  // A band begins at the damage where that is further left, and is as wide as the widest of row,
  // damage and view. A closed twisty points to the right.
  mTree->SetWantsLine(false);
  mTree->SetBackgroundColor(lumui::drawbot::ColorRGBA(0, 1, 0, 1));
  mTree->SetCustomSelectionColor(lumui::drawbot::ColorRGBA(0, 0, 1, 1));
  Select("B");
  EXPECT_EQ(Paint(tv::Rect(-4, 19, 250, 18)),
            "fill -4,19,250,18 #0,1,0,1\n"
            "push\n"
            "clip -4,19,250,19\n"
            "fill -4,19,250,19 #0,0,1,1\n"
            "text B 22,30\n"
            "fill 5,23.5-11,28.5-5,33.5 #0.5,0.5,0.5,1\n"
            "pop\n");
  EXPECT_EQ(Paint(tv::Rect(0, 0, 0, 50)) + Paint(tv::Rect(0, 0, 50, 0)), "");
  // A host that paints its own grounds says what is seen on them.
  mTree->SetTwistyColorFunction([this](const HierarchyEntryBase* inEntry) {
    const bool isSelected = inEntry->Selected(mTree->GetSelectionManager());
    return lumui::drawbot::ColorRGBA(isSelected ? 1.0f : 0.0f, 0, 0);
  });
  EXPECT_NE(Paint(tv::Rect(0, 20, 50, 10)).find("5,33.5 #1,0,0,1\n"), std::string::npos);
  EXPECT_NE(Paint(tv::Rect(0, 40, 50, 10)).find("8,50.5 #0,0,0,1\n"), std::string::npos);
}

TEST_F(TreePainting, RemembersTheRowsThatItPassedUntilSomethingMoves) {
  Build("a B [x] c [d] e f g");
  EXPECT_EQ(Cached(), "rrrrrrr");
  Paint(tv::Rect(0, 40, 100, 0));
  EXPECT_EQ(Cached(), "rrrrrrr");
  Paint(tv::Rect(0, 40, 100, 20));
  EXPECT_EQ(Cached(), "aaaBcdd");
  Paint(tv::Rect(0, 90, 100, 30));
  EXPECT_EQ(Cached(), "aaaBcdg");
  mTree->ExpandNode(At('B'), true);
  EXPECT_EQ(Cached(), "rrrrrrr");
  Paint(tv::Rect(0, 0, 100, 20));
  EXPECT_EQ(Cached(), "aaaBBBB");
  // Nobody told the control; what was painted is not followed, and the next paint begins anew.
  mNodes.erase('B');
  At('a')->GetParent()->ResortChildren();
  mTree->RemoveEntry(*mTree->FindEntryInCache(tv::Point(0, 20)));
  EXPECT_EQ(Cached(), "rrrrrrr");
  EXPECT_NE(Paint(tv::Rect(0, 19, 100, 10)).find("text c 22,30"), std::string::npos);
  EXPECT_EQ(Cached(), "aaacccc");
}

TEST_F(TreePainting, DrawsBorderBandAndDropTargetsOnTopOfTheRows) {
  Build("a b");
  const tv::Rect damage(0, 0, 200, 38);
  mTree->SetDrawBorder(true);
  mTree->SetMarqueeRect(tv::Rect(10, 5, 30, 20));
  mTree->SetDragFeedback(At('b'), false);
  const std::string kOnTop =
      "stroke 0.5,0.5,199,59 #0.5,0.5,0.5,1 by 1\n"
      "fill 15,5-35,5-40,10-40,20-35,25-15,25-10,20-10,10-15,5 #0.52,0.52,0.52,0.5\n"
      "stroke 15,5-35,5-40,10-40,20-35,25-15,25-10,20-10,10-15,5 #0.84,0.84,0.84,0.5 by 3\n";
  EXPECT_EQ(PaintExtras(damage),
            "fill 0,0,200,38 #1,1,1,1\n"
            "fill 9,21-191,21-196,26-196,32-191,37-9,37-4,32-4,26-9,21 #0.5,0.5,0.5,0.25\n"
            "stroke 9,21-191,21-196,26-196,32-191,37-9,37-4,32-4,26-9,21 #0.3,0.3,0.3,1 by 3\n" +
                kOnTop);
  mTree->SetDragFeedback(nullptr, true);
  EXPECT_EQ(PaintExtras(damage),
            "fill 0,0,200,38 #1,1,1,1\n" + kOnTop +
                "stroke 9,4-191,4-196,9-196,51-191,56-9,56-4,51-4,9-9,4 #0.5,0.5,0.5,0.25 by 10\n"
                "stroke 9,4-191,4-196,9-196,51-191,56-9,56-4,51-4,9-9,4 #0.3,0.3,0.3,1 by 3\n");
  mTree->SetDragFeedbackType(vek::hierarchyview::kDragFeedbackInsertion);
  EXPECT_EQ(PaintExtras(damage),
            "fill 0,0,200,38 #1,1,1,1\n" + kOnTop +
                "fill 0,32-0,41-4,38-4,36-0,32-5,36-205,36-205,38-5,38 #0,0,0,1\n");
  mTree->SetMarqueeRect(tv::Rect());
  mTree->SetDrawBorder(false);
  mTree->SetDragFeedback(At('b'), false);
  EXPECT_EQ(PaintExtras(damage),
            "fill 0,0,200,38 #1,1,1,1\n"
            "fill 0,15-0,24-4,21-4,19-0,15-5,19-205,19-205,21-5,21 #0,0,0,1\n");
}

// A paint far below passes many rows by at once; what it came by is known all the same.
TEST_F(TreePainting, KnowsEachRowThatItPassedOnItsWayDown) {
  Build("");
  mTree->SetDrawShadowBox(false);
  for (int i = 0; i < 1000; ++i)
    mTree->AddNode(nullptr, lumcore::utility::ToUTF16(std::to_string(i)));
  mTree->ResizeHierarchy();
  const auto cached = [this](std::initializer_list<float> inHeights) {
    std::string names;
    for (const float y : inHeights)
      names += NameOf(*mTree->FindEntryInCache(tv::Point(0, y))) + " ";
    return names;
  };
  EXPECT_NE(Paint(tv::Rect(0, 190, 200, 10)).find("text 10 22,201"), std::string::npos);
  EXPECT_EQ(cached({-1, 0, 19, 19.5f, 200, 9999}), "0 0 0 1 10 10 ");
  // From 10 on, to 500 and the row behind it.
  EXPECT_NE(Paint(tv::Rect(0, 9501, 200, 18)).find("text 500 22,9511"), std::string::npos);
  EXPECT_EQ(cached({-1, 19.5f, 200, 5000, 9500, 9501, 9519.5f, 20000}),
            "0 1 10 263 499 500 501 501 ");
  EXPECT_EQ(Paint(tv::Rect(0, 20000, 200, 18)), "fill 0,20000,200,18 #1,1,1,1\n");
  EXPECT_EQ(cached({9520, 15000, 18982, 20000}), "501 789 999 999 ");
  // What was passed first may also begin below.
  mTree->ResizeHierarchy();
  Paint(tv::Rect(0, 9501, 200, 18));
  EXPECT_EQ(cached({-1, 0, 19, 19.5f, 9500, 20000}), "0 0 0 1 499 501 ");
  EXPECT_EQ(AsText(mTree->GetGeometry()->EntryArea(mTree->FindEntryInCache(tv::Point(0, 5000)))),
            "0,4997,21,19");
}

// A view that paints as soon as it is told of a size.
class EagerView : public RecordingPlatformView {
 public:
  using RecordingPlatformView::RecordingPlatformView;
  void DisplayResized(bool inRedraw) override {
    RecordingPlatformView::DisplayResized(inRedraw);
    RecordingDrawbot drawbot;
    if (mPaints) GetTrackView()->ImageRect(tv::Rect(0, 0, 200, 60), drawbot, nullptr);
  }
  bool mPaints = false;
};

TEST_F(TreePainting, TheFirstPaintSizesTheTreeOnceEvenWhereThatPaints) {
  EventLog log;
  EagerView view(log, tv::Point(200, 60));
  tv::TrackView& track = view.Show(false, 1, 1);
  auto* const tree = new LoggedTree(track, mLog, false, false, true);
  std::auto_ptr<tv::Overlay> overlay(tree);
  tree->AddNode(nullptr, lumcore::utility::ToUTF16("abc"));
  tree->BuildHierarchy();  // a view that cannot draw yet is not told
  track.InstallOverlay(overlay, false);
  EXPECT_EQ(log.Take() + AsText(track.DataSize()), "1,1");
  view.mSupplier = lumui::drawbot::GetDefaultSupplier();
  view.mPaints = true;
  track.ImageRect(tv::Rect(0, 0, 200, 60), mDrawbot, nullptr);
  track.ImageRect(tv::Rect(0, 0, 200, 60), mDrawbot, nullptr);
  EXPECT_EQ(log.Take() + " " + AsText(track.DataSize()), "resized! 21,31");
  tree->SetWantsDropFudge(false);
  tree->ResizeHierarchy();
  EXPECT_EQ(log.Take() + " " + AsText(track.DataSize()), "resized! 21,19");
}

// A host's text that changes the tree as it is asked for.
class Fickle : public BasicTreeNode {
 public:
  Fickle() : BasicTreeNode(lumcore::utility::ToUTF16("F")) {}
  void GetCellText(unsigned int const& inAttribute, lumcore::UTF16String& outText) const override {
    BasicTreeNode::GetCellText(inAttribute, outText);
    if (mChange) std::exchange(mChange, nullptr)();
  }
  mutable std::function<void()> mChange;
};

TEST_F(TreePainting, GoesOnFromTheRowWhereDrawingItTakesAnotherAway) {
  Build("a b c");
  auto* const fickle = new Fickle;
  mTree->AddEntry(nullptr, EntryP(fickle));
  mTree->AddNode(nullptr, lumcore::utility::ToUTF16("e"));
  mTree->ResizeHierarchy();
  fickle->mChange = [&] { mTree->RemoveNode(mNodes.extract('b').mapped().get()); };
  EXPECT_NE(Paint(tv::Rect(0, 0, 200, 120)).find("text e 22,68"), std::string::npos);
  EXPECT_EQ(NameOf(*mTree->FindEntryInCache(tv::Point(0, 50))), "F");
  fickle->mChange = [&] { mTree->RemoveNode(fickle); };
  Paint(tv::Rect(0, 0, 200, 120));
  EXPECT_EQ(Rows(), "a c e");
}

}  // namespace
