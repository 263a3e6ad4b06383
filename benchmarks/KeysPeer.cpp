// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "KeysPeer.h"

#include <qpa/qwindowsysteminterface.h>

#include <QApplication>
#include <QShortcut>
#include <QWidget>

struct ShortcutWindow::Impl {
  QWidget window;
  long activations = 0;
};

ShortcutWindow::ShortcutWindow(int inFirst, int inCount) : mImpl(std::make_unique<Impl>()) {
  for (int at = 0; at < inCount; ++at) {
    auto* const shortcut =
        new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(inFirst + at)), &mImpl->window);
    QObject::connect(shortcut, &QShortcut::activated,
                     [impl = mImpl.get()] { ++impl->activations; });
  }
  mImpl->window.show();
  mImpl->window.activateWindow();
  while (!mImpl->window.isActiveWindow())
    QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

ShortcutWindow::~ShortcutWindow() = default;

void ShortcutWindow::Press(int inCharacter) {
  QWindowSystemInterface::handleExtendedKeyEvent(mImpl->window.windowHandle(), QEvent::KeyPress,
                                                 inCharacter, Qt::ControlModifier, 0, 0, 0);
  QWindowSystemInterface::sendWindowSystemEvents(QEventLoop::AllEvents);
}

long ShortcutWindow::GetActivations() const {
  return mImpl->activations;
}
