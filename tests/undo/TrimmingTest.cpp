// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <limits>

#include "undo/UndoerFixture.h"

namespace vek::undo {

using Trimming = UndoerTest;

TEST_F(Trimming, KeepsOneLessThanTheLimitAndTheFloorTakesTheNumberOver) {
  Renew(3);
  for (const char* name : {"a", "b", "c", "d"})
    Post(name);
  EXPECT_EQ(Stack(), "c d #4");
  undoer->GotoLevel(2);
  EXPECT_EQ(Stack(), "c* d* #2");
}

TEST_F(Trimming, DeedDiscardedAtOnceIsShownToTheHooksAndDiesLast) {
  for (const int limit : {1, 0, -1, std::numeric_limits<int>::min()}) {
    Renew(limit);
    Watch();
    hooks.mOn = {{"DidPost", [this] { mLog.Add(Stack()); }}};
    Post(new ScriptedDeed(mLog, "a"));
    EXPECT_EQ(mLog.Take(), "[a] WillPost(a) WillRedo(a) do-a DidRedo(a) DidPost(a) #1 items ~a")
        << limit;
    EXPECT_EQ(Stack(), "#1");
  }
}

TEST_F(Trimming, UnviableDeedTakesOlderOnesWithIt) {
  Post("a");
  ScriptedDeed* const b = Post("b");
  Post("c");
  b->mViable = false;
  undoer->Undo();
  undoer->Redo();
  EXPECT_EQ(Stack(), "a b c #3");
  Post("d");
  EXPECT_EQ(Stack(), "c d #4");
  undoer->GotoLevel(2);
  EXPECT_EQ(Stack(), "c* d* #2");
}

TEST_F(Trimming, NewDeedThatIsNotViableGoesWithAllTheOthersAndDiesLast) {
  Post("a");
  Watch();
  auto* const b = new ScriptedDeed(mLog, "b");
  b->mViable = false;
  Post(b);
  EXPECT_EQ(mLog.Take(),
            "[b] WillPost(b) WillRedo(b) do-b DidRedo(b) ~a ~a-a ~b-a DidPost(b) items ~b");
  EXPECT_EQ(Stack(), "#2");
}

TEST_F(Trimming, AsksFromTheNewestAndNobodyBeyondTheLimit) {
  Renew(3);
  ScriptedDeed* const a = Post("a");
  ScriptedDeed* const b = Post("b");
  a->mLogsViability = b->mLogsViability = true;
  mLog.Take();
  auto* const c = new ScriptedDeed(mLog, "c");
  c->mLogsViability = true;
  Post(c);
  EXPECT_EQ(mLog.Take(), "do-c viable-c? viable-b? ~a ~a-a ~b-a");
}

}  // namespace vek::undo
