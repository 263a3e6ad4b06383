// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

// Notes that a top-level window was painted. Install it on the application.
class FirstPaint : public QObject {
 public:
  bool WasSeen() const { return mSeen; }

  bool eventFilter(QObject* inObject, QEvent* inEvent) override;

 private:
  bool mSeen = false;
};
