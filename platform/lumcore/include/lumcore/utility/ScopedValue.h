// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <utility>

namespace lumcore::utility {

// Gives a variable a value for the length of a scope and puts the old one back on every way out.
template <class T>
class StScopedValue {
 public:
  StScopedValue(T& ioVariable, T inValue)
      : mVariable(ioVariable), mOldValue(std::exchange(ioVariable, std::move(inValue))) {}
  ~StScopedValue() { mVariable = std::move(mOldValue); }
  StScopedValue(const StScopedValue&) = delete;
  StScopedValue& operator=(const StScopedValue&) = delete;

 private:
  T& mVariable;
  T mOldValue;
};

}  // namespace lumcore::utility
