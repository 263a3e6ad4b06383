// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <functional>

#include "undo/UndoerFixture.h"

namespace vek::undo {

using Undoer = UndoerTest;

TEST_F(Undoer, NewDeedTakesThePlaceOfWhatWasUndoneAndNumbersAreNotUsedAgain) {
  EXPECT_EQ(Stack(), "#0");
  Post("a");
  Post("b");
  undoer->Undo();
  EXPECT_EQ(Stack(), "a b* #1");
  Post("c");
  EXPECT_EQ(Stack(), "a c #3");
  undoer->Undo();
  undoer->Undo();
  EXPECT_EQ(Stack(), "a* c* #0");
  undoer->Redo();
  EXPECT_EQ(Stack(), "a c* #1");
  EXPECT_EQ(undoer->GetLevel(), 1u);
}

TEST_F(Undoer, PostingGoesByStages) {
  Watch();
  deedListener.Always([this] { mLog.Add(Stack()); });
  Post("a");
  EXPECT_EQ(mLog.Take(),
            "[a] #0 WillPost(a) WillRedo(a) do-a DidRedo(a) restore-a-a DidPost(a) items");
  Post(NewDeed("f", ScriptedDeed::kFinal));
  EXPECT_EQ(mLog.Take(),
            "[f] a #1 WillPost(f) WillRedo(f) do-f DidRedo(f) restore-a-f ~a ~a-a ~b-a DidPost(f) "
            "items ~f ~a-f ~b-f");
}

TEST_F(Undoer, MovesTellEverybodyInOrder) {
  Post("a");
  Watch();
  undoer->Undo();
  EXPECT_EQ(mLog.Take(), "[null] WillUndo(a) undo-a DidUndo(a) restore-b-a items");
  undoer->Undo();
  EXPECT_EQ(mLog.Take(), "[null] items");
  undoer->Redo();
  EXPECT_EQ(mLog.Take(), "[null] WillRedo(a) do-a DidRedo(a) restore-a-a items");
  undoer->Redo();
  EXPECT_EQ(mLog.Take(), "[null] items");
  undoer->SetHooks(nullptr);
  undoer->UndoPermanently();
  EXPECT_EQ(mLog.Take(), "[null] undo-a restore-b-a items ~a ~a-a ~b-a items");
  EXPECT_EQ(Stack(), "#0");
}

TEST_F(Undoer, RefusedUndoRunsTheRestorerAndStaysUntilTheNextPost) {
  Post("a");
  ScriptedDeed* const b = Post("b");
  Watch();
  b->mViable = false;
  undoer->Undo();
  undoer->Undo();
  EXPECT_EQ(mLog.Take(),
            "[null] WillUndo(b) DidUndo(b) restore-b-b items "
            "[null] WillUndo(b) DidUndo(b) restore-b-b items");
  EXPECT_EQ(undoer->CouldUndoDeed(), b);
  EXPECT_EQ(Stack(), "a b #2");
  undoer->UndoPermanently();
  EXPECT_EQ(Stack(), "a b #2");
  Post("c");
  EXPECT_EQ(Stack(), "c #3");
}

TEST_F(Undoer, DeedsThatAreNotUndoableTakeTheWholeStackAndAFreshNumber) {
  Post(NewDeed("f", ScriptedDeed::kFinal));
  EXPECT_EQ(Stack(), "#1");
  Post("a");
  Post("b");
  undoer->Undo();
  Post(NewDeed("g", ScriptedDeed::kFinal));
  EXPECT_EQ(Stack(), "#4");
  Post("c");
  undoer->Undo();
  EXPECT_EQ(Stack(), "c* #4");
}

TEST_F(Undoer, ClearingForgetsTheStackAndKeepsTheNumberOfItsNewestDeed) {
  Post(new ClearUndoStackDeed);
  EXPECT_EQ(Stack(), "#0");
  Post("a");
  Post("b");
  Post("c");
  undoer->Undo();
  EXPECT_EQ(Stack(), "a b c* #2");
  Post(new ClearUndoStackDeed);  // the newest counts, undone or not
  EXPECT_EQ(Stack(), "#3");
  Post("d");
  EXPECT_EQ(Stack(), "d #4");
}

TEST_F(Undoer, GoingToALevelRestoresTheSelectionOfTheLastDeedOnly) {
  Post("a");
  Post("b");
  Post("c");
  Post("d");
  Watch();
  undoer->GotoLevel(3);
  EXPECT_EQ(Stack(), "a b* c* d* #1");
  EXPECT_EQ(mLog.Take(),
            "[null] WillUndo(d) undo-d DidUndo(d) WillUndo(c) undo-c DidUndo(c) "
            "WillUndo(b) undo-b DidUndo(b) restore-b-b items");
  undoer->GotoLevel(1);
  EXPECT_EQ(Stack(), "a b c d* #3");
  EXPECT_EQ(mLog.Take(),
            "[null] WillRedo(b) do-b DidRedo(b) WillRedo(c) do-c DidRedo(c) restore-a-c items");
  for (const int level : {-1, 5, 1}) {
    undoer->GotoLevel(level);
    EXPECT_EQ(mLog.Take(), "[null] items") << level;
  }
  undoer->GotoLevel(4);
  EXPECT_EQ(Stack(), "a* b* c* d* #0");
  undoer->GotoLevel(0);
  EXPECT_EQ(Stack(), "a b c d #4");
}

TEST_F(Undoer, DeedThatRefusesIsAStepOfGoingToALevelAllTheSame) {
  Post("a");
  ScriptedDeed* const b = Post("b");
  Post("c");
  b->mViable = false;
  Watch();
  undoer->GotoLevel(2);
  EXPECT_EQ(mLog.Take(),
            "[null] WillUndo(c) undo-c DidUndo(c) WillUndo(b) DidUndo(b) restore-b-b items");
  EXPECT_EQ(Stack(), "a b c* #2");
}

TEST_F(Undoer, ListenerMayDropTheLastReferenceInAnyOperation) {
  const std::function<void()> kOperations[] = {
      [this] { Post("b"); },
      [this] { Post(NewDeed("f", ScriptedDeed::kFinal)); },
      [this] { undoer->Undo(); },
      [this] { undoer->Redo(); },
      [this] { undoer->UndoPermanently(); },
      [this] { undoer->GotoLevel(1); },
  };
  for (const auto& operation : kOperations) {
    Renew(10);
    Post("a");
    Watch();
    deedListener.Once([this] { undoer.reset(); });
    operation();
    EXPECT_FALSE(undoer);
    EXPECT_NE(mLog.Take().find("~a"), std::string::npos);
  }
}

TEST_F(Undoer, DeedThatIsNotKeptDiesBeforeAnUndoerThatIsDroppedOnTheWay) {
  struct Logging : MultiUndoer {
    explicit Logging(EventLog& ioLog) : MultiUndoer(10), mUndoerLog(ioLog) {}
    ~Logging() override { mUndoerLog.Add("~undoer"); }
    EventLog& mUndoerLog;
  };
  undoer = new Logging(mLog);
  undoer->GetItemsChangedNotifier()->AddListener(&itemsListener);
  itemsListener.Once([this] { undoer.reset(); });
  Post(new ScriptedDeed(mLog, "f", ScriptedDeed::kFinal));
  EXPECT_EQ(mLog.Take(), "do-f items ~f ~undoer");
}

using UndoerFailure = UndoerTest;

TEST_F(UndoerFailure, FailedPostLeavesTheStackAndWhatWasUndone) {
  Post("a");
  Post("b");
  undoer->Undo();
  Watch();
  ScriptedDeed* const c = NewDeed("c");
  c->mOnRedo = [] { throw std::string("broken"); };
  EXPECT_EQ(Outcome([&] { Post(c); }), "broken");
  EXPECT_EQ(mLog.Take(), "[c] WillPost(c) WillRedo(c) do-c DidRedo(c) DidPost(c) ~c ~a-c ~b-c");
  EXPECT_EQ(Stack(), "a b* #1");
  undoer->SetHooks(nullptr);
  Post("d");
  EXPECT_EQ(Stack(), "a d #3");
}

TEST_F(UndoerFailure, HooksOfAPostFailInTheirOwnWays) {
  const struct {
    const char* hook;
    const char* events;
    const char* stack;
  } kCases[] = {
      {"WillPost", "[a] WillPost(a) ~a", "#0"},
      {"WillRedo", "[a] WillPost(a) WillRedo(a) DidPost(a) ~a", "#0"},
      {"DidRedo", "[a] WillPost(a) WillRedo(a) do-a DidRedo(a) DidPost(a) ~a", "#0"},
      {"DidPost", "[a] WillPost(a) WillRedo(a) do-a DidRedo(a) DidPost(a) DidPost(a)", "a #1"},
  };
  for (const auto& expected : kCases) {
    Renew(10);
    Watch();
    hooks.mOn = {{expected.hook, [] { throw std::string("hook"); }}};
    EXPECT_EQ(Outcome([this] { Post(new ScriptedDeed(mLog, "a")); }), "hook");
    EXPECT_EQ(mLog.Take(), expected.events);
    EXPECT_EQ(Stack(), expected.stack);
  }
}

TEST_F(UndoerFailure, FailedMoveEndsBehindTheLastDeedThatSucceeded) {
  Post("a");
  ScriptedDeed* const b = Post("b");
  Post("c");
  Watch();
  b->mOnUndo = [] { throw std::string("b broken"); };
  EXPECT_EQ(Outcome([this] { undoer->GotoLevel(3); }), "b broken");
  EXPECT_EQ(mLog.Take(), "[null] WillUndo(c) undo-c DidUndo(c) WillUndo(b) undo-b DidUndo(b)");
  EXPECT_EQ(Stack(), "a b c* #2");
  undoer->GotoLevel(1);
  b->mOnUndo = nullptr;
  undoer->Undo();
  b->mOnRedo = [] { throw std::string("b broken"); };
  mLog.Take();
  EXPECT_EQ(Outcome([this] { undoer->GotoLevel(0); }), "b broken");
  EXPECT_EQ(mLog.Take(), "[null] WillRedo(b) do-b DidRedo(b)");
  EXPECT_EQ(Stack(), "a b* c* #1");
}

TEST_F(UndoerFailure, WillHookThatThrowsGetsNoDidAndDidHookIsCalledOnce) {
  Post("a");
  Watch();
  hooks.mOn = {{"WillUndo", [] { throw std::string("will"); }}};
  EXPECT_EQ(Outcome([this] { undoer->Undo(); }), "will");
  EXPECT_EQ(mLog.Take(), "[null] WillUndo(a)");
  hooks.mOn = {{"DidUndo", [] { throw std::string("did"); }}};
  EXPECT_EQ(Outcome([this] { undoer->Undo(); }), "did");
  EXPECT_EQ(mLog.Take(), "[null] WillUndo(a) undo-a DidUndo(a)");
  EXPECT_EQ(Stack(), "a* #0");
}

}  // namespace vek::undo
