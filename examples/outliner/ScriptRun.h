// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>
#include <functional>
#include <iosfwd>

#include "ScriptedBoxes.h"
#include "lumcore/filesupport/File.h"
#include "lumscripting/ScriptRunner.h"

namespace outliner {

class OutlineWindow;

// Runs a script file on a window: as a user who presses keys, gives commands and reads rows, and
// with nobody there to answer boxes. Scripts see the objects "Outliner" and "Command", and
// listeners at the latter hear of every command once.
//
// An error that the host reports during a call of the script, and a box without an answer, are
// exceptions of that call.
class ScriptRun {
 public:
  // All are borrowed, and outlive it.
  ScriptRun(OutlineWindow& inWindow, std::ostream& outOutput, std::ostream& outErrors);
  ~ScriptRun();
  ScriptRun(const ScriptRun&) = delete;
  ScriptRun& operator=(const ScriptRun&) = delete;

  // Runs the application's loop until the script has ended, and what it has left to listeners. 0 if
  // all went well; 1 if anything failed, which is told as "file:line: cause". Application::Quit
  // stops the script, and its code is given back. Changes that are not saved are told in any case.
  // Once.
  int Run(const lumcore::filesupport::File& inScript);

 private:
  void Call(const std::function<void()>& inCall);
  void EndBehindEvents();
  void Tell(const std::exception_ptr& inFailure);
  void TellRest();

  OutlineWindow& mWindow;
  std::ostream& mOutput;
  std::ostream& mErrors;
  StScriptedBoxes mBoxes;
  lumscripting::ScriptRunner mRunner;
  int mCommandsTold = 0;
  bool mHasEnded = false;
  bool mHasFailed = false;
};

}  // namespace outliner
