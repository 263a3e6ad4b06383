// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "engine/EventListeners.h"

#include <algorithm>

#include "ListenedTypes.h"

namespace lumscripting {

EventListeners::EventListeners(ListenedTypes& ioListened) : mListened(ioListened) {}

EventListeners::~EventListeners() = default;

void EventListeners::Add(const ScriptObject* inTarget, const lumcore::UTF16String& inType,
                         const QJSValue& inListener) {
  if (Has(inTarget, inType, inListener)) return;
  mEntries.push_back({inTarget, inType, inListener});
  mListened.Add(inTarget, inType);
}

void EventListeners::Remove(const ScriptObject* inTarget, const lumcore::UTF16String& inType,
                            const QJSValue& inListener) {
  const auto found = FindEntry(inTarget, inType, inListener);
  if (found == mEntries.end()) return;
  mEntries.erase(found);
  mListened.Remove(inTarget, inType);
}

bool EventListeners::Has(const ScriptObject* inTarget, const lumcore::UTF16String& inType,
                         const QJSValue& inListener) const {
  return FindEntry(inTarget, inType, inListener) != mEntries.end();
}

std::vector<QJSValue> EventListeners::Find(const ScriptObject* inTarget,
                                           const lumcore::UTF16String& inType) const {
  std::vector<QJSValue> listeners;
  for (const Entry& entry : mEntries) {
    if (entry.target == inTarget && entry.type == inType) listeners.push_back(entry.listener);
  }
  return listeners;
}

std::vector<EventListeners::Entry>::const_iterator EventListeners::FindEntry(
    const ScriptObject* inTarget, const lumcore::UTF16String& inType,
    const QJSValue& inListener) const {
  return std::find_if(mEntries.begin(), mEntries.end(), [&](const Entry& inEntry) {
    return inEntry.target == inTarget && inEntry.type == inType &&
           inEntry.listener.strictlyEquals(inListener);
  });
}

}  // namespace lumscripting
