// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "hosts/RunningOutliner.h"

#include <optional>
#include <sstream>
#include <stdexcept>

#include "hosts/OutlineText.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/dialogs/MessageDialog.h"
#include "lumui/testing/SyntheticInput.h"
#include "outliner/KeyChord.h"
#include "outliner/Reports.h"
#include "outliner/RowPainter.h"
#include "outliner/TitleStrip.h"
#include "vek/uisupport/ReportError.h"

namespace tests {

using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using lumui::testing::Position;

namespace {

constexpr float kAboveRows = 8;

Position PlaceOf(std::size_t inLine, float inX) {
  const float row = outliner::RowPainter::kRowHeight;
  return {inX,
          outliner::TitleStrip::kHeight + kAboveRows + (static_cast<float>(inLine) + 0.5f) * row};
}

outliner::KeyChord Chord(const std::string& inName) {
  outliner::KeyChord chord;
  if (!outliner::ParseKeyChord(inName, chord)) throw std::invalid_argument(inName);
  return chord;
}

}  // namespace

RunningOutliner::RunningOutliner(const std::string& inOutline) {
  outliner::RegisterErrorTexts();
  lumui::dialogs::SetDialogAnswerer([this](const auto& inBox) -> std::optional<int> {
    const bool isError = vek::uisupport::ExecutingDeferredReportError();
    mMessages += (isError ? "error: " : "box: ") + ToStdString(inBox.text) + "\n";
    if (isError) return 0;
    if (mAnswers.empty()) return std::nullopt;
    const std::string wanted = mAnswers.front();
    mAnswers.erase(mAnswers.begin());
    for (std::size_t button = 0; button < inBox.buttons.size(); ++button) {
      if (ToStdString(inBox.buttons[button]) == wanted) return static_cast<int>(button);
    }
    return std::nullopt;
  });
  const auto file = mFolder.GetFile("o.opml");
  MakeDocument(inOutline)->SaveAs(file);
  mApp = std::make_unique<outliner::OutlinerApp>([this] { mHasQuit = true; });
  mApp->Show(outliner::OutlineDocument::Open(file));
  lumui::testing::ActivateWindow(&GetWindow());
  lumui::testing::ProcessEvents();
}

RunningOutliner::~RunningOutliner() {
  mApp.reset();
  lumui::testing::ProcessEvents();
  lumui::dialogs::SetDialogAnswerer(nullptr);
}

void RunningOutliner::Keys(const std::string& inChords) {
  std::istringstream chords(inChords);
  for (std::string name; chords >> name;) {
    const outliner::KeyChord chord = Chord(name);
    lumui::testing::TapKey(GetWindow(), chord.code, chord.modifiers);
  }
  lumui::testing::ProcessEvents();
}

void RunningOutliner::HoldKey(const std::string& inChord, int inRepeats) {
  const outliner::KeyChord chord = Chord(inChord);
  for (int press = 0; press <= inRepeats; ++press)
    lumui::testing::PressKey(GetWindow(), chord.code, chord.modifiers, press > 0);
  lumui::testing::ReleaseKey(GetWindow(), chord.code, chord.modifiers);
  lumui::testing::ProcessEvents();
}

void RunningOutliner::Type(const std::string& inText) {
  lumui::testing::TypeText(GetWindow(), ToUTF16(inText));
  lumui::testing::ProcessEvents();
}

void RunningOutliner::Click(std::size_t inLine, const std::string& inModifier, float inX) {
  const auto modifiers =
      inModifier.empty() ? lumui::ui::ModifierKeys() : Chord(inModifier + "+Space").modifiers;
  lumui::testing::ClickMouse(GetWindow(), PlaceOf(inLine, inX),
                             lumui::ui::PointerEvent::kLeftButton, modifiers);
  lumui::testing::ProcessEvents();
}

void RunningOutliner::DoubleClick(std::size_t inLine, float inX) {
  lumui::testing::DoubleClickMouse(GetWindow(), PlaceOf(inLine, inX));
  lumui::testing::ProcessEvents();
}

std::string RunningOutliner::Show() {
  std::string text = tests::Show(GetDocument());
  const auto& editor = GetWindow().GetEditor();
  if (!editor.IsActive()) return text;
  const auto& typed = editor.GetEdit().GetText();
  const std::size_t caret = editor.GetEdit().GetCaret();
  return text + " / " + ToStdString(typed.substr(0, caret)) + "|" +
         ToStdString(typed.substr(caret));
}

std::string RunningOutliner::GetTitle() {
  return ToStdString(GetWindow().UI_GetTitle());
}

std::string RunningOutliner::ReadFile() const {
  const auto bytes = mFolder.GetFile("o.opml").ReadAll();
  return std::string(bytes.begin(), bytes.end());
}

std::string RunningOutliner::TakeMessages() {
  return std::exchange(mMessages, std::string());
}

}  // namespace tests
