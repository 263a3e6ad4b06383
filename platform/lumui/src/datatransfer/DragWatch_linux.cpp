// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "datatransfer/DragWatch.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>
#include <cstdlib>
#include <memory>
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

struct Freed {
  void operator()(void* inReply) const { std::free(inReply); }
};

QNativeInterface::QX11Application* QtX11() {
  return qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
}

Display* QtDisplay() {
  auto* const x11 = QtX11();
  return x11 ? x11->display() : nullptr;
}

// False if the window is no more. Its end comes behind all that its program has sent.
bool AskForEndOf(xcb_window_t inWindow) {
  xcb_connection_t* const server = QtX11()->connection();
  const std::unique_ptr<xcb_get_window_attributes_reply_t, Freed> attributes(
      xcb_get_window_attributes_reply(server, xcb_get_window_attributes(server, inWindow),
                                      nullptr));
  if (!attributes) return false;
  // What Qt has asked for stays.
  const std::uint32_t events = attributes->your_event_mask | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
  const std::unique_ptr<xcb_generic_error_t, Freed> error(xcb_request_check(
      server, xcb_change_window_attributes_checked(server, inWindow, XCB_CW_EVENT_MASK, &events)));
  return !error;
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

void DragWatch::Forget() {
  mFinished = false;
  mEnds = Ends();
}

bool DragWatch::nativeEventFilter(const QByteArray& inType, void* inMessage, qintptr*) {
  if (inType != "xcb_generic_event_t" || !QtDisplay()) return false;
  const auto& event = *static_cast<const xcb_generic_event_t*>(inMessage);
  constexpr unsigned kTypeBits = 0x7F;  // without the one for events that others send
  const unsigned type = event.response_type & kTypeBits;
  if (type == XCB_DESTROY_NOTIFY) {
    const auto& end = *static_cast<const xcb_destroy_notify_event_t*>(inMessage);
    if (end.window == mEnds.source) SayThatItLeft();
  }
  if (type != XCB_CLIENT_MESSAGE) return false;
  const auto& message = *static_cast<const xcb_client_message_event_t*>(inMessage);
  if (IsAtom(message.type, "XdndEnter")) {
    mEntered();
    mEnds = {message.data.data32[0], message.window, false};
  } else if (IsAtom(message.type, "XdndPosition") && mEnds.source != 0 && !mEnds.isWatched) {
    // Not at the enter: what Qt asks for there would take the place of it.
    mEnds.isWatched = true;
    if (!AskForEndOf(mEnds.source)) SayThatItLeft();
  } else if (IsAtom(message.type, "XdndLeave") || IsAtom(message.type, "XdndDrop")) {
    mEnds = Ends();
  } else if (IsAtom(message.type, "XdndFinished")) {
    Finish(message.data.data32);
  }
  return false;
}

void DragWatch::Finish(const std::uint32_t* inData) {
  mFinished = true;
  const bool accepted = (inData[1] & kAccepted) != 0;
  mEffect = accepted ? EffectOfAtom(inData[2]) : static_cast<int>(ui::kDropNone);
  if (mOnFinished) mOnFinished();
}

// In the place of the source and by its road, so that Qt as well is through with the drag.
void DragWatch::SayThatItLeft() {
  xcb_client_message_event_t leave = {};
  leave.response_type = XCB_CLIENT_MESSAGE;
  leave.format = 32;
  leave.window = mEnds.target;
  leave.type = static_cast<xcb_atom_t>(XInternAtom(QtDisplay(), "XdndLeave", False));
  leave.data.data32[0] = mEnds.source;
  mEnds = Ends();
  xcb_connection_t* const server = QtX11()->connection();
  xcb_send_event(server, 0, leave.window, XCB_EVENT_MASK_NO_EVENT,
                 reinterpret_cast<const char*>(&leave));
  xcb_flush(server);
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
