// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "support/Pair.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iostream>
#include <map>

#include "support/Row.h"

namespace bench {

namespace {

constexpr char kOurs[] = "ours";
constexpr char kPeer[] = "peer";

std::string RunName(std::size_t inPair, const char* inSide) {
  return std::to_string(inPair) + ":" + inSide;
}

// Gathers the seconds that one operation took, one figure for each repetition.
class Gatherer : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }

  void ReportRuns(const std::vector<Run>& inRuns) override {
    for (const Run& run : inRuns) {
      if (run.run_type != Run::RT_Iteration) continue;
      if (run.error_occurred) {
        std::cerr << run.run_name.function_name << ": " << run.error_message << std::endl;
        mFailed = true;
        continue;
      }
      const auto rate = run.counters.find("items_per_second");
      const double total = mWallClock ? run.real_accumulated_time : run.cpu_accumulated_time;
      mSeconds[run.run_name.function_name].push_back(
          rate == run.counters.end() ? total / double(run.iterations) : 1 / double(rate->second));
    }
  }

  std::optional<double> Median(const std::string& inRunName) const {
    const auto found = mSeconds.find(inRunName);
    if (found == mSeconds.end()) return std::nullopt;
    std::vector<double> seconds = found->second;
    std::sort(seconds.begin(), seconds.end());
    const std::size_t middle = seconds.size() / 2;
    return seconds.size() % 2 ? seconds[middle] : (seconds[middle - 1] + seconds[middle]) / 2;
  }
  bool Failed() const { return mFailed; }

  bool mWallClock = false;

 private:
  std::map<std::string, std::vector<double>> mSeconds;
  bool mFailed = false;
};

void Register(const std::string& inName, const Body& inBody, bool inWallClock) {
  auto* const registered = benchmark::RegisterBenchmark(inName.c_str(), inBody);
  if (inWallClock) registered->UseRealTime();
}

// Shuffled repetitions, so that a machine that slows down or speeds up does so for both sides.
void Initialize(char* inProgram, std::vector<char*> ioArguments) {
  static char sDefaults[][64] = {"--benchmark_enable_random_interleaving=true",
                                 "--benchmark_repetitions=9", "--benchmark_min_time=0.03"};
  std::vector<char*> arguments{inProgram};
  for (char* argument : sDefaults)
    arguments.push_back(argument);
  arguments.insert(arguments.end(), ioArguments.begin(), ioArguments.end());
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
}

std::optional<double> Scaled(const std::optional<double>& inSeconds, const std::string& inUnit) {
  if (!inSeconds) return std::nullopt;
  return *inSeconds * (inUnit == "ns" ? 1e9 : inUnit == "us" ? 1e6 : inUnit == "ms" ? 1e3 : 1);
}

}  // namespace

int Run(const std::string& inTopic, int argc, char** argv, const std::vector<Pair>& inPairs,
        const std::vector<Count>& inCounts) {
  std::ofstream rows;
  std::vector<char*> others;
  for (int i = 1; i < argc; ++i) {
    if (std::strncmp(argv[i], "--rows=", 7) == 0) {
      rows.open(argv[i] + 7, std::ios::app);
      if (!rows) {
        std::cerr << inTopic << ": cannot write " << argv[i] + 7 << std::endl;
        return 1;
      }
    } else if (std::strcmp(argv[i], "--header") == 0) {
      PrintHeader(std::cout);
    } else {
      others.push_back(argv[i]);
    }
  }
  Initialize(argv[0], others);

  // One run of the library for each pair, so that its two sides stand next to each other in time.
  bool failed = false;
  std::vector<Row> table;
  for (std::size_t i = 0; i < inPairs.size(); ++i) {
    const Pair& pair = inPairs[i];
    benchmark::ClearRegisteredBenchmarks();
    Register(RunName(i, kOurs), pair.ours, pair.wallClock);
    if (pair.peer) Register(RunName(i, kPeer), pair.peer, pair.wallClock);
    Gatherer gatherer;
    gatherer.mWallClock = pair.wallClock;
    benchmark::RunSpecifiedBenchmarks(&gatherer);
    failed = failed || gatherer.Failed();
    table.push_back({inTopic, pair.name, pair.unit, pair.goal,
                     Scaled(gatherer.Median(RunName(i, kOurs)), pair.unit),
                     Scaled(gatherer.Median(RunName(i, kPeer)), pair.unit)});
    PrintRow(std::cout, table.back());
  }
  for (const Count& count : inCounts) {
    table.push_back({inTopic, count.name, count.unit, count.goal, count.ours, count.peer});
    PrintRow(std::cout, table.back());
  }
  for (const Row& row : table)
    PrintJSON(rows, row);
  return failed ? 1 : 0;
}

}  // namespace bench
