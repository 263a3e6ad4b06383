// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <deque>

#include "Asked.h"
#include "support/Allocations.h"
#include "support/Pair.h"

namespace {

using lumcore::UTF16String;

constexpr int kLevels = 8;
constexpr int kAttachments = 4;
constexpr int kCommand = 42;

// The levels from the outermost to the current handler, and what is attached to them.
class Chain {
 public:
  Chain() {
    for (int level = 0; level < kLevels; ++level) {
      mLevels.emplace_back(mLevels.empty() ? nullptr : &mLevels.back());
      mOrder.insert(mOrder.begin(), &mLevels.back());
      for (int i = 0; i < kAttachments; ++i) {
        mAttachments.emplace_back();
        mLevels.back().AddAttachment(&mAttachments.back());
        mOrder.insert(mOrder.begin(), &mAttachments.back());
      }
    }
    mLevels.back().SetAsCurrentCommandHandler(true);
  }

  // The same objects with nothing around the calls.
  template <class Call>
  bool AskAll(Call inCall) const {
    for (Asked* asked : mOrder) {
      if (inCall(*asked)) return true;
    }
    return false;
  }

 private:
  std::deque<Level> mLevels;
  std::deque<Attachment> mAttachments;
  std::vector<Asked*> mOrder;
};

bool Execute() {
  return vek::uisupport::CommandHandlerBase::CallCommandChain(kCommand);
}

bool AskEnablement() {
  bool enabled = false, checked = false;
  UTF16String title;
  return vek::uisupport::CommandHandlerBase::CallEnablementChain(kCommand, enabled, checked, title);
}

template <class Walk>
bench::Body Time(Walk inWalk) {
  return [=](benchmark::State& ioState) {
    const Chain chain;
    for (auto _ : ioState)
      benchmark::DoNotOptimize(inWalk(chain));
  };
}

bool LoopExecute(const Chain& inChain) {
  return inChain.AskAll([](Asked& ioAsked) { return ioAsked.Execute(kCommand); });
}

bool LoopAskEnablement(const Chain& inChain) {
  bool enabled = false, checked = false;
  UTF16String title;
  return inChain.AskAll(
      [&](Asked& ioAsked) { return ioAsked.AskEnablement(kCommand, enabled, checked, title); });
}

}  // namespace

int main(int argc, char** argv) {
  const auto execute = [](const Chain&) { return Execute(); };
  const auto enablement = [](const Chain&) { return AskEnablement(); };
  double enablementAllocations = 0;
  {
    const Chain chain;
    enablementAllocations = bench::AllocationsOf(AskEnablement);
  }
  return bench::Run("commands", argc, argv,
                    {
                        {"execute, 8 levels of 4 + 1, beside virtual calls", "ns", std::nullopt,
                         Time(execute), Time(LoopExecute)},
                        {"enablement, 8 levels of 4 + 1, beside virtual calls", "ns", std::nullopt,
                         Time(enablement), Time(LoopAskEnablement)},
                    },
                    {
                        {"allocations of one enablement walk", "count", bench::OursAtMost(0),
                         enablementAllocations, std::nullopt},
                    });
}
