// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/HeldRelease.h"

#include <QKeyEvent>
#include <utility>

#include "ui/KeyPlaces.h"

namespace lumui::ui {

namespace {

// Milliseconds: one interval of a usual repeat, so that the end of a hold is not felt to be late.
// Of Qt's thread that reads from the server, 10 were not always enough on a machine with more work
// than processors.
constexpr int kMoment = 40;

}  // namespace

HeldRelease::HeldRelease(Deliver inDeliver) : mDeliver(std::move(inDeliver)) {
  mEnd.setSingleShot(true);
  mEnd.setInterval(kMoment);
  QObject::connect(&mEnd, &QTimer::timeout, &mEnd, [this] { Flush(); });
}

HeldRelease::~HeldRelease() = default;

bool HeldRelease::Hold(QWindow& inWindow, const QKeyEvent& inRelease) {
  // Input that is made up has no key code, and nothing follows it by itself.
  if (inRelease.nativeScanCode() == 0 || !RepeatsByReleases()) return false;
  mRelease.reset(inRelease.clone());
  mKeyCode = inRelease.nativeScanCode();
  mTime = inRelease.timestamp();
  mWindow = &inWindow;
  mEnd.start();
  return true;
}

void HeldRelease::Flush() {
  if (!mRelease) return;
  mEnd.stop();
  const std::unique_ptr<QKeyEvent> release = std::move(mRelease);
  if (mWindow) mDeliver(*mWindow, *release);
}

bool HeldRelease::IsRepeatedBy(const QKeyEvent& inPress) const {
  return inPress.nativeScanCode() != 0 && inPress.nativeScanCode() == mKeyCode &&
         inPress.timestamp() == mTime;
}

void HeldRelease::Drop() {
  mEnd.stop();
  mRelease.reset();
}

}  // namespace lumui::ui
