// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "datatransfer/DragWatch.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>
#include <utility>

#include "lumcore/utility/ScopedValue.h"
#include "lumui/ui/UI_DragDropHandler.h"
// Behind Qt, whose names they have macros for.
#include <X11/Xlib.h>
#include <xcb/xcb.h>

namespace lumui::datatransfer {

namespace {

constexpr int kSilence = 10000;  // milliseconds
constexpr unsigned kAccepted = 1;

Display* QtDisplay() {
  auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 ? x11->display() : nullptr;
}

bool IsAtom(unsigned inAtom, const char* inName) {
  return inAtom == XInternAtom(QtDisplay(), inName, False);
}

int EffectOfAtom(unsigned inAtom) {
  if (IsAtom(inAtom, "XdndActionMove")) return ui::kDropMove;
  if (IsAtom(inAtom, "XdndActionLink")) return ui::kDropLink;
  return ui::kDropCopy;
}

}  // namespace

DragWatch::DragWatch(std::function<void()> inEntered) : mEntered(std::move(inEntered)) {
  qGuiApp->installNativeEventFilter(this);
}

DragWatch::~DragWatch() {
  qGuiApp->removeNativeEventFilter(this);
}

bool DragWatch::nativeEventFilter(const QByteArray& inType, void* inMessage, qintptr*) {
  if (inType != "xcb_generic_event_t") return false;
  const auto& event = *static_cast<const xcb_generic_event_t*>(inMessage);
  constexpr unsigned kTypeBits = 0x7F;  // without the one for events that others send
  if ((event.response_type & kTypeBits) != XCB_CLIENT_MESSAGE || !QtDisplay()) return false;
  const auto& message = *static_cast<const xcb_client_message_event_t*>(inMessage);
  if (IsAtom(message.type, "XdndEnter")) {
    mEntered();
  } else if (IsAtom(message.type, "XdndFinished")) {
    mFinished = true;
    const bool accepted = (message.data.data32[1] & kAccepted) != 0;
    mEffect = accepted ? EffectOfAtom(message.data.data32[2]) : static_cast<int>(ui::kDropNone);
    if (mOnFinished) mOnFinished();
  }
  return false;
}

int DragWatch::AwaitFinish(int inEffect) {
  if (inEffect == ui::kDropNone || !QtDisplay()) return inEffect;
  if (!mFinished) {
    QEventLoop loop;
    const lumcore::utility::StScopedValue<std::function<void()>> onFinished(
        mOnFinished, [&loop] { loop.quit(); });
    QTimer::singleShot(kSilence, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
  }
  if (mFinished) return mEffect;
  return inEffect == ui::kDropMove ? static_cast<int>(ui::kDropCopy) : inEffect;
}

}  // namespace lumui::datatransfer
