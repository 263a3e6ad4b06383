// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <deque>
#include <random>

#include "support/Pair.h"
#include "vek/selection/Junction.h"
#include "vek/selection/Manager.h"
#include "vek/selection/Node.h"

namespace {

using vek::selection::Manager;
using vek::selection::Node;

constexpr std::size_t kNodes = 100000;

// Gives its nodes in an order that is not that of their addresses, as an edited document does.
class ShuffledJunction : public vek::selection::Junction {
 public:
  ShuffledJunction() : mNodes(kNodes) {
    for (Node& node : mNodes)
      mOrder.push_back(&node);
    std::shuffle(mOrder.begin(), mOrder.end(), std::mt19937(1));
  }
  std::list<Node*> AllSelectables() override { return {mOrder.begin(), mOrder.end()}; }

  // Far from each other and from both ends.
  Node* One() const { return mOrder[kNodes / 3]; }
  Node* Other() const { return mOrder[2 * kNodes / 3]; }

 private:
  std::deque<Node> mNodes;
  std::vector<Node*> mOrder;
};

ShuffledJunction& Nodes() {
  static ShuffledJunction sNodes;
  return sNodes;
}

void SelectOneOfMany(benchmark::State& ioState) {
  const boost::intrusive_ptr<Manager> manager(new Manager(&Nodes()));
  std::list<Node*> next{Nodes().One()}, last{Nodes().Other()};
  for (auto _ : ioState) {
    manager->Select(next, vek::selection::eDeselectOthers, vek::selection::eSendMessages);
    next.swap(last);
  }
  if (manager->SelectedSelectables() != last) ioState.SkipWithError("the wrong node is selected");
}

// A change of the selection asks the junction twice.
void AskTwice(benchmark::State& ioState) {
  for (auto _ : ioState) {
    benchmark::DoNotOptimize(Nodes().AllSelectables());
    benchmark::DoNotOptimize(Nodes().AllSelectables());
  }
}

}  // namespace

int main(int argc, char** argv) {
  return bench::Run("selection", argc, argv,
                    {
                        {"select one of 100000, beside two AllSelectables()", "ms",
                         bench::RatioAtMost(1.5), SelectOneOfMany, AskTwice},
                    });
}
