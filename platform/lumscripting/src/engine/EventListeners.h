// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJSValue>
#include <vector>

#include "lumcore/Strings.h"

namespace lumscripting {

class ListenedTypes;
class ScriptObject;

// The listeners of a runner's scripts, on the script thread. Targets are addresses that nobody
// looks behind.
class EventListeners {
 public:
  explicit EventListeners(ListenedTypes& ioListened);
  ~EventListeners();

  // A listener stands once for a target and a type.
  void Add(const ScriptObject* inTarget, const lumcore::UTF16String& inType,
           const QJSValue& inListener);
  void Remove(const ScriptObject* inTarget, const lumcore::UTF16String& inType,
              const QJSValue& inListener);
  bool Has(const ScriptObject* inTarget, const lumcore::UTF16String& inType,
           const QJSValue& inListener) const;
  // In the order in which they were added.
  std::vector<QJSValue> Find(const ScriptObject* inTarget,
                             const lumcore::UTF16String& inType) const;

 private:
  struct Entry {
    const ScriptObject* target;
    lumcore::UTF16String type;
    QJSValue listener;
  };
  std::vector<Entry>::const_iterator FindEntry(const ScriptObject* inTarget,
                                               const lumcore::UTF16String& inType,
                                               const QJSValue& inListener) const;

  ListenedTypes& mListened;
  std::vector<Entry> mEntries;
};

}  // namespace lumscripting
