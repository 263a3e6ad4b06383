// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "hosts/RunningOutliner.h"

#include <optional>
#include <sstream>
#include <stdexcept>

#include "hosts/OutlineText.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/dialogs/FileDialog.h"
#include "lumui/dialogs/MessageDialog.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Application.h"
#include "outliner/KeyChord.h"
#include "outliner/Reports.h"
#include "outliner/RowEditor.h"
#include "outliner/RowField.h"
#include "vek/hierarchyview/TreeListGeometry.h"
#include "vek/uisupport/ReportError.h"

namespace tests {

using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using lumui::testing::Position;

namespace {

outliner::KeyChord Chord(const std::string& inName) {
  outliner::KeyChord chord;
  if (!outliner::ParseKeyChord(inName, chord)) throw std::invalid_argument(inName);
  return chord;
}

}  // namespace

RunningOutliner::RunningOutliner(const std::string& inOutline)
    : mOwnFolder(std::make_unique<TemporaryFolder>()), mFolder(*mOwnFolder) {
  const auto file = MakeFile("o.opml", inOutline);
  Start();
  mApp->OpenOutline(file);
  lumui::testing::ActivateWindow(&GetWindow());
  lumui::testing::ProcessEvents();
}

RunningOutliner::RunningOutliner(TemporaryFolder& ioFolder) : mFolder(ioFolder) {
  Start();
}

RunningOutliner::~RunningOutliner() {
  if (mApp) {
    lumui::ui::Application::Get()->Quit();
    End();
  }
  lumui::dialogs::SetFileDialogAnswerer(nullptr);
  lumui::dialogs::SetDialogAnswerer(nullptr);
}

void RunningOutliner::Start() {
  outliner::RegisterErrorTexts();
  lumui::dialogs::SetDialogAnswerer([this](const auto& inBox) -> std::optional<int> {
    const bool isError = vek::uisupport::ExecutingDeferredReportError();
    mMessages += (isError ? "error: " : "box: ") + ToStdString(inBox.text) + "\n";
    if (isError) return 0;
    const auto wanted = TakeAnswer();
    for (std::size_t button = 0; wanted && button < inBox.buttons.size(); ++button) {
      if (ToStdString(inBox.buttons[button]) == *wanted) return static_cast<int>(button);
    }
    return std::nullopt;
  });
  lumui::dialogs::SetFileDialogAnswerer(
      [this](const auto& inDialog) -> std::optional<lumcore::UTF16String> {
        mMessages += "file: " + ToStdString(inDialog.title) + "\n";
        const auto wanted = TakeAnswer();
        if (!wanted) return std::nullopt;
        return ToUTF16(*wanted == "Cancel" ? "" : GetPath(*wanted));
      });
  mApp = std::make_unique<outliner::OutlinerApp>(outliner::OutlinerApp::Options{
      outliner::FindCommandFiles(), "", mFolder.GetPath("settings")});
  mApp->Start();
}

void RunningOutliner::End() {
  mApp->RunEventLoop();
  mApp->End();
  mApp.reset();
  // The window has asked to quit as well when it went: not the next application.
  if (HasQuit()) lumui::ui::Application::Get()->Run();
}

std::optional<std::string> RunningOutliner::TakeAnswer() {
  if (mAnswers.empty()) return std::nullopt;
  const std::string answer = mAnswers.front();
  mAnswers.erase(mAnswers.begin());
  return answer;
}

bool RunningOutliner::HasQuit() const {
  return lumui::ui::Application::Get()->IsQuitting();
}

lumcore::filesupport::File RunningOutliner::MakeFile(const std::string& inName,
                                                     const std::string& inOutline) {
  const auto file = mFolder.GetFile(inName);
  MakeDocument(inOutline)->SaveAsFile(file);
  return file;
}

std::string RunningOutliner::ShowDocuments() {
  std::string text;
  for (const auto* document : mApp->GetOutlines()) {
    const std::string title = (document->IsDirty() ? "*" : "") + ToStdString(document->GetTitle());
    text +=
        (text.empty() ? "" : " ") + (document == mApp->GetOutline() ? "[" + title + "]" : title);
  }
  return text;
}

Position RunningOutliner::PlaceIn(const std::string& inNode, float inX, float inY) {
  const auto* const node = GetWindow().UI_GetNodeForID(lumcore::utility::ToUTF8(inNode));
  if (!node) throw std::invalid_argument(inNode);
  lumcore::geom::PointT<int> corner(0, 0);
  node->UI_LocalToGlobal(corner);
  return {static_cast<float>(corner.x) + inX, static_cast<float>(corner.y) + inY};
}

// All documents have theirs at the same place.
Position RunningOutliner::PlaceOf(std::size_t inLine, float inX) {
  const float line = static_cast<float>(inLine) + 0.5f;
  return PlaceIn("rows", inX, line * vek::hierarchyview::TreeListGeometry::kRowHeight);
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
  const auto& editor = GetDocument().GetEditor();
  if (!editor.IsActive()) return text;
  const auto& typed = editor.GetText();
  const auto* const field = dynamic_cast<outliner::RowField*>(GetWindow().UI_GetFocusNode());
  if (!field) return text + " / " + ToStdString(typed) + " without a field";
  const std::size_t caret = field->GetSelectionEnd();
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
