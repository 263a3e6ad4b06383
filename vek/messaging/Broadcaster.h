// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <list>

#include "lumcore/debug/Contract.h"
#include "vek/messaging/Listener.h"

namespace vek::messaging {

// Sends messages of type T to its listeners, at once and in the order in which they were attached.
// It owns none of them, and whichever side dies first unhooks itself. In the middle of a delivery
// listeners may attach (they still get the message), detach, die, throw and broadcast again; the
// one thing that may not happen there is the destruction of this broadcaster. One thread only.
template <class T>
class Broadcaster {
 public:
  Broadcaster() = default;
  virtual ~Broadcaster();
  Broadcaster(const Broadcaster&) = delete;
  Broadcaster& operator=(const Broadcaster&) = delete;

  // A listener that is attached twice gets each message twice.
  void AddListener(Listener<T>* inListener);

  // Takes away every attachment of the listener. While a delivery of this broadcaster runs, only
  // the first one goes; the others go by further calls, or with the listener.
  void RemoveListener(Listener<T>* inListener);

  // Never throws what a listener throws. A T by value is copied for each listener.
  void BroadcastMessage(T inMessage);

  // Calls nest. While any is open, nothing is delivered.
  void SuspendMessages() { ++mSuspensionCount; }
  void ResumeMessages() { --mSuspensionCount; }

 private:
  using Entries = std::list<Listener<T>*>;

  // One running delivery, in the frame of the call that runs it.
  class Walk {
   public:
    explicit Walk(Broadcaster& ioBroadcaster)
        : mBroadcaster(ioBroadcaster), mOuter(ioBroadcaster.mInnermostWalk) {
      ++mBroadcaster.mDeliveryDepth;
      mBroadcaster.mInnermostWalk = this;
    }
    ~Walk() {
      while (mWaiting) {
        mWaiting->mInDelivery = false;
        mWaiting->StopWaiting();
      }
      mBroadcaster.mInnermostWalk = mOuter;
      --mBroadcaster.mDeliveryDepth;
    }
    Walk(const Walk&) = delete;
    Walk& operator=(const Walk&) = delete;

    Broadcaster& mBroadcaster;
    Walk* const mOuter;
    typename Entries::iterator mEntry{};  // whose listener is being called
    Listener<T>* mWaiting = nullptr;  // chain of those that left in the middle of their own call
  };

  template <class Message>
  void Deliver(Message& inMessage);
  void VacateFirstEntry(Listener<T>* inListener);
  void Purge();

  Entries mListeners;  // null where one left while a delivery runs
  int mSuspensionCount = 0;
  int mDeliveryDepth = 0;
  bool mNeedsPurge = false;
  Walk* mInnermostWalk = nullptr;
};

template <class T>
Broadcaster<T>::~Broadcaster() {
  for (Listener<T>* listener : mListeners) {
    if (!listener) continue;
    listener->mBroadcasters.remove(this);
    listener->mInDelivery = false;
  }
}

template <class T>
void Broadcaster<T>::AddListener(Listener<T>* inListener) {
  LUM_INPUT_CONTRACT(inListener != nullptr);
  mListeners.push_back(inListener);
  inListener->mBroadcasters.push_back(this);
}

template <class T>
void Broadcaster<T>::RemoveListener(Listener<T>* inListener) {
  LUM_INPUT_CONTRACT(inListener != nullptr);
  if (mDeliveryDepth == 0) {
    mListeners.remove(inListener);
    inListener->mBroadcasters.remove(this);
  } else {
    VacateFirstEntry(inListener);
  }
}

// Nodes stay while a delivery runs, since walks stand on them.
template <class T>
void Broadcaster<T>::VacateFirstEntry(Listener<T>* inListener) {
  const auto entry = std::find(mListeners.begin(), mListeners.end(), inListener);
  if (entry == mListeners.end()) {
    inListener->mBroadcasters.remove(this);
    return;
  }
  *entry = nullptr;
  mNeedsPurge = true;
  // One link goes with one entry: those that are left let the listener's destruction find the
  // entries that are left.
  auto& links = inListener->mBroadcasters;
  const auto link = std::find(links.begin(), links.end(), this);
  if (link != links.end()) links.erase(link);
  // The walk that is calling this listener through this very entry finds it empty afterwards and
  // can no longer clear the listener's flag. It does so at its end, and not sooner: a listener that
  // attaches itself again in its own call would be reached by the same walk for ever.
  for (Walk* walk = mInnermostWalk; walk; walk = walk->mOuter) {
    if (walk->mEntry != entry) continue;
    inListener->WaitIn(walk->mWaiting);
    break;
  }
}

template <class T>
void Broadcaster<T>::BroadcastMessage(T inMessage) {
  if (mSuspensionCount == 0 && !mListeners.empty()) Deliver(inMessage);
  if (mNeedsPurge && mDeliveryDepth == 0) Purge();
}

// Message is the type that T passes, so that nothing is copied on the way here.
template <class T>
template <class Message>
void Broadcaster<T>::Deliver(Message& inMessage) {
  Walk walk(*this);
  // Each step reads the link of the node that it leaves, so what was appended on the way is
  // reached.
  const auto end = mListeners.end();
  for (auto entry = mListeners.begin(); entry != end; ++entry) {
    Listener<T>* const listener = *entry;
    if (!listener || listener->mSuspensionCount != 0 || listener->mInDelivery) continue;
    walk.mEntry = entry;
    listener->mInDelivery = true;
    try {
      listener->ListenToMessage(inMessage);
    } catch (...) {
      // Swallowed for the sender and for the listeners behind this one: who listens has no say in
      // whether the others are told.
    }
    // The listener may have left or died in its call, and then its entry is empty.
    if (*entry) (*entry)->mInDelivery = false;
  }
}

template <class T>
void Broadcaster<T>::Purge() {
  mListeners.remove(nullptr);
  mNeedsPurge = false;
}

}  // namespace vek::messaging
