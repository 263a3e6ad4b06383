// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/selection/Manager.h"

#include <gtest/gtest.h>

#include <boost/intrusive_ptr.hpp>
#include <functional>
#include <string>

#include "support/EventLog.h"
#include "support/RecordingJunction.h"
#include "support/RecordingListener.h"

namespace vek::selection {
namespace {

using namespace test_support;

class Selecting : public testing::Test {
 protected:
  Selecting() {
    junction.mKnown = nodes.List("abcdef");
    manager->GetSelectionChangeNotifier()->AddListener(&ownListener);
    GetGlobalSelectionChangeNotifier()->AddListener(&globalListener);
  }
  void Select(const std::string& inNodes, DeselectOthersEnum inOthers = eKeepOthers,
              SuppressMessagesEnum inSuppress = eSendMessages) {
    manager->Select(nodes.List(inNodes), inOthers, inSuppress);
  }
  // By what the set says without cleaning, in the order of names.
  std::string Uncleaned() {
    std::string text;
    for (const char name : std::string("abcdef")) {
      if (manager->Selected(nodes.Get(name))) text += name;
    }
    return text;
  }
  // Cleaned, in the order of addresses, which is f b d a e c.
  std::string Cleaned() { return nodes.Text(manager->SelectedSelectables()); }
  RecordingListener<const SelectionChangeMessage&>::Describe Flipped(const std::string& inWho) {
    return [this, inWho](const SelectionChangeMessage& inMessage) {
      return inWho + "[" + nodes.Text(inMessage.GetAffectedNodes()) + "]";
    };
  }

  EventLog mLog;
  NamedNodes nodes;
  RecordingJunction junction;
  RecordingListener<const SelectionChangeMessage&> ownListener{mLog, Flipped("own")};
  RecordingListener<const SelectionChangeMessage&> globalListener{mLog, Flipped("global")};
  boost::intrusive_ptr<Manager> manager = new Manager(&junction);
};

TEST_F(Selecting, NamesNewNodesInTheCallersOrderAndThenDeselectedOnesByAddress) {
  Select("c a f");
  EXPECT_EQ(mLog.Take(), "own[c a f] global[c a f]");
  Select("d c b");
  EXPECT_EQ(mLog.Take(), "own[d b] global[d b]");
  Select("e d", eDeselectOthers);
  EXPECT_EQ(mLog.Take(), "own[e f b a c] global[e f b a c]");
  Select("d e", eDeselectOthers);  // nothing changes, so nothing is said
  Select("e");
  EXPECT_EQ(mLog.Take(), "");
  EXPECT_EQ(Cleaned(), "d e");
}

TEST_F(Selecting, NodeThatStandsTwiceFlipsTwice) {
  Select("c a c");
  EXPECT_EQ(mLog.Take(), "own[c a c] global[c a c]");
  EXPECT_EQ(Cleaned(), "a");
  manager->ToggleSelectables(nodes.List("a b b b"), eSendMessages);
  EXPECT_EQ(mLog.Take(), "own[a b b b] global[a b b b]");
  EXPECT_EQ(Cleaned(), "b");
}

TEST_F(Selecting, SuppressesMessagesForAnyValueButZeroAndDeselectsForOneOnly) {
  Select("a b", eKeepOthers, eSuppressMessages);
  Select("c", eKeepOthers, static_cast<SuppressMessagesEnum>(2));
  manager->ToggleSelectables(nodes.List("b"), static_cast<SuppressMessagesEnum>(-1));
  EXPECT_EQ(mLog.Take(), "");
  EXPECT_EQ(Cleaned(), "a c");
  Select("d", static_cast<DeselectOthersEnum>(2));
  EXPECT_EQ(mLog.Take(), "own[d] global[d]");
  EXPECT_EQ(Cleaned(), "d a c");
  Select("", static_cast<DeselectOthersEnum>(2));
  EXPECT_EQ(Cleaned(), "d a c");
}

TEST_F(Selecting, NodesThatLeftTheJunctionGoWithTheNextCleaningAndWithoutAMessage) {
  Select("f a c e");
  mLog.Take();
  junction.mKnown = nodes.List("e b a");
  EXPECT_EQ(Uncleaned(), "acef");
  Select("a");
  EXPECT_EQ(Uncleaned(), "ae");
  Select("e", eDeselectOthers);
  EXPECT_EQ(mLog.Take(), "own[a] global[a]");
  manager->ToggleSelectables(nodes.List("f"), eSuppressMessages);  // unknown until a cleaning
  EXPECT_EQ(Uncleaned(), "ef");
  junction.mKnown.clear();
  manager->DeselectAll();
  EXPECT_EQ(mLog.Take(), "");
  EXPECT_EQ(Uncleaned(), "");
}

TEST_F(Selecting, SelectingAllKeepsTheJunctionsOrderAndDeselectingAllThatOfAddresses) {
  Select("d");
  mLog.Take();
  manager->SelectAll();
  EXPECT_EQ(mLog.Take(), "own[a b c e f] global[a b c e f]");
  manager->DeselectAll();
  EXPECT_EQ(mLog.Take(), "own[f b d a e c] global[f b d a e c]");
  EXPECT_EQ(Cleaned(), "");
}

TEST_F(Selecting, AsksTheJunctionOnceForACleaningAndNeverForNothing) {
  const auto asked = [this](const std::function<void()>& inOperation) {
    junction.mAsked = 0;
    inOperation();
    return junction.mAsked;
  };
  EXPECT_EQ(asked([this] { manager->DeselectAll(); }), 0);
  EXPECT_EQ(asked([this] { Select("a"); }), 2);
  EXPECT_EQ(asked([this] { Select("a"); }), 1);
  EXPECT_EQ(asked([this] { Select(""); }), 0);
  EXPECT_EQ(asked([this] { Cleaned(); }), 1);
  EXPECT_EQ(asked([this] { manager->SelectAll(); }), 3);
  EXPECT_EQ(asked([this] { manager->ToggleSelectables(nodes.List("b"), eSendMessages); }), 1);
}

TEST_F(Selecting, NewJunctionComesAfterTheOldSelectionHasGone) {
  const auto describe = [this](const std::string& inWho) {
    return [this, inWho](const JunctionChangeMessage& inMessage) {
      const bool fits = inMessage.GetPreviousJunction() == &junction &&
                        inMessage.GetCurrentJunction() == manager->GetJunction();
      return inWho + (fits ? "-junction" : "-wrong");
    };
  };
  RecordingListener<const JunctionChangeMessage&> own(mLog, describe("own"));
  RecordingListener<const JunctionChangeMessage&> global(mLog, describe("global"));
  manager->GetJunctionChangeNotifier()->AddListener(&own);
  GetGlobalJunctionChangeNotifier()->AddListener(&global);
  Select("c a");
  mLog.Take();
  ownListener.Once([this] { mLog.Add(manager->GetJunction() == &junction ? "old" : "new"); });
  manager->SetJunction(&junction);
  EXPECT_EQ(mLog.Take(), "own[a c] old global[a c] own-junction global-junction");
  manager->SetJunction(nullptr);
  EXPECT_EQ(mLog.Take(), "own-junction global-junction");
}

TEST_F(Selecting, ListenerMayDropTheLastReferenceInAnyOperation) {
  const std::function<void()> kOperations[] = {
      [this] { Select("b"); },
      [this] { manager->ToggleSelectables(nodes.List("b"), eSendMessages); },
      [this] { manager->SelectAll(); },
      [this] { manager->SetJunction(nullptr); },
  };
  for (const auto& operation : kOperations) {
    manager = new Manager(&junction);
    Select("a");
    manager->GetSelectionChangeNotifier()->AddListener(&ownListener);
    mLog.Take();
    ownListener.Once([this] { manager.reset(); });
    operation();
    EXPECT_FALSE(manager);
    EXPECT_NE(mLog.Take().find("global["), std::string::npos);
  }
}

}  // namespace
}  // namespace vek::selection
