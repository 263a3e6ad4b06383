// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <exception>
#include <memory>
#include <string>
#include <vector>

#include "lumcore/Strings.h"
#include "lumscripting/ScriptValue.h"
#include "lumui/controls/UI_InteractiveControlView.h"
#include "lumui/ui/UI_SubView.h"

namespace lumui::controls {
class UI_TextButton;
class UI_TextEdit;
}  // namespace lumui::controls
namespace lumscripting {
class ScriptRunner;
}

namespace outliner {

// Runs lines of JavaScript and writes below each what it gave, what it printed, or what went wrong.
// The lines see the objects that scripts see. The arrows up and down bring earlier lines back.
//
// The engine comes with the first line. A line that takes long keeps nobody from working, and can
// be stopped; so is what runs when the pane goes.
class ScriptConsole final : public lumui::ui::UI_SubView {
 public:
  ScriptConsole();
  ~ScriptConsole() override;

  void FocusInput();
  // As if it had been typed.
  void Run(const lumcore::UTF16String& inLine);
  void Clear();
  bool IsRunning() const { return mRunning > 0; }
  lumui::controls::UI_TextEdit& GetOutput() { return *mOutput; }
  lumui::controls::UI_TextEdit& GetInput() { return *mInput; }

  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override;
  bool UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                          const lumui::ui::KeyboardEvent& inEvent) override;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  using ChangedFunction = lumui::controls::UI_InteractiveControlView::ChangedFunction;
  using Value = lumscripting::ScriptValue;

  void NeedRunner();
  void Ended(const Value& inValue, const std::exception_ptr& inFailure);
  void WriteFailure(const std::exception_ptr& inFailure);
  void Write(const lumcore::UTF16String& inText);
  void ShowEarlier(int inSteps);
  boost::intrusive_ptr<lumui::controls::UI_TextButton> AddButton(
      const char* inID, const char* inTextKey, void (ScriptConsole::*inPressed)());
  void Stop();

  boost::intrusive_ptr<lumui::controls::UI_TextEdit> mOutput;
  boost::intrusive_ptr<lumui::controls::UI_TextEdit> mInput;
  boost::intrusive_ptr<lumui::controls::UI_TextButton> mStop;
  boost::intrusive_ptr<lumui::controls::UI_TextButton> mClear;
  std::vector<lumcore::UTF16String> mEarlier;
  std::size_t mShown = 0;        // of mEarlier; its size for the line below them
  lumcore::UTF16String mUnsent;  // that line, while an earlier one is shown
  int mRunning = 0;
  int mNumber = 0;  // of the last line
  std::vector<boost::shared_ptr<ChangedFunction>> mFunctions;
  std::unique_ptr<lumscripting::ScriptRunner> mRunner;
};

}  // namespace outliner
