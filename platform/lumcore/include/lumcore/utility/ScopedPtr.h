// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <utility>

namespace lumcore::utility {

// Owns one object and deletes it at the end of the scope, or when another takes its place. It holds
// no null by accident: Release gives the object up and leaves null.
template <class T>
class ScopedPtr {
 public:
  explicit ScopedPtr(T* inObject = nullptr) : mObject(inObject) {}
  ~ScopedPtr() { delete mObject; }
  ScopedPtr(const ScopedPtr&) = delete;
  ScopedPtr& operator=(const ScopedPtr&) = delete;

  // The old object is deleted after the new one is in place: a destructor that looks here sees the
  // new state. Setting the object already held does nothing.
  void Reset(T* inObject = nullptr) {
    if (inObject != mObject) delete std::exchange(mObject, inObject);
  }
  T* Release() { return std::exchange(mObject, nullptr); }

  T* Get() const { return mObject; }
  T& operator*() const { return *mObject; }
  T* operator->() const { return mObject; }
  explicit operator bool() const { return mObject != nullptr; }

 private:
  T* mObject;
};

}  // namespace lumcore::utility
