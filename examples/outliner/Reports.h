// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>
#include <iosfwd>

#include "lumui/dialogs/MessageDialog.h"

namespace outliner {

// Teaches the framework's error reports the words that the platform's errors carry. Once for the
// process, before anything is reported.
void RegisterErrorTexts();

// Hands whatever was thrown to the framework's error reports.
void ReportFailure(const std::exception_ptr& inError);

// While it lives, what is reported goes to a stream as a line "outliner: cause" in place of a box:
// for runs that nobody looks at.
class StReportsToStream {
 public:
  explicit StReportsToStream(std::ostream& outStream);  // borrowed
  ~StReportsToStream();
  StReportsToStream(const StReportsToStream&) = delete;
  StReportsToStream& operator=(const StReportsToStream&) = delete;

  bool HasReported() const { return mHasReported; }

 private:
  bool mHasReported = false;
  lumui::dialogs::DialogAnswerer mOldAnswerer;
};

}  // namespace outliner
