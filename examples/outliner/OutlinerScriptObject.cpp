// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlinerScriptObject.h"

#include <ostream>
#include <string>

#include "KeyChord.h"
#include "OutlineDocument.h"
#include "OutlinerApp.h"
#include "ScriptedBoxes.h"
#include "Texts.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/testing/Menus.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/OS_Window.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::filesupport::File;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using lumcore::utility::ToUTF8;
using lumscripting::ScriptParameter;
using lumscripting::ScriptType;
using lumscripting::ScriptValue;
using lumui::ui::OS_Window;

namespace {

using Arguments = std::vector<ScriptValue>;

// Larger ones are slips, and their pictures would not fit into the memory.
constexpr int kMaxSize = 16384;

[[noreturn]] void Fail(const char* inKey, std::initializer_list<UTF16String> inArguments) {
  throw lumcore::config::Error(lumcore::utility::ReplaceInString(Localized(inKey), inArguments));
}

const UTF16String& TextOf(const ScriptValue& inValue) {
  return std::get<UTF16String>(inValue);
}

int IntegerOf(const ScriptValue& inValue) {
  return static_cast<int>(std::get<double>(inValue));
}

ScriptParameter Parameter(const char* inName, ScriptType inType, const char* inDescription) {
  return {ToUTF16(inName), inType, ToUTF8(inDescription)};
}

void TapKey(OS_Window& ioWindow, const UTF16String& inName) {
  KeyChord chord;
  if (!ParseKeyChord(ToStdString(inName), chord)) {
    Fail("$$$/outliner/Script/Key=\"@0\" is no key", {inName});
  }
  lumui::testing::TapKey(ioWindow, chord.code, chord.modifiers);
}

// Read as the modifiers of a key, so that both are written in the same way.
lumui::ui::ModifierKeys ModifiersOf(const ScriptValue& inValue) {
  KeyChord chord;
  const auto* const names = std::get_if<UTF16String>(&inValue);
  if (names && !names->empty() && !ParseKeyChord(ToStdString(*names) + "+Space", chord)) {
    Fail("$$$/outliner/Script/Modifier=\"@0\" is no modifier", {*names});
  }
  return chord.modifiers;
}

lumui::testing::MenuPath MenuPathOf(const ScriptValue& inValue) {
  const UTF16String separator = ToUTF16(" > ");
  const UTF16String& text = TextOf(inValue);
  lumui::testing::MenuPath path;
  std::size_t from = 0;
  for (auto at = text.find(separator); at != text.npos; at = text.find(separator, from)) {
    path.push_back(text.substr(from, at - from));
    from = at + separator.size();
  }
  path.push_back(text.substr(from));
  return path;
}

lumui::testing::Position PlaceOf(OS_Window& inWindow, const Arguments& inArguments) {
  const double x = std::get<double>(inArguments.at(0));
  const double y = std::get<double>(inArguments.at(1));
  const auto& rect = inWindow.UI_GetLocalRectF();
  // Written so that no number at all is outside as well.
  if (!(x >= 0 && y >= 0 && x < rect.width && y < rect.height)) {
    Fail("$$$/outliner/Script/Outside=the place is outside the window, whose size is @0 x @1",
         {NumberText(static_cast<int>(rect.width)), NumberText(static_cast<int>(rect.height))});
  }
  return {static_cast<float>(x), static_cast<float>(y)};
}

void Click(OS_Window& ioWindow, const Arguments& inArguments) {
  lumui::testing::ClickMouse(ioWindow, PlaceOf(ioWindow, inArguments),
                             lumui::ui::PointerEvent::kLeftButton, ModifiersOf(inArguments.at(2)));
}

void DoubleClick(OS_Window& ioWindow, const Arguments& inArguments) {
  lumui::testing::DoubleClickMouse(ioWindow, PlaceOf(ioWindow, inArguments),
                                   lumui::ui::PointerEvent::kLeftButton,
                                   ModifiersOf(inArguments.at(2)));
}

void SetSize(OS_Window& ioWindow, int inWidth, int inHeight) {
  if (inWidth < 1 || inHeight < 1 || inWidth > kMaxSize || inHeight > kMaxSize) {
    Fail("$$$/outliner/Script/Size=a window cannot have the size @0 x @1",
         {NumberText(inWidth), NumberText(inHeight)});
  }
  ioWindow.UI_SetSize(inWidth, inHeight);
}

UTF16String SelectedIndexes(OutlineDocument& inDocument) {
  std::string text;
  for (const OutlineRow* row : inDocument.GetSelectedRows())
    text += (text.empty() ? "" : ",") + std::to_string(inDocument.GetTree().GetLine(*row));
  return ToUTF16(text);
}

}  // namespace

OutlinerScriptObject::OutlinerScriptObject(OutlinerApp& ioApp, const bool& inHasQuit,
                                           StScriptedBoxes& ioBoxes, std::ostream& outOutput)
    : mApp(ioApp), mHasQuit(inHasQuit), mBoxes(ioBoxes), mOutput(outOutput) {
  AddInput();
  AddFiles();
  AddTalk();
  AddWindowState();
  AddRows();
}

OutlinerScriptObject::~OutlinerScriptObject() = default;

void OutlinerScriptObject::AddInput() {
  AddFunction({ToUTF16("key"),
               {Parameter("name", ScriptType::kString,
                          "\"Ctrl+Return\", \"F2\", \"Shift+Tab\", \"a\": modifiers and a key.")},
               ScriptType::kNothing,
               ToUTF8("Presses a key and lets it go.")},
              [this](const Arguments& inArguments) {
                TapKey(GetWindow(), TextOf(inArguments.front()));
                return ScriptValue();
              });
  AddFunction({ToUTF16("type"),
               {Parameter("text", ScriptType::kString, "What the keys type.")},
               ScriptType::kNothing,
               ToUTF8("Taps the keys that type a text.")},
              [this](const Arguments& inArguments) {
                lumui::testing::TypeText(GetWindow(), TextOf(inArguments.front()));
                return ScriptValue();
              });
  AddFunction({ToUTF16("menu"),
               {Parameter("path", ScriptType::kString,
                          "\"File > Save\": the titles on the way, in the language of the run.")},
               ScriptType::kNothing,
               ToUTF8("Chooses an item of the menus.")},
              [this](const Arguments& inArguments) {
                lumui::testing::ChooseMenuItem(GetWindow(), MenuPathOf(inArguments.front()));
                return ScriptValue();
              });
  AddClick("click", "Clicks with the left button.", Click);
  AddClick("doubleClick", "Clicks twice, in the time of a double click.", DoubleClick);
  AddFunction({ToUTF16("setSize"),
               {Parameter("width", ScriptType::kInteger, "In pixels."),
                Parameter("height", ScriptType::kInteger, "In pixels.")},
               ScriptType::kNothing,
               ToUTF8("Gives the window a size, without its frame.")},
              [this](const Arguments& inArguments) {
                SetSize(GetWindow(), IntegerOf(inArguments[0]), IntegerOf(inArguments[1]));
                return ScriptValue();
              });
}

void OutlinerScriptObject::AddClick(const char* inName, const char* inDescription,
                                    ClickFunction inClick) {
  ScriptParameter modifiers = Parameter("modifiers", ScriptType::kString,
                                        "\"Ctrl\", \"Shift\", \"Ctrl+Shift\": held meanwhile.");
  modifiers.isOptional = true;
  AddFunction({ToUTF16(inName),
               {Parameter("x", ScriptType::kNumber, "In pixels from the window's left edge."),
                Parameter("y", ScriptType::kNumber, "In pixels from its upper edge."), modifiers},
               ScriptType::kNothing,
               ToUTF8(inDescription)},
              [this, inClick](const Arguments& inArguments) {
                inClick(GetWindow(), inArguments);
                return ScriptValue();
              });
}

void OutlinerScriptObject::AddFiles() {
  const char* const kPath = "A path; one that is relative begins at the current folder.";
  AddFunction({ToUTF16("save"), {}, ScriptType::kNothing, ToUTF8("Saves the outline to its file.")},
              [this](const Arguments&) {
                GetOutline().Save();
                return ScriptValue();
              });
  AddFunction({ToUTF16("saveAs"),
               {Parameter("path", ScriptType::kString, kPath)},
               ScriptType::kNothing,
               ToUTF8("Saves the outline to another file, which becomes its own.")},
              [this](const Arguments& inArguments) {
                GetOutline().SaveAsFile(File(TextOf(inArguments.front())));
                return ScriptValue();
              });
  AddFunction({ToUTF16("open"),
               {Parameter("path", ScriptType::kString, kPath)},
               ScriptType::kNothing,
               ToUTF8("Opens an outline in a tab of its own, or shows the tab that has it.")},
              [this](const Arguments& inArguments) {
                GetWindow();
                mApp.OpenOutline(File(TextOf(inArguments.front())));
                return ScriptValue();
              });
  AddFunction({ToUTF16("picture"),
               {Parameter("path", ScriptType::kString, kPath)},
               ScriptType::kNothing,
               ToUTF8("Writes what the window shows as a PNG file.")},
              [this](const Arguments& inArguments) {
                GetWindow().UI_SavePicture(TextOf(inArguments.front()));
                return ScriptValue();
              });
}

void OutlinerScriptObject::AddTalk() {
  AddFunction({ToUTF16("answer"),
               {Parameter("answer", ScriptType::kString, "The button's text, or a path.")},
               ScriptType::kNothing,
               ToUTF8("Names the button to press in the next box that asks something, or the file "
                      "for the next dialog that asks for one. What finds no answer is cancelled, "
                      "and the step that brought it up fails.")},
              [this](const Arguments& inArguments) {
                mBoxes.Answer(TextOf(inArguments.front()));
                return ScriptValue();
              });
  AddFunction({ToUTF16("print"),
               {Parameter("text", ScriptType::kString, "A line.")},
               ScriptType::kNothing,
               ToUTF8("Writes a line to the standard output.")},
              [this](const Arguments& inArguments) {
                mOutput << ToStdString(TextOf(inArguments.front())) << std::endl;
                return ScriptValue();
              });
}

void OutlinerScriptObject::AddWindowState() {
  AddProperty({ToUTF16("title"), ScriptType::kString, ToUTF8("The window's title.")},
              [this] { return ScriptValue(GetWindow().UI_GetTitle()); });
  AddProperty(
      {ToUTF16("documentCount"), ScriptType::kInteger, ToUTF8("How many outlines are open.")},
      [this] {
        GetWindow();
        return ScriptValue(static_cast<double>(mApp.GetOutlines().size()));
      });
  AddProperty(
      {ToUTF16("isDirty"), ScriptType::kBoolean, ToUTF8("Whether there is anything to save.")},
      [this] { return ScriptValue(GetOutline().IsDirty()); });
}

void OutlinerScriptObject::AddRows() {
  AddProperty({ToUTF16("rowCount"), ScriptType::kInteger, ToUTF8("How many rows there are.")},
              [this] {
                const auto& lines = GetOutline().GetTree().GetLines();
                return ScriptValue(static_cast<double>(lines.size()));
              });
  AddProperty({ToUTF16("selection"), ScriptType::kString,
               ToUTF8("The indexes of the selected rows, as \"3,4,7\".")},
              [this] { return ScriptValue(SelectedIndexes(GetOutline())); });
  const ScriptParameter index =
      Parameter("index", ScriptType::kInteger, "From 0 at the top, as the window shows the rows.");
  AddFunction({ToUTF16("rowText"),
               {index},
               ScriptType::kString,
               ToUTF8("The text of a row, without what is still being typed.")},
              [this](const Arguments& inArguments) {
                return ScriptValue(GetRow(inArguments.front()).GetText());
              });
  AddFunction({ToUTF16("rowLevel"),
               {index},
               ScriptType::kInteger,
               ToUTF8("The level of a row: 1 for one that is below no other.")},
              [this](const Arguments& inArguments) {
                return ScriptValue(static_cast<double>(GetRow(inArguments.front()).GetDepth()));
              });
}

// The loop may not have noticed yet that it is to end.
OS_Window& OutlinerScriptObject::GetWindow() {
  if (mHasQuit || lumui::ui::Application::Get()->IsQuitting()) {
    Fail("$$$/outliner/Script/HasQuit=the outliner has ended", {});
  }
  return *mApp.FindMainWindow();
}

OutlineDocument& OutlinerScriptObject::GetOutline() {
  GetWindow();
  OutlineDocument* const document = mApp.GetOutline();
  if (!document) Fail("$$$/outliner/Script/NoOutline=no outline is open", {});
  return *document;
}

const OutlineRow& OutlinerScriptObject::GetRow(const ScriptValue& inIndex) {
  const auto& lines = GetOutline().GetTree().GetLines();
  const int index = IntegerOf(inIndex);
  if (index < 0 || static_cast<std::size_t>(index) >= lines.size()) {
    Fail("$$$/outliner/Script/NoRow=there is no row @0 in an outline of @1 rows",
         {NumberText(index), NumberText(static_cast<int>(lines.size()))});
  }
  return *lines[static_cast<std::size_t>(index)];
}

}  // namespace outliner
