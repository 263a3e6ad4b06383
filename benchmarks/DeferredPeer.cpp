// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "DeferredPeer.h"

#include <QMetaObject>
#include <QObject>
#include <utility>

struct QueuedCalls::Impl {
  QObject receiver;
};

QueuedCalls::QueuedCalls() : mImpl(std::make_unique<Impl>()) {}
QueuedCalls::~QueuedCalls() = default;

void QueuedCalls::Queue(std::function<void()> inFunction) {
  QMetaObject::invokeMethod(&mImpl->receiver, std::move(inFunction), Qt::QueuedConnection);
}
