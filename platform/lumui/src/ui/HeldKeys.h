// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeyEvent>
#include <functional>
#include <set>

class QEvent;

namespace lumui::ui {

// Knows the presses that a held key makes by itself where the window system does not tell them from
// the user's. X11 repeats a key as release and press with one time stamp, and Qt marks such a pair
// only if the press is in its queue by the time that it looks at the release: it often is not, and
// then a held key is let go and pressed anew. So the server is asked for presses alone, and the
// press of a key that is down is a repeat. Where the server cannot do that, and on other window
// systems, Qt's marks count and nothing is remembered here.
class HeldKeys {
 public:
  HeldKeys();

  // To be called with each event of each window before it is handled. A menu of the application or
  // another of its windows may get the end of what began in this one.
  void Note(const QEvent& inEvent);
  // True for a press, or the override before it, of a key that is down.
  bool IsUnmarkedRepeat(const QEvent& inEvent) const;

 private:
  bool mPressesAlone;
  std::set<unsigned> mDown;  // key codes
};

// The event with Qt's mark of a repeat, for those behind the gate who look for it.
class MarkedRepeat : public QKeyEvent {
 public:
  explicit MarkedRepeat(const QKeyEvent& inEvent) : QKeyEvent(inEvent) { m_autoRepeat = true; }
};

// What follows is the window system's part, in a file of its own.

// True if a held key makes presses alone from now on, and its end the one release.
bool RepeatByPressesAlone();
// Takes out the keys that are up by now.
void KeepThoseDown(std::set<unsigned>& ioKeyCodes);

}  // namespace lumui::ui
