// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

#include "lumcore/filesupport/File.h"
#include "lumui/dialogs/MessageDialog.h"

namespace outliner {

class OutlineWindow;

// Replays a text file of keys and clicks on a window, as the window system would send them, and
// prints what is saved. One line is one step; empty lines and lines that begin with "#" are none:
//
//   key Ctrl+Return      type Some text      click 120 80 Shift      double-click 120 80
//   size 800 600         title               picture PATH            save-as PATH
//   answer Discard       the button for the next box that asks
//
// The first step that fails, or that makes the host report an error, ends the run.
class EditScript {
 public:
  // Both are borrowed. What is saved, and titles that are asked for, go to outLog.
  EditScript(OutlineWindow& inWindow, std::ostream& outLog);
  ~EditScript();
  EditScript(const EditScript&) = delete;
  EditScript& operator=(const EditScript&) = delete;

  // Throws FileError for a script that cannot be read, and a config::Error "path:line: cause".
  void Run(const lumcore::filesupport::File& inScript);

 private:
  using Step = void (EditScript::*)(std::string_view inArguments);
  struct NamedStep;
  static const NamedStep kSteps[];

  void RunLine(std::string_view inLine);
  void Key(std::string_view inArguments);
  void Type(std::string_view inArguments);
  void Click(std::string_view inArguments);
  void DoubleClick(std::string_view inArguments);
  void Size(std::string_view inArguments);
  void Title(std::string_view inArguments);
  void Picture(std::string_view inArguments);
  void SaveAs(std::string_view inArguments);
  void Answer(std::string_view inArguments);

  OutlineWindow& mWindow;
  std::ostream& mLog;
  std::string mError;  // the first that was reported in this step; empty for none
  std::string mAnswer;
  lumui::dialogs::DialogAnswerer mOldAnswerer;
};

}  // namespace outliner
