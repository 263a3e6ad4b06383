// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QWidget>

#include "UITest.h"
#include "lumui/controls/UI_Checkbox.h"
#include "lumui/controls/UI_PictureButton.h"
#include "lumui/controls/UI_Popup_Combo.h"
#include "lumui/controls/UI_StaticText.h"
#include "lumui/controls/UI_TextEdit.h"

namespace lumui::test {

namespace {

using namespace lumui::controls;
namespace input = lumui::testing;
using ui::KeyboardCode;

KeyboardCode Key(unsigned short inCode) {
  return KeyboardCode::CreateFromControlCode(inCode, false);
}
KeyboardCode Letter(char inLetter) {
  return KeyboardCode::CreateFromKeyboardChar(static_cast<unsigned char>(inLetter), false);
}

class Controls : public UITest {
 protected:
  template <class Control, class... Args>
  boost::intrusive_ptr<Control> Add(const char* inID, const Rect& inRect, Args... inArgs) {
    const boost::intrusive_ptr<Control> control(new Control(inArgs...));
    control->UI_SetNodeID(inID);
    control->UI_SetLocalRectF(inRect);
    mParent->UI_AddChild(control);
    return control;
  }
  // "id=text" for what is told to all, "id*" and the change for the user's alone.
  void Listen(UI_InteractiveControlView& inControl) {
    using Function = UI_InteractiveControlView::ChangedFunction;
    mFunctions.emplace_back(new Function([this](UI_InteractiveControlChangedMessage* inMessage) {
      Log(Text(inMessage->GetControl()->UI_GetNodeID()) + "=" + Shown(*inMessage->GetControl()));
    }));
    inControl.NotifyWhenChanged(mFunctions.back());
    mFunctions.emplace_back(new Function([this](UI_InteractiveControlChangedMessage* inMessage) {
      Log(Text(inMessage->GetControl()->UI_GetNodeID()) + "*" +
          std::to_string(inMessage->GetChange()));
      if (mOnChange) mOnChange(*inMessage);
    }));
    inControl.NotifyWhenChangedInteractively(mFunctions.back());
  }
  static std::string Shown(const ui::UI_Node& inControl) {
    if (const auto* const popup = dynamic_cast<const UI_Popup*>(&inControl)) {
      return std::to_string(popup->GetValue()) +
             lumcore::utility::ToStdString(popup->GetValueString());
    }
    if (const auto* const edit = dynamic_cast<const UI_TextEdit*>(&inControl)) {
      return lumcore::utility::ToStdString(edit->GetText());
    }
    return dynamic_cast<const UI_ControlView&>(inControl).GetDownState() ? "down" : "up";
  }
  void Tap(unsigned short inCode, unsigned char inModifiers = 0) {
    input::TapKey(*mWindow, Key(inCode), ui::ModifierKeys(inModifiers));
  }

  boost::intrusive_ptr<ui::OS_Window> mWindow = MakeWindow();
  boost::intrusive_ptr<RecordingNode> mParent = [this] {
    boost::intrusive_ptr<RecordingNode> parent(
        new RecordingNode("parent", [this](const std::string& inWord) { Log(inWord); }));
    parent->UI_SetLocalRectF(Rect(0, 0, 200, 100));
    mWindow->UI_AddChild(parent);
    return parent;
  }();
  std::vector<boost::shared_ptr<UI_InteractiveControlView::ChangedFunction>> mFunctions;
  std::function<void(UI_InteractiveControlChangedMessage&)> mOnChange;
};

}  // namespace

TEST_F(Controls, ButtonsArePressedByPointerAndKeys) {
  Manager().EnableMnemonics();
  const auto button = Add<UI_TextButton>("button", Rect(0, 0, 60, 20));
  button->SetText(U16("&Go"));
  const auto box = Add<UI_Checkbox>("box", Rect(0, 30, 60, 20));
  const auto fast = Add<UI_TextButton>("fast", Rect(0, 60, 60, 20));
  ButtonOptions options;
  options.notificationOnMouseDown = true;
  fast->SetOptions(options);
  for (UI_Button* one : {static_cast<UI_Button*>(button.get()), static_cast<UI_Button*>(box.get()),
                         static_cast<UI_Button*>(fast.get())}) {
    Listen(*one);
  }
  input::ClickMouse(*mWindow, Point(30, 10));
  EXPECT_EQ(TakeLog(), "button=up button*2");
  EXPECT_FALSE(button->UI_HasKeyboardFocus());
  input::TapKey(*mWindow, Letter('G'), ui::ModifierKeys(ui::kModAlt));
  EXPECT_EQ(TakeLog(), "button=up button*2");
  input::ClickMouse(*mWindow, Point(10, 40));
  EXPECT_EQ(TakeLog(), "box=down box*2");
  // The click has brought the keyboard.
  Tap(KeyboardCode::kSpace);
  EXPECT_EQ(TakeLog(), "box=up box*2");
  input::PressMouse(*mWindow, Point(30, 70));
  EXPECT_EQ(TakeLog(), "fast=up fast*2");
  input::ReleaseMouse(*mWindow, Point(30, 70));
  button->UI_SetKeyboardFocus(ui::kFocusOther);
  Tap(KeyboardCode::kReturn);
  EXPECT_EQ(TakeLog(), "button=up button*2 parent<button:up(4)");
  box->SetDownState(true);
  button->UI_SetEnabled(false);
  mParent->UI_SetDisabled(true);
  button->Press();
  box->Press();
  input::ClickMouse(*mWindow, Point(10, 40));
  EXPECT_EQ(TakeLog(), "");
}

TEST_F(Controls, ListenersMayTakeTheControlAndTheWindowAway) {
  const auto makeField = [&] {
    auto edit = Add<UI_TextEdit>("edit", Rect(0, 0, 90, 20));
    Listen(*edit);
    edit->UI_SetKeyboardFocus(ui::kFocusOther);
    return edit.get();
  };
  UI_TextEdit* const edit = makeField();
  mOnChange = [&](auto&) { mParent->UI_RemoveChild(edit); };
  input::TypeText(*mWindow, U16("x"));
  EXPECT_EQ(mParent->UI_GetChildCount(), 0u);
  const auto combo = Add<UI_Popup_Combo>("combo", Rect(0, 0, 90, 20));
  Listen(*combo);
  combo->UI_SetKeyboardFocus(ui::kFocusOther);
  TakeLog();
  mOnChange = [&](auto&) { mWindow->UI_DestroyWindow(); };
  input::TypeText(*mWindow, U16("y"));
  EXPECT_EQ(TakeLog(), "combo=-1y combo*1 combo=-1y combo*2");
  EXPECT_EQ(mWindow->UI_GetHandle(), nullptr);
}

TEST_F(Controls, TextFieldsKeepTheKeysOfEditing) {
  for (const bool multiLine : {false, true}) {
    const auto edit = Add<UI_TextEdit>("edit", Rect(0, 0, 90, 60), multiLine);
    edit->SetText(U16("ab"));
    edit->UI_SetKeyboardFocus(ui::kFocusOther);
    input::TypeText(*mWindow, U16("c "));
    for (const unsigned short key :
         {KeyboardCode::kLeftArrow, KeyboardCode::kHome, KeyboardCode::kUpArrow,
          KeyboardCode::kLeftArrow, KeyboardCode::kBackspace, KeyboardCode::kEnd,
          KeyboardCode::kDownArrow, KeyboardCode::kDelete, KeyboardCode::kPageDown,
          KeyboardCode::kReturn}) {
      Tap(key);
      Tap(key, ui::kModShift);
    }
    Tap(KeyboardCode::kBackspace, ui::kModCommand);
    for (const char letter : {'A', 'C', 'X', 'V', 'Z'})
      input::TapKey(*mWindow, Letter(letter), ui::ModifierKeys(ui::kModCommand));
    edit->SetReadOnly(true);
    input::TypeText(*mWindow, U16("q"));
    input::TapKey(*mWindow, Letter('V'), ui::ModifierKeys(ui::kModCommand));
    EXPECT_EQ(TakeLog(), "") << multiLine;
    edit->Commit();
    input::TapKey(*mWindow, Letter('S'), ui::ModifierKeys(ui::kModCommand));
    Tap(KeyboardCode::kF1);
    Tap(KeyboardCode::kEscape);
    EXPECT_EQ(TakeLog(),
              "parent<edit:down(80000053+4) parent<edit:up(80000053+4) parent<edit:down(7) "
              "parent<edit:up(7) parent<edit:down(6) parent<edit:up(6)")
        << multiLine;
    mParent->UI_RemoveChild(edit.get());
  }
}

TEST_F(Controls, TextFieldsTellEditsAndCommits) {
  const auto edit = Add<UI_TextEdit>("edit", Rect(0, 0, 90, 20));
  const auto next = Add<UI_TextEdit>("next", Rect(0, 30, 90, 60), true);
  Listen(*edit);
  Listen(*next);
  edit->SetText(U16("one\ntwo"));
  edit->SetSelection(1, 99);
  edit->UI_SetKeyboardFocus(ui::kFocusOther);
  input::TypeText(*mWindow, U16("x"));
  EXPECT_EQ(TakeLog(), "edit=ox edit*1");
  Tap(KeyboardCode::kReturn);
  Tap(KeyboardCode::kReturn);
  EXPECT_EQ(TakeLog(), "edit=ox edit*2");
  input::CommitInputMethodText(*mWindow, U16("日"));
  Tap(KeyboardCode::kEscape);  // and so is not left to the parent
  EXPECT_EQ(TakeLog(), "edit=ox日 edit*1 edit=ox edit*1");
  input::TypeText(*mWindow, U16("y"));
  TakeLog();
  Tap(KeyboardCode::kTab);
  EXPECT_TRUE(next->UI_HasKeyboardFocus());
  EXPECT_EQ(TakeLog(), "edit=oxy edit*2 parent<next:up(3)");
  input::TypeText(*mWindow, U16("a"));
  Tap(KeyboardCode::kReturn);
  Tap(KeyboardCode::kTab);
  EXPECT_EQ(TakeLog(), "next=a next*1 next=a\n next*1 next=a\n next*2 parent<edit:up(3)");
}

TEST_F(Controls, LongTextsAreEditedWhole) {
  const auto edit = Add<UI_TextEdit>("edit", Rect(0, 0, 90, 20));
  edit->SetText(lumcore::UTF16String(50000, 'a'));
  edit->UI_SetKeyboardFocus(ui::kFocusOther);
  input::TypeText(*mWindow, U16("b"));
  EXPECT_EQ(edit->GetText().size(), 50001u);
  Tap(KeyboardCode::kHome);
  Tap(KeyboardCode::kDelete);
  EXPECT_EQ(edit->GetText(), lumcore::UTF16String(49999, 'a') + U16("b"));
}

TEST_F(Controls, APlaceholderThatShowsIsDrawnAnewWhenItChanges) {
  struct PaintCounter : QObject {
    bool eventFilter(QObject*, QEvent* inEvent) override {
      paints += inEvent->type() == QEvent::Paint ? 1 : 0;
      return false;
    }
    int paints = 0;
  };
  for (const bool multiLine : {false, true}) {
    const auto edit = Add<UI_TextEdit>("edit", Rect(0, 0, 90, 60), multiLine);
    edit->SetPlaceholder(U16("nothing"));
    App().PumpPendingEvents();
    PaintCounter counter;
    for (QWidget* const widget : QApplication::allWidgets()) {
      auto* const area = qobject_cast<QPlainTextEdit*>(widget);
      if (area || qobject_cast<QLineEdit*>(widget)) {
        (area ? area->viewport() : widget)->installEventFilter(&counter);
      }
    }
    edit->SetPlaceholder(U16("something"));
    App().PumpPendingEvents();
    EXPECT_GT(counter.paints, 0) << multiLine;
    mParent->UI_RemoveChild(edit.get());
  }
}

TEST_F(Controls, KeepTheirStateWithoutAWindow) {
  const auto edit = Add<UI_TextEdit>("edit", Rect(0, 0, 90, 20));
  const auto popup = Add<UI_Popup>("popup", Rect(0, 20, 90, 20));
  const auto box = Add<UI_Checkbox>("box", Rect(0, 40, 90, 20));
  for (const char* item : {"red", "green", "green"})
    popup->AddItem(U16(item));
  popup->SetValue(2);
  edit->SetText(U16("abcd"));
  edit->UI_SetKeyboardFocus(ui::kFocusOther);
  Tap(KeyboardCode::kLeftArrow, ui::kModShift);
  box->Press();
  mWindow->UI_DestroyWindow();
  edit->SetSelection(2, 99);
  box->Press();
  box->Press();
  mWindow->UI_ConstructWindow(nullptr);
  mWindow->UI_Activate();
  edit->UI_SetKeyboardFocus(ui::kFocusOther);
  input::TypeText(*mWindow, U16("-"));
  Listen(*box);
  Listen(*popup);
  input::ClickMouse(*mWindow, Point(10, 50));
  popup->UI_SetKeyboardFocus(ui::kFocusOther);
  Tap(KeyboardCode::kUpArrow);
  EXPECT_EQ(lumcore::utility::ToStdString(edit->GetText()), "ab-");
  EXPECT_EQ(TakeLog(), "box=up box*2 popup=1green popup*2 parent<popup:up(2c)");
}

TEST_F(Controls, PopupsShowTextsThatAreNoItems) {
  const auto popup = Add<UI_Popup>("popup", Rect(0, 0, 90, 20));
  Listen(*popup);
  popup->SetItems({U16("Alpha"), U16("straße"), U16("Gamma")});
  EXPECT_EQ(popup->FindStringCaseInsensitive(U16("STRASSE")), 1);
  EXPECT_EQ(popup->FindString(U16("alpha")), -1);
  popup->SetValueString(U16("(Custom)"), false);
  popup->SetValueString(U16("Gamma"), true);
  popup->SetValueString(U16("(Custom)"), true);
  EXPECT_EQ(TakeLog(), "popup=2Gamma popup=-1(Custom)");
  popup->UI_SetKeyboardFocus(ui::kFocusOther);
  Tap(KeyboardCode::kDownArrow);
  EXPECT_EQ(TakeLog(), "popup=0Alpha popup*2 parent<popup:up(2d)");
  Tap(KeyboardCode::kEnd);
  TakeLog();
  for (const bool always : {false, true}) {
    popup->SetAlwaysNotify(always);
    Tap(KeyboardCode::kSpace);
    QWidget* const list = QApplication::activePopupWidget();
    ASSERT_NE(list, nullptr);
    input::TapKey(*mWindow, Key(KeyboardCode::kReturn));
    App().PumpPendingEvents();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(TakeLog(), always ? "popup=2Gamma popup*2" : "");
  }
  popup->SetValue(3);
  EXPECT_EQ(Shown(*popup), "-1");
}

TEST_F(Controls, CombosTakeWhatIsTyped) {
  const auto combo = Add<UI_Popup_Combo>("combo", Rect(0, 0, 90, 20));
  Listen(*combo);
  combo->SetItems({U16("report"), U16("notes")});
  combo->SetValue(1);
  combo->UI_SetKeyboardFocus(ui::kFocusTab);
  // As a list of what was typed does it, from within the message.
  mOnChange = [&](UI_InteractiveControlChangedMessage& inMessage) {
    if (inMessage.GetChange() != UI_InteractiveControlChangedMessage::kChanged) return;
    int index = combo->FindStringCaseInsensitive(combo->GetValueString());
    if (index < 0) index = combo->AddItem(combo->GetValueString());
    combo->SetValue(index);
  };
  input::TypeText(*mWindow, U16("RE"));
  Tap(KeyboardCode::kReturn);
  EXPECT_EQ(TakeLog(), "combo=-1R combo*1 combo=-1RE combo*1 combo=-1RE combo*2");
  EXPECT_EQ(Shown(*combo), "2RE");
  Tap(KeyboardCode::kUpArrow);
  EXPECT_EQ(TakeLog(), "combo=1notes combo*2");
  combo->SetEditable(false);
  combo->SetEditable(true);
  EXPECT_EQ(Shown(*combo), "1notes");
  // A button that leaves the keyboard where it is ends the typing all the same.
  const auto button = Add<UI_TextButton>("button", Rect(0, 30, 90, 20));
  Listen(*button);
  input::TypeText(*mWindow, U16("x"));
  TakeLog();
  button->Press();
  EXPECT_EQ(TakeLog(), "combo=-1notesx combo*2 button=up button*2");
}

TEST_F(Controls, HaveNamesForScreenReadersAndAnOrderForTab) {
  Manager().EnableMnemonics();
  const auto label = Add<UI_StaticText>("label", Rect(0, 0, 40, 20));
  label->SetText(U16("Fi&le name:"));
  const auto edit = Add<UI_TextEdit>("edit", Rect(40, 0, 90, 20));
  const auto still = Add<UI_TextButton>("still", Rect(0, 20, 40, 20));
  still->SetText(U16("Save && &close"));
  still->UI_SetWantsKeyboardFocus(false);
  const auto picture = Add<UI_PictureButton>("picture", Rect(40, 20, 20, 20));
  picture->UI_SetToolTip(U16("Clear"));
  const auto text = Add<UI_StaticText>("text", Rect(0, 40, 40, 20));
  const auto popup = Add<UI_Popup>("popup", Rect(40, 40, 60, 20));
  text->SetText(U16("Colour"));
  std::string names;
  for (const auto& [x, y] : {std::pair(5, 5), {60, 5}, {5, 30}, {50, 30}, {60, 50}}) {
    QWidget* const widget = QApplication::activeWindow()->childAt(x, y);
    names += QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).toStdString();
    names += "|";
  }
  EXPECT_EQ(names, "File name|File name|Save & close|Clear|Colour|");
  input::TapKey(*mWindow, Letter('L'), ui::ModifierKeys(ui::kModAlt));
  EXPECT_TRUE(edit->UI_HasKeyboardFocus());
  std::string order;
  for (int i = 0; i < 4; ++i) {
    Tap(KeyboardCode::kTab);
    order += Text(mWindow->UI_GetFocusNode()->UI_GetNodeID()) + " ";
  }
  EXPECT_EQ(order, "picture popup edit picture ");
}

}  // namespace lumui::test
