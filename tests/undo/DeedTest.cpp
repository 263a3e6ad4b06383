// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <string>

#include "lumcore/config/ThrowError.h"
#include "support/ScriptedDeed.h"
#include "vek/undo/SharedDeed.h"

namespace vek::undo {
namespace {

using namespace test_support;

using lumcore::utility::ToStdString;

std::string State(const Deed& inDeed) {
  std::string state = inDeed.NeverDone() ? "new" : inDeed.IsDone() ? "done" : "undone";
  if (inDeed.CanUndo()) state += " can-undo";
  if (inDeed.CanRedo()) state += " can-redo";
  return state;
}

TEST(DeedStates, MoveByRedoAndUndoOnlyWhereTheyMay) {
  struct Case {
    ScriptedDeed::Undoable undoable;
    ScriptedDeed::Built built;
    bool viable;
    const char* events;  // of undo, redo, redo, undo, undo, redo
    const char* states;  // before and after them
  };
  using D = ScriptedDeed;
  const Case kCases[] = {
      {D::kUndoable, D::kNew, true, "do-d undo-d do-d", "new can-redo, done can-undo"},
      {D::kUndoable, D::kDone, true, "undo-d do-d undo-d do-d", "done can-undo, done can-undo"},
      {D::kFinal, D::kNew, true, "do-d", "new can-redo, done"},
      {D::kFinal, D::kDone, true, "", "done, done"},
      {D::kUndoable, D::kNew, false, "do-d", "new can-redo, done"},
      {D::kUndoable, D::kDone, false, "", "done, done"},
  };
  for (const auto& expected : kCases) {
    EventLog log;
    ScriptedDeed deed(log, "d", expected.undoable, expected.built);
    deed.mViable = expected.viable;
    const std::string before = State(deed);
    deed.Undo();
    deed.Redo();
    deed.Redo();
    deed.Undo();
    deed.Undo();
    deed.Redo();
    EXPECT_EQ(log.Take(), expected.events);
    EXPECT_EQ(before + ", " + State(deed), expected.states);
  }
}

TEST(DeedStates, UndoneDeedThatIsNoLongerViableStaysUndone) {
  EventLog log;
  ScriptedDeed deed(log, "d");
  deed.Redo();
  deed.Undo();
  EXPECT_EQ(State(deed), "undone can-redo");
  EXPECT_EQ(log.Take(), "do-d undo-d");
  deed.mViable = false;
  deed.mLogsViability = true;
  deed.Redo();
  deed.Undo();  // asks, though the deed is not done
  EXPECT_EQ(log.Take(), "viable-d? viable-d?");
  EXPECT_EQ(State(deed), "undone");
}

TEST(DeedDescriptions, KeepTheBlankWhereThereIsNoName) {
  EventLog log;
  ScriptedDeed deed(log, "Rename");
  EXPECT_EQ(ToStdString(deed.GetUndoDescription()), "Undo Rename");
  EXPECT_EQ(ToStdString(deed.GetRedoDescription()), "Redo Rename");
  deed.SetActionString(lumcore::UTF16String());
  EXPECT_EQ(ToStdString(deed.GetUndoDescription()), "Undo ");
}

TEST(DeedRestorers, AreOwnedAndReplaced) {
  EventLog log;
  {
    ScriptedDeed deed(log, "d");
    auto* const first = new ScriptedRestorer(log, "first");
    deed.SetBeforeRestorer(first);
    deed.SetBeforeRestorer(first);
    EXPECT_EQ(log.Take(), "");
    deed.SetBeforeRestorer(nullptr);
    EXPECT_FALSE(deed.HasBeforeRestorer());
    EXPECT_EQ(log.Take(), "~first");
    deed.SetBeforeRestorer(new ScriptedRestorer(log, "before"));
    deed.SetAfterRestorer(new ScriptedRestorer(log, "after"));
  }
  EXPECT_EQ(log.Take(), "~d ~after ~before");
}

TEST(SharedDeed, PassesOnToTheWrappedDeedAndMovesEvenWhereThatRefuses) {
  EventLog log;
  const auto wrapped = boost::make_shared<ScriptedDeed>(log, "w");
  SharedDeed first(wrapped);
  SharedDeed second(wrapped);
  EXPECT_EQ(ToStdString(first.GetUndoDescription()), "Undo w");
  first.Redo();
  second.Redo();
  EXPECT_EQ(log.Take(), "do-w");
  first.Undo();
  second.Undo();
  EXPECT_EQ(log.Take(), "undo-w");
  EXPECT_EQ(State(second), "undone can-redo");
  wrapped->mViable = false;
  EXPECT_EQ(State(second), "undone");
}

TEST(SharedDeed, RefusesToWrapNothing) {
  EXPECT_THROW(SharedDeed(boost::shared_ptr<Deed>()), lumcore::config::Error);
}

}  // namespace
}  // namespace vek::undo
