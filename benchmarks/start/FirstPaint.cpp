// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "start/FirstPaint.h"

#include <QEvent>
#include <QWidget>

bool FirstPaint::eventFilter(QObject* inObject, QEvent* inEvent) {
  const auto* const widget = qobject_cast<QWidget*>(inObject);
  if (inEvent->type() == QEvent::Paint && widget && widget->isWindow()) mSeen = true;
  return false;
}
