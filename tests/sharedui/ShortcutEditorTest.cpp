// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/ShortcutEditor.h"

#include <deque>
#include <functional>
#include <memory>

#include "sharedui/ShortcutFixture.h"
#include "vek/sharedui/ShortcutEditorView.h"

namespace vek::test {

namespace {

using lumui::ui::KeyboardCode;
using lumui::ui::ModifierKeys;
using sharedui::ShortcutEditor;
using uisupport::KeyCommand;

// A popup, and a user who has the answers ready. What is told and asked stands in the log.
class ScriptedView : public sharedui::ShortcutEditorView {
 public:
  std::vector<lumcore::UTF16String> mItems;
  int mIndex = -1;
  std::string mText;
  std::deque<Answer> mAnswers;
  std::deque<std::string> mNames;  // an empty one cancels
  std::string mLog;
  std::string mWarning;

  void SetSetItems(const std::vector<lumcore::UTF16String>& inItems) override { mItems = inItems; }
  int GetSetIndex() const override { return mIndex; }
  void ChooseSet(int inIndex) override {
    mIndex = inIndex;
    mText = inIndex < 0 ? "" : U8(mItems.at(static_cast<std::size_t>(inIndex)));
  }
  void ShowSetText(const lumcore::UTF16String& inText) override { mText = U8(inText); }
  void Tell(const lumcore::UTF16String& inText) override { Log("tell " + U8(inText)); }
  Answer Ask(const lumcore::UTF16String& inText, bool inMayCancel) override {
    Log("ask" + std::string(inMayCancel ? "3 " : "2 ") + U8(inText).substr(0, 12));
    const Answer answer = mAnswers.at(0);
    mAnswers.pop_front();
    return answer;
  }
  bool AskName(lumcore::UTF16String& ioName) override {
    Log("name " + U8(ioName));
    const std::string name = mNames.at(0);
    mNames.pop_front();
    if (name.empty()) return false;
    ioName = U16(name);
    return true;
  }
  void SetWarningText(const lumcore::UTF16String& inText) override { mWarning = U8(inText); }
  void UpdateButtons() override {}
  void CommandChanged(int) override {}
  void AllCommandsChanged() override {}
  void RebuildField() override {}

  std::string TakeLog() { return std::exchange(mLog, std::string()); }

 private:
  void Log(const std::string& inWord) { mLog += (mLog.empty() ? "" : "; ") + inWord; }
};

using Answer = ScriptedView::Answer;

KeyboardCode Letter(char inLetter) {
  return KeyboardCode::CreateFromKeyboardChar(static_cast<unsigned char>(inLetter), false);
}

class ShortcutEditing : public ShortcutFixture {
 protected:
  ShortcutEditing() {
    auto& manager = KeyMap();
    mOnChanged.reset(new boost::function<void(int)>([this](int inWhat) { mTold += inWhat; }));
    manager.AddKeyMappingsChangedCallback(mOnChanged);
  }
  ~ShortcutEditing() override { mOnChanged->clear(); }

  void Open(const char* inSet) {
    mEditor = std::make_unique<ShortcutEditor>(U16(inSet), Bytes(kDefaultMap), mView);
    mEditor->Open();
  }
  static KeyCommand Key(int inCommand, char inLetter, unsigned char inModifiers = 0) {
    return KeyCommand(inCommand, inLetter ? Letter(inLetter) : KeyboardCode(),
                      ModifierKeys(inModifiers), lumui::ui::KeyboardEvent::kActionKeyDown, false,
                      false);
  }
  bool Assign(KeyCommand inOld, char inLetter, unsigned char inModifiers = 0) {
    const bool isNew = inOld.GetKeyboardCode() == KeyboardCode();
    return mEditor->AssignKey(inOld, isNew, Letter(inLetter), ModifierKeys(inModifiers));
  }
  void Choose(int inIndex) {
    mView.ChooseSet(inIndex);
    mEditor->SetChosen();
  }
  // The popup, what its index is, and under which name the set would be kept.
  std::string State() const {
    return mView.mText + " #" + std::to_string(mView.mIndex) + " " +
           U8(mEditor->GetCurrentShortcutSetName());
  }

  ScriptedView mView;
  std::unique_ptr<ShortcutEditor> mEditor;
  boost::shared_ptr<boost::function<void(int)>> mOnChanged;
  int mTold = 0;
};

constexpr const char* kReserved = "tell The selected shortcut is reserved and cannot be used.";

}  // namespace

TEST_F(ShortcutEditing, EachEditAndItsUndo) {
  struct Case {
    const char* what;
    std::function<void()> edit;
    std::string keys;
    std::string undone;
    int gotoCommand;
  };
  KeyCommand protectedKey(4, KeyboardCode(7), ModifierKeys(),
                          lumui::ui::KeyboardEvent::kActionKeyDown, false, true);
  const std::string same = kDefaultKeys;
  const std::vector<Case> cases = {
      {"a new key, with the other platform's modifier", [&] { Assign(Key(1, 0), 'K', 8 | 2); },
       same + " 1:Shift+K", same, -1},
      {"a new key of a repeatable command", [&] { Assign(Key(2, 0), 'K'); }, same + " 2:K 2:K~",
       same, -1},
      {"a new key from another", [&] { Assign(Key(1, 0), 'I'); },
       "1:Ctrl+X 2:Ctrl+C 2:Ctrl+C~ 3:J 4:F1! 1:I", "1:Ctrl+X 2:Ctrl+C 2:Ctrl+C~ 3:J 4:F1! 3:I", 3},
      {"from one that holds it as well", [&] { Assign(Key(1, 0), 'C', 4); },
       "1:Ctrl+X 3:I 3:J 4:F1! 1:Ctrl+C", "1:Ctrl+X 3:I 3:J 4:F1! 2:Ctrl+C 2:Ctrl+C~", 2},
      {"another key", [&] { Assign(Key(2, 'C', 4), 'K', 16); },
       "1:Ctrl+X 3:I 3:J 4:F1! 2:Alt+K 2:Alt+K~", "1:Ctrl+X 3:I 3:J 4:F1! 2:Ctrl+C 2:Ctrl+C~", -1},
      {"another key from another", [&] { Assign(Key(3, 'J'), 'X', 4); },
       "2:Ctrl+C 2:Ctrl+C~ 3:I 4:F1! 3:Ctrl+X", "2:Ctrl+C 2:Ctrl+C~ 3:I 4:F1! 3:J 1:Ctrl+X", 1},
      {"removed, and its hold mapping stays", [&] { mEditor->RemoveKey(Key(2, 'C', 4)); },
       "1:Ctrl+X 2:Ctrl+C~ 3:I 3:J 4:F1!", "1:Ctrl+X 3:I 3:J 4:F1! 2:Ctrl+C 2:Ctrl+C~", -1},
      {"all removed",
       [&] {
         mEditor->RemoveKeys({Key(3, 'I'), Key(3, 'J')});
       },
       "1:Ctrl+X 2:Ctrl+C 2:Ctrl+C~ 4:F1!", "1:Ctrl+X 2:Ctrl+C 2:Ctrl+C~ 4:F1! 3:I 3:J", -1},
      {"all but the protected one",
       [&] {
         mEditor->RemoveKeys({Key(4, 'P'), protectedKey});
       },
       same, same + " 4:P", -1},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.what);
    KeyMap().LoadKeyMappingsFromBuffer(Bytes(kDefaultMap));
    Open("");
    EXPECT_EQ(State(), "Default Set (read-only) #0 ");
    row.edit();
    EXPECT_EQ(Keys(), row.keys);
    EXPECT_EQ(State(), "(Custom) #-1 (Custom)");
    EXPECT_EQ(mEditor->GetGotoCommand(), row.gotoCommand);
    EXPECT_TRUE(mEditor->CanUndo());
    mEditor->Undo();
    EXPECT_EQ(Keys(), row.undone);
    EXPECT_EQ(mEditor->GetGotoCommand(), -1);
    EXPECT_FALSE(mEditor->CanUndo());
    mEditor->Undo();
    EXPECT_EQ(Keys(), row.undone);
    EXPECT_EQ(State(), "(Custom) #-1 (Custom)");
  }
  EXPECT_EQ(mView.mLog, "");
  Open("");
  Assign(Key(1, 0), 'I');
  EXPECT_EQ(mView.mWarning,
            "The shortcut \"I\" was already in use for command \"View > Zoom.In\".  It has been "
            "removed from that command.");
}

TEST_F(ShortcutEditing, WhatIsRefusedChangesNothing) {
  Open("");
  Assign(Key(1, 0), 'I');
  const std::string keys = Keys();
  const auto refused = [&](bool inDone) {
    EXPECT_FALSE(inDone);
    EXPECT_EQ(Keys(), keys);
    return mView.TakeLog();
  };
  KeyCommand protectedKey(4, KeyboardCode(7), ModifierKeys(),
                          lumui::ui::KeyboardEvent::kActionKeyDown, false, true);
  KeyCommand bubble = Key(1, 'X', 4);
  EXPECT_EQ(refused(mEditor->AssignKey(bubble, false, KeyboardCode(7), ModifierKeys())), kReserved);
  EXPECT_EQ(bubble.GetKeyboardCode(), Letter('X'));
  // The warning of the edit before is gone all the same.
  EXPECT_EQ(mEditor->GetGotoCommand(), -1);
  EXPECT_EQ(refused(Assign(protectedKey, 'K')), kReserved);
  EXPECT_EQ(refused(mEditor->RemoveKey(protectedKey)), kReserved);
  EXPECT_EQ(refused(mEditor->RemoveKeys({protectedKey})), "");
  EXPECT_EQ(refused(Assign(Key(3, 0), 'J')), "");
  EXPECT_EQ(refused(mEditor->AssignKey(bubble, false, KeyboardCode(), ModifierKeys())), "");
  // The edit before can still be undone.
  mEditor->Undo();
  EXPECT_EQ(Keys(), "1:Ctrl+X 2:Ctrl+C 2:Ctrl+C~ 3:J 4:F1! 3:I");
  const std::string words = WordsOf([&] { Assign(Key(99, 0), 'Q'); });
  EXPECT_EQ(words, "An input contract violation has occurred!");
}

TEST_F(ShortcutEditing, SetsOpenAsTheirFilesAre) {
  WriteSet("Mine", Mapping("Cut", "M"));
  WriteSet("Later", Mapping("Cut", "L"));
  for (const char* other : {"notes.txt", "UPPER.XML", ".xml"}) {
    lumcore::filesupport::File(mFolder.GetPath("Shortcuts/" + std::string(other)))
        .ReplaceContents("no map");
  }
  Open("Mine");
  EXPECT_EQ(State() + " " + Keys(), "Mine #2 Mine 1:M");
  EXPECT_EQ(mView.mItems.size(), 3u);
  Open("Gone");
  EXPECT_EQ(State() + " " + Keys(), "Default Set (read-only) #0 Gone " + std::string(kDefaultKeys));
  Open("(Custom)");
  EXPECT_EQ(State(), "Default Set (read-only) #0 (Custom)");
  WriteSet("(Custom)", Mapping("Cut", "U"));
  Open("(Custom)");
  EXPECT_EQ(State() + " " + Keys(), "(Custom) #-1 (Custom) 1:U");
  EXPECT_EQ(mView.mItems.size(), 3u);
  // A new edit of it is one that has not been saved.
  Assign(Key(1, 0), 'V');
  mEditor->Finish(true);
  EXPECT_EQ(KeysIn(PathOf("(Custom)")), "1:U 1:V");
}

TEST_F(ShortcutEditing, OKKeepsAndCancelPutsBack) {
  struct Case {
    const char* set;
    bool edit;
    bool ok;
    std::string files;
    std::string keys;
    std::string name;
    int told;
  };
  const std::string defaults = kDefaultKeys;
  const std::vector<Case> cases = {
      {"", false, true, "Mine=1:M", defaults, "", 0},
      {"", true, true, "(Custom)=" + defaults + " 1:K | Mine=1:M", defaults + " 1:K", "(Custom)",
       -1},
      {"", true, false, "Mine=1:M", defaults, "(Custom)", 0},
      {"Mine", false, true, "Mine=1:M", "1:M", "Mine", -1},
      {"Mine", true, true, "Mine=1:M 1:K", "1:M 1:K", "Mine", -1},
      // What was in force before the dialog is what the set's file gets.
      {"Mine", true, false, "Mine=" + defaults, defaults, "(Custom)", -1},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(std::string(row.set) + (row.edit ? " edited" : "") + (row.ok ? " OK" : ""));
    lumcore::filesupport::File(PathOf("(Custom)")).Remove();
    WriteSet("Mine", Mapping("Cut", "M"));
    KeyMap().LoadKeyMappingsFromBuffer(Bytes(kDefaultMap));
    mTold = 0;
    Open(row.set);
    if (row.edit) Assign(Key(1, 0), 'K');
    mEditor->Finish(row.ok);
    EXPECT_EQ(Keys(), row.keys);
    EXPECT_EQ(Files(), row.files);
    EXPECT_EQ(mTold, row.told);
    EXPECT_EQ(U8(mEditor->GetCurrentShortcutSetName()), row.name);
  }
  // Another set than at the start is chosen: the file of the first one gets its keys back.
  WriteSet("Other", Mapping("Cut", "O"));
  KeyMap().LoadKeyMappings(lumcore::filesupport::File(PathOf("Mine")));
  Open("Mine");
  Choose(0);
  Assign(Key(1, 0), 'K');
  mEditor->Finish(false);
  EXPECT_EQ(Files(), "Mine=" + defaults + " | Other=1:O");
}

TEST_F(ShortcutEditing, ChangingTheSetAsksWhatBecomesOfAnEdit) {
  WriteSet("A", Mapping("Cut", "A"));
  WriteSet("B", Mapping("Cut", "B"));
  Open("A");
  Choose(2);
  EXPECT_EQ(State() + " " + Keys(), "B #2 B 1:B");
  EXPECT_EQ(mView.TakeLog(), "");
  Assign(Key(1, 0), 'K');
  EXPECT_EQ(State(), "B * #2 (Custom)");
  mView.mAnswers = {Answer::kCancel};
  Choose(1);
  EXPECT_EQ(State() + " " + Keys() + " " + mView.TakeLog(),
            "B * #2 (Custom) 1:B 1:K ask3 Do you want ");
  mView.mAnswers = {Answer::kYes};
  Choose(1);
  EXPECT_EQ(State() + " " + Keys(), "A #1 A 1:A");
  EXPECT_EQ(Files(), "A=1:A | B=1:B 1:K");
  // Only undoing ends what can be undone.
  EXPECT_TRUE(mEditor->CanUndo());
  Assign(Key(1, 0), 'K');
  mView.mAnswers = {Answer::kNo};
  Choose(0);
  EXPECT_EQ(State() + " " + Keys(), "Default Set (read-only) #0  " + std::string(kDefaultKeys));
  EXPECT_EQ(Files(), "A=1:A | B=1:B 1:K");
  // An edit of the default set has no name yet: saving asks for one, and without one all stays.
  Assign(Key(3, 'I'), 'Z');
  mView.TakeLog();
  for (const Answer answer : {Answer::kCancel, Answer::kYes}) {
    mView.mAnswers = {answer};
    mView.mNames = {""};
    Choose(2);
    EXPECT_EQ(State(), "(Custom) #-1 (Custom)");
  }
  EXPECT_NE(mView.TakeLog().find("name Shortcuts"), std::string::npos);
  mView.mAnswers = {Answer::kYes};
  mView.mNames = {"New"};
  Choose(2);
  // The popup shows the new set by then, and so that one stays.
  const std::string saved = "1:Ctrl+X 2:Ctrl+C 2:Ctrl+C~ 3:J 4:F1! 3:Z";
  EXPECT_EQ(State() + " " + Keys(), "New #3 New " + saved);
  EXPECT_NE(Files().find("New=" + saved), std::string::npos);
}

TEST_F(ShortcutEditing, SavingAsRefusesWhatCanBeNoName) {
  Open("");
  Assign(Key(1, 0), 'K');
  const std::string longest(251, 'n');
  mView.mNames = {"Default Set (read-only)", "(Custom)",    "Mine *", "a/b", "a\\b", "..", ".",
                  std::string("a\0b", 3),    longest + "n", longest};
  std::string expected = "name Shortcuts";
  for (std::size_t i = 0; i + 1 < mView.mNames.size(); ++i) {
    expected +=
        "; tell The name \"" + mView.mNames[i] + "\" is not permitted.; name " + mView.mNames[i];
  }
  EXPECT_TRUE(mEditor->SaveAs());
  EXPECT_EQ(mView.TakeLog(), expected);
  EXPECT_EQ(State(), longest + " #1 " + longest);
  EXPECT_EQ(Files(), longest + "=" + kDefaultKeys + " 1:K");
  // One that is there is replaced if the user says so.
  WriteSet("Mine", Mapping("Cut", "M"));
  Assign(Key(1, 0), 'L');
  for (const Answer answer : {Answer::kNo, Answer::kYes}) {
    EXPECT_EQ(KeysIn(PathOf("Mine")), "1:M");
    mView.mNames = {"Mine"};
    mView.mAnswers = {answer};
    EXPECT_EQ(mEditor->SaveAs(), answer == Answer::kYes);
    EXPECT_EQ(mView.TakeLog(), "name " + longest + "; ask2 A shortcut s");
  }
  EXPECT_EQ(State() + " " + Keys(), "Mine #1 Mine " + KeysIn(PathOf("Mine")));
  // Deleting leaves the default set.
  mView.mAnswers = {Answer::kNo, Answer::kYes};
  mEditor->DeleteSet();
  EXPECT_EQ(State(), "Mine #1 Mine");
  Assign(Key(1, 0), 'Q');
  mEditor->DeleteSet();
  EXPECT_EQ(State() + " " + Keys(), "Default Set (read-only) #0  " + std::string(kDefaultKeys));
  EXPECT_EQ(Files(), longest + "=" + kDefaultKeys + " 1:K");
}

TEST_F(ShortcutEditing, ASetThatCannotBeReadCostsNothing) {
  WriteSet("A", Mapping("Cut", "A"));
  WriteSet("Broken", "<keycmd><cmd>Cut</cmd>");
  const lumcore::UTF8String broken = lumcore::filesupport::File(PathOf("Broken")).ReadAll();
  EXPECT_NE(WordsOf([&] { Open("Broken"); }).find("Broken.xml"), std::string::npos);
  EXPECT_EQ(Keys(), kDefaultKeys);
  Open("A");
  Assign(Key(1, 0), 'K');
  mView.mAnswers = {Answer::kNo};
  EXPECT_NE(WordsOf([&] { Choose(2); }).find("Broken.xml"), std::string::npos);
  EXPECT_EQ(State() + " " + Keys(), "A * #1 (Custom) 1:A 1:K");
  mEditor->Finish(true);
  EXPECT_EQ(KeysIn(PathOf("A")), "1:A 1:K");
  EXPECT_EQ(lumcore::filesupport::File(PathOf("Broken")).ReadAll(), broken);
}

TEST_F(ShortcutEditing, FiltersAndListsTheFourTexts) {
  Open("");
  const auto shown = [&](const char* inText, bool inMatchCase) {
    mEditor->SetFilter(U16(inText), inMatchCase);
    std::string text;
    for (int command = 1; command <= 4; ++command)
      text += mEditor->IsShown(mEditor->GetCaches().Get(command)) ? std::to_string(command) : "";
    return text;
  };
  EXPECT_EQ(shown("", true), "1234");
  EXPECT_EQ(shown("EDIT", false) + " " + shown("EDIT", true), "12 ");
  EXPECT_EQ(shown("zoom.i", false) + " " + shown("I, J", true), "3 3");
  EXPECT_EQ(shown("ctrl+", false) + " " + shown("Sound", true) + " " + shown("play", false),
            "12 4 ");
  Assign(Key(4, 0), 'X', 4);
  EXPECT_EQ(shown("ctrl+x", false), "4");
  EXPECT_EQ(U8(sharedui::MakeShortcutList(mEditor->GetCaches())),
            "Edit\n  Copy\tCtrl+C\n  Cut\t\nView\n  Zoom.In\tI, J\n\n  Play\tF1, Ctrl+X\n");
}

}  // namespace vek::test
