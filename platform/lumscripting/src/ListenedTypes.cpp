// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ListenedTypes.h"

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

}  // namespace lumscripting
