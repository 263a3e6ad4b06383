// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

#include "StopSignals.h"

namespace outliner {

namespace {

constexpr std::array<int, 2> kSignals = {SIGINT, SIGTERM};
constexpr unsigned char kEnd = 0;  // no signal has this number

// A signal handler may do next to nothing: it sends its number through here to the thread.
int gPipe[2] = {-1, -1};
std::array<struct sigaction, kSignals.size()> gOldActions;

void Send(unsigned char inByte) {
  // The pipe is empty but for two signals at most, so that there is room.
  while (write(gPipe[1], &inByte, 1) < 0 && errno == EINTR) {
  }
}

void OnSignal(int inSignal) {
  const int savedError = errno;
  Send(static_cast<unsigned char>(inSignal));
  errno = savedError;
}

unsigned char Receive() {
  unsigned char byte = kEnd;
  while (read(gPipe[0], &byte, 1) < 0 && errno == EINTR) {
  }
  return byte;
}

}  // namespace

StStopSignals::StStopSignals(std::function<void(int)> inStop) : mStop(std::move(inStop)) {
  if (pipe2(gPipe, O_CLOEXEC) != 0) throw std::system_error(errno, std::generic_category());
  mThread = std::thread([this] {
    for (unsigned char byte = Receive(); byte != kEnd; byte = Receive())
      mStop(byte);
  });
  struct sigaction action = {};
  action.sa_handler = &OnSignal;
  action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    sigaction(kSignals[i], &action, &gOldActions[i]);
    // Who has started the program in the background may have it ignore the terminal.
    if (gOldActions[i].sa_handler == SIG_IGN) sigaction(kSignals[i], &gOldActions[i], nullptr);
  }
}

StStopSignals::~StStopSignals() {
  for (std::size_t i = 0; i < kSignals.size(); ++i)
    sigaction(kSignals[i], &gOldActions[i], nullptr);
  Send(kEnd);
  mThread.join();
  for (int& end : gPipe)
    close(std::exchange(end, -1));
}

}  // namespace outliner
