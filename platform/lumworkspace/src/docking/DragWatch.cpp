// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "docking/DragWatch.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTimer>
#include <utility>

#include "ui/EventGate.h"

namespace lumworkspace::docking {

DragWatch::~DragWatch() = default;

void DragWatch::WaitForRelease(std::function<void()> inFunction) {
  mFunction = std::move(inFunction);
  if (QGuiApplication::mouseButtons() == Qt::NoButton) return CallLater();
  qApp->installEventFilter(this);
}

bool DragWatch::eventFilter(QObject*, QEvent* inEvent) {
  const QEvent::Type type = inEvent->type();
  const bool released =
      type == QEvent::MouseButtonRelease || type == QEvent::NonClientAreaMouseButtonRelease;
  if (released && static_cast<QMouseEvent*>(inEvent)->buttons() == Qt::NoButton) {
    qApp->removeEventFilter(this);
    CallLater();
  }
  return false;
}

void DragWatch::CallLater() {
  QTimer::singleShot(0, this, [this] {
    const auto function = std::exchange(mFunction, nullptr);
    if (function) lumui::ui::EventGate::Get()->RunGuarded(function);
  });
}

}  // namespace lumworkspace::docking
