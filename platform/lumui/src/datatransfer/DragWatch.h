// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractNativeEventFilter>
#include <cstdint>
#include <functional>

namespace lumui::datatransfer {

// Looks at the messages between programs that drag, for what Qt keeps to itself: that the source of
// a drag over us is no more, or another drag begins though the last one has never left; and what
// has become of a drop on another program, which may still refuse it, or not have read it yet, when
// Qt's drag ends.
class DragWatch : public QAbstractNativeEventFilter {
 public:
  explicit DragWatch(std::function<void()> inEntered);
  ~DragWatch() override;

  // Before a drag that begins here.
  void Forget();
  // After it: what the other program has done with the effect that Qt has told, once it says so.
  // A program that keeps silent for long counts as one that has not moved anything.
  int AwaitFinish(int inEffect);

  bool nativeEventFilter(const QByteArray& inType, void* inMessage, qintptr*) override;

 private:
  struct Ends {
    std::uint32_t source = 0;  // 0 where no drag of another program is over us
    std::uint32_t target = 0;
    bool isWatched = false;
  };

  void Finish(const std::uint32_t* inData);
  void SayThatItLeft();

  const std::function<void()> mEntered;
  Ends mEnds;
  std::function<void()> mOnFinished;
  bool mFinished = false;
  int mEffect = 0;  // of the drop that has been finished
};

}  // namespace lumui::datatransfer
