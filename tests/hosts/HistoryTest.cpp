// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <string>

#include "hosts/OutlineText.h"
#include "hosts/RunningOutliner.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/testing/SyntheticInput.h"
#include "outliner/HistoryView.h"
#include "outliner/OutlineEdits.h"
#include "vek/messaging/Listener.h"

namespace {

using lumcore::utility::ToStdString;
using tests::RunningOutliner;
namespace edits = outliner::edits;

constexpr float kLine = 26;

struct MoveCount : vek::messaging::Listener<const vek::undo::ItemsChangedMsg&> {
  void ListenToMessage(const vek::undo::ItemsChangedMsg&) override { ++count; }
  int count = 0;
};

class History : public ::testing::Test {
 protected:
  History() : mHost("a b c") {
    mHost.Keys("Ctrl+6");
    mList.reset(dynamic_cast<outliner::HistoryView*>(
        mHost.GetWindow().UI_GetNodeForID(lumcore::utility::ToUTF8("history"))));
  }
  ~History() override {
    if (mHost.GetApp().GetOutline()) mHost.GetDocument().SetDirty(false);
  }

  // The lines in one, "before | Move Up | >Indent", and the rows behind them.
  std::string Show() {
    lumui::testing::ProcessEvents();
    std::string text = ToStdString(mList->AsText());
    for (auto at = text.find('\n'); at != text.npos; at = text.find('\n'))
      text.replace(at, 1, at + 1 < text.size() ? " | " : "");
    const auto before = text.find("Before these edits");
    if (before != text.npos) text.replace(before, 18, "-");
    return text + " / " + mHost.Show();
  }
  void Edit() {
    auto& document = mHost.GetDocument();
    tests::Select(document, "c");
    edits::MoveUp(document);
    edits::Indent(document);
    tests::Select(document, "b");
    edits::Delete(document);
    lumui::testing::ProcessEvents();
  }
  void Click(int inLine) {
    lumui::testing::ClickMouse(
        mHost.GetWindow(),
        mHost.PlaceIn("history", 60, (static_cast<float>(inLine) + .5f) * kLine));
    lumui::testing::ProcessEvents();
  }

  RunningOutliner mHost;
  boost::intrusive_ptr<outliner::HistoryView> mList;
};

TEST_F(History, GoesToTheLineThatIsClickedInOneMove) {
  EXPECT_EQ(Show(), " / a b c");
  Edit();
  EXPECT_EQ(Show(), "- | Move Up | Indent | >Delete Row / a* [c]");
  MoveCount moves;
  mHost.GetDocument().GetUndoer().GetItemsChangedNotifier()->AddListener(&moves);
  Click(0);
  EXPECT_EQ(Show(), ">- | Move Up | Indent | Delete Row / a b c*");
  EXPECT_EQ(moves.count, 1);
  Click(2);
  EXPECT_EQ(Show(), "- | Move Up | >Indent | Delete Row / a [c*] b");
  Click(2);
  EXPECT_EQ(moves.count, 2) << "that is where it is";
  mHost.Keys("Up");
  EXPECT_EQ(Show(), "- | >Move Up | Indent | Delete Row / a c* b");
  mHost.Keys("End");
  EXPECT_EQ(Show(), "- | Move Up | Indent | >Delete Row / a* [c]");
  mHost.Keys("Home Down");
  tests::Select(mHost.GetDocument(), "a");
  edits::MoveDown(mHost.GetDocument());
  EXPECT_EQ(Show(), "- | Move Up | >Move Down / c a* b");
}

TEST_F(History, KeepsWhatIsBeingTypedAsTheNewestEdit) {
  Edit();
  Click(1);
  mHost.Click(0);
  mHost.Type("x");
  Click(3);
  EXPECT_EQ(Show(), "- | Move Up | >Change Text / ax* c b") << "it had taken the others' place";
  mHost.Click(0);
  mHost.Type("y");
  Click(0);
  EXPECT_EQ(Show(), ">- | Move Up | Change Text | Change Text / a b c*");
}

TEST_F(History, FollowsTheDocumentInFront) {
  Edit();
  const std::string before = Show();
  mHost.Keys("Ctrl+N");
  EXPECT_EQ(Show(), " / ");
  mHost.Type("n");
  mHost.Keys("Up");
  EXPECT_EQ(Show().substr(0, 12), "- | New Row ");
  mHost.Keys("Ctrl+Tab");
  EXPECT_EQ(Show(), before);
  mHost.GetDocument().SetDirty(false);
  mHost.Keys("Ctrl+W");
  EXPECT_EQ(Show().substr(0, 12), "- | New Row ");
}

}  // namespace
