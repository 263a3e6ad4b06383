// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "support/TreeRig.h"

namespace {

using namespace test_support;
using Code = lumui::ui::KeyboardCode;

class TreeKeys : public TreeRig {};

// One row of a table: what is selected, the first of it with the focus, and what a step makes of
// it.
TEST_F(TreeKeys, UpAndDownToggleOnceFromTheFocusAndStopAtTheEnds) {
  const struct {
    const char* selected;
    bool loseFocus;
    const char* down;
    const char* up;
  } kCases[] = {
      {"", false, " a b c d", "toggle:d changed a b c d*"},
      {"b", false, "toggle:bc changed a b c*! d", "toggle:ba changed a*! b c d"},
      {"d", false, "toggle:dd changed a b c d*!", "toggle:dc changed a b c*! d"},
      {"a", false, "toggle:ab changed a b*! c d", "toggle:aa changed a*! b c d"},
      {"d", true, "toggle:dd changed a b c d*", "toggle:dc changed a b c*! d"},
      {"a", true, "toggle:ab changed a b*! c d", "toggle:aa changed a*! b c d"},
      // Of several the focus is gone on from; the row behind it, if selected, stays so.
      {"bad", false, "toggle:abdc changed a b c*! d", "toggle:abda changed a*! b c d"},
      {"bac", false, "toggle:abcc changed a b c*! d", "toggle:abca changed a*! b c d"},
      // Without a focus among them down does nothing, and up goes to the end.
      {"bc", true, " a b* c* d", "toggle:bcd changed a b c d*"},
  };
  for (const bool walks : {false, true}) {
    mWalks = walks;
    Build("a b [c] d");
    for (const auto& [selected, loseFocus, down, up] : kCases) {
      for (const bool isDown : {true, false}) {
        Select(selected);
        if (loseFocus) mTree->SetFocusItem(nullptr, true);
        EXPECT_TRUE(Key(isDown ? Code::kDownArrow : Code::kUpArrow));
        EXPECT_EQ(mLog.Take() + " " + Rows(), isDown ? down : up) << selected;
      }
    }
  }
}

// "c" is at 38 to 57 with its text from 40 to 56, and "d" behind it; the view shows 0 to 60.
TEST_F(TreeKeys, StepsScrollAndDrawTheRowsThatChange) {
  Build("a b [c] d e");
  Select("c");
  Key(Code::kDownArrow);
  EXPECT_EQ(mViewLog.Take(),
            "draw:32,40,7,16 draw:0,0,200,60 draw:32,40,7,16 draw:20,57,11,20 draw:22,59,7,16 "
            "draw:30,38,11,20 pos:0,15! draw:0,59,200,16");
  // Up aligns what it shows to whole heights of the text: from 40 to 32.
  Key(Code::kUpArrow);
  const std::string log = mViewLog.Take();
  EXPECT_NE(log.find("draw:0,32,200,16"), std::string::npos) << log;
  mView.mPosition = tv::Point(5, 40);
  Key(Code::kUpArrow);
  EXPECT_NE(mViewLog.Take().find("pos:5,16! draw:5,16,200,16"), std::string::npos);
}

TEST_F(TreeKeys, OpenAndCloseWhatIsSelectedAndCan) {
  Build("A [b] c [d E [f]] g");
  Select("Acg");
  EXPECT_TRUE(Key(Code::kRightArrow));
  EXPECT_EQ(Rows(), "A*! b c* d E g*");
  EXPECT_TRUE(Key(Code::kLeftArrow));
  EXPECT_EQ(Rows(), "A*! c* g*");
  Select("");
  EXPECT_FALSE(mTree->SelectedHasChildrenExpand());
  mTree->ExpandAll();
  EXPECT_EQ(Rows(), "A b c d E f g");
  EXPECT_FALSE(Key(Code::kPageUp));
  EXPECT_FALSE(Key(Code::kReturn));
}

TEST_F(TreeKeys, HomeAndEndOnlyScrollUpAndDown) {
  Build("a b c d e");
  Select("b");
  mView.mPosition = tv::Point(7, 20);
  EXPECT_TRUE(Key(Code::kHome));
  EXPECT_TRUE(Key(Code::kEnd));
  EXPECT_EQ(mViewLog.Take() + " " + mLog.Take() + Rows(), "pos:7,0! pos:7,35! a b*! c d e");
}

TEST_F(TreeKeys, TypingGoesOnUntilTheTimerOrAKeyEndsIt) {
  LoggedTree& tree = Build("a");
  for (const char* text : {"Alpha", "beta", "Alps"})
    tree.AddNode(nullptr, lumcore::utility::ToUTF16(text));
  tree.ResizeHierarchy();
  mViewLog.Take();
  const auto type = [&](const char* inText) {
    const std::string answers = Type(lumcore::utility::ToUTF16(inText));
    return answers + " " + mLog.Take();
  };
  EXPECT_EQ(type("aLp"), "+++ select:a select:Alpha select:Alpha");
  EXPECT_EQ(type("s"), "+ select:Alps");
  const std::string log = mViewLog.Take();
  EXPECT_EQ(log.find("start0:0.95"), log.rfind("start0:0.95", log.find("stop0")));
  EXPECT_EQ(log.substr(log.size() - 11), "start0:0.95");
  EXPECT_EQ(type("x"), "- ");
  EXPECT_TRUE(Key(Code::kBackspace));
  EXPECT_EQ(mLog.Take(), "select:Alps");
  // Delete only stops the timer.
  mViewLog.Take();
  EXPECT_FALSE(Key(Code::kDelete));
  EXPECT_FALSE(Key(Code::kDelete));
  EXPECT_EQ(mViewLog.Take(), "stop0");
  EXPECT_EQ(type("z"), "- ");
  mTrack.TimerEvent(1000);  // of nobody
  EXPECT_EQ(type("z"), "- ");
  unsigned int timer = 0;
  while (timer < 1000 && !mTrack.TimerEvent(timer))
    ++timer;
  EXPECT_EQ(type("b"), "+ select:beta");
  EXPECT_TRUE(mTrack.TimerEvent(timer));
  EXPECT_FALSE(Key(Code::kBackspace));
  EXPECT_EQ(Rows(), "a Alpha beta*! Alps");
}

// As many units as were typed are folded, and both have to become the same.
TEST_F(TreeKeys, TypingFoldsUnitsOfText) {
  const struct {
    const char16_t* cell;
    const char16_t* typed;
    bool found;
  } kCases[] = {
      {u"ÄRGER", u"är", true},
      {u"A\u0308RGER", u"är", false},  // combining, and what is typed is composed
      {u"A\u0308RGER", u"a\u0308r", true},
      {u"\U00010428x", u"\U00010400", true},  // a pair that folds to another
      {u"\U0001F600", u"\U0001F601", false},
      {u"Straße", u"STRASSE", false},  // seven units against six
      {u"Straße", u"straß", true},
      {u"STRASSE", u"straß", false},  // "stras" against "strass"
      {u"ßx", u"ß", true},
      {u"ssx", u"ß", false},  // "s" against "ss"
      {u"", u"a", false},
      {u"ab", u"abc", false},
  };
  Build("");
  BasicTreeNode* const node = mTree->AddNode(nullptr, lumcore::UTF16String());
  for (const auto& [cell, typed, found] : kCases) {
    const std::u16string c = cell, t = typed;
    node->SetText(lumcore::UTF16String(c.begin(), c.end()));
    EXPECT_EQ(mTree->TypedownClosestMatch(lumcore::UTF16String(t.begin(), t.end())), found)
        << lumcore::utility::ToStdString(node->GetText());
  }
  EXPECT_FALSE(mTree->TypedownClosestMatch(lumcore::UTF16String()));
  // Backspace takes a pair as one.
  const std::u16string smiles = u"\U0001F600\U0001F601";
  node->SetText(lumcore::UTF16String(smiles.begin(), smiles.begin() + 2));
  EXPECT_EQ(Type(lumcore::UTF16String(smiles.begin(), smiles.end())), "++--");
  EXPECT_TRUE(Key(Code::kBackspace));
}

TEST_F(TreeKeys, FocusKeepsItsMarqueeAndItsEntryWhereItIsTakenOut) {
  Build("a b [c]");
  Select("c");
  mTree->SetFocusItem(nullptr, false);
  EXPECT_EQ(Rows(), "a b c*~");
  mTree->SetFocusItem(At('c'), true);
  mNodes.erase('c');
  mTree->RemoveNode(At('b'));
  mTree->ResizeHierarchy();
  EXPECT_EQ(mTree->GetFocusItem(), nullptr);
  // Behind the control's back: the focus keeps the entry alive, and no row is it.
  mTree->SetFocusItem(At('a'), true);
  mNodes.erase('a');
  mTree->SetRootEntry(new vek::hierarchyview::BasicTreeRootNode);
  EXPECT_EQ(NameOf(mTree->GetFocusItem()), "a");
  EXPECT_TRUE(mTree->GetHighlightRect(mTree->GetFocusItem()).IsEmpty());
  mTree->SetFocusItem(nullptr, true);
}

}  // namespace
