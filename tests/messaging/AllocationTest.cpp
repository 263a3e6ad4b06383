// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <utility>

#include "support/AllocationCount.h"
#include "vek/messaging/Broadcaster.h"
#include "vek/uisupport/CommandAttachment.h"
#include "vek/uisupport/CommandHandler.h"

namespace vek {
namespace {

using messaging::Broadcaster;

std::size_t AllocationsOf(const std::function<void()>& inFunction) {
  const std::size_t before = test_support::AllocationCount();
  inFunction();
  return test_support::AllocationCount() - before;
}

// Broadcasts again or leaves, in its first call.
struct Busy : messaging::Listener<const int&> {
  void ListenToMessage(const int& inNumber) override {
    mSum += inNumber;
    if (Broadcaster<const int&>* const left = std::exchange(mLeaves, nullptr))
      left->RemoveListener(this);
    if (Broadcaster<const int&>* const nested = std::exchange(mSendsOn, nullptr))
      nested->BroadcastMessage(10);
  }
  Broadcaster<const int&>* mLeaves = nullptr;
  Broadcaster<const int&>* mSendsOn = nullptr;
  int mSum = 0;
};

TEST(Allocation, DeliveryByReferenceNeedsNoneAlsoWhereListenersLeaveOrSendOn) {
  Broadcaster<const int&> broadcaster;
  std::array<Busy, 3> listeners;
  for (Busy& listener : listeners)
    broadcaster.AddListener(&listener);
  listeners[0].mLeaves = &broadcaster;
  listeners[1].mSendsOn = &broadcaster;
  EXPECT_EQ(AllocationsOf([&] { broadcaster.BroadcastMessage(1); }), 0u);
  EXPECT_EQ(listeners[0].mSum * 10000 + listeners[1].mSum * 100 + listeners[2].mSum, 10111);
}

TEST(Allocation, AskingTheChainForEnablementNeedsNone) {
  using uisupport::CommandHandlerBase;
  struct Handler : uisupport::CommandHandler {
    bool DoHandleCommand(int) override { return false; }
    bool DoCommandEnabled(int, bool&, bool&, lumcore::UTF16String&) override { return false; }
  } handler;
  struct Attachment : uisupport::CommandAttachment {
    bool DoHandleCommand(int) override { return false; }
    bool DoCommandEnabled(int, bool&, bool&, lumcore::UTF16String&) override { return false; }
  };
  std::array<Attachment, 20> attachments;
  for (Attachment& attachment : attachments)
    handler.AddAttachment(&attachment);
  CommandHandlerBase::SetCurrentCommandHandler(&handler);
  bool flag = false;
  lumcore::UTF16String title;
  const auto ask = [&] { CommandHandlerBase::CallEnablementChain(1, flag, flag, title); };
  EXPECT_EQ(AllocationsOf(ask), 0u);
  // The count counts: executing copies a set of this size.
  EXPECT_GT(AllocationsOf([] { CommandHandlerBase::CallCommandChain(1); }), 0u);
}

}  // namespace
}  // namespace vek
