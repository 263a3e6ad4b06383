// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <exception>
#include <utility>

#include "lumcore/config/ErrorManager.h"
#include "lumcore/utility/RefCounted.h"
#include "lumui/ui/OS_Window.h"
#include "ui/EventGate.h"

namespace lumui::ui {

namespace {

// Answers every event with a call.
class Caller : public QObject {
 public:
  explicit Caller(std::function<void()> inFunction) : mFunction(std::move(inFunction)) {}

  bool event(QEvent*) override {
    mFunction();
    return true;
  }

 private:
  std::function<void()> mFunction;
};

// No queue brings these: who sends them waits for their answer, or tells what has happened already.
bool IsSentPastTheQueue(unsigned inMessage) {
  return inMessage == kMessageDestroy || inMessage == kMessageQueryEndSession ||
         inMessage == kMessageEndSession || inMessage == kMessageDisplayChange ||
         inMessage == kMessageInitMenuPopup;
}

}  // namespace

// Qt also calls from outside an event, and goes on with what it has called for: a window, say,
// whose activation a handler takes for a reason to destroy it. An event of our own makes what is
// let go there wait, in the pumps and the modal loops of the handler as well.
bool EventGate::RunGuarded(const std::function<void()>& inFunction) {
  if (IsInEvent()) return CallGuarded(inFunction);
  bool done = false;
  Caller caller([&] { done = CallGuarded(inFunction); });
  QEvent call(QEvent::User);
  QCoreApplication::sendEvent(&caller, &call);
  return done;
}

bool EventGate::CallGuarded(const std::function<void()>& inFunction) {
  try {
    inFunction();
    return true;
  } catch (...) {
    ReportError(std::current_exception());
    return false;
  }
}

void EventGate::ReportError(const std::exception_ptr& inError) {
  if (!mErrorFunction) return lumcore::config::ErrorManager::Get(false)->ReportError(inError);
  lumcore::config::ErrorManager::ReportThrough(mErrorFunction, inError);
}

bool EventGate::Pass(OS_Event& ioEvent, const std::function<void()>& inDispatch) {
  const OS_Event asItCame = ioEvent;
  const Application::PreEventStep pre = mPreStep;
  bool goOn = true;
  if (pre) RunGuarded([&] { goOn = pre(ioEvent); });
  if (!goOn && !IsSentPastTheQueue(asItCame.message)) return false;
  inDispatch();
  const Application::PostEventStep post = mPostStep;
  // As it came: whoever handled it may have written into it.
  if (post) RunGuarded([&] { post(asItCame); });
  return true;
}

void EventGate::PassToWindow(OS_Event& ioEvent) {
  Pass(ioEvent, [&] {
    OS_Window* const window = OS_Window::UI_GetWindow(ioEvent.window);
    const OSEventFunction function = window ? window->UI_GetEventFunction() : nullptr;
    if (!function) return;
    const lumcore::utility::StKeepAlive keepAlive(*window);
    RunGuarded([&] { function(&ioEvent); });
  });
}

}  // namespace lumui::ui
