// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ScriptConsole.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <sstream>

#include "Palette.h"
#include "Texts.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumscripting/ScriptRunner.h"
#include "lumui/controls/UI_TextButton.h"
#include "lumui/controls/UI_TextEdit.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/ui/KeyboardEvent.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;
using lumui::controls::UI_TextButton;
using lumui::controls::UI_TextEdit;
using lumui::ui::KeyboardCode;

namespace {

constexpr float kMargin = 8;
constexpr float kLineHeight = 28;
constexpr float kButtonWidth = 72;
constexpr float kTextSize = 12;
// The oldest go first: a text of this many units is laid out at once for each line that comes.
constexpr std::size_t kMostText = 50000;
constexpr std::size_t kMostEarlier = 200;
constexpr std::chrono::seconds kPatience(2);

UTF16String NumberText(double inNumber) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  const bool isWhole = std::floor(inNumber) == inNumber && std::abs(inNumber) < 1e15;
  text.precision(isWhole ? 15 : 12);
  text << inNumber;
  return ToUTF16(text.str());
}

// Empty for a line that gave nothing.
UTF16String TextOf(const lumscripting::ScriptValue& inValue) {
  if (const auto* const text = std::get_if<UTF16String>(&inValue)) return *text;
  if (const auto* const number = std::get_if<double>(&inValue)) return NumberText(*number);
  if (const auto* const truth = std::get_if<bool>(&inValue))
    return ToUTF16(*truth ? "true" : "false");
  return {};
}

}  // namespace

ScriptConsole::ScriptConsole() : mOutput(new UI_TextEdit(true)), mInput(new UI_TextEdit) {
  mOutput->UI_SetNodeID("output");
  mOutput->UI_SetToolTip(Localized("$$$/outliner/Console/Output=What the lines gave"));
  mOutput->SetReadOnly(true);
  mOutput->SetFontSize(kTextSize);
  mOutput->SetPlaceholder(
      Localized("$$$/outliner/Console/Empty=Lines of JavaScript run here, such as "
                "Command.invokeCommand(\"outliner.row.newsibling\"), print(\"text\") or 6 * 7."));
  mInput->UI_SetNodeID("line");
  mInput->SetLeavesLineKeys(true);
  mInput->SetPlaceholder(Localized("$$$/outliner/Console/Line=JavaScript, and Enter"));
  UI_AddChild(mOutput);
  UI_AddChild(mInput);
  mStop = AddButton("stop", "$$$/outliner/Console/Stop=Stop", &ScriptConsole::Stop);
  mClear = AddButton("clear", "$$$/outliner/Console/Clear=Clear", &ScriptConsole::Clear);
  mStop->UI_SetDisabled(true);
}

ScriptConsole::~ScriptConsole() {
  for (const auto& function : mFunctions)
    function->clear();
  if (mRunner) mRunner->ShutDown(kPatience);
}

boost::intrusive_ptr<UI_TextButton> ScriptConsole::AddButton(const char* inID,
                                                             const char* inTextKey,
                                                             void (ScriptConsole::*inPressed)()) {
  boost::intrusive_ptr<UI_TextButton> button(new UI_TextButton);
  button->UI_SetNodeID(inID);
  button->SetText(Localized(inTextKey));
  mFunctions.emplace_back(new ChangedFunction([this, inPressed](auto*) { (this->*inPressed)(); }));
  button->NotifyWhenChanged(mFunctions.back());
  UI_AddChild(button);
  return button;
}

void ScriptConsole::FocusInput() {
  mInput->UI_SetKeyboardFocus(lumui::ui::kFocusOther);
}

void ScriptConsole::NeedRunner() {
  if (mRunner) return;
  mRunner = std::make_unique<lumscripting::ScriptRunner>();
  mRunner->SetFailureFunction([this](const auto& inFailure) { WriteFailure(inFailure); });
  mRunner->AddFunction(ToUTF16("print"), [this](const std::vector<Value>& inValues) {
    UTF16String text;
    for (const Value& value : inValues)
      text += (text.empty() ? UTF16String() : ToUTF16(" ")) + TextOf(value);
    Write(text);
    return Value();
  });
}

// Each line is a file of its own in errors, so that they can be told apart.
void ScriptConsole::Run(const UTF16String& inLine) {
  if (inLine.find_first_not_of(ToUTF16(" \t")) == UTF16String::npos) return;
  NeedRunner();
  mEarlier.erase(std::remove(mEarlier.begin(), mEarlier.end(), inLine), mEarlier.end());
  mEarlier.push_back(inLine);
  if (mEarlier.size() > kMostEarlier) mEarlier.erase(mEarlier.begin());
  mShown = mEarlier.size();
  mUnsent.clear();
  ++mNumber;
  Write(ToUTF16("> ") + inLine);
  ++mRunning;
  mStop->UI_SetDisabled(false);
  const auto name = lumcore::utility::ReplaceInString(
      Localized("$$$/outliner/Console/Name=line @0"), {ToUTF16(std::to_string(mNumber))});
  mRunner->Run(inLine, name, [this](const Value& inValue, const std::exception_ptr& inFailure) {
    Ended(inValue, inFailure);
  });
}

void ScriptConsole::Ended(const Value& inValue, const std::exception_ptr& inFailure) {
  --mRunning;
  mStop->UI_SetDisabled(mRunning == 0);
  if (inFailure) {
    WriteFailure(inFailure);
  } else if (!std::holds_alternative<std::monostate>(inValue)) {
    Write(TextOf(inValue));
  }
}

// What a script throws begins with its name and line.
void ScriptConsole::WriteFailure(const std::exception_ptr& inFailure) {
  try {
    std::rethrow_exception(inFailure);
  } catch (const lumcore::config::Error& error) {
    Write(error.GetText());
  } catch (const std::exception& error) {
    Write(ToUTF16(error.what()));
  }
}

void ScriptConsole::Write(const UTF16String& inText) {
  UTF16String text = mOutput->GetText();
  if (!text.empty()) text += '\n';
  text += inText;
  if (text.size() > kMostText) {
    const std::size_t line = text.find('\n', text.size() - kMostText);
    text.erase(0, line == UTF16String::npos ? text.size() - kMostText : line + 1);
  }
  mOutput->SetText(text);
  mOutput->SetSelection(text.size(), text.size());
}

void ScriptConsole::Clear() {
  mOutput->SetText({});
  FocusInput();
}

void ScriptConsole::Stop() {
  if (mRunner) mRunner->StopRunning();
  FocusInput();
}

void ScriptConsole::ShowEarlier(int inSteps) {
  const auto at = static_cast<std::ptrdiff_t>(mShown) + inSteps;
  if (at < 0 || at > static_cast<std::ptrdiff_t>(mEarlier.size())) return;
  if (mShown == mEarlier.size()) mUnsent = mInput->GetText();
  mShown = static_cast<std::size_t>(at);
  mInput->SetText(mShown == mEarlier.size() ? mUnsent : mEarlier[mShown]);
}

// Of the field, which leaves these keys.
bool ScriptConsole::UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                                       const lumui::ui::KeyboardEvent& inEvent) {
  if (inNode != mInput.get() || !inEvent.IsActionKeyDown()) return false;
  switch (inEvent.GetCode().GetControlCode(false)) {
    case KeyboardCode::kReturn:
    case KeyboardCode::kEnter: {
      const UTF16String line = mInput->GetText();
      mInput->SetText({});
      Run(line);
      break;
    }
    case KeyboardCode::kUpArrow:
      ShowEarlier(-1);
      break;
    case KeyboardCode::kDownArrow:
      ShowEarlier(1);
      break;
    default:
      return false;
  }
  lumui::ui::FlushPostActionKeyEvents(inEvent);
  return true;
}

void ScriptConsole::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  UI_SubView::UI_SizeChanged(inRect);
  const float width = std::max(0.0f, inRect.width - 2 * kMargin);
  const float line = std::max(kMargin, inRect.height - kMargin - kLineHeight);
  mOutput->UI_SetLocalRectF({kMargin, kMargin, width, std::max(0.0f, line - 2 * kMargin)});
  const float buttons = 2 * (kButtonWidth + kMargin);
  mInput->UI_SetLocalRectF({kMargin, line, std::max(0.0f, width - buttons), kLineHeight});
  const float right = kMargin + width;
  mStop->UI_SetLocalRectF({right - 2 * kButtonWidth - kMargin, line, kButtonWidth, kLineHeight});
  mClear->UI_SetLocalRectF({right - kButtonWidth, line, kButtonWidth, kLineHeight});
}

void ScriptConsole::UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const {
  const auto& area = UI_GetLocalRectF();
  inDrawbot->FillRect({0, 0, area.width, area.height}, palette::Strip());
}

}  // namespace outliner
