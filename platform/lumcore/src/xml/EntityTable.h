// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace lumcore::xml {

// The entities that a document declares, as far as the parser itself leaves them to its caller.
//
// Two of its habits would hurt. In a document whose type stands elsewhere, a reference to an
// unknown entity within an attribute is dropped without a word, so the text would be lost. And
// entities that refer to each other are followed by recursion, so a long enough chain would end the
// stack.
class EntityTable {
 public:
  // inValue is null for an entity of another file. False when more entities refer to others than
  // any sensible document has.
  bool Declare(std::string_view inName, const std::string_view* inValue, bool inIsParameter);

  // The first general entity that inSource refers to, directly or through another, and that nobody
  // has declared; empty where there is none. To be asked when all are declared: each entity is
  // looked into once only, as an entity of many elements would otherwise be searched for each of
  // them.
  std::string FindUndeclared(std::string_view inSource);

 private:
  const std::map<std::string_view, std::string_view>& GetValues();

  // Each name and its value with a zero behind them, which no document can have: few documents ask
  // for one again.
  std::string mDeclared;
  std::map<std::string_view, std::string_view> mValues;  // of mDeclared, once they were asked for
  std::set<std::string, std::less<>> mSearched;
  std::size_t mReferring = 0;
};

}  // namespace lumcore::xml
