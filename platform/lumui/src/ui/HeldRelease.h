// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <functional>
#include <memory>

class QKeyEvent;

namespace lumui::ui {

// Tells the user's release of a key from one that a held key makes by itself. X11 repeats a key as
// release and press with one time stamp. Qt marks such a pair when it sees the press in its queue
// behind the release; where the press is read from the server a moment later (on a busy machine
// that is every third pair), both look like the user's. So a release waits for that moment: a press
// of the same key with the same time stamp makes it the pair of a repeat, and other input, or the
// end of the moment, makes it real. No finger presses a key in the millisecond in which it let go
// of it, so that press is a repeat also if it comes later still.
class HeldRelease {
 public:
  using Deliver = std::function<void(QWindow&, QKeyEvent&)>;

  explicit HeldRelease(Deliver inDeliver);
  ~HeldRelease();

  // True if the release was put off; it comes through the function.
  bool Hold(QWindow& inWindow, const QKeyEvent& inRelease);
  // To be called before any other input is handled: what was put off comes first.
  void Flush();
  bool IsRepeatedBy(const QKeyEvent& inPress) const;
  // Forgets the release: it was none.
  void Drop();

 private:
  Deliver mDeliver;
  std::unique_ptr<QKeyEvent> mRelease;
  unsigned mKeyCode = 0;
  unsigned long long mTime = 0;  // milliseconds, the server's
  QPointer<QWindow> mWindow;
  QTimer mEnd;
};

}  // namespace lumui::ui
