// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <string>

#include "hosts/OutlineText.h"
#include "hosts/RunningOutliner.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_ScrollView.h"
#include "lumui/testing/SyntheticInput.h"
#include "outliner/OutlineEdits.h"
#include "outliner/OutlinerCommands.h"
#include "vek/uisupport/CommandHandlerBase.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace {

using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using tests::RunningOutliner;
using vek::uisupport::CommandHandlerBase;

TEST(OutlinerGestures, AnOutlineIsTypedAndSavedWithNothingButKeys) {
  RunningOutliner host("");
  host.Type("Trip");
  host.Keys("Ctrl+Return");
  host.Type("Pack & check");
  host.Keys("Return");
  host.Type("Sail");
  host.Keys("Return");
  host.Type("Home");
  host.Keys("Shift+Tab Ctrl+S");
  EXPECT_EQ(host.TakeMessages(), "");
  EXPECT_EQ(host.Show(), "Trip [Pack & check Sail] Home*");
  EXPECT_EQ(host.ReadFile(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<opml version=\"2.0\">\n  <head>\n"
            "    <title/>\n  </head>\n  <body>\n    <outline text=\"Trip\">\n"
            "      <outline text=\"Pack &amp; check\"/>\n      <outline text=\"Sail\"/>\n"
            "    </outline>\n    <outline text=\"Home\"/>\n  </body>\n</opml>\n");
}

TEST(OutlinerGestures, EachKeyDoesItsCommand) {
  const struct {
    const char* keys;
    const char* rows;
  } kCases[] = {
      {"Down", "a* b [c d] e"},
      {"Up", "a b [c d] e*"},
      {"Down Down Down Up", "a b* [c d] e"},
      {"Down Down Tab", "a [b* [c d]] e"},
      {"Down Down Down Shift+Tab", "a b [d] c* e"},
      {"Down Down Ctrl+Up", "b* [c d] a e"},
      {"Down Down Alt+Down", "a e b* [c d]"},
      {"Down Ctrl+Down Alt+Up", "a* b [c d] e"},
      {"Down Down Delete", "a e*"},
      {"Ctrl+A", "a* b* [c* d*] e*"},
      {"Ctrl+A Delete", ""},
      {"Ctrl+A Delete Ctrl+Z", "a* b* [c* d*] e*"},
      {"Down Return", "a -* b [c d] e / |"},
      {"Down Enter", "a -* b [c d] e / |"},
      {"Down Ctrl+Return", "a [-*] b [c d] e / |"},
      {"Down F2", "a* b [c d] e / a|"},
      {"Down Delete Delete Ctrl+Z Ctrl+Z Ctrl+Y", "b* [c d] e"},
      {"Down Delete Delete Ctrl+Z Ctrl+Z Ctrl+Shift+Z Ctrl+Shift+Z", "e*"},
  };
  for (const auto& gesture : kCases) {
    SCOPED_TRACE(gesture.keys);
    RunningOutliner host("a b [c d] e");
    host.Keys(gesture.keys);
    EXPECT_EQ(host.Show(), gesture.rows);
    EXPECT_EQ(host.TakeMessages(), "");
  }
}

TEST(OutlinerGestures, AHeldKeyGoesOnOnlyForCommandsThatRepeat) {
  RunningOutliner host("a b c d e");
  host.HoldKey("Down", 2);
  EXPECT_EQ(host.Show(), "a b c* d e");
  host.HoldKey("Alt+Up", 1);
  EXPECT_EQ(host.Show(), "c* a b d e");
  host.HoldKey("Ctrl+Z", 3);
  EXPECT_EQ(host.Show(), "a b c* d e");
  host.HoldKey("Return", 3);
  EXPECT_EQ(host.Show(), "a b c -* d e / |");
}

TEST(OutlinerGestures, TypingEditsTheSelectedRowInPlace) {
  RunningOutliner host("one two");
  host.Keys("Down");
  host.Type("!X y");
  EXPECT_EQ(host.Show(), "one* two / one!X y|");
  host.Keys("Left Backspace Home Delete");
  host.Type("O");
  EXPECT_EQ(host.Show(), "one* two / O|ne!Xy");
  host.Keys("End Ctrl+Left Right Right Ctrl+Right Backspace");
  EXPECT_EQ(host.Show(), "one* two / One!X|");
  host.Keys("Escape");
  EXPECT_EQ(host.Show(), "one* two");
  host.Keys("Backspace Down");
  EXPECT_EQ(host.Show(), "on two*");

  // A character of two units goes and comes as one.
  lumui::testing::CommitInputMethodText(host.GetWindow(), ToUTF16("a\xF0\x9F\x9A\xA3z"));
  host.Keys("Left Left Right Backspace");
  EXPECT_EQ(host.Show(), "on two* / twoa|z");
  host.Keys("Left Ctrl+S");
  EXPECT_EQ(host.Show(), "on twoaz*");
}

TEST(OutlinerGestures, WhatIsTypedIsOneStepOfUndo) {
  RunningOutliner host("a b");
  host.Keys("Down");
  host.Type("xyz");
  host.Keys("Ctrl+Z");
  EXPECT_EQ(host.Show(), "a* b");
  host.Keys("Ctrl+Y");
  EXPECT_EQ(host.Show(), "axyz* b");
  host.Type("1");
  host.Keys("Down");
  host.Type("2");
  host.Keys("Tab");
  EXPECT_EQ(host.Show(), "axyz1 [b2*]");
  host.Keys("Ctrl+Z");
  EXPECT_EQ(host.Show(), "axyz1 b2*");
  host.Keys("Ctrl+Z Ctrl+Z Ctrl+Z Ctrl+Z Ctrl+Z");
  EXPECT_EQ(host.Show(), "a* b");
  // Nothing was changed, so there is no step to take back.
  host.Keys("F2 Down Ctrl+Z");
  EXPECT_EQ(host.Show(), "a b*");
}

TEST(OutlinerGestures, TypingWithoutOneRowToTypeInLeavesTheOutlineAlone) {
  RunningOutliner host("a b c");
  host.Type("x");
  EXPECT_EQ(host.Show(), "a b c");
  host.Keys("Ctrl+A");
  host.Type("x");
  host.Keys("F2 Backspace");
  EXPECT_EQ(host.Show(), "a* b* c*");
}

TEST(OutlinerGestures, ClicksSelectExtendAndEdit) {
  RunningOutliner host("aa [bb cc] dd ee");
  host.Click(1);
  EXPECT_EQ(host.Show(), "aa [bb* cc] dd ee");
  host.Click(3, "Ctrl");
  EXPECT_EQ(host.Show(), "aa [bb* cc] dd* ee");
  host.Click(1, "Ctrl");
  EXPECT_EQ(host.Show(), "aa [bb cc] dd* ee");
  host.Click(3);
  host.Click(1, "Shift");
  EXPECT_EQ(host.Show(), "aa [bb* cc*] dd* ee");
  // The range goes on from the row that was clicked last, and keeps what hangs together with it.
  host.Click(4, "Shift");
  EXPECT_EQ(host.Show(), "aa [bb* cc*] dd* ee*");
  host.DoubleClick(0, 300);
  EXPECT_EQ(host.Show(), "aa* [bb cc] dd ee / aa|");
  host.Click(0, "", 24);  // in front of the first letter
  host.Type("x");
  EXPECT_EQ(host.Show(), "aa* [bb cc] dd ee / x|aa");
  host.Click(2);
  EXPECT_EQ(host.Show(), "xaa [bb cc*] dd ee");
  host.Click(12);
  EXPECT_EQ(host.Show(), "xaa [bb cc] dd ee");
}

TEST(OutlinerGestures, LosingTheKeyboardKeepsWhatWasTyped) {
  RunningOutliner host("a b");
  host.Keys("Down");
  host.Type("xy");
  lumui::testing::ActivateWindow(nullptr);
  EXPECT_EQ(host.Show(), "axy* b");
}

TEST(OutlinerGestures, AHoldEndsWithTheKeyboard) {
  RunningOutliner host("a b c");
  const lumui::ui::KeyboardCode down(lumui::ui::KeyboardCode::kDownArrow);
  for (const bool repeats : {false, true})
    lumui::testing::PressKey(host.GetWindow(), down, lumui::ui::ModifierKeys(), repeats);
  const auto& keys = vek::uisupport::KeyCommandManager::Get();
  EXPECT_TRUE(keys.IsHandlingHoldCommand());
  lumui::testing::ActivateWindow(nullptr);
  EXPECT_FALSE(keys.IsHandlingHoldCommand());
}

TEST(OutlinerGestures, TextOfARowThatIsTakenAwayMeanwhileGetsARowOfItsOwn) {
  RunningOutliner host("a b c");
  host.Keys("Down Down");
  host.Type("ig");
  outliner::edits::Delete(host.GetDocument());  // as a script might, in the middle of the typing
  host.Keys("Ctrl+S");
  EXPECT_EQ(host.Show(), "a c big*");
}

TEST(OutlinerGestures, TheTitleTellsFileAndDirt) {
  RunningOutliner host("a b");
  EXPECT_EQ(host.GetTitle(), "o.opml \xE2\x80\x94 outliner");
  host.Keys("Down");
  EXPECT_EQ(host.GetTitle(), "o.opml \xE2\x80\x94 outliner");
  host.Type("x");
  EXPECT_EQ(host.GetTitle(), "*o.opml \xE2\x80\x94 outliner");
  host.Keys("Escape");
  EXPECT_EQ(host.GetTitle(), "o.opml \xE2\x80\x94 outliner");
  host.Keys("Delete");
  EXPECT_EQ(host.GetTitle(), "*o.opml \xE2\x80\x94 outliner");
  host.Keys("Ctrl+S");
  EXPECT_EQ(host.GetTitle(), "o.opml \xE2\x80\x94 outliner");
}

TEST(OutlinerGestures, SelectionStaysInView) {
  std::string rows = "r";
  for (int row = 1; row < 100; ++row)
    rows += " r";
  RunningOutliner host(rows);
  const auto* view = dynamic_cast<lumui::controls::UI_ScrollView*>(
      host.GetWindow().UI_GetNodeForID(lumcore::utility::ToUTF8("rows")));
  ASSERT_NE(view, nullptr);
  const double end = view->GetContentRectF().height - view->GetViewedContentRectF().height;
  ASSERT_GT(end, 1000);
  host.Keys("Up");
  // Below the last row there is some room for dropping behind it.
  const double last = view->GetOffset().y;
  EXPECT_GT(last, end - 20);
  host.Keys("Up Up");
  EXPECT_EQ(view->GetOffset().y, last);
  host.Keys("Ctrl+A Delete Ctrl+Z");
  EXPECT_EQ(view->GetOffset().y, 0);
  lumui::testing::TurnWheel(host.GetWindow(), {300, 300}, {0, 2});
  EXPECT_EQ(view->GetOffset().y, 2 * 3 * 19);
}

TEST(OutlinerClosing, AsksAboutChangesAndDoesWhatIsAnswered) {
  constexpr const char* kQuestion = "box: Save the changes to \"o.opml\" before it is closed?\n";
  RunningOutliner host("a b");
  const std::string before = host.ReadFile();
  host.Keys("Down");
  host.Type("x");  // not even committed
  host.AnswerNextBox("Cancel");
  lumui::testing::RequestClose(host.GetWindow());
  EXPECT_EQ(host.TakeMessages(), kQuestion);
  EXPECT_EQ(host.Show(), "ax* b");
  host.AnswerNextBox("Cancel");
  host.Keys("Ctrl+Q");
  EXPECT_EQ(host.TakeMessages(), kQuestion);
  EXPECT_FALSE(host.HasQuit());
  EXPECT_EQ(host.ReadFile(), before);

  host.AnswerNextBox("Save");
  host.Keys("Ctrl+Q");
  EXPECT_EQ(host.TakeMessages(), kQuestion);
  EXPECT_TRUE(host.HasQuit());
  EXPECT_NE(host.ReadFile().find("text=\"ax\""), std::string::npos);
}

TEST(OutlinerClosing, DiscardLeavesTheFileAndACleanDocumentIsNotAskedAbout) {
  {
    RunningOutliner dirty("a b");
    const std::string before = dirty.ReadFile();
    dirty.Keys("Down Delete");
    dirty.AnswerNextBox("Discard");
    lumui::testing::RequestClose(dirty.GetWindow());
    EXPECT_TRUE(dirty.HasQuit());
    EXPECT_EQ(dirty.ReadFile(), before);
  }
  RunningOutliner clean("a b");
  clean.Keys("Down Delete Ctrl+Z Ctrl+W");
  EXPECT_EQ(clean.ShowDocuments(), "");
  EXPECT_EQ(clean.GetTitle(), "outliner");
  lumui::testing::RequestClose(clean.GetWindow());
  EXPECT_EQ(clean.TakeMessages(), "");
  EXPECT_TRUE(clean.HasQuit());
}

TEST(OutlinerClosing, ASaveThatFailsKeepsTheDocumentAndTellsWhy) {
  RunningOutliner host("a b");
  host.Keys("Down");
  host.Type("x");
  // A folder that is not empty takes the place of the file.
  const std::string path = host.GetPath("o.opml");
  lumcore::filesupport::File(path).Remove();
  lumcore::filesupport::Dir(path + "/full").Create();
  host.Keys("Ctrl+S");
  std::string messages = host.TakeMessages();
  EXPECT_EQ(messages.find("error: "), 0u);
  EXPECT_NE(messages.find(path), std::string::npos);
  EXPECT_EQ(host.ShowDocuments(), "[*o.opml]");

  for (const char* close : {"Ctrl+W", "Ctrl+Shift+W", "Ctrl+Q", "the window"}) {
    SCOPED_TRACE(close);
    host.AnswerNextBox("Save");
    if (*close == 'C') {
      host.Keys(close);
    } else {
      lumui::testing::RequestClose(host.GetWindow());
    }
    messages = host.TakeMessages();
    EXPECT_NE(messages.find("error: "), std::string::npos);
    EXPECT_NE(messages.find(path), std::string::npos);
    EXPECT_FALSE(host.HasQuit());
    EXPECT_EQ(host.ShowDocuments(), "[*o.opml]");
  }
  EXPECT_EQ(host.Show(), "ax* b");

  // A question that nobody answers refuses as well.
  lumui::testing::RequestClose(host.GetWindow());
  EXPECT_FALSE(host.HasQuit());
}

std::string Ask(int inCommand) {
  bool isEnabled = false;
  bool isChecked = false;
  lumcore::UTF16String title;
  if (!CommandHandlerBase::CallEnablementChain(inCommand, isEnabled, isChecked, title)) {
    return "unknown";
  }
  return (isEnabled ? "+" : "-") + ToStdString(title);
}

TEST(OutlinerCommands, AnswerForTheirStateThroughTheChain) {
  RunningOutliner host("a b");
  EXPECT_EQ(Ask(outliner::kCommandUndo), "-Undo");
  EXPECT_EQ(Ask(outliner::kCommandRedo), "-Redo");
  EXPECT_EQ(Ask(outliner::kCommandDelete), "-");
  EXPECT_EQ(Ask(outliner::kCommandEditText), "-");
  EXPECT_EQ(Ask(outliner::kCommandQuit), "+");
  EXPECT_EQ(Ask(4711), "unknown");
  host.Keys("Down Alt+Down Ctrl+Z Ctrl+Y");
  EXPECT_EQ(Ask(outliner::kCommandUndo), "+Undo Move Down");
  EXPECT_EQ(Ask(outliner::kCommandMoveDown), "-");
  EXPECT_EQ(Ask(outliner::kCommandIndent), "+");
  host.Keys("Ctrl+Z");
  EXPECT_EQ(Ask(outliner::kCommandRedo), "+Redo Move Down");
  host.Type("x");
  EXPECT_EQ(Ask(outliner::kCommandUndo), "+Undo Typing");
  EXPECT_EQ(Ask(outliner::kCommandRedo), "-Redo");
  // The command ends the typing first, as any other road to it does.
  EXPECT_TRUE(CommandHandlerBase::CallCommandChain(outliner::kCommandSelectAll));
  EXPECT_EQ(host.Show(), "ax* b*");
}

}  // namespace
