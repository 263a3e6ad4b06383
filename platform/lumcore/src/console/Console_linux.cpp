// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/console/Console.h"

#include <chrono>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <deque>
#include <mutex>
#include <string>

namespace lumcore::console {

namespace {

constexpr std::size_t kMostKeptLines = 200;

struct Log {
  // Never destroyed: objects that die when the process ends may still have something to say.
  static Log& Get() {
    static Log* const sLog = new Log;
    return *sLog;
  }
  std::mutex mutex;
  bool isOpen = false;
  std::deque<std::string> kept;
};

std::string WithTime(std::string_view inLine) {
  const auto now = std::chrono::system_clock::now();
  const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
  const auto milliseconds =
      std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() % 1000;
  std::tm time = {};
  localtime_r(&seconds, &time);
  char stamp[32] = {};
  const std::size_t length = std::strftime(stamp, sizeof stamp, "%H:%M:%S", &time);
  std::snprintf(stamp + length, sizeof stamp - length, ".%03d ", static_cast<int>(milliseconds));
  return stamp + std::string(inLine) + "\n";
}

// In one call, so that lines of several threads and processes do not mix.
void Show(const std::string& inLine) {
  std::fwrite(inLine.data(), 1, inLine.size(), stderr);
}

}  // namespace

void CreateStandardConsoleWindow() {
  Log& log = Log::Get();
  const std::lock_guard<std::mutex> lock(log.mutex);
  log.isOpen = true;
  for (const std::string& line : log.kept)
    Show(line);
  log.kept.clear();
}

void ConsoleLogFile::Write(std::string_view inLine) {
  Log& log = Log::Get();
  const std::lock_guard<std::mutex> lock(log.mutex);
  if (log.isOpen) return Show(WithTime(inLine));
  if (log.kept.size() == kMostKeptLines) log.kept.pop_front();
  log.kept.push_back(WithTime(inLine));
}

void ConsoleLogFile::WriteProblem(std::string_view inLine) {
  Log& log = Log::Get();
  const std::lock_guard<std::mutex> lock(log.mutex);
  Show(WithTime(inLine));
}

void ConsoleLogFile::Terminate() {
  Log& log = Log::Get();
  const std::lock_guard<std::mutex> lock(log.mutex);
  log.isOpen = false;
  log.kept.clear();
}

}  // namespace lumcore::console
