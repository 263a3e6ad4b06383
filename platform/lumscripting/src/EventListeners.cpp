// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "EventListeners.h"

#include <algorithm>

namespace lumscripting {

void ListenedTypes::Add(const ScriptObject* inTarget, const lumcore::UTF16String& inType) {
  const std::lock_guard lock(mMutex);
  ++mTypes[inType][inTarget];
}

void ListenedTypes::Remove(const ScriptObject* inTarget, const lumcore::UTF16String& inType) {
  const std::lock_guard lock(mMutex);
  const auto type = mTypes.find(inType);
  if (--type->second[inTarget] > 0) return;
  type->second.erase(inTarget);
  if (type->second.empty()) mTypes.erase(type);
}

bool ListenedTypes::Contains(const lumcore::UTF16String& inType) const {
  const std::lock_guard lock(mMutex);
  return mTypes.count(inType) > 0;
}

bool ListenedTypes::Contains(const lumcore::UTF16String& inType,
                             const ScriptObject* inTarget) const {
  const std::lock_guard lock(mMutex);
  const auto type = mTypes.find(inType);
  return type != mTypes.end() && type->second.count(inTarget) > 0;
}

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
