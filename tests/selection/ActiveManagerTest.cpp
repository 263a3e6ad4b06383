// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/selection/ActiveManager.h"

#include <gtest/gtest.h>

#include <boost/intrusive_ptr.hpp>
#include <map>
#include <string>

#include "support/EventLog.h"
#include "support/RecordingListener.h"
#include "vek/selection/Manager.h"

namespace vek::selection {
namespace {

using namespace test_support;

class ActiveManager : public testing::Test {
 protected:
  ActiveManager() {
    ResetActiveManagerState();
    GetManagerChangeNotifier()->AddListener(&listener);
  }
  ~ActiveManager() override { ResetActiveManagerState(); }

  // Named by address, which outlives the manager.
  boost::intrusive_ptr<Manager> NewManager(const std::string& inName) {
    boost::intrusive_ptr<Manager> manager(new Manager(nullptr));
    mNames[manager.get()] = inName;
    return manager;
  }

  EventLog mLog;
  std::map<const Manager*, std::string> mNames{{nullptr, "none"}};
  RecordingListener<const ManagerChangeMessage&> listener{
      mLog, [this](const ManagerChangeMessage& inMessage) {
        return mNames[inMessage.GetPreviousManager()] + "->" +
               mNames[inMessage.GetCurrentManager()];
      }};
  boost::intrusive_ptr<Manager> a = NewManager("a");
  boost::intrusive_ptr<Manager> b = NewManager("b");
  boost::intrusive_ptr<Manager> c = NewManager("c");
};

TEST_F(ActiveManager, TellsOfEachChangeAndOfNothingElse) {
  SetActiveManager(nullptr);
  SetActiveManager(a.get());
  SetActiveManager(a.get());
  SetActiveManager(b.get());
  SetActiveManager(nullptr);
  EXPECT_EQ(mLog.Take(), "none->a a->b b->none");
}

TEST_F(ActiveManager, OutermostEnableTellsOnceOfTheFirstAndTheLast) {
  SetActiveManager(a.get());
  mLog.Take();
  {
    const StManagerChangeMsgInhibitor outer;
    SetActiveManager(b.get());
    {
      const StManagerChangeMsgInhibitor inner;
      SetActiveManager(a.get());
    }
    SetActiveManager(c.get());
    EXPECT_EQ(mLog.Take(), "");
  }
  EXPECT_EQ(mLog.Take(), "a->c");
  {
    const StManagerChangeMsgInhibitor inhibitor;
    SetActiveManager(b.get());
    SetActiveManager(c.get());
  }
  EXPECT_EQ(mLog.Take(), "c->c");
}

TEST_F(ActiveManager, ScopeWithoutChangeLeavesTheManagerThatALaterMessageNames) {
  SetActiveManager(a.get());
  {
    const StManagerChangeMsgInhibitor inhibitor;
    SetActiveManager(a.get());
  }
  SetActiveManager(b.get());
  mLog.Take();
  {
    const StManagerChangeMsgInhibitor inhibitor;
    SetActiveManager(c.get());
  }
  EXPECT_EQ(mLog.Take(), "a->c");
}

TEST_F(ActiveManager, ManagerAtInhibitIsTakenAtAnyDepthWhereThereIsNone) {
  const StManagerChangeMsgInhibitor outer;
  SetActiveManager(a.get());
  {
    const StManagerChangeMsgInhibitor inner;
    SetActiveManager(b.get());
  }
  EnableManagerChangeNotification();
  EXPECT_EQ(mLog.Take(), "a->b");
  InhibitManagerChangeNotification();
}

TEST_F(ActiveManager, UnbalancedEnablingDoesNotInhibit) {
  EnableManagerChangeNotification();
  SetActiveManager(a.get());
  EXPECT_EQ(mLog.Take(), "none->a");
  InhibitManagerChangeNotification();
  SetActiveManager(b.get());
  EXPECT_EQ(mLog.Take(), "a->b");
}

TEST_F(ActiveManager, DeathOfTheActiveOneIsToldNowOrLaterAndOfAnotherOneNever) {
  SetActiveManager(a.get());
  mLog.Take();
  b.reset();
  EXPECT_EQ(mLog.Take(), "");
  listener.Once([this] { mLog.Add(GetActiveManager() ? "active" : "no-active"); });
  a.reset();
  EXPECT_EQ(mLog.Take(), "a->none no-active");

  SetActiveManager(c.get());
  mLog.Take();
  {
    const StManagerChangeMsgInhibitor inhibitor;
    c.reset();
    EXPECT_EQ(mLog.Take(), "");
  }
  EXPECT_EQ(mLog.Take(), "c->none");
}

}  // namespace
}  // namespace vek::selection
