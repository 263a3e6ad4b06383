// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QWidget>
#include <cstdlib>
#include <functional>
#include <sstream>
#include <thread>

#include "UITest.h"
#include "lumui/dialogs/ChoiceDialog.h"
#include "lumui/dialogs/FileDialog.h"
#include "lumui/dialogs/MessageDialog.h"
#include "lumui/dialogs/SystemMessageBox.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/InputCapture.h"
#include "lumui/utility/ksv/KeyboardShape.h"
#include "support/RealInput.h"

// The same road with a real window system and a window manager at its other end: input comes from
// another process.
namespace lumui::test {

namespace {

const auto RunUntil = &test_support::RealInput::RunUntil;
using ui::KeyboardCode;

int sCloses = 0;

void RefuseClose(ui::OS_Event* ioEvent) {
  if (ioEvent->message != ui::kMessageClose) return;
  ++sCloses;
  ioEvent->result = 0;
}

class DragCapture : public ui::InputCapture {
 public:
  DragCapture(ui::UI_Node* inNode, std::function<void(const std::string&)> inLog)
      : InputCapture(inNode), mLog(std::move(inLog)) {}
  void DoEnd() override { mLog(HasBeenCancelled() ? "cancelled" : "ended"); }
  bool DoMouseEvent(const ui::MouseEvent& inEvent) override {
    if (inEvent.GetAction() != ui::PointerEvent::kActionRelease) return true;
    std::ostringstream text;
    text << "dropped@" << inEvent.GetPosition().x << "," << inEvent.GetPosition().y;
    mLog(text.str());
    ui::UI_NodeManager::Get(true)->EndInputCapture(false);
    return true;
  }

 private:
  std::function<void(const std::string&)> mLog;
};

class RealDisplay : public UITest {
 protected:
  // A window of 200 by 100 with a node at (10, 10), in front and with the keyboard.
  RealDisplay() {
    mNode = new RecordingNode("node", [this](const std::string& inWord) {
      if (inWord != "node:down(12)" && inWord != "node:up(12)") Log(inWord);
    });
    mNode->UI_SetLocalRectF(Rect(10, 10, 100, 60));
    mNode->mTakes = true;
    mNode->UI_SetWantsKeyboardFocus(true);  // dead keys are composed where text is wanted
    mNode->mOnKey = [this](const ui::KeyboardEvent& inEvent) {
      if (IsLastKey(inEvent) && inEvent.IsActionKeyUp()) App().Quit();
    };
    mWindow = new ui::OS_Window(&RefuseClose);
    mWindow->UI_SetLocalRectF(Rect(300, 200, 200, 100));
    mWindow->UI_AddChild(mNode);
    mNode->UI_SetKeyboardFocus(ui::kFocusOther);
    Activate();
    TakeLog();
  }

  void Activate() {
    mWindow->UI_Activate();
    const test_support::RealInput input(*mWindow, kPlace, kPlace);
    RunUntil([this] { return mWindow->UI_IsActive(); });
  }

  // Runs the tool that sends input, with a last key behind, and our loop until that key has come.
  void Send(const std::string& inActions) {
    std::thread tool([&] {
      const std::string command = "xdotool " + inActions + " key F12";
      if (std::system(command.c_str()) != 0) App().Quit(1);
    });
    EXPECT_EQ(App().Run(), 0);
    tool.join();
  }
  // A window manager that looks at clicks first may pass them on behind the last key: what has come
  // is judged when it is complete or when it has gone wrong.
  std::string Sent(const std::string& inActions, const std::string& inExpected) {
    Send(inActions);
    std::string log = TakeLog();
    RunUntil([&] {
      const std::string more = TakeLog();
      if (!more.empty()) log += (log.empty() ? "" : " ") + more;
      return log.size() >= inExpected.size() || inExpected.compare(0, log.size(), log) != 0;
    });
    return log;
  }
  void ExpectLog(const std::string& inActions, const std::string& inExpected) {
    EXPECT_EQ(Sent(inActions, inExpected), inExpected) << inActions;
  }
  std::string At(int inX, int inY) {
    const Rect& place = mWindow->UI_GetLocalRectF();
    return "mousemove " + std::to_string(static_cast<int>(place.x) + inX) + " " +
           std::to_string(static_cast<int>(place.y) + inY);
  }

  // What a layout makes of keys, which are sent by their places: the readings of each press,
  // "CS+7|C+/", and what was typed, "'/'".
  std::string KeysOf(const std::string& inLayout, const std::string& inActions) {
    if (inLayout != mLayout) {
      EXPECT_EQ(std::system(("setxkbmap " + inLayout).c_str()), 0);
      mLayout = inLayout;
    }
    std::string keys;
    const auto quitAtLastKey = mNode->mOnKey;
    mNode->mOnKey = [&](const ui::KeyboardEvent& inEvent) {
      if (!IsLastKey(inEvent)) keys += Describe(inEvent);
      quitAtLastKey(inEvent);
    };
    Send(inActions);
    mNode->mOnKey = quitAtLastKey;
    return keys.substr(0, keys.find_last_not_of(' ') + 1);
  }
  static bool IsLastKey(const ui::KeyboardEvent& inEvent) {
    return inEvent.GetCode() == KeyboardCode(0x12);
  }
  static std::string Name(KeyboardCode inCode) {
    std::ostringstream name;
    if (inCode.IsPrintable()) {
      const lumcore::UTF16String character(1, inCode.GetCharacter());
      name << (inCode.IsExtended() ? "pad" : "") << Text(lumcore::utility::ToUTF8(character));
    } else {
      name << "#" << std::hex << inCode.GetValue(true);
    }
    return name.str();
  }
  static std::string Describe(const ui::KeyboardEvent& inEvent) {
    if (inEvent.GetNumCharacters() == 1) return "'" + Name(inEvent.GetCode()) + "' ";
    const unsigned control = inEvent.GetCode().GetControlCode(false);
    const bool modifier = control >= KeyboardCode::kNumLock && control <= KeyboardCode::kSystemKey;
    if (!inEvent.IsActionKeyDown() || modifier) return "";
    std::string readings;
    ui::OfferReadings(inEvent, [&](const ui::KeyboardEvent& inReading) {
      const ui::ModifierKeys held = inReading.GetModKey();
      const std::string modifiers = std::string(held.Has(ui::kModCommand) ? "C" : "") +
                                    (held.Has(ui::kModShift) ? "S" : "") +
                                    (held.Has(ui::kModAlt) ? "A" : "");
      readings += (readings.empty() ? "" : "|") + modifiers + (modifiers.empty() ? "" : "+") +
                  Name(inReading.GetCode());
      return false;
    });
    return readings + " ";
  }

  static constexpr int kPlace = 90;  // in the window, and not over the node
  std::string mLayout = "us";
  boost::intrusive_ptr<ui::OS_Window> mWindow;
  boost::intrusive_ptr<RecordingNode> mNode;
};

}  // namespace

TEST_F(RealDisplay, KeysComeOnceAndAreNamedByTheirCaps) {
  EXPECT_FALSE(App().IsHeadless());
  ExpectLog("key e", "node:down(80000045) node:char(80000065) node:up(80000045)");
  ExpectLog("keydown shift keydown 1 keyup 1 keyup shift",
            "node:down(32+2) node:down(80000031+2) node:char(80000021+2) node:up(80000031+2) "
            "node:up(32)");
  ExpectLog("keydown ctrl keydown c keyup c keyup ctrl",
            "node:down(31+4) node:down(80000043+4) node:up(80000043+4) node:up(31)");
  ExpectLog("key KP_Add key KP_Left key Left",
            "node:down(c000002b) node:char(8000002b) node:up(c000002b) node:down(4000002a) "
            "node:up(4000002a) node:down(2a) node:up(2a)");
}

// In a loop that waits and reads the server's events one by one, and in one that never does.
TEST_F(RealDisplay, HeldKeyGoesDownAndUpOnceAndRepeatsInBetween) {
  std::string keys;
  int presses = 0;
  int repeats = 0;
  const auto quitAtLastKey = mNode->mOnKey;
  mNode->mOnKey = [&](const ui::KeyboardEvent& inEvent) {
    if (inEvent.GetNumCharacters() == 0 && !IsLastKey(inEvent) && !inEvent.IsRepeat()) {
      keys += inEvent.IsActionKeyDown() ? "down " : "up ";
    }
    if (inEvent.IsRepeat()) ++repeats;
    // By presses, so that the key is let go whatever they are taken for.
    if (inEvent.IsActionKeyDown() && !IsLastKey(inEvent) && ++presses == 13) {
      EXPECT_EQ(std::system("xdotool keyup e key F12"), 0);
    }
    quitAtLastKey(inEvent);
  };
  for (const bool busy : {false, true}) {
    if (busy) App().SetIdleFunction([this] { Manager().GetExecutor()->Post([] {}); });
    keys.clear();
    repeats = presses = 0;
    EXPECT_EQ(std::system("xdotool keydown e"), 0);
    EXPECT_EQ(App().Run(), 0);
    EXPECT_EQ(keys, "down up ") << busy;
    EXPECT_GE(repeats, 12) << busy;
  }
}

// A key that closes a window and is held does not close the next one as well.
TEST_F(RealDisplay, KeyGoesOnRepeatingInTheNextWindow) {
  auto* const closer = new RecordingNode("closer", [](const std::string&) {});
  const boost::intrusive_ptr<ui::OS_Window> first = std::exchange(mWindow, new ui::OS_Window);
  mWindow->UI_SetLocalRectF(Rect(50, 50, 200, 100));
  mWindow->UI_AddChild(closer);
  closer->UI_SetWantsKeyboardFocus(true);
  closer->UI_SetKeyboardFocus(ui::kFocusOther);
  Activate();
  closer->mOnKey = [&](const ui::KeyboardEvent&) { mWindow->UI_Show(false); };
  std::string keys;
  const auto quitAtLastKey = mNode->mOnKey;
  mNode->mOnKey = [&](const ui::KeyboardEvent& inEvent) {
    if (keys.empty()) {
      EXPECT_EQ(std::system("xdotool keyup e key F12"), 0);
    }
    if (inEvent.IsActionKeyDown() && !IsLastKey(inEvent)) keys += inEvent.IsRepeat() ? "r" : "d";
    quitAtLastKey(inEvent);
  };
  EXPECT_EQ(std::system("xdotool keydown e"), 0);
  EXPECT_EQ(App().Run(), 0);
  EXPECT_EQ(keys, std::string(keys.size(), 'r'));
  EXPECT_NE(keys, "");
}

// The numbers are the places: 24, 38 and 52 are Q, A and Z of a Latin keyboard, 10 and 16 its 1 and
// 7, 61 its slash, 91 the number pad's dot.
TEST_F(RealDisplay, KeysHaveTheReadingsOfTheirLayout) {
  const std::string ctrl = "keydown ctrl ";
  const std::string ctrlShift = "keydown ctrl keydown shift ";
  const std::string ctrlUp = " keyup ctrl ";
  const std::string ctrlShiftUp = " keyup shift keyup ctrl ";
  const struct {
    const char* layout;
    std::string actions;
    const char* keys;
  } kRows[] = {
      {"us", ctrlShift + "key 52 key 21" + ctrlShiftUp, "CS+Z CS+=|C++"},
      {"us", "key Caps_Lock key 52 " + ctrl + "key 52" + ctrlUp + "key Caps_Lock", "Z 'Z' C+Z"},
      {"us", "keydown shift key 10 keyup shift key 61", "S+1|! '!' / '/'"},
      {"us", "key 83 keydown shift key 83 keyup shift", "#4000002a S+#4000002a"},
      {"us", "key Num_Lock key 83 keydown shift key 83 keyup shift key Num_Lock",
       "pad4 '4' #4000002a"},
      {"us", "keydown ctrl keydown alt key 10 key 24 keyup alt keyup ctrl", "CA+1 CA+Q"},
      {"ru", "key 52 " + ctrl + "key 52 key 61" + ctrlUp, "Я|Z 'я' C+Я|C+Z C+.|C+/"},
      {"ru", ctrlShift + "key 52 key 61 key 10" + ctrlShiftUp, "CS+Я|CS+Z CS+.|CS+/|C+, CS+1|C+!"},
      {"gr", ctrl + "key 24 key 38" + ctrlUp, "C+;|C+Q C+Α|C+A"},
      {"il", ctrl + "key 24 key 25 key 47" + ctrlUp, "C+/|C+Q C+'|C+W C+ף|C+;"},
      {"de", ctrlShift + "key 16 key 52" + ctrlShiftUp, "CS+7|C+/ CS+Y"},
      {"de", ctrl + "key 47 key 61" + ctrlUp + "keydown 108 key 24 key 16 keyup 108",
       "C+Ö C+- @ '@' { '{'"},
      {"de", "key Num_Lock key 91 key Num_Lock", "pad,|pad. ','"},
      {"fr", ctrl + "key 10 key 24 key 58" + ctrlUp, "C+&|C+1 C+A C+,"},
      {"fr", ctrlShift + "key 10" + ctrlShiftUp, "CS+&|CS+1|C+1"},
      {"cz", ctrl + "key 11 key 29" + ctrlUp, "C+Ě|C+2 C+Z"},
      {"us -variant dvorak", ctrl + "key 24 key 25" + ctrlUp, "C+' C+,"},
      // Dead keys: the accent and the letter become one character, and no key comes of the accent.
      {"us -variant intl", "key 48 key 26", "'é'"},
      // The user's own Latin layout says where its keys are.
      {"ru,fr", ctrl + "key 52" + ctrlUp, "C+Я|C+W"},
  };
  for (const auto& row : kRows)
    EXPECT_EQ(KeysOf(row.layout, row.actions), row.keys) << row.layout << ": " << row.actions;
  KeysOf("us", "");
}

// The row below the digits and its neighbours to the right, "~" before keys that no command can
// have, and the key beside the left Shift, which not every form has.
TEST_F(RealDisplay, DrawnKeyboardsHaveTheCapsOfTheLayout) {
  using namespace utility::ksv;
  const struct {
    const char* layout;
    const char* caps;
  } kRows[] = {
      {"de", "ISO QWERTZUIOPÜ+ ~^ <"},
      {"fr", "ISO AZERTYUIOP~^$ ² <"},
      {"ru", "ISO ЙЦУКЕНГШЩЗХЪ Ё /"},
      {"us", "ANSI QWERTYUIOP[] ` "},
  };
  for (const auto& row : kRows) {
    KeysOf(row.layout, "");
    const bool iso = GetLikelyForm() == KeyboardForm::kISO;
    std::string letters;
    std::string first;
    std::string beside;
    for (const KeyShape& key : MakeKeyboard(GetLikelyForm())) {
      const std::string mark = key.code == KeyboardCode() ? "~" : "";
      const std::string cap = mark + Text(lumcore::utility::ToUTF8(key.cap));
      if (key.rect.y == 2.5f && key.rect.x >= 1.5f && key.rect.x < 13.5f) letters += cap;
      if (key.rect.y == 1.5f && key.rect.x == 0) first = cap;
      if (key.rect.y == 4.5f && key.rect.x == 1.25f) beside = cap;
    }
    EXPECT_EQ((iso ? "ISO " : "ANSI ") + letters + " " + first + " " + beside, row.caps);
  }
}

TEST_F(RealDisplay, ClicksWheelsAndDragsComeOnce) {
  ExpectLog(At(30, 30) + " click 1", "node:press@20,20 node:release@20,20");
  ExpectLog(At(31, 30) + " click --repeat 2 --delay 20 3",
            "node:press@21,20 node:release@21,20 node:press2@21,20 node:release@21,20");
  ExpectLog(At(30, 31) + " click 5", "node:wheel(0,1)@20,21");
  mNode->mOnMouse = [this](const ui::MouseEvent& inEvent) {
    if (inEvent.GetAction() != ui::PointerEvent::kActionPress) return;
    Manager().BeginInputCapture(
        new DragCapture(mNode.get(), [this](const std::string& inWord) { Log(inWord); }));
  };
  ExpectLog(At(30, 30) + " mousedown 1 " + At(60, 40) + " " + At(-100, -90) + " mouseup 1",
            "node:press@20,20 dropped@-110,-100 ended");
}

TEST_F(RealDisplay, WindowManagersCloseIsARequest) {
  sCloses = 0;
  Send("key alt+F4");
  RunUntil([] { return sCloses != 0; });
  EXPECT_EQ(sCloses, 1);
  EXPECT_NE(mWindow->UI_GetHandle(), nullptr);
}

// Nobody answers any of them.
TEST_F(RealDisplay, QuitCancelsWhateverDialogIsOpen) {
  std::string answers;
  const auto note = [&](int inAnswer) { answers += std::to_string(inAnswer) + " "; };
  const auto quitIn = [this](const std::function<void()>& inDialog) {
    Manager().GetExecutor()->Post(inDialog);
    Manager().GetExecutor()->Post([this] { App().Quit(); });
    App().Run();
  };
  dialogs::MessageDialogArgs args;
  args.text = U16("Save it?");
  args.buttons = {U16("Yes"), U16("No"), U16("Cancel")};
  args.defaultButton = 1;
  const auto ask = [&] { note(dialogs::RunMessageDialog(args)); };
  quitIn(ask);
  args.quitButton = 0;
  quitIn(ask);
  args.cancelButton = 2;
  quitIn(ask);
  quitIn([&] {
    note(dialogs::ShowSystemMessageBox(nullptr, U16("Replace it?"), U16(""), dialogs::kBoxYesNo));
  });
  quitIn([&] { note(static_cast<int>(dialogs::RunFileDialog({}).size())); });
  dialogs::ChoiceDialogArgs choice;
  choice.items = {U16("a"), U16("b")};
  quitIn([&] { note(dialogs::RunChoiceDialog(choice)); });
  EXPECT_EQ(std::exchange(answers, ""), "1 0 2 " + std::to_string(dialogs::kResultNo) + " 0 -1 ");
  // The innermost of several, and those behind it.
  quitIn([&] {
    Manager().GetExecutor()->Post(ask);
    ask();
  });
  EXPECT_EQ(answers, "2 2 ");
}

TEST_F(RealDisplay, QuitCancelsTheQuestionWhetherToReplaceAFile) {
  dialogs::FileDialogArgs args;
  args.kind = dialogs::FileDialogArgs::kSave;
  args.initialPath = U16(QCoreApplication::applicationFilePath().toStdString());
  lumcore::UTF16String path = U16("?");
  Manager().GetExecutor()->Post([&] { path = dialogs::RunFileDialog(args); });
  Manager().GetExecutor()->Post([&] {
    QWidget* const dialog = QApplication::activeModalWidget();
    ASSERT_NE(dialog, nullptr);
    Manager().GetExecutor()->Post([this, dialog] {
      EXPECT_NE(QApplication::activeModalWidget(), dialog) << "the question";
      App().Quit();
    });
    QMetaObject::invokeMethod(dialog, "accept");
  });
  App().Run();
  EXPECT_EQ(path, U16(""));
}

}  // namespace lumui::test
