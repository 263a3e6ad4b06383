// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "lumcore/config/ThrowError.h"
#include "support/ScriptedDeed.h"
#include "vek/undo/MultiDeed.h"
#include "vek/undo/NonCriticalDeedFailure.h"

namespace vek::undo {
namespace {

using namespace test_support;

using lumcore::utility::ToStdString;

class Group : public testing::Test {
 protected:
  ScriptedDeed* Add(const std::string& inName,
                    ScriptedDeed::Undoable inUndoable = ScriptedDeed::kUndoable,
                    ScriptedDeed::Built inBuilt = ScriptedDeed::kNew) {
    auto* const child = new ScriptedDeed(mLog, inName, inUndoable, inBuilt);
    group->AddDeed(std::auto_ptr<Deed>(child));
    return child;
  }
  // Adds a child with these restorers; none where there is no name.
  void AddWith(const std::string& inBefore, const std::string& inAfter,
               ScriptedRestorer::Merge inMerge = ScriptedRestorer::kRefuses) {
    std::auto_ptr<Deed> child(new ScriptedDeed(mLog, "child"));
    if (!inBefore.empty()) child->SetBeforeRestorer(new ScriptedRestorer(mLog, inBefore));
    if (!inAfter.empty()) child->SetAfterRestorer(new ScriptedRestorer(mLog, inAfter, inMerge));
    group->AddDeed(child);
  }
  void AddThree() {
    a = Add("a");
    b = Add("b");
    c = Add("c");
  }
  std::string State() const {
    return std::string(group->NeverDone() ? "new"
                       : group->IsDone()  ? "done"
                                          : "undone") +
           (group->IsUndoable() ? " undoable " : " final ") + std::to_string(group->size());
  }
  static void FailOrdinarily(const std::string& inWhat) { throw inWhat; }
  static void FailNonCritically() { throw NonCriticalDeedFailure(); }

  EventLog mLog;
  std::unique_ptr<MultiDeed> group = std::make_unique<MultiDeed>(lumcore::UTF16String());
  ScriptedDeed* a = nullptr;
  ScriptedDeed* b = nullptr;
  ScriptedDeed* c = nullptr;
};

TEST_F(Group, TakesItsCharacterFromTheFirstChildAndLosesUndoabilityToAny) {
  EXPECT_EQ(State(), "done final 0");
  EXPECT_TRUE(group->StillViable());
  Add("a");
  EXPECT_EQ(State(), "new undoable 1");
  Add("b", ScriptedDeed::kUndoable, ScriptedDeed::kDone);
  EXPECT_EQ(State(), "new undoable 2");
  ScriptedDeed* const third = Add("c", ScriptedDeed::kFinal);
  Add("d");
  EXPECT_EQ(State(), "new final 4");
  EXPECT_EQ(ToStdString(group->GetUndoDescription()), "Undo a");
  EXPECT_TRUE(group->StillViable());
  third->mViable = false;
  EXPECT_FALSE(group->StillViable());

  group = std::make_unique<MultiDeed>(lumcore::UTF16String());
  Add("a", ScriptedDeed::kUndoable, ScriptedDeed::kDone);
  Add("b");
  EXPECT_EQ(State(), "done undoable 2");
}

TEST_F(Group, KeepsTheFirstBeforeRestorerAndTheLastAfterRestorer) {
  group->SetAfterRestorer(new ScriptedRestorer(mLog, "own"));  // replaced even by none
  AddWith("b1", "");
  EXPECT_FALSE(group->HasAfterRestorer());
  AddWith("", "a1");
  EXPECT_EQ(mLog.Take(), "~own");
  AddWith("b2", "a2");
  EXPECT_EQ(mLog.Take(), "~b2 a1+a2 ~a1");
  AddWith("b3", "");
  EXPECT_EQ(mLog.Take(), "~b3 a2+null ~a2");
  EXPECT_FALSE(group->HasAfterRestorer());
  AddWith("", "a4");
  group->RestoreBeforeSelection();
  group->RestoreAfterSelection();
  EXPECT_EQ(mLog.Take(), "restore-b1 restore-a4");
}

TEST_F(Group, KeepsItsOwnAfterRestorerWhereThatMerges) {
  group->SetBeforeRestorer(new ScriptedRestorer(mLog, "own"));
  AddWith("b1", "a1", ScriptedRestorer::kTakesIn);
  AddWith("b2", "a2");
  AddWith("", "");
  group->RestoreBeforeSelection();
  group->RestoreAfterSelection();
  EXPECT_EQ(mLog.Take(), "~b1 ~b2 a1+a2 ~a2 a1+null restore-own restore-a1");
}

TEST_F(Group, MergeThatThrowsLosesTheChildAndNothingLeaks) {
  AddWith("", "a1", ScriptedRestorer::kThrows);
  EXPECT_EQ(Outcome([this] { AddWith("", "a2"); }), "merge");
  EXPECT_EQ(State(), "new undoable 1");
  EXPECT_FALSE(group->HasAfterRestorer());
  EXPECT_EQ(mLog.Take(), "a1+a2 ~a2 ~a1 ~child");
}

TEST_F(Group, RedoesForwardUndoesBackwardAndSkipsChildrenThatAreThereAlready) {
  AddThree();
  b->Redo();
  mLog.Take();
  group->Redo();
  EXPECT_EQ(mLog.Take(), "do-a do-c");
  c->Undo();
  mLog.Take();
  group->Undo();
  EXPECT_EQ(mLog.Take(), "undo-b undo-a");
  EXPECT_EQ(State(), "undone undoable 3");
}

TEST_F(Group, OrdinaryFailureUndoesWhatTheWalkHasDone) {
  AddThree();
  b->mOnRedo = [] { FailOrdinarily("b failed"); };
  EXPECT_EQ(Outcome([this] { group->Redo(); }), "b failed");
  EXPECT_EQ(mLog.Take(), "do-a do-b undo-a");
  EXPECT_EQ(State(), "new undoable 3");
}

TEST_F(Group, FailureToUndoRedoesWhatTheWalkHasUndone) {
  AddThree();
  group->Redo();
  mLog.Take();
  a->mOnUndo = &FailNonCritically;  // nothing special in this direction
  EXPECT_THROW(group->Undo(), NonCriticalDeedFailure);
  EXPECT_EQ(mLog.Take(), "undo-c undo-b undo-a do-b do-c");
  EXPECT_EQ(State(), "done undoable 3");
}

TEST_F(Group, FailureInARollbackStopsItAndIsTheOneThatLeaves) {
  AddThree();
  c->mOnRedo = [] { FailOrdinarily("c failed"); };
  b->mOnUndo = [] { FailOrdinarily("rollback failed"); };
  EXPECT_EQ(Outcome([this] { group->Redo(); }), "rollback failed");
  EXPECT_EQ(mLog.Take(), "do-a do-b do-c undo-b");

  // The marks of the failed walks are gone: the next failure is rolled back again.
  b->mOnUndo = nullptr;
  EXPECT_EQ(Outcome([this] { group->Redo(); }), "c failed");
  EXPECT_EQ(mLog.Take(), "do-c undo-b undo-a");

  c->mOnRedo = nullptr;
  group->Redo();
  a->mOnUndo = [] { FailOrdinarily("a failed"); };
  c->mOnRedo = [] { FailOrdinarily("rollback failed"); };
  mLog.Take();
  EXPECT_EQ(Outcome([this] { group->Undo(); }), "rollback failed");
  EXPECT_EQ(mLog.Take(), "undo-c undo-b undo-a do-b do-c");
}

TEST_F(Group, NonCriticalFailureDropsThatChildForGood) {
  AddThree();
  b->mOnRedo = &FailNonCritically;
  group->Redo();
  EXPECT_EQ(mLog.Take(), "do-a do-b ~b do-c");
  EXPECT_EQ(State(), "done undoable 2");
  group->Undo();
  EXPECT_EQ(mLog.Take(), "undo-c undo-a");
}

TEST_F(Group, NonCriticalFailureOfTheLastChildEmptiesTheGroupAndPassesOn) {
  Add("a")->mOnRedo = &FailNonCritically;
  EXPECT_THROW(group->Redo(), NonCriticalDeedFailure);
  EXPECT_EQ(State(), "new undoable 0");
  EXPECT_EQ(mLog.Take(), "do-a ~a");
}

TEST_F(Group, RollbackGoesThroughASubclassesOwnUndo) {
  struct Logging : MultiDeed {
    explicit Logging(EventLog& ioLog) : MultiDeed(lumcore::UTF16String()), mGroupLog(ioLog) {}
    void UndoSelf() override {
      mGroupLog.Add("group-undo");
      MultiDeed::UndoSelf();
    }
    EventLog& mGroupLog;
  };
  group = std::make_unique<Logging>(mLog);
  AddThree();
  b->mOnRedo = [] { FailOrdinarily("b failed"); };
  EXPECT_EQ(Outcome([this] { group->Redo(); }), "b failed");
  EXPECT_EQ(mLog.Take(), "do-a do-b group-undo undo-a");
}

}  // namespace
}  // namespace vek::undo
