// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/Application.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QGuiApplication>
#include <clocale>
#include <utility>

#include "lumcore/debug/Contract.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/ModuleInfo.h"
#include "ui/ApplicationImpl.h"
#include "ui/EventGate.h"
#include "ui/MenuPeer.h"
#include "ui/NodeManagerImpl.h"
#include "ui/NodePeer.h"

namespace lumui::ui {

namespace {

Application* sApplication = nullptr;

}  // namespace

// Without a loop of Qt's own nobody else deletes what was let go outside an event. In an event it
// may be what this very event is handled by; then it goes when the event is over.
void Application::Impl::DeleteLetGo() const {
  if (!gate->IsInEvent()) QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Application::Application(int& ioArgumentCount, char** ioArguments)
    : mImpl(std::make_unique<Impl>()) {
  LUM_INPUT_CONTRACT(sApplication == nullptr);
  ChooseWindowSystem();
  mImpl->gate = std::make_unique<EventGate>(ioArgumentCount, ioArguments);
  ForgetWindowSystem();
  // Qt takes the user's locale over; files are read and written with a point in their numbers.
  std::setlocale(LC_NUMERIC, "C");
  mImpl->manager = new UI_NodeManager;
  mImpl->gate->mQuitFunction = [this](int inCode) { Quit(inCode); };
  sApplication = this;
  QObject::connect(mImpl->gate.get(), &QGuiApplication::applicationStateChanged, mImpl->gate.get(),
                   [](Qt::ApplicationState inState) {
                     NodeManagerImpl().TellActivation(inState == Qt::ApplicationActive);
                   });
  RunGuarded(&ModuleInfo::InitializeAll);
}

Application::~Application() {
  mImpl->manager->EndInputCapture(true);
  NodeManagerImpl().drops.Leave();
  MenuPeer::DropAll();
  NodePeer::DropAllWidgets();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  sApplication = nullptr;
  delete std::exchange(mImpl->manager, nullptr);
  mImpl->gate.reset();
}

Application* Application::Get() {
  return sApplication;
}

bool Application::IsHeadless() const {
  const QString name = QGuiApplication::platformName();
  return name == QLatin1String("offscreen") || name.startsWith(QLatin1String("minimal"));
}

void Application::SetEventSteps(PreEventStep inPre, PostEventStep inPost) {
  mImpl->gate->mPreStep = std::move(inPre);
  mImpl->gate->mPostStep = std::move(inPost);
}

void Application::SetIdleFunction(std::function<void()> inIdle) {
  mImpl->idle = std::move(inIdle);
}

void Application::SetErrorFunction(ErrorFunction inFunction) {
  mImpl->gate->mErrorFunction = std::move(inFunction);
}

void Application::SetShortcutClaim(std::function<bool(const KeyboardEvent&)> inClaim) {
  mImpl->gate->mShortcutClaim = std::move(inClaim);
}

void Application::SetForeignPressHook(std::function<bool(const ForeignPress&)> inHook) {
  mImpl->gate->mForeignPressHook = std::move(inHook);
}

void Application::Impl::Turn() {
  QAbstractEventDispatcher* const dispatcher = QAbstractEventDispatcher::instance();
  const bool any = dispatcher->processEvents(QEventLoop::AllEvents);
  DeleteLetGo();
  if (any || quitting) return;
  const std::function<void()> function = idle;
  if (function) gate->RunGuarded(function);
  if (quitting) return;
  dispatcher->processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

int Application::Run() {
  LUM_INPUT_CONTRACT(!mImpl->running);
  const lumcore::utility::StScopedValue<bool> running(mImpl->running, true);
  do {
    while (!IsQuitting())
      mImpl->Turn();
    // A quit comes behind what was posted before it, which may take it back.
    mImpl->manager->GetExecutor()->RunPosted();
    mImpl->DeleteLetGo();
  } while (!IsQuitting());
  mImpl->quitting = false;
  return mImpl->exitCode;
}

void Application::Quit(int inCode) {
  mImpl->exitCode = inCode;
  ++mImpl->quits;
  mImpl->quitting = true;
  mImpl->gate->CancelDrag();
  // The loop may be waiting in the system.
  if (auto* const dispatcher = QAbstractEventDispatcher::instance(mImpl->gate->thread())) {
    dispatcher->wakeUp();
  }
}

bool Application::IsQuitting() const {
  return mImpl->quitting;
}

void Application::CancelQuit() {
  mImpl->quitting = false;
}

void Application::PumpPendingEvents() {
  QAbstractEventDispatcher* const dispatcher = QAbstractEventDispatcher::instance();
  while (dispatcher->processEvents(QEventLoop::AllEvents)) {
  }
  mImpl->DeleteLetGo();
}

bool Application::RunGuarded(const std::function<void()>& inFunction) {
  return mImpl->gate->RunGuarded(inFunction);
}

void Application::SendEvent(OS_Event& ioEvent) {
  mImpl->gate->PassToWindow(ioEvent);
}

}  // namespace lumui::ui
