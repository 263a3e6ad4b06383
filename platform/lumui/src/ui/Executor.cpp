// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/Executor.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <deque>
#include <mutex>
#include <utility>

#include "ui/EventGate.h"

namespace lumui::ui {

namespace {

QEvent::Type TurnEvent() {
  static const auto sType = static_cast<QEvent::Type>(QEvent::registerEventType());
  return sType;
}

}  // namespace

// One posted event for each function, and one function for each event: whatever a function does, a
// nested loop included, the next one is already on its way.
class Executor::Impl : public QObject {
 public:
  void Post(std::function<void()> inFunction) {
    {
      const std::lock_guard<std::mutex> lock(mMutex);
      mQueue.push_back(std::move(inFunction));
    }
    QCoreApplication::postEvent(this, new QEvent(TurnEvent()));
  }

  void SetHeld(bool inHeld) {
    mIsHeld = inHeld;
    for (int turns = inHeld ? 0 : std::exchange(mHeldTurns, 0); turns > 0; --turns)
      QCoreApplication::postEvent(this, new QEvent(TurnEvent()));
  }

  // The turns that were posted for them find others, or none.
  void RunPosted() {
    std::size_t count = 0;
    {
      const std::lock_guard<std::mutex> lock(mMutex);
      count = mQueue.size();
    }
    for (; count > 0 && !mIsHeld; --count) {
      QEvent turn(TurnEvent());
      QCoreApplication::sendEvent(this, &turn);
    }
  }

  bool event(QEvent* inEvent) override {
    if (inEvent->type() != TurnEvent()) return QObject::event(inEvent);
    if (mIsHeld) {
      ++mHeldTurns;
      return true;
    }
    std::function<void()> function;
    {
      const std::lock_guard<std::mutex> lock(mMutex);
      if (mQueue.empty()) return true;  // RunPosted has been here
      function = std::move(mQueue.front());
      mQueue.pop_front();
    }
    EventGate::Get()->RunGuarded(function);
    return true;
  }

 private:
  std::mutex mMutex;
  std::deque<std::function<void()>> mQueue;
  bool mIsHeld = false;
  int mHeldTurns = 0;  // that were due meanwhile
};

Executor::Executor() : mImpl(std::make_unique<Impl>()) {}

Executor::~Executor() = default;

void Executor::Post(std::function<void()> inFunction) {
  mImpl->Post(std::move(inFunction));
}

void Executor::SetHeld(bool inHeld) {
  mImpl->SetHeld(inHeld);
}

void Executor::RunPosted() {
  mImpl->RunPosted();
}

}  // namespace lumui::ui
