// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <malloc.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>

#include "lumcore/Strings.h"
#include "support/Pair.h"

namespace {

constexpr std::size_t kRows = 100000;

using Ours = lumcore::UTF16String;
using Default = std::basic_string<unsigned short>;  // on std::allocator

// The lengths of an outline's rows: mostly a few words, some sentences, some empty.
const std::vector<std::vector<unsigned short>>& Texts() {
  static const auto sTexts = [] {
    std::mt19937 random(1);
    std::vector<std::vector<unsigned short>> texts;
    for (std::size_t row = 0; row < kRows; ++row) {
      const auto kind = random() % 10;
      const std::size_t length = kind == 0 ? 0 : kind < 8 ? 4 + random() % 36 : 40 + random() % 160;
      texts.emplace_back(length, static_cast<unsigned short>('a' + row % 26));
    }
    return texts;
  }();
  return sTexts;
}

template <class String>
using Rows = std::vector<std::unique_ptr<String>>;

template <class String>
Rows<String> Build() {
  Rows<String> rows;
  rows.reserve(kRows);
  for (const auto& text : Texts())
    rows.push_back(std::make_unique<String>(text.data(), text.size()));
  return rows;
}

template <class String>
Rows<String> Copy(const Rows<String>& inRows) {
  Rows<String> rows;
  rows.reserve(kRows);
  for (const auto& row : inRows)
    rows.push_back(std::make_unique<String>(*row));
  return rows;
}

template <class String>
void BuildAndDestroy(benchmark::State& ioState) {
  for (auto _ : ioState)
    benchmark::DoNotOptimize(Build<String>());
  ioState.SetItemsProcessed(ioState.iterations() * kRows);
}

template <class String>
void CopyAndDestroy(benchmark::State& ioState) {
  const Rows<String> rows = Build<String>();
  for (auto _ : ioState)
    benchmark::DoNotOptimize(Copy(rows));
  ioState.SetItemsProcessed(ioState.iterations() * kRows);
}

template <class String>
void BuildAndDestroyInRandomOrder(benchmark::State& ioState) {
  std::vector<std::size_t> order(kRows);
  for (std::size_t i = 0; i < kRows; ++i)
    order[i] = i;
  std::shuffle(order.begin(), order.end(), std::mt19937(2));
  for (auto _ : ioState) {
    Rows<String> rows = Build<String>();
    for (const std::size_t row : order)
      rows[row].reset();
  }
  ioState.SetItemsProcessed(ioState.iterations() * kRows);
}

std::size_t BytesInUse() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

// The string objects themselves cost both sides the same and stand in both figures. Only the first
// rows of a process show what they cost: later ones find free blocks.
template <class String>
double BytesOfARow() {
  const std::size_t before = BytesInUse();
  const Rows<String> rows = Build<String>();
  return static_cast<double>(BytesInUse() - before) / kRows;
}

}  // namespace

int main(int argc, char** argv) {
  using bench::RatioAtMost;
  Texts();
  const double ourBytes = BytesOfARow<Ours>();
  const double defaultBytes = BytesOfARow<Default>();
  return bench::Run(
      "allocator", argc, argv,
      {
          {"build and destroy 100000 rows, beside std::allocator", "ns", RatioAtMost(1),
           BuildAndDestroy<Ours>, BuildAndDestroy<Default>},
          {"copy and destroy 100000 rows, beside std::allocator", "ns", RatioAtMost(1),
           CopyAndDestroy<Ours>, CopyAndDestroy<Default>},
          {"build, destroy in random order, beside std::allocator", "ns", RatioAtMost(1),
           BuildAndDestroyInRandomOrder<Ours>, BuildAndDestroyInRandomOrder<Default>},
      },
      {
          {"memory of a row of 100000, beside std::allocator", "bytes", RatioAtMost(1), ourBytes,
           defaultBytes},
      });
}
