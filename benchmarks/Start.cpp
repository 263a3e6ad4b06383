// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include "support/Pair.h"

extern char** environ;

namespace {

constexpr double kKilobytesInMegabyte = 1024;

// A folder that is never made: the programs end before they keep anything.
const std::string& SettingsFolder() {
  static const std::string sFolder =
      (std::filesystem::temp_directory_path() / ("vek-bench-start-" + std::to_string(::getpid())))
          .string();
  return sFolder;
}

std::string Program(const char* inName) {
  return std::filesystem::read_symlink("/proc/self/exe").replace_filename(inName).string();
}

struct Outcome {
  bool isGood;
  double megabytes;  // at most in memory
  std::string output;
};

Outcome Run(const char* inName, const std::vector<std::string>& inArguments) {
  const std::string program = Program(inName);
  std::vector<char*> arguments{const_cast<char*>(program.c_str())};
  for (const std::string& argument : inArguments)
    arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  int ends[2];
  if (::pipe2(ends, O_CLOEXEC) != 0) throw std::system_error(errno, std::generic_category());
  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  ::posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  pid_t child = 0;
  const int failure =
      ::posix_spawn(&child, program.c_str(), &actions, nullptr, arguments.data(), environ);
  ::posix_spawn_file_actions_destroy(&actions);
  ::close(ends[1]);
  if (failure != 0) throw std::system_error(failure, std::generic_category(), program);
  Outcome outcome{};
  char bytes[256];
  for (ssize_t count; (count = ::read(ends[0], bytes, sizeof bytes)) > 0;)
    outcome.output.append(bytes, static_cast<std::size_t>(count));
  ::close(ends[0]);
  int status = 0;
  rusage usage{};
  ::wait4(child, &status, 0, &usage);
  outcome.isGood = WIFEXITED(status) && WEXITSTATUS(status) == 0;
  outcome.megabytes = static_cast<double>(usage.ru_maxrss) / kKilobytesInMegabyte;
  return outcome;
}

constexpr const char* kOutliner = "startprobe_outliner";
constexpr const char* kBare = "startprobe_bare";

Outcome Start(const char* inName) {
  return Run(inName, {SettingsFolder()});
}

bench::Body Starts(const char* inName) {
  return [inName](benchmark::State& ioState) {
    for (auto _ : ioState) {
      if (!Start(inName).isGood) ioState.SkipWithError("no window was painted");
    }
  };
}

double WakeUps() {
  const Outcome outcome = Run(kOutliner, {SettingsFolder(), "--idle"});
  if (!outcome.isGood || outcome.output.empty()) throw std::runtime_error("nothing was counted");
  return std::atof(outcome.output.c_str());
}

}  // namespace

int main(int argc, char** argv) {
  bench::Pair start{"start of the outliner to its first painted window",
                    "ms",
                    bench::RatioAtMost(1.5),
                    Starts(kOutliner),
                    Starts(kBare),
                    true};
  // Programs that start vary more, from one time to the next, than loops within one.
  char repetitions[] = "--benchmark_repetitions=45";
  std::vector<char*> arguments(argv, argv + argc);
  arguments.insert(arguments.begin() + 1, repetitions);
  return bench::Run(
      "start", static_cast<int>(arguments.size()), arguments.data(), {start},
      {{"memory of it then", "MB", {}, Start(kOutliner).megabytes, Start(kBare).megabytes},
       {"wake-ups of the outliner in 10 s of nothing", "", bench::OursAtMost(0), WakeUps(), {}}});
}
