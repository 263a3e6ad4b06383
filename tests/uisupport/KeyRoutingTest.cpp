// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <stdexcept>

#include "uisupport/KeyFixture.h"

namespace {

using vek::uisupport::CommandHandlerBase;

class KeyRouting : public KeyFixture {
 protected:
  KeyRouting() : mHandler(mLog, "canvas") {
    mHandler.mEnabled = {1, 2, 3, 4};
    CommandHandlerBase::SetCurrentCommandHandler(&mHandler);
  }

  // The log of routing the event, with "taken" behind it when it was consumed.
  std::string Route(const KeyboardEvent& inEvent) {
    if (Manager().RouteKeyEvent(inEvent)) mLog.Add("taken");
    return mLog.Take();
  }

  test_support::EventLog mLog;
  ContextHandler mHandler;
};

TEST_F(KeyRouting, RefusesAllBeforeItIsStartedAndWithoutAHandler) {
  Map(1, Char('X'));
  CommandHandlerBase::SetCurrentCommandHandler(nullptr);
  EXPECT_EQ(Route(Down(Char('X'))), "");
  CommandHandlerBase::SetDefaultCommandHandler(&mHandler);
  EXPECT_EQ(Route(Down(Char('X'))), "ask1 run1 taken");

  KeyCommandManager::Reset();
  Map(1, Char('X'));
  bool endedHold = true;
  EXPECT_EQ(Route(Down(Char('X'))), "");
  EXPECT_EQ(Manager().GetCommandIdFromKeyEvent(Down(Char('X')), endedHold), 0);
  EXPECT_FALSE(endedHold);
}

TEST_F(KeyRouting, TheContextGoesFirstAndOnlyAnUnknownCommandPassesTheKeyOn) {
  Map(1, Char('X'), 0, false, "canvas");
  Map(2, Char('X'));
  Map(3, Char('X'), 0, false, "other");
  Map(4, Char('Y'), 0, false, "canvas");
  const struct {
    std::set<int> enabled;
    std::set<int> disabled;
    char key;
    const char* log;
  } rows[] = {
      {{1, 2}, {}, 'X', "ask1 run1 taken"},
      {{2}, {1}, 'X', "ask1 taken"},
      {{2}, {}, 'X', "ask1 ask2 run2 taken"},
      {{}, {2}, 'X', "ask1 ask2 taken"},
      {{3}, {}, 'X', "ask1 ask2"},
      {{4}, {}, 'Y', "ask4 run4 taken"},
      {{}, {}, 'Y', "ask4"},
      {{1, 2, 3, 4}, {}, 'Z', ""},
  };
  for (const auto& row : rows) {
    mHandler.mEnabled = row.enabled;
    mHandler.mDisabled = row.disabled;
    EXPECT_EQ(Route(Down(Char(row.key))), row.log);
  }
}

TEST_F(KeyRouting, TheDefaultHandlersContextCountsOnlyWhereNoneIsCurrent) {
  ContextHandler standIn(mLog, "list");
  standIn.mEnabled = {3};
  mHandler.mEnabled = {1};
  CommandHandlerBase::SetDefaultCommandHandler(&standIn);
  Map(1, Char('X'), 0, false, "canvas");
  Map(3, Char('X'), 0, false, "list");
  EXPECT_EQ(Route(Down(Char('X'))), "ask1 run1 run1 taken");  // both are on the chain
  CommandHandlerBase::SetCurrentCommandHandler(nullptr);
  EXPECT_EQ(Route(Down(Char('X'))), "ask3 run3 taken");
}

TEST_F(KeyRouting, MatchesCodeModifiersActionAndRepeat) {
  const KeyboardCode del(KeyboardCode::kDelete);
  const KeyboardCode padDel = KeyboardCode::CreateFromControlCode(KeyboardCode::kDelete, true);
  KeyboardEvent typed(KeyboardEvent::kActionCharacter, Char('X'), ModifierKeys(), false,
                      lumui::ui::OS_Event());
  const struct {
    KeyboardCode code;
    unsigned char modifiers;
    bool repeat;
    KeyboardEvent event;
    bool same;
  } rows[] = {
      {Char('X'), 0, false, Down(Char('x')), true},
      {Char('X'), 0, false, Down(Char('Y')), false},
      {Char('7'), 0, false, Down(Char('7', true)), false},
      {Char('7', true), 0, false, Down(Char('7', true)), true},
      {del, 0, false, Down(del), true},
      {del, 0, false, Down(padDel), true},
      {padDel, 0, false, Down(padDel), false},
      {padDel, 0, false, Down(del), false},
      {Char('#'), 0, false, Down(del), false},
      {del, 0, false, Down(Char('#')), false},
      {Char('X'), 6, false, Down(Char('X'), 6), true},
      {Char('X'), 6, false, Down(Char('X'), 4), false},
      {Char('X'), 4, false, Down(Char('X'), 1), false},
      {Char('X'), 4, false, Down(Char('X'), 12), true},
      {Char('X'), 24, false, Down(Char('X'), 16), true},
      {Char('X'), 0, true, Down(Char('X')), false},
      {Char('X'), 0, true, Down(Char('X'), 0, true), true},
      {Char('X'), 0, false, Down(Char('X'), 0, true), false},
      {Char('X'), 0, false, Up(Char('X')), false},
      {Char('X'), 0, false, typed, false},
  };
  int at = 0;
  for (const auto& row : rows) {
    KeyCommand mapping(1, row.code, ModifierKeys(row.modifiers), KeyboardEvent::kActionKeyDown,
                       row.repeat, false);
    EXPECT_EQ(mapping.SameAs(row.event), row.same) << "row " << at++;
  }
}

TEST_F(KeyRouting, TheFirstMappingOfAListWins) {
  const std::string key = "<uchar>X</uchar></keycmd>";
  Load("<keycmd><cmd>Paste</cmd>" + key + "<keycmd><cmd>Cut</cmd>" + key +
       "<keycmd><cmd>Copy</cmd><ctx>canvas</ctx>" + key +
       "<keycmd><cmd>Play</cmd><ctx>canvas</ctx>" + key);
  EXPECT_EQ(Route(Down(Char('X'))), "ask2 run2 taken");
  mHandler.mEnabled = {1, 3, 4};
  EXPECT_EQ(Route(Down(Char('X'))), "ask2 ask3 run3 taken");
}

TEST_F(KeyRouting, AKeyUpEndsWhatIsHeld) {
  Map(1, Char('X'));
  Map(2, Char('X'), 0, true);
  Map(3, Char('Y'));
  Map(4, Char('Z'), 0, true);
  EXPECT_EQ(Route(Up(Char('X'))), "");
  EXPECT_EQ(Route(Down(Char('X'))), "ask1 run1 taken");
  EXPECT_EQ(Route(Up(Char('X'))), "");

  // Each repeat runs it again; the one up that comes ends it, whichever key it is.
  EXPECT_EQ(Route(Down(Char('X'), 0, true)), "ask2 run2 taken");
  EXPECT_EQ(Route(Down(Char('X'), 0, true)), "ask2 run2 taken");
  EXPECT_TRUE(Manager().IsHandlingHoldCommand());
  EXPECT_EQ(Route(Up(Char('Y'))), "end2 taken");
  EXPECT_EQ(Route(Up(Char('X'))), "");

  // Another hold takes over, and a first press lets go without a word.
  Route(Down(Char('X'), 0, true));
  EXPECT_EQ(Route(Down(Char('Z'), 0, true)), "ask4 run4 taken");
  EXPECT_EQ(Route(Up(Char('X'))), "end4 taken");
  Route(Down(Char('X'), 0, true));
  EXPECT_EQ(Route(Down(Char('Y'))), "ask3 run3 taken");
  EXPECT_EQ(Route(Up(Char('X'))), "");

  // A disabled command is held as well; an unknown one changes nothing.
  mHandler.mEnabled = {};
  mHandler.mDisabled = {2};
  EXPECT_EQ(Route(Down(Char('X'), 0, true)), "ask2 taken");
  EXPECT_EQ(Route(Down(Char('Y'))), "ask3");
  EXPECT_EQ(Route(Up(Char('Y'))), "end2 taken");
}

TEST_F(KeyRouting, AHoldEndsAlsoWhenItsHandlerThrows) {
  Map(2, Char('X'), 0, true);
  const auto fail = [] { throw std::runtime_error("no"); };
  mHandler.mOnRun = fail;
  EXPECT_THROW(Route(Down(Char('X'), 0, true)), std::runtime_error);
  EXPECT_FALSE(Manager().IsHandlingHoldCommand());

  mHandler.mOnRun = nullptr;
  mHandler.mOnEnd = fail;
  Route(Down(Char('X'), 0, true));
  EXPECT_THROW(Route(Up(Char('X'))), std::runtime_error);
  mLog.Take();
  EXPECT_EQ(Route(Up(Char('X'))), "");
}

TEST_F(KeyRouting, AKeyUpMayBeMappedInAContextOnly) {
  const auto map = [](int inCommand, const char* inContext) {
    Manager().AddKeyMapping(inCommand, Char('X'), ModifierKeys(), KeyboardEvent::kActionKeyUp,
                            reinterpret_cast<const unsigned char*>(inContext), false, false);
  };
  map(1, nullptr);
  EXPECT_EQ(Route(Up(Char('X'))), "");
  map(2, "canvas");
  EXPECT_EQ(Route(Up(Char('X'))), "ask2 run2 taken");
}

TEST_F(KeyRouting, ACommandMayLoadAnotherMap) {
  Map(2, Char('X'), 0, true, "canvas");
  mHandler.mOnRun = [] { Load(""); };
  EXPECT_EQ(Route(Down(Char('X'), 0, true)), "ask2 run2 taken");
  EXPECT_EQ(Route(Down(Char('X'), 0, true)), "");
  EXPECT_EQ(Route(Up(Char('X'))), "end2 taken");  // a load does not touch what is held
}

}  // namespace
