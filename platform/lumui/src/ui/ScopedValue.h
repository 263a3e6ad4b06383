// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <utility>

namespace lumui::ui {

// Sets a variable for the length of a scope, because what is called there may throw.
template <class T>
class StValue {
 public:
  StValue(T& ioVariable, T inValue)
      : mVariable(ioVariable), mOld(std::exchange(ioVariable, std::move(inValue))) {}
  ~StValue() { mVariable = std::move(mOld); }
  StValue(const StValue&) = delete;
  StValue& operator=(const StValue&) = delete;

 private:
  T& mVariable;
  T mOld;
};

}  // namespace lumui::ui
