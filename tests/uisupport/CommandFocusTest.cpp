// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <functional>
#include <memory>
#include <string>

#include "lumcore/utility/CallbackList.h"
#include "support/RecordingHandler.h"

namespace vek::uisupport {
namespace {

using namespace test_support;

using Callback = boost::shared_ptr<CommandHandlerBase::HandlerChangeFunction>;

// The chain leaf -> root and a handler beside it. A callback logs the current handler as
// "now:leaf".
class Focus : public testing::Test {
 protected:
  Focus() {
    *callback = [this](CommandHandlerBase* inHandler) { mLog.Add("now:" + Name(inHandler)); };
    CommandHandlerBase::NotifyWhenCurrHandlerChanges(callback);
  }
  ~Focus() override {
    CommandHandlerBase::ResetCommandChain();
    EXPECT_TRUE(callback->empty()) << "the end of the list clears the functions on it";
  }
  static std::string Name(CommandHandlerBase* inHandler) {
    return inHandler ? static_cast<RecordingHandler*>(inHandler)->mName : "none";
  }
  std::string Set(CommandHandlerBase* inHandler) {
    CommandHandlerBase::SetCurrentCommandHandler(inHandler);
    return mLog.Take();
  }

  EventLog mLog;
  Callback callback = boost::make_shared<CommandHandlerBase::HandlerChangeFunction>();
  RecordingHandler root{mLog, "root"};
  RecordingHandler leaf{mLog, "leaf", &root};
  RecordingHandler other{mLog, "other"};
};

TEST_F(Focus, PassesFromOneToTheNextAndThenTheCallbacksHear) {
  EXPECT_EQ(Set(&leaf), "gained:leaf now:leaf");
  EXPECT_EQ(Set(&other), "lost:leaf gained:other now:other");
  EXPECT_EQ(Set(&other), "lost:other gained:other");
  EXPECT_EQ(Set(nullptr), "lost:other now:none");
  EXPECT_EQ(Set(nullptr), "");
}

TEST_F(Focus, HandlerThatPassesItOnIsToldOfTwiceWithTheInnerChangeFirst) {
  Set(&leaf);
  other.mOnGained = [this] { CommandHandlerBase::SetCurrentCommandHandler(&root); };
  EXPECT_EQ(Set(&other), "lost:leaf gained:other lost:other gained:root now:root now:root");
  // Passed back to where it came from: only the inner change is one.
  EXPECT_EQ(Set(&other), "lost:root gained:other lost:other gained:root now:root");
}

TEST_F(Focus, UnforcedHandlerOnTheCurrentChainLeavesTheCurrentOneAlone) {
  leaf.SetAsCurrentCommandHandler(false);
  EXPECT_EQ(mLog.Take(), "gained:leaf now:leaf");
  root.SetAsCurrentCommandHandler(false);
  leaf.SetAsCurrentCommandHandler(false);
  EXPECT_EQ(mLog.Take(), "");
  EXPECT_TRUE(root.IsOnCurrentCommandChain());
  EXPECT_FALSE(other.IsOnCurrentCommandChain());
  root.SetAsCurrentCommandHandler(true);
  EXPECT_EQ(mLog.Take(), "lost:leaf gained:root now:root");
  EXPECT_FALSE(leaf.IsOnCurrentCommandChain());
  leaf.SetAsCurrentCommandHandler(false);
  EXPECT_EQ(mLog.Take(), "lost:root gained:leaf now:leaf");
}

TEST_F(Focus, CurrentHandlerOfAnotherKindHasNoChain) {
  struct Bare : CommandHandlerBase {
    void SetAsCurrentCommandHandler(bool) override { DoSetAsCurrentCommandHandler(); }
    bool DoCallMyCommandChain(int) override { return true; }
    bool DoCallMyEnablementChain(int, bool&, bool&, lumcore::UTF16String&) override { return true; }
    bool DoCallEndHoldCommand(int) override { return true; }
  } bare;
  callback->clear();
  bare.SetAsCurrentCommandHandler(false);
  EXPECT_FALSE(leaf.IsOnCurrentCommandChain());
  leaf.SetAsCurrentCommandHandler(false);
  EXPECT_EQ(mLog.Take(), "gained:leaf");
}

TEST_F(Focus, HandlerThatDiesLeavesNullAndTellsNobody) {
  auto mortal = std::make_unique<RecordingHandler>(mLog, "mortal");
  CommandHandlerBase::SetDefaultCommandHandler(mortal.get());
  Set(mortal.get());
  mortal.reset();
  EXPECT_EQ(mLog.Take(), "");
  EXPECT_EQ(CommandHandlerBase::GetCurrentCommandHandler(), nullptr);
  EXPECT_EQ(CommandHandlerBase::GetDefaultCommandHandler(), nullptr);
  EXPECT_EQ(Set(&leaf), "gained:leaf now:leaf");
}

using Callbacks = lumcore::utility::CallbackList<int>;

class CallbackList : public testing::Test {
 protected:
  Callbacks::Entry Add(const std::string& inName, const std::function<void()>& inAction = {}) {
    const auto log = [this, inName, inAction](int inNumber) {
      mLog.Add(inName + std::to_string(inNumber));
      if (inAction) inAction();
    };
    const auto entry = boost::make_shared<Callbacks::Function>(log);
    list->Add(entry);
    return entry;
  }
  std::string Call(int inNumber) {
    list->CallEach([inNumber] { return inNumber; });
    return mLog.Take();
  }

  EventLog mLog;
  std::unique_ptr<Callbacks> list = std::make_unique<Callbacks>();
};

TEST_F(CallbackList, SkipsAndDropsWhoClearedTheFunction) {
  list->Add(nullptr);
  const auto a = Add("a");
  const auto b = Add("b");
  const auto c = Add("c");
  a->clear();
  EXPECT_EQ(a.use_count(), 2);
  EXPECT_EQ(Call(1), "b1 c1");
  Add("d");
  EXPECT_EQ(a.use_count(), 1);
  *a = *c;  // dropped, so a new function there is not heard of
  EXPECT_EQ(Call(2), "b2 c2 d2");
  list.reset();
  EXPECT_TRUE(b->empty() && !a->empty());
}

TEST_F(CallbackList, CallbackMayClearItselfAndOthersAndAddInItsCall) {
  Callbacks::Entry a, b;
  a = Add("a", [&] {
    a->clear();
    b->clear();
    Add("d");
    mLog.Add("still-a");
  });
  b = Add("b");
  Add("c");
  EXPECT_EQ(Call(1), "a1 still-a c1 d1");
  EXPECT_EQ(Call(2), "c2 d2");
}

}  // namespace
}  // namespace vek::uisupport
