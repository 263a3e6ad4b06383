// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "QtCallPeer.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QMetaObject>
#include <QObject>
#include <thread>

int CallByQtFromAThread(int inCalls) {
  QObject onMainThread;
  QEventLoop loop;
  int answered = 0;
  std::thread caller([&] {
    for (int i = 0; i < inCalls; ++i)
      QMetaObject::invokeMethod(
          &onMainThread, [&] { ++answered; }, Qt::BlockingQueuedConnection);
    QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
  });
  loop.exec();
  caller.join();
  return answered;
}
