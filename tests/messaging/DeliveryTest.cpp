// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "lumcore/config/ThrowError.h"
#include "support/EventLog.h"
#include "support/RecordingListener.h"

namespace {

using test_support::EventLog;
using Listener = test_support::RecordingListener<const int&>;
using Broadcaster = vek::messaging::Broadcaster<const int&>;

class Delivery : public testing::Test {
 protected:
  // Logs its name and the number of the message.
  std::unique_ptr<Listener> NewListener(const std::string& inName) {
    return std::make_unique<Listener>(
        mLog, [inName](const int& inNumber) { return inName + std::to_string(inNumber); });
  }
  void Attach(std::initializer_list<Listener*> inListeners) {
    for (Listener* listener : inListeners)
      mBroadcaster.AddListener(listener);
  }
  // What listeners log when the number is sent.
  std::string Send(int inNumber) {
    mBroadcaster.BroadcastMessage(inNumber);
    return mLog.Take();
  }

  EventLog mLog;
  Broadcaster mBroadcaster;
  std::unique_ptr<Listener> a = NewListener("a");
  std::unique_ptr<Listener> b = NewListener("b");
  std::unique_ptr<Listener> c = NewListener("c");
};

TEST_F(Delivery, GoesInOrderOnceForEachAttachmentUnlessSuspended) {
  EXPECT_EQ(Send(1), "");
  Attach({b.get(), a.get(), b.get(), c.get()});
  EXPECT_EQ(Send(2), "b2 a2 b2 c2");
  mBroadcaster.RemoveListener(b.get());
  EXPECT_EQ(Send(3), "a3 c3");
  mBroadcaster.RemoveListener(b.get());
  EXPECT_EQ(Send(4), "a4 c4");
  mBroadcaster.SuspendMessages();
  EXPECT_EQ(Send(5), "");
  mBroadcaster.ResumeMessages();
  a->SuspendMessages();
  EXPECT_EQ(Send(6), "c6");
}

TEST_F(Delivery, ListenerThatThrowsHoldsNobodyUpAndHearsTheNextMessage) {
  Attach({a.get(), b.get(), c.get()});
  b->Always([] { throw 1; });
  EXPECT_EQ(Send(1), "a1 b1 c1");
  EXPECT_EQ(Send(2), "a2 b2 c2");
}

TEST_F(Delivery, ListenerMayDestroyItselfInItsCallAndThrow) {
  Attach({a.get(), b.get(), a.get(), b.get(), c.get()});
  b->Always([this] {
    b.reset();
    throw 1;
  });
  EXPECT_EQ(Send(1), "a1 b1 a1 c1");
  EXPECT_EQ(Send(2), "a2 a2 c2");
}

TEST_F(Delivery, ListenerAttachedOnTheWayIsReachedByTheSameWalk) {
  Attach({a.get(), b.get()});
  b->Once([this] { Attach({c.get()}); });
  EXPECT_EQ(Send(1), "a1 b1 c1");
  EXPECT_EQ(Send(2), "a2 b2 c2");
}

TEST_F(Delivery, NestedMessageComesFirstAndPassesTheListenerThatIsInItsCall) {
  Attach({a.get(), b.get(), c.get()});
  b->Once([this] { mBroadcaster.BroadcastMessage(2); });
  EXPECT_EQ(Send(1), "a1 b1 a2 c2 c1");
  EXPECT_EQ(Send(3), "a3 b3 c3");
}

TEST_F(Delivery, ListenerDestroyedInNestedDeliveryLeavesBothWalksWhole) {
  const auto d = NewListener("d");
  Attach({a.get(), b.get(), c.get(), d.get()});
  a->Once([this] { mBroadcaster.BroadcastMessage(2); });
  b->Once([this] {
    a.reset();  // in its own call, one walk further out
    c.reset();
  });
  EXPECT_EQ(Send(1), "a1 b2 d2 b1 d1");
  EXPECT_EQ(Send(3), "b3 d3");
}

TEST_F(Delivery, DetachingAndAttachingAgainInTheCallEndsAndMovesToTheBack) {
  Attach({a.get(), b.get()});
  a->Always([this] {
    mBroadcaster.RemoveListener(a.get());
    mBroadcaster.AddListener(a.get());
  });
  EXPECT_EQ(Send(1), "a1 b1");
  b->Once([this] { mBroadcaster.BroadcastMessage(3); });
  EXPECT_EQ(Send(2), "b2 a3 a2");
  EXPECT_EQ(Send(4), "b4 a4");
}

TEST_F(Delivery, ListenerThatDetachesInItsCallHearsNothingUntilThatWalkEndsAndIsNotDeafThen) {
  Broadcaster other;
  Attach({a.get(), b.get()});
  other.AddListener(a.get());
  a->Once([this] { mBroadcaster.RemoveListener(a.get()); });
  b->Once([&other] { other.BroadcastMessage(7); });
  EXPECT_EQ(Send(1), "a1 b1");
  other.BroadcastMessage(8);
  EXPECT_EQ(mLog.Take(), "a8");
}

TEST_F(Delivery, ListenerThatDetachedMayDieBeforeThatWalkEnds) {
  Attach({a.get(), b.get(), c.get()});
  a->Once([this] { mBroadcaster.RemoveListener(a.get()); });
  b->Once([this] { mBroadcaster.RemoveListener(b.get()); });
  c->Once([this] { a.reset(); });
  EXPECT_EQ(Send(1), "a1 b1 c1");
  Attach({b.get()});
  EXPECT_EQ(Send(2), "c2 b2");
}

TEST_F(Delivery, DetachOnTheWayTakesOneEntryAndDeathTakesTheRest) {
  Attach({a.get(), b.get(), a.get(), a.get()});
  b->Once([this] { mBroadcaster.RemoveListener(a.get()); });
  EXPECT_EQ(Send(1), "a1 b1 a1 a1");
  EXPECT_EQ(Send(2), "b2 a2 a2");
  a.reset();
  EXPECT_EQ(Send(3), "b3");
}

TEST_F(Delivery, DeathOfABroadcasterOpensItsListenersToMessagesAgain) {
  auto other = std::make_unique<Broadcaster>();
  Attach({a.get(), b.get()});
  other->AddListener(a.get());
  a->Once([&] {
    other.reset();
    mBroadcaster.BroadcastMessage(2);
  });
  EXPECT_EQ(Send(1), "a1 a2 b2 b1");
  b.reset();
  EXPECT_EQ(Send(3), "a3");
}

TEST_F(Delivery, NullListenerIsRefused) {
  EXPECT_THROW(mBroadcaster.AddListener(nullptr), lumcore::config::Error);
  EXPECT_THROW(mBroadcaster.RemoveListener(nullptr), lumcore::config::Error);
}

}  // namespace
