// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

// What the messaging of this framework is measured beside: a signal and slots of Qt.
class QtSender : public QObject {
  Q_OBJECT

 public:
  void Send(const long& inMessage) { emit Sent(inMessage); }

 Q_SIGNALS:
  void Sent(const long& inMessage);
};

class QtReceiver : public QObject {
  Q_OBJECT

 public:
  void Receive(const long& inMessage);

 private:
  long mSum = 0;
};
