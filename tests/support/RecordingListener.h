// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>
#include <utility>

#include "support/EventLog.h"
#include "vek/messaging/Broadcaster.h"

namespace test_support {

// Logs what each message is described as, then does what the test wants to happen inside the call.
template <class T>
class RecordingListener : public vek::messaging::Listener<T> {
 public:
  using Describe = std::function<std::string(T)>;
  using Action = std::function<void()>;

  RecordingListener(EventLog& ioLog, Describe inDescribe)
      : mLog(ioLog), mDescribe(std::move(inDescribe)) {}

  // Runs in every call from now on, or in the next one only.
  void Always(Action inAction) { mAction = std::move(inAction); }
  void Once(Action inAction) {
    mAction = [this, inAction] {
      mAction = nullptr;
      inAction();
    };
  }

  void ListenToMessage(T inMessage) override {
    mLog.Add(mDescribe(std::forward<T>(inMessage)));
    const Action action = mAction;  // a copy, since it may destroy this listener
    if (action) action();
  }

 private:
  EventLog& mLog;
  Describe mDescribe;
  Action mAction;
};

}  // namespace test_support
