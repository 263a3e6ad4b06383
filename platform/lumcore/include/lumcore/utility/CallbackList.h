// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>
#include <list>
#include <utility>

#include "lumcore/utility/ScopedValue.h"

namespace lumcore::utility {

// Functions that others hold too. A holder unsubscribes by clearing the function that it shares:
// the next call skips it, and the next Add drops it. When the list dies it clears every function
// first, so that a holder sees an empty one and never a dangling one.
//
// A callback may clear or remove itself, add others (they are reached by the same call) and call
// the list again.
template <class... Args>
class CallbackList {
 public:
  using Function = boost::function<void(Args...)>;
  using Entry = boost::shared_ptr<Function>;

  CallbackList() = default;
  CallbackList(const CallbackList&) = delete;
  CallbackList& operator=(const CallbackList&) = delete;
  ~CallbackList() {
    for (const Entry& entry : mEntries) {
      if (entry) entry->clear();
    }
  }

  void Add(Entry inEntry) {
    DropUnsubscribed();
    mEntries.push_back(std::move(inEntry));
  }

  // Takes off the first entry that shares this function; the function itself stays as it is.
  void Remove(const Entry& inEntry) {
    const auto found = std::find(mEntries.begin(), mEntries.end(), inEntry);
    if (found == mEntries.end()) return;
    if (mCallDepth == 0) {
      mEntries.erase(found);
    } else {
      found->reset();
    }
  }

  // Each of inMakeArguments is asked anew before each call and gives what is passed to that
  // callback.
  template <class... MakeArguments>
  void CallEach(MakeArguments... inMakeArguments) {
    const StScopedValue<int> depth(mCallDepth, mCallDepth + 1);
    for (auto entry = mEntries.begin(); entry != mEntries.end(); ++entry) {
      if (!*entry || (*entry)->empty()) continue;
      // Called through a copy: a callback that clears itself would destroy what is running.
      const Function function = **entry;
      function(inMakeArguments()...);
    }
  }

 private:
  static bool IsUnsubscribed(const Entry& inEntry) { return !inEntry || inEntry->empty(); }

  // While a call walks the list its nodes stay, and only what they hold is given up.
  void DropUnsubscribed() {
    if (mCallDepth == 0) {
      mEntries.remove_if(&IsUnsubscribed);
      return;
    }
    for (Entry& entry : mEntries) {
      if (IsUnsubscribed(entry)) entry.reset();
    }
  }

  std::list<Entry> mEntries;
  int mCallDepth = 0;
};

}  // namespace lumcore::utility
