// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <sys/types.h>

#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace test_support {

// Another program at the other end of a drag on a real display: a window in the corner of the
// screen from which a press drags, and which takes drops. It is ended with this.
class DragPartner {
 public:
  // inTakes is the effect with which it takes what comes, "copy", "move" or "link"; the proposed
  // one if it is empty. Returns when its window is there.
  explicit DragPartner(const std::string& inTakes = "");
  ~DragPartner();
  DragPartner(const DragPartner&) = delete;
  DragPartner& operator=(const DragPartner&) = delete;

  void Kill();
  // The next thing that it says, but for what it says of the pointer: "sent EFFECT", "got refused"
  // or "got TEXT|FILE|BYTES|EFFECT".
  std::string WaitForLine();
  // Begins a drag and moves it over inPlaces, the tool's words, until the condition holds.
  void DragTo(const std::string& inPlaces, const std::function<bool()>& inCondition);
  // Presses at inStart, moves over it until it has answered often, and releases. Returns when the
  // condition holds, with what it says of the drop.
  std::string TakeFrom(const std::string& inStart, const std::function<bool()>& inCondition);

  // A source lets a drag go if the button comes up before its target has answered. It tells the
  // target of another move only when it has had the answer to the one before.
  static constexpr int kAnswered = 2;

 private:
  void ReadLines(int inInput);
  std::string TakeLine();
  int CountSaid(const std::string& inLine);

  pid_t mProcess = -1;
  std::thread mReader;
  std::mutex mMutex;
  std::deque<std::string> mLines;
};

}  // namespace test_support
