// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

namespace lumcore::utility {

// A set of bits in an integer of type T, where a plain integer would lose what it is.
template <class T>
class Flags {
 public:
  constexpr Flags() = default;
  constexpr explicit Flags(T inBits) : mBits(inBits) {}

  constexpr T GetBits() const { return mBits; }
  constexpr bool IsEmpty() const { return mBits == 0; }
  // True when every bit of inBits is set.
  constexpr bool Has(T inBits) const { return (mBits & inBits) == inBits; }
  constexpr bool HasAny(T inBits) const { return (mBits & inBits) != 0; }

  constexpr void Set(T inBits) { mBits = static_cast<T>(mBits | inBits); }
  constexpr void Clear(T inBits) { mBits = static_cast<T>(mBits & ~inBits); }

  friend constexpr bool operator==(Flags inA, Flags inB) { return inA.mBits == inB.mBits; }
  friend constexpr bool operator!=(Flags inA, Flags inB) { return inA.mBits != inB.mBits; }
  friend constexpr Flags operator|(Flags inA, Flags inB) {
    return Flags(static_cast<T>(inA.mBits | inB.mBits));
  }
  friend constexpr Flags operator&(Flags inA, Flags inB) {
    return Flags(static_cast<T>(inA.mBits & inB.mBits));
  }

 private:
  T mBits = 0;
};

}  // namespace lumcore::utility
