// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/QuitWatch.h"

#include <QAbstractEventDispatcher>
#include <utility>

#include "ui/ApplicationImpl.h"

namespace lumui::ui {

QuitWatch::QuitWatch(std::function<void()> inEnd)
    : mEnd(std::move(inEnd)), mQuitsBefore(Application::Get()->GetImpl()->quits) {
  // A quit wakes the loop that waits.
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake,
                   &mConnection, [this] { Look(); });
}

bool QuitWatch::HasQuit() const {
  const Application::Impl& application = *Application::Get()->GetImpl();
  return application.quitting && (application.running || application.quits != mQuitsBefore);
}

void QuitWatch::Look() {
  if (HasQuit()) mEnd();
}

}  // namespace lumui::ui
