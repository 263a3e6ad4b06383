// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "datatransfer/HeadlessDrag.h"

#include <private/qhighdpiscaling_p.h>
#include <qpa/qplatformdrag.h>
#include <qpa/qwindowsysteminterface.h>

#include <QEventLoop>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>

namespace lumui::datatransfer {

namespace {

using System = QWindowSystemInterface;

HeadlessDrag* sRunning = nullptr;

void TellLeave(QWindow* inWindow) {
  if (!inWindow) return;
  System::handleDrag(inWindow, nullptr, QPoint(), Qt::IgnoreAction, Qt::NoButton, Qt::NoModifier);
}

// In the screen's pixels, as the window system would tell it.
QPoint PlaceIn(const QWindow& inWindow, const QPoint& inGlobal) {
  return QHighDpi::toNativeLocalPosition(QPointF(inWindow.mapFromGlobal(inGlobal)), &inWindow)
      .toPoint();
}

}  // namespace

HeadlessDrag::HeadlessDrag(QMimeData& inData, Qt::DropActions inActions)
    : mData(inData), mActions(inActions) {
  sRunning = this;
}

HeadlessDrag::~HeadlessDrag() {
  sRunning = nullptr;
}

HeadlessDrag* HeadlessDrag::GetRunning() {
  return sRunning;
}

Qt::DropAction HeadlessDrag::Run() {
  QEventLoop loop;
  mLoop = &loop;
  loop.exec();
  return mDone;
}

void HeadlessDrag::HandleEvent(const QEvent& inEvent) {
  switch (inEvent.type()) {
    case QEvent::MouseMove:
      return Move(static_cast<const QMouseEvent&>(inEvent));
    case QEvent::MouseButtonRelease:
      return Drop(static_cast<const QMouseEvent&>(inEvent));
    case QEvent::KeyPress:
      if (static_cast<const QKeyEvent&>(inEvent).key() == Qt::Key_Escape) Cancel();
      return;
    default:
      return;
  }
}

void HeadlessDrag::Move(const QMouseEvent& inEvent) {
  const QPoint at = inEvent.globalPosition().toPoint();
  QWindow* const window = QGuiApplication::topLevelAt(at);
  if (mOver && mOver != window) TellLeave(mOver);
  mOver = window;
  mCanDrop = false;
  if (!mOver) return;
  mCanDrop = System::handleDrag(mOver, &mData, PlaceIn(*mOver, at), mActions, inEvent.buttons(),
                                inEvent.modifiers())
                 .isAccepted();
}

void HeadlessDrag::Drop(const QMouseEvent& inEvent) {
  if (!mCanDrop || !mOver) return Cancel();
  const QPoint at = PlaceIn(*mOver, inEvent.globalPosition().toPoint());
  const auto response =
      System::handleDrop(mOver, &mData, at, mActions, inEvent.buttons(), inEvent.modifiers());
  if (response.isAccepted()) mDone = response.acceptedAction();
  mLoop->quit();
}

void HeadlessDrag::Cancel() {
  TellLeave(mOver);
  mLoop->quit();
}

}  // namespace lumui::datatransfer
