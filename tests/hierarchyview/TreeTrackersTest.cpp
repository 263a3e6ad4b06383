// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <sstream>

#include "support/RecordingDrawbot.h"
#include "support/TreeRig.h"

namespace {

using namespace test_support;

// Below a hidden root a row's twisty is from 2 to 16 and its text from 22 on, 10 further per level;
// a row takes clicks from 1 before its text to 1 behind it, and rows are 19 high.
class TreeTrackers : public TreeRig {
 protected:
  // "p30,10 m30,40 r" presses, moves and releases there, where the pointer was if it is not told.
  // "P" and so on hold the range key, "+p" the add key.
  void Do(const std::string& inActs) {
    std::istringstream acts(inActs);
    for (std::string act; acts >> act;) {
      unsigned char keys = 0;
      if (act[0] == '+') {
        keys |= 4;
        act.erase(0, 1);
      }
      if (std::isupper(static_cast<unsigned char>(act[0]))) keys |= 2;
      std::sscanf(act.c_str() + 1, "%f,%f", &mPoint.x, &mPoint.y);
      const tv::Modifiers modifiers(keys);
      switch (std::tolower(static_cast<unsigned char>(act[0]))) {
        case 'p':
          mTracker = mTrack.AcquireTracker(mPoint, false, nullptr);
          mTracker->BeginTracking(modifiers, mPoint, false);
          break;
        case 'm':
          mTracker->ContinueTracking(modifiers, mPoint);
          break;
        default:
          mTracker->EndTracking(modifiers, mPoint, true);
          mTracker.reset();
      }
    }
  }
  void Paint() {
    RecordingDrawbot drawbot;
    mTrack.ImageRect(tv::Rect(0, 0, 200, 400), drawbot, nullptr);
  }
  // All that a table's row does, and what came of it.
  std::string After(const std::string& inSelected, const std::string& inActs) {
    Select(inSelected);
    Do(inActs);
    return mLog.Take() + " " + Rows();
  }

  std::auto_ptr<tv::Tracker> mTracker;
  tv::Point mPoint;
};

TEST_F(TreeTrackers, APressSelectsRangesKeepBlocksAndTwistiesOpen) {
  Build("a b [c] d e f");  // tops 0 19 38 57 76 95
  const struct {
    const char* selected;
    const char* acts;
    const char* result;
  } kCases[] = {
      {"b", "p25,60 r", "select:d a b c d*! e f"},
      {"b", "+p25,60 r", "select+:d a b* c d*! e f"},
      {"bd", "+p25,60 r", "select+:d a b*! c d e f"},
      {"b", "P25,80 r", "none toggle:bcde a b* c* d* e*! f"},
      {"b", "+P25,60 r", "none toggle:bcd a b* c* d*! e f"},
      {"", "P25,60 r", " a b c d e f"},
      {"b", "P25,22 r", " a b*! c d e f"},
      // A block that hangs on the focus on its other side is kept; one with a hole is not.
      {"de", "P25,3 r", "none toggle:abcde a*! b* c* d* e* f"},
      {"df", "P25,3 r", "none toggle:abcd a*! b* c* d* e f"},
      {"ed", "P25,98 r", "none toggle:def a b c d* e* f*!"},
      {"db", "P25,98 r", "none toggle:def a b c d* e* f*!"},
      // The way back knows no rows in an open sibling: from d it leads to b.
      {"dc", "P25,80 r", "none toggle:de a b c d* e*! f"},
      {"db", "P25,80 r", "none toggle:de a b c d* e*! f"},
      {"dbc", "P25,80 r", "none toggle:de a b c d* e*! f"},
      {"b", "p9,25 r", " a b*! d e f"},
      {"b", "p9,25 r", " a b*! c d e f"},
      {"b", "p9,5 r", "none a b c d e f"},  // nothing to open: a band begins
      {"b", "p150,5 r", "none a b c d e f"},
      {"b", "p25,300 r", "none a b c d e f"},
  };
  for (const bool isPainted : {false, true}) {
    for (const auto& [selected, acts, result] : kCases) {
      if (isPainted) Paint();
      EXPECT_EQ(After(selected, acts), result) << selected << " " << acts;
    }
  }
}

// The way back from its rows leads out of a subtree, and on to nothing.
TEST_F(TreeTrackers, ARangeInASubtreeEndsWhereThatDoes) {
  Build("a [b c] d");
  const EntryP above = mTree->GetRootEntry();
  mTree->SetRootEntry(At('a'));
  mTree->ResizeHierarchy();
  EXPECT_EQ(After("bcd", "P25,42 r"), "none toggle:bc a b* c*!");
  mTree->SetRootEntry(above);
}

TEST_F(TreeTrackers, ASingleSelectionHasNoRangesAndNoBands) {
  Build("a b [c] d", true);
  EXPECT_EQ(After("a", "P25,60 r"), "select:d a b c d*!");
  EXPECT_EQ(After("a", "+p25,60 r"), "select:d a b c d*!");
  EXPECT_EQ(After("a", "p9,5 m60,70 r"), " a*! b c d");
  EXPECT_EQ(After("b", "p150,70 m10,10 r"), "none a b c d");
}

// More than 4 on one axis, once, and only from a row.
TEST_F(TreeTrackers, DragsRowsOutOnce) {
  Build("a b c", false, true);
  EXPECT_EQ(After("", "p25,25 m29,29 m25,29.5 m60,60 r"), "select:b drag:25,25 a b*! c");
  EXPECT_EQ(After("", "p150,25 m160,50 r"), "none a b c");
  Build("a b c", false, false);
  EXPECT_EQ(After("", "p25,25 m60,60 r"), "select:b a b*! c");
}

TEST_F(TreeTrackers, ARubberBandSelectsWhatItTouchesAndGivesTheLastTheFocus) {
  Build("a b [c] d e");  // texts 22 to 29, c 32 to 39, with tops 2 19+2 and so on
  mTree->mSortsNames = true;
  Paint();
  const struct {
    const char* selected;
    const char* acts;
    const char* result;
  } kCases[] = {
      {"e", "p150,3 m25,30 r", "none none toggle:ab a* b*! c d e"},
      {"e", "p150,3 m25,30 m26,31 m120,80 r", "none none toggle:ab none a b c d e"},
      {"e", "p150,3 m31,70 r", "none none toggle:c a b c*! d e"},
      {"", "p150,80 m25,30 m25,45 r", "none none toggle:bcde none toggle:cde a b c*! d* e*"},
      // Touched rows on top of those that were selected; the second time deselects.
      {"ae", "+p150,22 m25,30 r", "none toggle:abe a* b*! c d e*"},
      {"ab", "+p150,22 m25,30 r", "none toggle:abb a* b! c d e"},
      // The range key turns over, and back again where the band leaves.
      {"ab", "P150,22 M25,30 M25,62 M150,30 r",
       "none toggle:a none toggle:acd none toggle:ab a* b* c d e"},
      {"a", "p150,60 m25,200 r", "none none toggle:de a b c d* e*!"},
  };
  for (const auto& [selected, acts, result] : kCases)
    EXPECT_EQ(After(selected, acts), result) << selected << " " << acts;
  // A band passes the first row over, which is the root also where it shows.
  Build("a b", false, false, false);
  mTree->mSortsNames = true;
  EXPECT_EQ(After("", "p150,1 m15,50 r"), "none none toggle:ab r a* b*!");
}

// A row that goes while the band is out is neither followed nor given the focus of a dead one.
TEST_F(TreeTrackers, SurvivesATreeThatIsBuiltAnewInTheMiddleOfABand) {
  Build("a b c");
  Select("b");
  Do("P150,3 M25,30");
  mTree->RemoveNode(At('b'));
  mNodes.clear();
  mTree->BuildHierarchy();
  Do("M25,200 r");
  EXPECT_EQ(Rows(), "a* c*!");
  Do("p150,3 m25,30");
  mTree->ResetGeometry();
  Do("r");
  EXPECT_EQ(mTree->GetFocusItem(), nullptr);
}

}  // namespace
