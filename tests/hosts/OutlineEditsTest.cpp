// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "hosts/OutlineText.h"
#include "lumcore/utility/StringUtils.h"
#include "outliner/OpmlWriter.h"
#include "outliner/OutlineEdits.h"
#include "vek/messaging/Listener.h"
#include "vek/selection/Messages.h"
#include "vek/undo/Deed.h"

namespace {

using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using outliner::OutlineDocument;
using outliner::OutlineRow;
using tests::MakeDocument;
using tests::Show;
namespace edits = outliner::edits;

using EditFunction = void (*)(OutlineDocument&);

void NewSibling(OutlineDocument& ioDocument) {
  edits::NewSibling(ioDocument);
}
void NewChild(OutlineDocument& ioDocument) {
  edits::NewChild(ioDocument);
}

struct EditCase {
  EditFunction edit;
  const char* before;
  const char* after;
};

const EditCase kEditCases[] = {
    {NewSibling, "a [b* c] d", "a [b -* c] d"},
    {NewSibling, "a* [b c] d", "a [b c] -* d"},
    {NewSibling, "a* [b*] d* e", "a [b] d -* e"},
    {NewSibling, "a [b]", "a [b] -*"},
    {NewSibling, "", "-*"},
    {NewChild, "a [b* c] d", "a [b [-*] c] d"},
    {NewChild, "a* [b] d", "a [b -*] d"},
    {NewChild, "a* b* c", "a b [-*] c"},
    {NewChild, "a", "a -*"},
    {edits::Delete, "a b* c", "a c*"},
    {edits::Delete, "a b*", "a*"},
    {edits::Delete, "a [b*] c", "a* c"},
    {edits::Delete, "a*", ""},
    {edits::Delete, "a* [b* c] d* e f* g", "e g*"},
    {edits::Delete, "a [b c* d] e [f* [g*]] h", "a [b d] e* h"},
    {edits::Delete, "a* b* c*", ""},
    {edits::Indent, "a b* c", "a [b*] c"},
    {edits::Indent, "a [x] b* [y] c* d", "a [x b* [y] c*] d"},
    {edits::Indent, "a b* c d* e", "a [b*] c [d*] e"},
    {edits::Indent, "a* b c*", "a* b [c*]"},
    {edits::Indent, "p [q r*] s*", "p [q [r*] s*]"},
    {edits::Outdent, "a [b* c] d", "a [c] b* d"},
    {edits::Outdent, "a [b* c d* [x]] e", "a [c] b* d* [x] e"},
    {edits::Outdent, "a* [b* c]  d [e [f*] g*]", "a* [b* c] d [e f*] g*"},
    {edits::Outdent, "a [b c [d*]] e", "a [b c d*] e"},
    {edits::MoveUp, "a b* c* d", "b* c* a d"},
    {edits::MoveUp, "a* b c* d e*", "a* c* b e* d"},
    {edits::MoveUp, "a [b c* [x*]] d e*", "a [c* [x*] b] e* d"},
    {edits::MoveDown, "a* b* c d", "c a* b* d"},
    {edits::MoveDown, "a* b c* d e*", "b a* d c* e*"},
    {edits::MoveDown, "a [b* [x] c] d* e", "a [c b* [x]] e d*"},
};

TEST(OutlineEdits, DoTheirWorkAndUndoAndRedoBringRowsAndSelectionBack) {
  for (const EditCase& row : kEditCases) {
    SCOPED_TRACE(row.before);
    const auto document = MakeDocument(row.before);
    const std::string before = Show(*document);
    const std::string beforeFile = outliner::WriteOpml(document->GetTree());
    row.edit(*document);
    EXPECT_EQ(Show(*document), row.after);
    const std::string afterFile = outliner::WriteOpml(document->GetTree());
    // Restoring does not rest on what happens to be selected.
    document->SelectRows({});
    edits::Undo(*document);
    EXPECT_EQ(Show(*document), before);
    EXPECT_EQ(outliner::WriteOpml(document->GetTree()), beforeFile);
    document->GetSelection().SelectAll();
    edits::Redo(*document);
    EXPECT_EQ(Show(*document), row.after);
    EXPECT_EQ(outliner::WriteOpml(document->GetTree()), afterFile);
  }
}

TEST(OutlineEdits, WithNothingToDoPostNothingAndSaySoBefore) {
  const struct {
    EditFunction edit;
    bool (*can)(OutlineDocument&);
    const char* outline;
  } kCases[] = {
      {edits::Delete, edits::CanDelete, "a b"},
      {edits::Indent, edits::CanIndent, "a* b [c*]"},
      {edits::Indent, edits::CanIndent, "a b"},
      {edits::Outdent, edits::CanOutdent, "a* [b*] c*"},
      {edits::MoveUp, edits::CanMoveUp, "a* b [c* d*]"},
      {edits::MoveDown, edits::CanMoveDown, "a [c*] b*"},
  };
  for (const auto& refused : kCases) {
    SCOPED_TRACE(refused.outline);
    const auto document = MakeDocument(refused.outline);
    EXPECT_FALSE(refused.can(*document));
    refused.edit(*document);
    EXPECT_EQ(Show(*document), refused.outline);
    EXPECT_TRUE(document->GetUndoer().empty());
  }
  const auto document = MakeDocument("a* b");
  edits::SetText(*document, *tests::FindRow(*document, "b"), ToUTF16("b"));
  EXPECT_TRUE(document->GetUndoer().empty());
}

TEST(OutlineEdits, ALongWayBackAndForthMeetsEveryStateAgain) {
  const auto document = MakeDocument("a [b c] d* e");
  std::vector<std::string> states{Show(*document)};
  const auto step = [&](EditFunction inEdit) {
    inEdit(*document);
    states.push_back(Show(*document));
  };
  step(edits::Indent);
  step(NewChild);
  edits::SetText(*document, *document->GetSelectedRows().front(), ToUTF16("new"));
  states.push_back(Show(*document));
  step(edits::Outdent);
  document->GetSelection().SelectAll();
  states.back() = Show(*document);
  step(edits::Delete);
  step(NewSibling);
  EXPECT_EQ(states.back(), "-*");
  EXPECT_EQ(states[4], "a* [b* c* d* new*] e*");
  for (int round = 0; round < 2; ++round) {
    for (std::size_t state = states.size() - 1; state-- > 0;) {
      edits::Undo(*document);
      EXPECT_EQ(Show(*document), states[state]);
    }
    EXPECT_FALSE(edits::CanUndo(*document));
    for (std::size_t state = 1; state < states.size(); ++state) {
      // The fourth state was selected by hand after its edit, and before the deletion.
      edits::Redo(*document);
      EXPECT_EQ(Show(*document), state == 4 ? "a [b c d new*] e" : states[state]);
    }
    EXPECT_FALSE(edits::CanRedo(*document));
  }
}

TEST(OutlineEdits, NameThemselvesForTheUndoMenu) {
  const auto document = MakeDocument("a b* c*");
  edits::Delete(*document);
  EXPECT_EQ(ToStdString(document->GetUndoer().CouldUndoDeed()->GetUndoDescription()),
            "Undo Delete Rows");
  tests::Select(*document, "a");
  edits::Delete(*document);
  EXPECT_EQ(ToStdString(document->GetUndoer().CouldUndoDeed()->GetUndoDescription()),
            "Undo Delete Row");
  edits::Undo(*document);
  EXPECT_EQ(ToStdString(document->GetUndoer().CouldRedoDeed()->GetRedoDescription()),
            "Redo Delete Row");
}

// Sees whether any row that a message names is out of the tree.
class PresenceListener final
    : public vek::messaging::Listener<const vek::selection::SelectionChangeMessage&> {
 public:
  explicit PresenceListener(OutlineDocument& inDocument) : mDocument(inDocument) {
    inDocument.GetSelection().GetSelectionChangeNotifier()->AddListener(this);
  }
  void ListenToMessage(const vek::selection::SelectionChangeMessage& inMessage) override {
    for (auto* node : inMessage.GetAffectedNodes()) {
      const auto* row = static_cast<OutlineRow*>(node);
      mLog += ToStdString(row->GetText());
      mLog += mDocument.GetTree().FindRow(row->GetId()) == row ? "+ " : "- ";
    }
  }
  std::string TakeLog() { return std::exchange(mLog, std::string()); }

 private:
  OutlineDocument& mDocument;
  std::string mLog;
};

TEST(OutlineEdits, RowsLeaveTheSelectionWhileTheyAreStillInTheTree) {
  const auto document = MakeDocument("a b [c] d");
  PresenceListener listener(*document);
  tests::Select(*document, "b");
  edits::Delete(*document);
  EXPECT_EQ(listener.TakeLog(), "b+ b+ d+ ");
  edits::Undo(*document);
  listener.TakeLog();
  tests::Select(*document, "c");  // goes with b, though b itself is not selected
  edits::Redo(*document);
  EXPECT_EQ(listener.TakeLog(), "c+ b+ c+ d+ ");
  // The deleted row dies with its deed; whatever gets its address is not selected.
  edits::Undo(*document);
  edits::NewSibling(*document);
  tests::Select(*document, "d");
  edits::Undo(*document);
  EXPECT_EQ(Show(*document), "a b* [c] d");
  EXPECT_EQ(listener.TakeLog().find("- "), std::string::npos);
}

TEST(OutlineEdits, ARestorerPassesOverRowsThatAreNotThere) {
  const auto document = MakeDocument("a b* c*");
  edits::MoveUp(*document);
  // Behind the undoer's back, as a failed edit of another kind would leave it.
  auto& tree = document->GetTree();
  document->SelectRows({});
  const auto gone = tree.RemoveRows(tree.GetRoot(), 1, 1);
  document->GetUndoer().CouldUndoDeed()->RestoreAfterSelection();
  EXPECT_EQ(Show(*document), "b* a");
}

TEST(OutlineEdits, WhatOthersPutBetweenRowsStaysWithTheParent) {
  const std::string file =
      "<opml version=\"2.0\">\n<body>\n  <!-- one -->\n  <outline text=\"a\"/>\n"
      "  <x:two xmlns:x=\"urn:x\"/>\n  <outline text=\"b\">\n    <!-- in b -->\n"
      "    <outline text=\"c\"/>\n  </outline>\n</body>\n</opml>\n";
  OutlineDocument document(tests::Read(file), lumcore::filesupport::File("o.opml"));
  const auto write = [&] { return outliner::WriteOpml(document.GetTree()); };

  tests::Select(document, "a");
  edits::MoveDown(document);
  EXPECT_EQ(write(),
            "<opml version=\"2.0\">\n<body>\n  <!-- one -->\n  <x:two xmlns:x=\"urn:x\"/>\n"
            "  <outline text=\"b\">\n    <!-- in b -->\n    <outline text=\"c\"/>\n"
            "  </outline>\n  <outline text=\"a\"/>\n</body>\n</opml>\n");
  edits::Undo(document);
  EXPECT_EQ(write(), file);

  tests::Select(document, "c");
  edits::Outdent(document);
  EXPECT_EQ(write(),
            "<opml version=\"2.0\">\n<body>\n  <!-- one -->\n  <outline text=\"a\"/>\n"
            "  <x:two xmlns:x=\"urn:x\"/>\n  <outline text=\"b\">\n    <!-- in b -->\n"
            "  </outline>\n  <outline text=\"c\"/>\n</body>\n</opml>\n");
  edits::Undo(document);
  EXPECT_EQ(write(), file);

  document.GetSelection().SelectAll();
  edits::Delete(document);
  EXPECT_EQ(write(),
            "<opml version=\"2.0\">\n<body>\n  <!-- one -->\n  <x:two xmlns:x=\"urn:x\"/>\n"
            "</body>\n</opml>\n");
  edits::Undo(document);
  EXPECT_EQ(write(), file);
}

TEST(OutlineEdits, NewRowsTakeOnTheLayoutOfTheFile) {
  OutlineDocument document(
      tests::Read("<opml version=\"2.0\">\n\t<body>\n\t\t<outline text=\"a\">\n"
                  "\t\t\t<outline text=\"b\"/>\n\t\t</outline>\n\t</body>\n</opml>\n"),
      lumcore::filesupport::File("o.opml"));
  tests::Select(document, "b");
  edits::SetText(document, edits::NewChild(document), ToUTF16("c"));
  EXPECT_EQ(outliner::WriteOpml(document.GetTree()),
            "<opml version=\"2.0\">\n\t<body>\n\t\t<outline text=\"a\">\n"
            "\t\t\t<outline text=\"b\">\n\t\t\t\t<outline text=\"c\"/>\n\t\t\t</outline>\n"
            "\t\t</outline>\n\t</body>\n</opml>\n");
  OutlineDocument dense(tests::Read("<opml><body><outline text=\"a\"/></body></opml>"),
                        lumcore::filesupport::File("o.opml"));
  edits::NewChild(dense);
  EXPECT_EQ(outliner::WriteOpml(dense.GetTree()),
            "<opml><body><outline text=\"a\"/><outline text=\"\"/></body></opml>");
}

// Rows with comments, elements of others and odd white space between them, up to four levels deep.
std::string MakeMixedFile(std::mt19937& ioRandom) {
  std::string text = "<opml version=\"2.0\">\n<body>";
  int open = 0;
  for (int row = 0; row < 40; ++row) {
    const char* const kBetween[] = {"\n  ", "\n", "", "<!-- c -->",
                                    "\n <x:e xmlns:x=\"u\">t</x:e> "};
    text += kBetween[ioRandom() % 5];
    const bool opens = open < 4 && ioRandom() % 2 == 0;
    text += "<outline text=\"" + std::to_string(row) + (opens ? "\">" : "\"/>");
    open += opens;
    while (open > 0 && ioRandom() % 3 == 0) {
      text += ioRandom() % 4 == 0 ? "<!-- e --></outline>" : "\n</outline>";
      --open;
    }
  }
  while (open-- > 0)
    text += "\n</outline>";
  return text + "\n</body>\n</opml>\n";
}

void DoAnyEdit(OutlineDocument& ioDocument, std::mt19937& ioRandom) {
  const EditFunction kEdits[] = {NewSibling,    NewChild,       edits::Delete, edits::Indent,
                                 edits::Indent, edits::Outdent, edits::MoveUp, edits::MoveDown};
  std::vector<OutlineRow*> selected;
  for (OutlineRow* row : ioDocument.GetTree().GetLines()) {
    if (ioRandom() % 8 == 0) selected.push_back(row);
  }
  ioDocument.SelectRows(selected);
  kEdits[ioRandom() % 8](ioDocument);
}

TEST(OutlineEdits, AnyRunOfEditsIsTakenBackAndRepeatedToTheByte) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const std::string file = MakeMixedFile(random);
    OutlineDocument document(tests::Read(file), lumcore::filesupport::File("o.opml"));
    const auto write = [&] { return outliner::WriteOpml(document.GetTree()); };
    std::vector<std::string> states{write()};
    ASSERT_EQ(states.front(), file);
    for (int edit = 0; edit < 60; ++edit) {
      DoAnyEdit(document, random);
      if (document.GetUndoer().size() == states.size()) states.push_back(write());
      // What is on the screen is what the file says.
      OutlineDocument reread(tests::Read(write()), lumcore::filesupport::File("o.opml"));
      document.SelectRows({});
      ASSERT_EQ(Show(reread), Show(document));
    }
    for (std::size_t state = states.size() - 1; state-- > 0;) {
      edits::Undo(document);
      ASSERT_EQ(write(), states[state]);
    }
    for (std::size_t state = 1; state < states.size(); ++state) {
      edits::Redo(document);
      ASSERT_EQ(write(), states[state]);
    }
  }
}

TEST(OutlineSelection, MovesByRowsAndStaysAtTheEnds) {
  const auto document = MakeDocument("a [b c] d");
  const auto after = [&](EditFunction inMove) {
    inMove(*document);
    return Show(*document);
  };
  EXPECT_EQ(after(edits::SelectPrevious), "a [b c] d*");
  EXPECT_EQ(after(edits::SelectNext), "a [b c] d*");
  EXPECT_EQ(after(edits::SelectPrevious), "a [b c*] d");
  document->SelectRows({});
  EXPECT_EQ(after(edits::SelectNext), "a* [b c] d");
  EXPECT_EQ(after(edits::SelectPrevious), "a* [b c] d");
  tests::Select(*document, "c b");
  EXPECT_EQ(after(edits::SelectNext), "a [b c] d*");
  tests::Select(*document, "c b");
  EXPECT_EQ(after(edits::SelectPrevious), "a* [b c] d");
  const auto empty = MakeDocument("");
  edits::SelectNext(*empty);
  edits::SelectPrevious(*empty);
  EXPECT_EQ(Show(*empty), "");
}

}  // namespace
