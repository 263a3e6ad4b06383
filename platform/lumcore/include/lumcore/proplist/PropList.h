// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <list>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

#include "lumcore/Export.h"
#include "lumcore/Strings.h"

namespace lumcore::proplist {

// A key as it is passed: UTF-8, borrowed for the call. Null is a contract violation.
class LUMCORE_API Key {
 public:
  Key(const unsigned char* inText);
  Key(const char* inText);
  Key(const UTF8String& inText);

  std::string_view GetBytes() const { return mBytes; }

 private:
  std::string_view mBytes;
};

// A dictionary from keys to typed values: settings, and the archives that dialogs are built from.
// What a value may be is told by Value, below; the operations that name a T take exactly those, so
// that nothing is turned into another type on the way. A value of another type counts as missing,
// and stays.
//
// A list owns its sub-lists and is copied with all that is in it. A pointer into it (a value, a
// sub-list) is good until its key is removed or set again, or the list goes; a list that is moved
// takes its pointers along. Order is the order in which the keys came, so that a file that somebody
// has edited keeps its look; a key that is set again keeps its place. Nesting may be of any depth;
// what can be saved is told in Utils.h.
class LUMCORE_API PropList {
 public:
  struct Entry;
  using const_iterator = std::list<Entry>::const_iterator;

  PropList();
  ~PropList();
  PropList(const PropList& inOther);
  PropList(PropList&& ioOther) noexcept;
  PropList& operator=(const PropList& inOther);
  PropList& operator=(PropList&& ioOther) noexcept;

  // Null where the key is missing or its value is no T.
  template <class T>
  const T* Find(Key inKey) const;
  template <class T>
  T* Find(Key inKey);
  template <class T>
  T Get(Key inKey, T inDefault) const;
  // As Get; a key that is not there at all is written with the default, so that it exists from
  // then on.
  template <class T>
  T GetOrAdd(Key inKey, T inDefault);
  // Replaces a value of any type.
  template <class T>
  void Set(Key inKey, T inValue);

  // Null where there is none.
  const PropList* GetSubList(Key inKey) const;
  PropList* GetSubList(Key inKey);
  // An empty one; replaces a value of any type.
  PropList& CreateSubList(Key inKey);

  bool Has(Key inKey) const;
  // False when it was not there.
  bool Remove(Key inKey);
  void Clear();

  std::size_t GetSize() const { return mEntries.size(); }
  const_iterator begin() const { return mEntries.begin(); }
  const_iterator end() const { return mEntries.end(); }

  // The same keys with the same values, in whatever order. Numbers that are none equal each other,
  // and 0 is not -0: lists are equal where their files say the same.
  LUMCORE_API friend bool operator==(const PropList& inA, const PropList& inB);
  friend bool operator!=(const PropList& inA, const PropList& inB) { return !(inA == inB); }

 private:
  const Entry* FindEntry(Key inKey) const;
  Entry* FindEntry(Key inKey);
  // The entry of the key, made where there is none.
  Entry& NeedEntry(Key inKey);
  void Swap(PropList& ioOther) noexcept;

  std::list<Entry> mEntries;
  // The keys lie in the entries, which never move.
  std::unordered_map<std::string_view, std::list<Entry>::iterator> mIndex;
};

// UTF16String is a text; UTF8String is an 8-bit text: UTF-8, or whatever bytes. A vector is an
// array of one type. Arrays of arrays there are none, as the files have no words for them.
using Value = std::variant<bool, std::int32_t, std::uint32_t, float, UTF16String, UTF8String,
                           PropList, std::vector<bool>, std::vector<std::int32_t>,
                           std::vector<std::uint32_t>, std::vector<float>, std::vector<UTF16String>,
                           std::vector<UTF8String>, std::vector<PropList>>;

struct PropList::Entry {
  const UTF8String key;
  Value value;
};

template <class T>
const T* PropList::Find(Key inKey) const {
  const Entry* const entry = FindEntry(inKey);
  return entry ? std::get_if<T>(&entry->value) : nullptr;
}

template <class T>
T* PropList::Find(Key inKey) {
  Entry* const entry = FindEntry(inKey);
  return entry ? std::get_if<T>(&entry->value) : nullptr;
}

template <class T>
T PropList::Get(Key inKey, T inDefault) const {
  const T* const value = Find<T>(inKey);
  return value ? *value : inDefault;
}

template <class T>
T PropList::GetOrAdd(Key inKey, T inDefault) {
  if (!Has(inKey)) Set(inKey, inDefault);
  return Get(inKey, std::move(inDefault));
}

template <class T>
void PropList::Set(Key inKey, T inValue) {
  Value value(std::in_place_type<T>, std::move(inValue));
  NeedEntry(inKey).value = std::move(value);
}

}  // namespace lumcore::proplist
