// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <utility>

namespace test_support {

// What happened, in order, as one text with blanks between the events.
class EventLog {
 public:
  void Add(const std::string& inEvent) {
    if (!mText.empty()) mText += ' ';
    mText += inEvent;
  }
  // What was added since the last call.
  std::string Take() { return std::exchange(mText, std::string()); }

 private:
  std::string mText;
};

}  // namespace test_support
