// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <string>

#include "hosts/OutlineText.h"
#include "hosts/RunningOutliner.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_Checkbox.h"
#include "lumui/controls/UI_StaticText.h"
#include "lumui/controls/UI_TextEdit.h"
#include "lumui/testing/SyntheticInput.h"
#include "outliner/AttributeEdits.h"
#include "outliner/OutlineEdits.h"
#include "outliner/SearchResults.h"
#include "outliner/TextSearch.h"
#include "vek/undo/Deed.h"

namespace {

using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using outliner::SearchTerm;
using tests::RunningOutliner;
namespace edits = outliner::edits;

constexpr float kLine = 42;

// Each match in brackets.
TEST(TextSearch, FindsWholeCharactersInWhateverCaseTheyAre) {
  const struct {
    const char* term;
    const char* text;
    const char* found;
    bool matchesCase = false;
    bool wholeWords = false;
  } kCases[] = {
      {"aa", "aaaaa", "[aa][aa]a"},
      {"Ab", "xabXAB", "x[ab]X[AB]"},
      {"Ab", "abAb", "ab[Ab]", true},
      {"", "abc", "abc"},
      {"ss", "Straße", "Stra[ß]e"},
      {"s", "ß", "ß"},  // half of a character is none
      {"STRASSE", "die Straße!", "die [Straße]!"},
      {"ß", "MASSE Maße", "MA[SS]E Ma[ß]e"},
      {"ﬁ", "FIsch", "[FI]sch"},
      {"σ", "Σίσυφος", "[Σ]ί[σ]υφο[ς]"},
      {"i", "İi", "İ[i]"},  // folds to an i with a dot above it
      {"\xF0\x90\x90\x80", "a\xF0\x90\x90\xA8", "a[\xF0\x90\x90\xA8]"},
      {"in", "in inn win in-in _in", "[in] inn win [in]-[in] _in", false, true},
      {"ö", "ö Öl löst ö.", "[ö] Öl löst [ö].", false, true},
      {"a b", "a b a  b", "[a b] a  b", false, true},
      {"-", "a-b -", "a-b [-]", false, true},
  };
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.text);
    const outliner::TextSearch search({ToUTF16(row.term), row.matchesCase, row.wholeWords});
    const auto text = ToUTF16(row.text);
    auto shown = text;
    const auto matches = search.FindAll(text);
    for (auto match = matches.rbegin(); match != matches.rend(); ++match) {
      shown.insert(match->start + match->length, 1, ']');
      shown.insert(match->start, 1, '[');
    }
    EXPECT_EQ(ToStdString(shown), row.found);
    EXPECT_EQ(search.IsIn(text), !matches.empty());
  }
}

class Search : public ::testing::Test {
 protected:
  Search() : mHost("oak [pine Oaken] larch soak") {
    auto& document = mHost.GetDocument();
    edits::SetNote(document, *tests::FindRow(document, "larch"), ToUTF16("near\nthe oak"));
    document.SetDirty(false);
    mHost.Keys("Ctrl+F");
  }
  ~Search() override {
    if (mHost.GetApp().GetOutline()) mHost.GetDocument().SetDirty(false);
  }

  template <class Control>
  Control& Find(const char* inName) {
    return dynamic_cast<Control&>(
        *mHost.GetWindow().UI_GetNodeForID(lumcore::utility::ToUTF8(inName)));
  }
  // The texts of the rows that are listed, ">" before the present one, and the summary.
  std::string Show() {
    lumui::testing::ProcessEvents();
    auto& list = Find<outliner::SearchResults>("SearchList");
    std::string text;
    for (std::size_t line = 0; line < list.GetRows().size(); ++line) {
      const auto* const row = mHost.GetDocument().GetTree().FindRow(list.GetRows()[line]);
      text += (line == list.GetPresent() ? ">" : "") + ToStdString(row->GetText()) + " ";
    }
    return text + "(" +
           ToStdString(Find<lumui::controls::UI_StaticText>("SearchSummary").GetText()) + ")";
  }
  void Press(const char* inButton) {
    Find<lumui::controls::UI_Button>(inButton).Press();
    lumui::testing::ProcessEvents();
  }
  void Check(const char* inBox) {
    auto& box = Find<lumui::controls::UI_Checkbox>(inBox);
    box.Press();
    lumui::testing::ProcessEvents();
  }
  std::string Note() {
    auto& document = mHost.GetDocument();
    return ToStdString(edits::GetNote(document, *tests::FindRow(document, "larch")));
  }

  RunningOutliner mHost;
};

TEST_F(Search, ListsTheRowsWithTheTextAsItIsTyped) {
  mHost.Type("o");
  EXPECT_EQ(Show(), "oak Oaken larch soak (4 rows)");
  mHost.Type("akx");
  EXPECT_EQ(Show(), "(No row has this text)");
  mHost.Keys("Backspace");
  EXPECT_EQ(Show(), "oak Oaken larch soak (4 rows)");
  Check("SearchWords");
  EXPECT_EQ(Show(), "oak larch (2 rows)");
  Check("SearchWords");
  Check("SearchCase");
  EXPECT_EQ(Show(), "oak larch soak (3 rows)");
  edits::SetText(mHost.GetDocument(), *tests::FindRow(mHost.GetDocument(), "pine"),
                 ToUTF16("an oak"));
  EXPECT_EQ(Show(), "oak >an oak larch soak (Row 2 of 4)");
  edits::Delete(mHost.GetDocument());
  EXPECT_EQ(Show(), "oak larch soak (3 rows)");
  mHost.Keys("Ctrl+N");
  EXPECT_EQ(Show(), "(No row has this text)");
  mHost.Keys("Ctrl+W");
  EXPECT_EQ(Show(), "oak larch soak (3 rows)");
  mHost.GetDocument().SetDirty(false);
  mHost.Keys("Ctrl+W");
  lumui::testing::ProcessEvents();
  EXPECT_EQ(ToStdString(Find<lumui::controls::UI_StaticText>("SearchSummary").GetText()),
            "No outline is open");
}

TEST_F(Search, GoesFromRowToRowByKeysWithAndWithoutItsPanel) {
  mHost.Type("oak");
  mHost.Keys("Return");
  EXPECT_EQ(Show(), ">oak Oaken larch soak (Row 1 of 4)");
  mHost.Keys("Return");
  EXPECT_EQ(mHost.Show(), "oak [pine Oaken*] larch soak");
  EXPECT_TRUE(Find<lumui::controls::UI_TextEdit>("SearchField").UI_HasKeyboardFocus());
  mHost.Keys("F3 F3 F3");
  EXPECT_EQ(mHost.Show(), "oak* [pine Oaken] larch soak") << "around the end";
  mHost.Keys("Shift+F3");
  EXPECT_EQ(mHost.Show(), "oak [pine Oaken] larch soak*");
  mHost.Keys("Ctrl+7");
  EXPECT_EQ(mHost.GetWindow().UI_GetNodeForID(lumcore::utility::ToUTF8("SearchList")), nullptr);
  mHost.Keys("Shift+F3");
  EXPECT_EQ(mHost.Show(), "oak [pine Oaken] larch* soak");
  mHost.Keys("Ctrl+F");
  EXPECT_EQ(Show(), "oak Oaken >larch soak (Row 3 of 4)") << "the panel knows the term again";
  mHost.Type("zzz");
  mHost.Click(0);
  mHost.Keys("F3");
  EXPECT_TRUE(Find<lumui::controls::UI_TextEdit>("SearchField").UI_HasKeyboardFocus());
}

TEST_F(Search, SelectsTheRowThatIsChosenInTheList) {
  mHost.Type("oak");
  lumui::testing::ClickMouse(mHost.GetWindow(), mHost.PlaceIn("SearchList", 40, 1.5f * kLine));
  EXPECT_EQ(mHost.Show(), "oak [pine Oaken*] larch soak");
  mHost.Keys("Down");
  EXPECT_EQ(Show(), "oak Oaken >larch soak (Row 3 of 4)");
  mHost.Keys("Return");
  mHost.Type("!");
  EXPECT_EQ(mHost.Show(), "oak [pine Oaken] larch* soak / larch!|") << "the rows have the keyboard";
}

TEST_F(Search, ReplacesInTextsAndNotesAsOneDeed) {
  mHost.Type("oak");
  mHost.Keys("Tab Tab Tab Tab Tab");
  ASSERT_TRUE(Find<lumui::controls::UI_TextEdit>("SearchReplacement").UI_HasKeyboardFocus());
  mHost.Type("elm");
  mHost.Keys("Return");
  EXPECT_EQ(mHost.Show(), "oak* [pine Oaken] larch soak") << "shows first what would be replaced";
  mHost.Keys("Return");
  EXPECT_EQ(mHost.Show(), "elm [pine Oaken*] larch soak");
  const auto serial = mHost.GetDocument().GetUndoer().GetCurSerialNumber();
  Press("SearchReplaceAll");
  EXPECT_EQ(mHost.Show() + " " + Note(), "elm [pine elmen*] larch selm near\nthe elm");
  EXPECT_EQ(Show(), "(Replaced in 3 rows)");
  tests::Select(mHost.GetDocument(), "elm");
  edits::Undo(mHost.GetDocument());
  EXPECT_EQ(mHost.Show() + " " + Note(), "elm [pine Oaken*] larch soak near\nthe oak");
  EXPECT_EQ(mHost.GetDocument().GetUndoer().GetCurSerialNumber(), serial);
}

}  // namespace
