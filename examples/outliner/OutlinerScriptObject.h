// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <iosfwd>
#include <vector>

#include "lumscripting/ScriptObject.h"

namespace outliner {

class OutlineRow;
class OutlineWindow;
class StScriptedBoxes;

// The object "Outliner" of scripts: keys and clicks on one window, as the window system would send
// them, and what a user sees there. What needs the window throws once that has closed.
class OutlinerScriptObject final : public lumscripting::ScriptObject {
 public:
  // All are borrowed. What scripts print goes to outOutput.
  OutlinerScriptObject(OutlineWindow& inWindow, StScriptedBoxes& ioBoxes, std::ostream& outOutput);
  ~OutlinerScriptObject() override;

 private:
  using Arguments = std::vector<lumscripting::ScriptValue>;
  using ClickFunction = void (*)(OutlineWindow&, const Arguments&);

  void AddInput();
  void AddClick(const char* inName, const char* inDescription, ClickFunction inClick);
  void AddFiles();
  void AddTalk();
  void AddWindowState();
  void AddRows();
  // Throws where the window has closed.
  OutlineWindow& GetWindow();
  const OutlineRow& GetRow(const lumscripting::ScriptValue& inIndex);

  OutlineWindow& mWindow;
  StScriptedBoxes& mBoxes;
  std::ostream& mOutput;
};

}  // namespace outliner
