// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <exception>
#include <functional>

#include "lumcore/Export.h"

namespace lumcore::config {

// Runs functions at the top of the program, where nobody is left to catch what they throw, and
// hands every such exception to the one reporter. The application owns the manager and puts it in
// place.
//
// Runs nest: an exception goes from the innermost run to the reporter, and the runs around it go
// on. A reporter may itself run functions (a message box runs an event loop), so that it is entered
// again when those fail. What a reporter throws goes no further: it is written to the console log
// with the error that was to be reported, and so is what comes up inside too many reports.
class LUMCORE_API ErrorManager {
 public:
  using Reporter = std::function<void(const std::exception_ptr&)>;

  // An empty reporter writes errors to the console log, as problems.
  explicit ErrorManager(Reporter inReporter = {});
  // One that is destroyed while it is in place leaves it.
  virtual ~ErrorManager();
  ErrorManager(const ErrorManager&) = delete;
  ErrorManager& operator=(const ErrorManager&) = delete;

  // The one in place. Where there is none: one with an empty reporter, or a contract failure if it
  // must exist. Never null.
  static ErrorManager* Get(bool inMustExist);
  // Puts it in place; it stays its owner's. Null takes away the one that is there.
  static void Set(ErrorManager* inManager);

  virtual void SetReporter(Reporter inReporter);
  virtual Reporter GetReporter() const;
  virtual bool IsReporting() const;  // on this thread, through any manager
  // These two never throw.
  virtual void ReportError(const std::exception_ptr& inError);
  // False when the function threw; the reporter has then been told.
  virtual bool ExecuteTopLevelFunction(const boost::function<void()>& inFunction);

  // Hands the error to a reporter that stands in for a manager's own, with the same care.
  static void ReportThrough(const Reporter& inReporter, const std::exception_ptr& inError) noexcept;

 private:
  Reporter mReporter;
};

// Runs the function by the manager that is in place.
LUMCORE_API bool ExecuteTopLevelFunction(const boost::function<void()>& inFunction);

}  // namespace lumcore::config
