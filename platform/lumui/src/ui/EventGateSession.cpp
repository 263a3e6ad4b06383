// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QSessionManager>

#include "lumui/ui/OS_Window.h"
#include "ui/EventGate.h"
#include "ui/WindowRegistry.h"

namespace lumui::ui {

bool EventGate::HandleQuit() {
  if (mSessionEnding) {
    EndSession();
  } else if (mQuitFunction) {
    mQuitFunction(0);
  }
  return true;
}

void EventGate::CommitData(QSessionManager& ioSession) {
  // Question boxes may stand from here to the release. Where the manager does not want them they
  // come all the same: nothing else stands between unsaved work and its loss.
  ioSession.allowsInteraction();
  if (!AskSessionEnd()) ioSession.cancel();
  // Behind the refusal, which goes with it.
  ioSession.release();
}

bool EventGate::AskSessionEnd() {
  SessionGoesOn();
  bool permitted = true;
  ForEachWindow([&](OS_Window& inWindow) {
    if (!permitted) return;
    permitted = inWindow.UI_SendMessage(kMessageQueryEndSession, 0, 0) != 0;
  });
  mSessionEnding = true;
  if (!permitted) SessionGoesOn();
  return permitted;
}

// Some other program has refused. No window system says so, but the user's next doing does, or the
// next question.
void EventGate::SessionGoesOn() {
  if (!mSessionEnding) return;
  mSessionEnding = false;
  ForEachWindow([](OS_Window& inWindow) { inWindow.UI_SendMessage(kMessageEndSession, 0, 0); });
}

void EventGate::EndSession() {
  mSessionEnding = false;
  ForEachWindow([](OS_Window& inWindow) { inWindow.UI_SendMessage(kMessageEndSession, 1, 0); });
  if (mQuitFunction) mQuitFunction(0);
}

}  // namespace lumui::ui
