// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QWindow>
#include <Qt>

class QEvent;
class QEventLoop;
class QMimeData;
class QMouseEvent;

namespace lumui::datatransfer {

// A drag where there is no window system to carry it out, in runs without a display: it follows the
// input that comes to our windows and brings the drag to the one under the pointer.
class HeadlessDrag {
 public:
  HeadlessDrag(QMimeData& inData, Qt::DropActions inActions);
  ~HeadlessDrag();
  HeadlessDrag(const HeadlessDrag&) = delete;
  HeadlessDrag& operator=(const HeadlessDrag&) = delete;

  // Null if none runs.
  static HeadlessDrag* GetRunning();

  Qt::DropAction Run();
  void HandleEvent(const QEvent& inEvent);
  void Cancel();

 private:
  void Move(const QMouseEvent& inEvent);
  void Drop(const QMouseEvent& inEvent);

  QMimeData& mData;
  const Qt::DropActions mActions;
  QEventLoop* mLoop = nullptr;
  QPointer<QWindow> mOver;
  bool mCanDrop = false;
  Qt::DropAction mDone = Qt::IgnoreAction;
};

}  // namespace lumui::datatransfer
