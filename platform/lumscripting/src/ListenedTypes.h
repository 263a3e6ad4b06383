// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <mutex>

#include "lumcore/Strings.h"
#include "lumscripting/Export.h"

namespace lumscripting {

class ScriptObject;

// To what the scripts of a runner listen, for who asks from another thread whether an event is
// worth queueing. Targets are addresses that nobody looks behind.
class LUMSCRIPTING_API ListenedTypes {
 public:
  void Add(const ScriptObject* inTarget, const lumcore::UTF16String& inType);
  void Remove(const ScriptObject* inTarget, const lumcore::UTF16String& inType);
  bool Contains(const lumcore::UTF16String& inType) const;  // at any target
  bool Contains(const lumcore::UTF16String& inType, const ScriptObject* inTarget) const;

 private:
  using Targets = std::map<const ScriptObject*, int>;

  mutable std::mutex mMutex;
  std::map<lumcore::UTF16String, Targets> mTypes;  // how many listeners; none has no entry
};

}  // namespace lumscripting
