// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <list>

namespace vek::messaging {

template <class T>
class Broadcaster;

// Receives messages of type T, the whole parameter as written: a const reference, a pointer, a
// value. It unhooks itself from every broadcaster when it dies, also in the middle of a delivery,
// and it is never re-entered: while ListenToMessage of this listener runs, any delivery of the same
// T passes it by, and the message is not kept for it. A class that wants two types derives from two
// Listeners.
template <class T>
class Listener {
 public:
  Listener() = default;
  virtual ~Listener() {
    while (!mBroadcasters.empty())
      mBroadcasters.front()->RemoveListener(this);
    // Last, since leaving in the middle of the own call is what makes a listener wait.
    StopWaiting();
  }
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  // What it throws is swallowed by the broadcast: sender and other listeners never see it.
  virtual void ListenToMessage(T inMessage) = 0;

  // Calls nest. While any is open, every delivery passes this listener by.
  void SuspendMessages() { ++mSuspensionCount; }
  void ResumeMessages() { --mSuspensionCount; }

 private:
  friend class Broadcaster<T>;

  // A listener that left the list in the middle of its own call is not seen by the walk again, so
  // it waits in a chain that begins in the walk's own frame, for its flag to be cleared at the
  // walk's end.
  void WaitIn(Listener*& ioChain) {
    StopWaiting();
    mNextWaiting = ioChain;
    if (mNextWaiting) mNextWaiting->mWaitingLink = &mNextWaiting;
    mWaitingLink = &ioChain;
    ioChain = this;
  }
  void StopWaiting() {
    if (!mWaitingLink) return;
    *mWaitingLink = mNextWaiting;
    if (mNextWaiting) mNextWaiting->mWaitingLink = mWaitingLink;
    mWaitingLink = nullptr;
    mNextWaiting = nullptr;
  }

  std::list<Broadcaster<T>*> mBroadcasters;  // one link for each entry in a broadcaster's list
  int mSuspensionCount = 0;
  bool mInDelivery = false;
  Listener* mNextWaiting = nullptr;
  Listener** mWaitingLink = nullptr;
};

}  // namespace vek::messaging

// A class that derives from Listener needs what its destructor calls.
#include "vek/messaging/Broadcaster.h"
