// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hosts/OutlineText.h"
#include "hosts/Refusal.h"
#include "hosts/RunningOutliner.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_StaticText.h"
#include "lumui/controls/UI_TextButton.h"
#include "lumui/controls/UI_TextEdit.h"
#include "lumui/testing/Menus.h"
#include "outliner/AttributeEdits.h"
#include "outliner/OpmlWriter.h"
#include "outliner/OutlineEdits.h"
#include "vek/undo/Deed.h"

namespace {

using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using lumui::controls::UI_TextEdit;
using tests::RunningOutliner;
namespace edits = outliner::edits;

// Three rows; "c" has none of the attributes that the others have.
class Properties : public ::testing::Test {
 protected:
  Properties() : mHost("a b c") {
    auto& document = mHost.GetDocument();
    Set("a", "type", "link");
    Set("b", "type", "link");
    Set("a", "weight", "1");
    Set("b", "weight", "2");
    document.SetDirty(false);
    mHost.Click(0);
    mHost.Keys("Ctrl+5");
  }
  ~Properties() override { mHost.GetDocument().SetDirty(false); }

  void Set(const char* inRow, const char* inName, const char* inValue) {
    auto& document = mHost.GetDocument();
    edits::SetAttribute(document, {tests::FindRow(document, inRow)}, ToUTF16(inName),
                        ToUTF16(inValue));
  }
  void Select(const char* inTexts) {
    tests::Select(mHost.GetDocument(), inTexts);
    lumui::testing::ProcessEvents();
  }
  template <class Control>
  Control* Find(const char* inName) {
    return dynamic_cast<Control*>(
        mHost.GetWindow().UI_GetNodeForID(lumcore::utility::ToUTF8(inName)));
  }
  UI_TextEdit& Field(const char* inName) { return *Find<UI_TextEdit>(inName); }
  void Focus(const char* inName) {
    Field(inName).UI_SetKeyboardFocus(lumui::ui::kFocusTab);
    Field(inName).SelectAll();
  }
  // "weight=1" for a field, "weight?" where the rows differ, "-" for one that is not shown.
  std::string Show(const char* inName) {
    const auto* const field = Find<UI_TextEdit>(inName);
    if (!field) return "-";
    const std::string value = ToStdString(field->GetText());
    return inName + (field->GetPlaceholder().empty() ? "=" + value : "?" + value);
  }
  // The values of the attribute in all rows, "-" where there is none.
  std::string Values(const char* inName) {
    std::string text;
    auto& document = mHost.GetDocument();
    for (const auto* row : document.GetTree().GetLines()) {
      const bool has = edits::HasAttribute(document, *row, ToUTF16(inName));
      text += (text.empty() ? "" : " ") +
              (has ? "'" + ToStdString(edits::GetAttribute(document, *row, ToUTF16(inName))) + "'"
                   : "-");
    }
    return text;
  }
  std::string LastDeed() {
    const auto* const deed = mHost.GetDocument().GetUndoer().CouldUndoDeed();
    return deed ? ToStdString(deed->GetActionString()) : "";
  }

  RunningOutliner mHost;
};

TEST_F(Properties, ShowWhatTheSelectedRowsHaveInCommon) {
  EXPECT_EQ(Show("text") + " " + Show("type") + " " + Show("url") + " " + Show("weight"),
            "text=a type=link url= weight=1");
  EXPECT_TRUE(Field("text").UI_HasKeyboardFocus());
  Select("a b");
  EXPECT_EQ(Show("text") + " " + Show("type") + " " + Show("weight"), "text? type=link weight?");
  Select("b c");
  EXPECT_EQ(Show("type") + " " + Show("weight"), "type? weight?") << "c has neither";
  Select("c");
  EXPECT_EQ(Show("type") + " " + Show("weight"), "type= -");
  Select("");
  EXPECT_EQ(Show("text"), "-");
  EXPECT_EQ(ToStdString(Find<lumui::controls::UI_StaticText>("PropertiesTitle")->GetText()),
            "No row is selected");
}

TEST_F(Properties, BecomeOneDeedOverAllRowsThatBringsThemBack) {
  Select("a b c");
  Focus("weight");
  mHost.Type("7");
  EXPECT_EQ(Values("weight"), "'1' '2' -");
  EXPECT_TRUE(mHost.GetDocument().IsDirty());
  mHost.Keys("Return");
  EXPECT_EQ(Values("weight"), "'7' '7' '7'");
  EXPECT_EQ(LastDeed(), "Change \"weight\"");
  Focus("type");
  mHost.Keys("Backspace Tab");
  EXPECT_EQ(Values("type"), "'link' 'link' -") << "the rows differ: no text is no other text";
  mHost.Type("u");
  mHost.Keys("Tab");
  Select("c");
  edits::Undo(mHost.GetDocument());
  edits::Undo(mHost.GetDocument());
  lumui::testing::ProcessEvents();
  EXPECT_EQ(Values("weight") + Values("created"), "'1' '2' -- - -");
  EXPECT_EQ(mHost.Show(), "a* b* c*");
  EXPECT_EQ(Show("weight"), "weight?");
  Select("a b");
  Focus("type");
  mHost.Keys("Backspace Return");
  EXPECT_EQ(Values("type"), "- - -") << "an empty one of these is none";
}

TEST_F(Properties, AreNeverLostHoweverTheFieldIsLeft) {
  const char* const kWays[] = {"click", "select", "panel", "save", "undo", "document"};
  for (const std::string way : kWays) {
    SCOPED_TRACE(way);
    Set("a", "weight", "1");
    Select("a");
    Focus("weight");
    mHost.Type("9");
    if (way == "click") mHost.Click(1);
    if (way == "select") Select("b");
    if (way == "panel") mHost.Keys("Ctrl+5");
    if (way == "save") mHost.Keys("Ctrl+S");
    if (way == "undo")
      lumui::testing::ChooseMenuItem(mHost.GetWindow(), {ToUTF16("Edit"), ToUTF16("Undo Typing")});
    if (way == "document") mHost.Keys("Ctrl+N");
    lumui::testing::ProcessEvents();
    if (way == "document") mHost.Keys("Ctrl+W");
    EXPECT_EQ(Values("weight"), way == "undo" ? "'1' '2' -" : "'9' '2' -");
    EXPECT_EQ(mHost.Show(), way == "click" || way == "select" ? "a b* c" : "a* b c");
    if (way == "panel") mHost.Keys("Ctrl+5");
    if (way != "undo") edits::Undo(mHost.GetDocument());
    EXPECT_EQ(mHost.Show(), "a* b c");
  }
}

TEST_F(Properties, StayInTheirFieldWhereACommitFailsAndGoOutWithTheNextSave) {
  tests::Refusal refusal;
  auto& undoer = mHost.GetDocument().GetUndoer();
  Focus("weight");
  mHost.Type("9");
  undoer.SetHooks(&refusal);
  mHost.Keys("Return");
  EXPECT_NE(mHost.TakeMessages().find("no deed today"), std::string::npos);
  EXPECT_EQ(Show("weight") + " " + Values("weight"), "weight=9 '1' '2' -");
  Select("b");
  EXPECT_EQ(Show("weight"), "weight=2");
  EXPECT_NE(mHost.TakeMessages().find("no deed today"), std::string::npos) << "tried once more";
  Select("a");
  EXPECT_EQ(Show("weight"), "weight=9");
  undoer.SetHooks(nullptr);
  mHost.Keys("Ctrl+S");
  EXPECT_EQ(Values("weight"), "'9' '2' -");
  EXPECT_NE(mHost.ReadFile().find("weight=\"9\""), std::string::npos);
}

TEST_F(Properties, OfRowsThatHaveGoneGetARowOfTheirOwn) {
  Focus("weight");
  mHost.Type("9");
  tests::Select(mHost.GetDocument(), "a");
  edits::Delete(mHost.GetDocument());
  lumui::testing::ProcessEvents();
  EXPECT_EQ(Values("weight"), "'2' '9' -");
}

TEST_F(Properties, GoBackToTheirOldTextByEscape) {
  Select("a b");
  const auto serial = mHost.GetDocument().GetUndoer().GetCurSerialNumber();
  Focus("weight");
  mHost.Type("9");
  mHost.Keys("Escape");
  EXPECT_EQ(Show("weight"), "weight?");
  EXPECT_FALSE(mHost.GetDocument().IsDirty());
  mHost.Keys("Tab");
  mHost.Click(2);
  EXPECT_EQ(mHost.GetDocument().GetUndoer().GetCurSerialNumber(), serial);
  EXPECT_EQ(Values("weight"), "'1' '2' -");
}

TEST_F(Properties, AreAddedAndRemoved) {
  Select("a c");
  Focus("NewAttribute");
  mHost.Type("not a name");
  mHost.Keys("Return");
  EXPECT_NE(ToStdString(Find<lumui::controls::UI_StaticText>("PropertiesHint")->GetText()), "");
  EXPECT_EQ(ToStdString(Field("NewAttribute").GetText()), "not a name");
  Focus("NewAttribute");
  mHost.Type("colour");
  mHost.Keys("Return");
  EXPECT_EQ(Values("colour"), "'' - ''");
  EXPECT_TRUE(Field("colour").UI_HasKeyboardFocus());
  mHost.Type("red");
  mHost.Keys("Return");
  EXPECT_EQ(Values("colour"), "'red' - 'red'");
  Focus("NewAttribute");
  mHost.Type("weight");
  Find<lumui::controls::UI_TextButton>("AddAttribute")->Press();
  lumui::testing::ProcessEvents();
  EXPECT_EQ(Values("weight"), "'1' '2' ''") << "one that has it keeps its value";
  Find<lumui::controls::UI_TextButton>("remove colour")->Press();
  lumui::testing::ProcessEvents();
  EXPECT_EQ(Values("colour") + " " + Show("colour"), "- - - -");
  EXPECT_EQ(LastDeed(), "Remove \"colour\"");
  Select("b");
  edits::Undo(mHost.GetDocument());
  EXPECT_EQ(Values("colour") + " " + mHost.Show(), "'red' - 'red' a* b c*");
}

TEST(AttributeNames, AreThoseThatEveryReaderTakes) {
  outliner::OutlineDocument document(
      tests::Read("<opml xmlns:x='u'><body><outline text='t' x:y='1'/></body></opml>"), {});
  const char* const kGood[] = {"a", "_a", "a-b.c9", "\xC3\xA4", "x:y", "xmlUrl"};
  const char* const kBad[] = {"", "1a", "-a", "a b", "a=", "text", "xmlns", "x:z", "\xE2\x82\xAC"};
  for (const char* name : kGood)
    EXPECT_TRUE(edits::CanBeAttribute(document, ToUTF16(name))) << name;
  for (const char* name : kBad)
    EXPECT_FALSE(edits::CanBeAttribute(document, ToUTF16(name))) << name;
}

}  // namespace
