// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <iosfwd>
#include <vector>

#include "lumscripting/ScriptObject.h"

namespace lumui::ui {
class OS_Window;
}

namespace outliner {

class OutlineDocument;
class OutlineRow;
class OutlinerApp;
class StScriptedBoxes;

// The object "Outliner" of scripts: keys, clicks and menus of the window, as the window system
// would send them, and what a user sees of the current outline. All but talk throws once the
// application has been quit.
class OutlinerScriptObject final : public lumscripting::ScriptObject {
 public:
  // All are borrowed. What scripts print goes to outOutput.
  OutlinerScriptObject(OutlinerApp& ioApp, const bool& inHasQuit, StScriptedBoxes& ioBoxes,
                       std::ostream& outOutput);
  ~OutlinerScriptObject() override;

 private:
  using Arguments = std::vector<lumscripting::ScriptValue>;
  using ClickFunction = void (*)(lumui::ui::OS_Window&, const Arguments&);

  void AddInput();
  void AddClick(const char* inName, const char* inDescription, ClickFunction inClick);
  void AddFiles();
  void AddTalk();
  void AddWindowState();
  void AddRows();
  // Throws where the application has been quit.
  lumui::ui::OS_Window& GetWindow();
  OutlineDocument& GetOutline();  // the current one; throws where there is none
  const OutlineRow& GetRow(const lumscripting::ScriptValue& inIndex);

  OutlinerApp& mApp;
  const bool& mHasQuit;
  StScriptedBoxes& mBoxes;
  std::ostream& mOutput;
};

}  // namespace outliner
