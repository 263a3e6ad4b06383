// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractNativeEventFilter>
#include <functional>

namespace lumui::datatransfer {

// Looks at the messages between programs that drag, for what Qt keeps to itself: that another drag
// begins though the last one has never left, as its source is no more; and what has become of a
// drop on another program, which may still refuse it, or not have read it yet, when Qt's drag ends.
class DragWatch : public QAbstractNativeEventFilter {
 public:
  explicit DragWatch(std::function<void()> inEntered);
  ~DragWatch() override;

  // Before a drag that begins here.
  void Forget() { mFinished = false; }
  // After it: what the other program has done with the effect that Qt has told, once it says so.
  // A program that keeps silent for long counts as one that has not moved anything.
  int AwaitFinish(int inEffect);

  bool nativeEventFilter(const QByteArray& inType, void* inMessage, qintptr*) override;

 private:
  const std::function<void()> mEntered;
  std::function<void()> mOnFinished;
  bool mFinished = false;
  int mEffect = 0;  // of the drop that has been finished
};

}  // namespace lumui::datatransfer
