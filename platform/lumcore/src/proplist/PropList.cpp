// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/proplist/PropList.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <type_traits>

#include "lumcore/debug/Contract.h"

// Lists may be nested deeper than the stack would bear, so whatever goes through all of them keeps
// a list of what is still to do in place of a recursion.
namespace lumcore::proplist {

namespace {

// Most lists are so short that a walk finds a key sooner than an index, which would cost more than
// the entries.
constexpr std::size_t kMostWithoutIndex = 8;

using ListPair = std::pair<const PropList*, const PropList*>;

std::string_view AsBytes(const UTF8String& inText) {
  return {reinterpret_cast<const char*>(inText.data()), inText.size()};
}

// The index is of all entries, or of none.
template <class Index>
PropList::const_iterator Locate(const std::list<PropList::Entry>& inEntries, const Index& inIndex,
                                std::string_view inKey) {
  if (inIndex.empty()) {
    return std::find_if(inEntries.begin(), inEntries.end(), [&](const PropList::Entry& inEntry) {
      return AsBytes(inEntry.key) == inKey;
    });
  }
  const auto found = inIndex.find(inKey);
  return found == inIndex.end() ? inEntries.end() : PropList::const_iterator(found->second);
}

bool IsSame(float inA, float inB) {
  if (std::isnan(inA) || std::isnan(inB)) return std::isnan(inA) && std::isnan(inB);
  return inA == inB && std::signbit(inA) == std::signbit(inB);
}

// Whether two values are of one type and the same, but for the lists in them, which are put on
// ioOpen.
class Comparison {
 public:
  Comparison(const Value& inOther, std::vector<ListPair>& ioOpen)
      : mOther(inOther), mOpen(ioOpen) {}

  template <class T>
  bool operator()(const T& inValue) const {
    const T* const other = std::get_if<T>(&mOther);
    return other && Compare(inValue, *other);
  }

 private:
  template <class T>
  bool Compare(const T& inA, const T& inB) const {
    return inA == inB;
  }
  bool Compare(float inA, float inB) const { return IsSame(inA, inB); }
  bool Compare(const std::vector<float>& inA, const std::vector<float>& inB) const {
    return std::equal(inA.begin(), inA.end(), inB.begin(), inB.end(), IsSame);
  }
  bool Compare(const PropList& inA, const PropList& inB) const {
    mOpen.emplace_back(&inA, &inB);
    return true;
  }
  bool Compare(const std::vector<PropList>& inA, const std::vector<PropList>& inB) const {
    return std::equal(inA.begin(), inA.end(), inB.begin(), inB.end(),
                      [&](const PropList& a, const PropList& b) { return Compare(a, b); });
  }

  const Value& mOther;
  std::vector<ListPair>& mOpen;
};

}  // namespace

Key::Key(const unsigned char* inText) : Key(reinterpret_cast<const char*>(inText)) {}

Key::Key(const char* inText) {
  LUM_INPUT_CONTRACT(inText != nullptr);
  mBytes = inText;
}

Key::Key(const UTF8String& inText) : mBytes(AsBytes(inText)) {}

PropList::PropList() = default;

PropList::~PropList() {
  Clear();
}

PropList::PropList(const PropList& inOther) : PropList() {
  std::vector<std::pair<const PropList*, PropList*>> open = {{&inOther, this}};
  while (!open.empty()) {
    const auto [from, to] = open.back();
    open.pop_back();
    for (const Entry& entry : *from) {
      Value& value = to->NeedEntry(entry.key).value;
      if (const auto* const list = std::get_if<PropList>(&entry.value)) {
        open.emplace_back(list, &value.emplace<PropList>());
      } else if (const auto* const lists = std::get_if<std::vector<PropList>>(&entry.value)) {
        auto& copies = value.emplace<std::vector<PropList>>(lists->size());
        for (std::size_t at = 0; at < copies.size(); ++at)
          open.emplace_back(&(*lists)[at], &copies[at]);
      } else {
        value = entry.value;
      }
    }
  }
}

PropList::PropList(PropList&& ioOther) noexcept : PropList() {
  Swap(ioOther);
}

// What is assigned may lie within this list, so it is taken out before the old content goes.
PropList& PropList::operator=(const PropList& inOther) {
  return *this = PropList(inOther);
}

PropList& PropList::operator=(PropList&& ioOther) noexcept {
  PropList taken(std::move(ioOther));
  Swap(taken);
  return *this;
}

void PropList::Swap(PropList& ioOther) noexcept {
  mEntries.swap(ioOther.mEntries);
  mIndex.swap(ioOther.mIndex);
}

const PropList* PropList::GetSubList(Key inKey) const {
  return Find<PropList>(inKey);
}

PropList* PropList::GetSubList(Key inKey) {
  return Find<PropList>(inKey);
}

PropList& PropList::CreateSubList(Key inKey) {
  return NeedEntry(inKey).value.emplace<PropList>();
}

bool PropList::Has(Key inKey) const {
  return FindEntry(inKey) != nullptr;
}

bool PropList::Remove(Key inKey) {
  const auto entry = Locate(mEntries, mIndex, inKey.GetBytes());
  if (entry == mEntries.end()) return false;
  mIndex.erase(inKey.GetBytes());
  mEntries.erase(entry);
  return true;
}

void PropList::Clear() {
  mIndex.clear();
  std::list<Entry> doomed;
  doomed.swap(mEntries);
  for (Entry& entry : doomed) {
    if (auto* const list = std::get_if<PropList>(&entry.value)) {
      doomed.splice(doomed.end(), list->mEntries);
    } else if (auto* const lists = std::get_if<std::vector<PropList>>(&entry.value)) {
      for (PropList& item : *lists)
        doomed.splice(doomed.end(), item.mEntries);
    }
  }
}

const PropList::Entry* PropList::FindEntry(Key inKey) const {
  const auto found = Locate(mEntries, mIndex, inKey.GetBytes());
  return found == mEntries.end() ? nullptr : &*found;
}

PropList::Entry* PropList::FindEntry(Key inKey) {
  return const_cast<Entry*>(std::as_const(*this).FindEntry(inKey));
}

PropList::Entry& PropList::NeedEntry(Key inKey) {
  if (Entry* const entry = FindEntry(inKey)) return *entry;
  const std::string_view bytes = inKey.GetBytes();
  std::list<Entry> fresh;
  fresh.push_back({UTF8String(bytes.begin(), bytes.end()), Value()});
  if (!mIndex.empty()) {
    mIndex.emplace(AsBytes(fresh.back().key), fresh.begin());
  } else if (mEntries.size() >= kMostWithoutIndex) {
    decltype(mIndex) index;
    for (std::list<Entry>* const part : {&mEntries, &fresh}) {
      for (auto at = part->begin(); at != part->end(); ++at)
        index.emplace(AsBytes(at->key), at);
    }
    mIndex.swap(index);
  }
  mEntries.splice(mEntries.end(), fresh);
  return mEntries.back();
}

bool operator==(const PropList& inA, const PropList& inB) {
  std::vector<ListPair> open = {{&inA, &inB}};
  while (!open.empty()) {
    const auto [a, b] = open.back();
    open.pop_back();
    if (a->GetSize() != b->GetSize()) return false;
    for (const PropList::Entry& entry : *a) {
      const PropList::Entry* const other = b->FindEntry(entry.key);
      if (!other || !std::visit(Comparison(other->value, open), entry.value)) return false;
    }
  }
  return true;
}

}  // namespace lumcore::proplist
