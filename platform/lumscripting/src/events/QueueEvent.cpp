// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumscripting/events/QueueEvent.h"

#include <QCoreApplication>
#include <QThread>
#include <memory>
#include <vector>

#include "ScriptWorker.h"
#include "lumcore/debug/Contract.h"
#include "lumscripting/ScriptRegistry.h"

namespace lumscripting::events {

bool QueueEvent(const lumcore::UTF16String& inEventObjectName, const lumcore::UTF16String& inType,
                const FillFunction& inFill, const TargetFunction& inGetTarget) {
  LUM_INPUT_CONTRACT(inFill && inGetTarget);
  LUM_INPUT_CONTRACT(!QCoreApplication::instance() ||
                     QThread::currentThread() == QCoreApplication::instance()->thread());
  std::vector<std::shared_ptr<ScriptWorker>> interested;
  for (const auto& worker : ScriptWorker::GetLive()) {
    if (worker->GetListened().Contains(inType)) interested.push_back(worker);
  }
  if (interested.empty()) return false;
  const auto& kinds = ScriptRegistry::Get().GetEvents();
  const auto kind = kinds.find(inEventObjectName);
  // Taken back by whoever had registered it: what cannot be told must not keep the command from
  // running.
  if (kind == kinds.end()) return false;
  const auto keptKind = kind->second;

  boost::intrusive_ptr<ScriptObject> target;
  try {
    target = inGetTarget();
  } catch (...) {
    // Who fires an event has its own work to finish; the host hears of this by its other road.
    for (const auto& worker : interested)
      worker->Fail(std::current_exception());
    return false;
  }
  bool queued = false;
  for (const auto& worker : interested) {
    if (!target || !worker->GetListened().Contains(inType, target.get())) continue;
    worker->Queue([raw = worker.get(),
                   event = ScriptWorker::QueuedEvent{keptKind, inType, inFill, target.get()}] {
      raw->Deliver(event);
    });
    queued = true;
  }
  return queued;
}

}  // namespace lumscripting::events
