// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "Receivers.h"

#include "QtPeer.h"

void SummingListener::ListenToMessage(const long& inMessage) {
  mSum += inMessage;
}

Receiver::~Receiver() = default;

void SummingReceiver::Receive(const long& inMessage) {
  mSum += inMessage;
}

void QtReceiver::Receive(const long& inMessage) {
  mSum += inMessage;
}
