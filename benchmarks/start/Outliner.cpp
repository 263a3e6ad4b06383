// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// The outliner from its start to its first painted window, where the process ends. With --idle it
// runs on, and prints how often any of its threads wakes up in ten seconds in which nothing
// happens.

#include <unistd.h>

#include <QApplication>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <thread>

#include "lumui/ui/Application.h"
#include "outliner/CommandSystem.h"
#include "outliner/OutlinerApp.h"
#include "outliner/ProgramTexts.h"
#include "start/FirstPaint.h"

namespace {

constexpr auto kUntilQuiet = std::chrono::seconds(2);
constexpr auto kMeasured = std::chrono::seconds(10);

// How often threads have gone to sleep of their own accord, the calling one not counted.
long CountSleeps() {
  long sleeps = 0;
  const std::string own = std::to_string(::gettid());
  for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task")) {
    if (thread.path().filename() == own) continue;
    std::ifstream status(thread.path() / "status");
    for (std::string word; status >> word;) {
      long count = 0;
      if (word == "voluntary_ctxt_switches:" && status >> count) sleeps += count;
    }
  }
  return sleeps;
}

void WatchAndExit() {
  std::this_thread::sleep_for(kUntilQuiet);
  const long before = CountSleeps();
  std::this_thread::sleep_for(kMeasured);
  std::cout << CountSleeps() - before << std::endl;
  ::_exit(0);
}

}  // namespace

// OUTLINER-PROBE SETTINGS-FOLDER [--idle]
int main(int argc, char** argv) {
  if (argc < 2) return 2;
  lumui::ui::Application application(argc, argv);
  const outliner::ProgramTexts texts(argc, argv);
  FirstPaint paint;
  qApp->installEventFilter(&paint);
  outliner::OutlinerApp app({outliner::FindCommandFiles(), "", argv[1], true});
  app.Start();
  application.PumpPendingEvents();
  if (argc < 3) ::_exit(paint.WasSeen() ? 0 : 1);
  qApp->removeEventFilter(&paint);
  std::thread(WatchAndExit).detach();
  app.RunEventLoop();
  return 1;
}
