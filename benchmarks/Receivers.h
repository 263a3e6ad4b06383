// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/messaging/Broadcaster.h"

// Compiled apart from the loops that call them, so that no compiler sees through the calls. Every
// one of them does the least work: it adds the message up.

class SummingListener : public vek::messaging::Listener<const long&> {
 public:
  void ListenToMessage(const long& inMessage) override;

 private:
  long mSum = 0;
};

class Receiver {
 public:
  virtual ~Receiver();
  virtual void Receive(const long& inMessage) = 0;
};

class SummingReceiver : public Receiver {
 public:
  void Receive(const long& inMessage) override;

 private:
  long mSum = 0;
};
