// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/config/ErrorManager.h"

#include <string>
#include <utility>

#include "lumcore/console/Console.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/utility/ScopedValue.h"

namespace lumcore::config {

namespace {

ErrorManager* sInPlace = nullptr;

// A reporter that fails in a run of its own would otherwise be entered until the stack is full.
constexpr int kMostNestedReports = 8;
thread_local int tNestedReports = 0;

void WriteError(const std::exception_ptr& inError) {
  try {
    std::rethrow_exception(inError);
  } catch (const std::exception& exception) {
    console::ConsoleLogFile::WriteProblem(std::string("unhandled exception: ") + exception.what());
  } catch (...) {
    // Whoever threw it, nothing more can be said of it.
    console::ConsoleLogFile::WriteProblem("unhandled exception of an unknown type");
  }
}

}  // namespace

ErrorManager::ErrorManager(Reporter inReporter) : mReporter(std::move(inReporter)) {}

ErrorManager::~ErrorManager() {
  if (sInPlace == this) sInPlace = nullptr;
}

ErrorManager* ErrorManager::Get(bool inMustExist) {
  // Never destroyed: errors come up until the process ends.
  static ErrorManager* const sWithoutReporter = new ErrorManager;
  LUM_INPUT_CONTRACT(sInPlace || !inMustExist);
  return sInPlace ? sInPlace : sWithoutReporter;
}

void ErrorManager::Set(ErrorManager* inManager) {
  sInPlace = inManager;
}

void ErrorManager::SetReporter(Reporter inReporter) {
  mReporter = std::move(inReporter);
}

ErrorManager::Reporter ErrorManager::GetReporter() const {
  return mReporter;
}

bool ErrorManager::IsReporting() const {
  return tNestedReports > 0;
}

void ErrorManager::ReportError(const std::exception_ptr& inError) {
  ReportThrough(mReporter, inError);
}

bool ErrorManager::ExecuteTopLevelFunction(const boost::function<void()>& inFunction) {
  try {
    inFunction();
    return true;
  } catch (...) {
    // Whatever it is, the reporter gets it on behalf of the caller, who gets the false.
    ReportError(std::current_exception());
    return false;
  }
}

void ErrorManager::ReportThrough(const Reporter& inReporter,
                                 const std::exception_ptr& inError) noexcept {
  try {
    if (!inReporter || tNestedReports >= kMostNestedReports) return WriteError(inError);
    const utility::StScopedValue<int> nested(tNestedReports, tNestedReports + 1);
    try {
      const Reporter reporter = inReporter;  // it may put another one in its place
      reporter(inError);
    } catch (...) {
      // The reporter itself failed: both errors go where they can still be seen.
      WriteError(inError);
      WriteError(std::current_exception());
    }
  } catch (...) {
    // There is no memory left even for a line of the log, so the error is lost; the program goes
    // on.
  }
}

bool ExecuteTopLevelFunction(const boost::function<void()>& inFunction) {
  return ErrorManager::Get(false)->ExecuteTopLevelFunction(inFunction);
}

}  // namespace lumcore::config
