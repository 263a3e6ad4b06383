// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "EditScript.h"

#include <algorithm>
#include <optional>
#include <ostream>
#include <sstream>
#include <utility>

#include "KeyChord.h"
#include "OutlineWindow.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/testing/SyntheticInput.h"
#include "vek/uisupport/ReportError.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ReplaceInString;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;

namespace {

[[noreturn]] void Fail(const char* inKey, std::string_view inArgument) {
  throw lumcore::config::Error(ReplaceInString(
      lumcore::config::Localizer::Get()->GetLocalizedString(inKey), {ToUTF16(inArgument)}));
}

std::string_view WithoutLineEnd(std::string_view inLine) {
  if (!inLine.empty() && inLine.back() == '\r') inLine.remove_suffix(1);
  return inLine;
}

// All of a step's words; every one of them must be used.
class Words {
 public:
  explicit Words(std::string_view inText) : mAll(inText), mWords(mAll) {}

  float NextNumber() {
    float number = 0;
    if (!(mWords >> number)) {
      Fail("$$$/outliner/Script/Number=a number is expected: \"@0\"", mAll);
    }
    return number;
  }
  std::string NextWord() {
    std::string word;
    mWords >> word;
    return word;
  }
  void End() {
    if (!NextWord().empty()) Fail("$$$/outliner/Script/TooMuch=too many words: \"@0\"", mAll);
  }

 private:
  std::string mAll;
  std::istringstream mWords;
};

struct Place {
  lumui::testing::Position position;
  lumui::ui::ModifierKeys modifiers;
};

Place ReadPlace(std::string_view inArguments) {
  Words words(inArguments);
  Place place;
  place.position.x = words.NextNumber();
  place.position.y = words.NextNumber();
  const std::string modifier = words.NextWord();
  if (modifier.empty()) return place;
  KeyChord chord;
  // Read as the modifiers of a key, so that both are written in the same way.
  if (!ParseKeyChord(modifier + "+Space", chord)) {
    Fail("$$$/outliner/Script/Modifier=\"@0\" is no modifier", modifier);
  }
  words.End();
  place.modifiers = chord.modifiers;
  return place;
}

}  // namespace

struct EditScript::NamedStep {
  std::string_view name;
  Step step;
};

const EditScript::NamedStep EditScript::kSteps[] = {
    {"key", &EditScript::Key},         {"type", &EditScript::Type},
    {"click", &EditScript::Click},     {"double-click", &EditScript::DoubleClick},
    {"size", &EditScript::Size},       {"title", &EditScript::Title},
    {"picture", &EditScript::Picture}, {"save-as", &EditScript::SaveAs},
    {"answer", &EditScript::Answer},
};

EditScript::EditScript(OutlineWindow& inWindow, std::ostream& outLog)
    : mWindow(inWindow), mLog(outLog) {
  mOldAnswerer = lumui::dialogs::SetDialogAnswerer([this](const auto& inBox) -> std::optional<int> {
    if (vek::uisupport::ExecutingDeferredReportError()) {
      if (mError.empty()) mError = ToStdString(inBox.text);
      return 0;
    }
    const std::string wanted = std::exchange(mAnswer, std::string());
    for (std::size_t button = 0; button < inBox.buttons.size(); ++button) {
      if (!wanted.empty() && ToStdString(inBox.buttons[button]) == wanted) {
        return static_cast<int>(button);
      }
    }
    return std::nullopt;
  });
  mWindow.SetSavedFunction([this] {
    OutlineDocument& document = mWindow.GetDocument();
    mLog << "saved " << document.GetFile().GetPath() << ": " << document.GetTree().GetLines().size()
         << " rows\n";
  });
}

EditScript::~EditScript() {
  mWindow.SetSavedFunction(nullptr);
  lumui::dialogs::SetDialogAnswerer(std::move(mOldAnswerer));
}

void EditScript::Run(const lumcore::filesupport::File& inScript) {
  const auto bytes = inScript.ReadAll();
  std::istringstream lines(std::string(bytes.begin(), bytes.end()));
  std::size_t number = 0;
  for (std::string line; std::getline(lines, line);) {
    ++number;
    try {
      RunLine(WithoutLineEnd(line));
    } catch (const std::exception& error) {
      throw lumcore::config::Error(
          ToUTF16(inScript.GetPath() + ":" + std::to_string(number) + ": " + error.what()));
    }
  }
}

void EditScript::RunLine(std::string_view inLine) {
  if (inLine.empty() || inLine.front() == '#') return;
  const auto blank = std::min(inLine.find(' '), inLine.size());
  const std::string_view name = inLine.substr(0, blank);
  const NamedStep* found = nullptr;
  for (const NamedStep& step : kSteps) {
    if (step.name == name) found = &step;
  }
  if (!found) Fail("$$$/outliner/Script/Unknown=\"@0\" is no step", name);
  if (!mWindow.UI_GetHandle()) {
    Fail("$$$/outliner/Script/Closed=the window has closed before \"@0\"", inLine);
  }
  (this->*found->step)(inLine.substr(std::min(blank + 1, inLine.size())));
  lumui::testing::ProcessEvents();
  if (!mError.empty()) {
    throw lumcore::config::Error(ToUTF16(std::exchange(mError, std::string())));
  }
}

void EditScript::Key(std::string_view inArguments) {
  KeyChord chord;
  if (!ParseKeyChord(inArguments, chord)) {
    Fail("$$$/outliner/Script/Key=\"@0\" is no key", inArguments);
  }
  lumui::testing::TapKey(mWindow, chord.code, chord.modifiers);
}

void EditScript::Type(std::string_view inArguments) {
  lumui::testing::TypeText(mWindow, ToUTF16(inArguments));
}

void EditScript::Click(std::string_view inArguments) {
  const Place place = ReadPlace(inArguments);
  lumui::testing::ClickMouse(mWindow, place.position, lumui::ui::PointerEvent::kLeftButton,
                             place.modifiers);
}

void EditScript::DoubleClick(std::string_view inArguments) {
  const Place place = ReadPlace(inArguments);
  lumui::testing::DoubleClickMouse(mWindow, place.position, lumui::ui::PointerEvent::kLeftButton,
                                   place.modifiers);
}

void EditScript::Size(std::string_view inArguments) {
  Words words(inArguments);
  const auto width = static_cast<int>(words.NextNumber());
  const auto height = static_cast<int>(words.NextNumber());
  words.End();
  if (width < 1 || height < 1) {
    Fail("$$$/outliner/Script/Size=a window cannot have the size \"@0\"", inArguments);
  }
  mWindow.UI_SetSize(width, height);
}

void EditScript::Title(std::string_view) {
  mLog << ToStdString(mWindow.UI_GetTitle()) << "\n";
}

void EditScript::Picture(std::string_view inArguments) {
  mWindow.UI_SavePicture(ToUTF16(inArguments));
  mLog << "picture " << inArguments << "\n";
}

void EditScript::SaveAs(std::string_view inArguments) {
  mWindow.SaveAs(lumcore::filesupport::File(inArguments));
}

void EditScript::Answer(std::string_view inArguments) {
  mAnswer = inArguments;
}

}  // namespace outliner
