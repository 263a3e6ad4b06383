// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "hosts/OutlineText.h"
#include "lumcore/filesupport/FileError.h"
#include "lumcore/utility/StringUtils.h"
#include "outliner/OpmlWriter.h"
#include "outliner/OutlineEdits.h"
#include "support/TemporaryFolder.h"
#include "vek/undo/ClearUndoStackDeed.h"

namespace {

using lumcore::filesupport::File;
using lumcore::utility::ToUTF16;
using outliner::OutlineDocument;
using tests::MakeDocument;
using tests::Show;
namespace edits = outliner::edits;

void ClearUndoStack(OutlineDocument& ioDocument) {
  ioDocument.GetUndoer().PostDeed(
      std::auto_ptr<vek::undo::Deed>(new vek::undo::ClearUndoStackDeed));
}

std::string Contents(const File& inFile) {
  const auto bytes = inFile.ReadAll();
  return std::string(bytes.begin(), bytes.end());
}

class OutlineDocumentTest : public testing::Test {
 protected:
  File MakeFile(const char* inName) const { return mFolder.GetFile(inName); }

  TemporaryFolder mFolder;
};

TEST_F(OutlineDocumentTest, IsDirtyExactlyWhileItDiffersFromItsFile) {
  const auto document = MakeDocument("a b* c");
  const File file = MakeFile("o.opml");
  document->SaveAsFile(file);
  EXPECT_FALSE(document->IsDirty());
  edits::Indent(*document);
  EXPECT_TRUE(document->IsDirty());
  edits::Undo(*document);
  EXPECT_FALSE(document->IsDirty());
  edits::Redo(*document);
  document->Save();
  EXPECT_FALSE(document->IsDirty());
  edits::Undo(*document);
  EXPECT_TRUE(document->IsDirty());
  edits::MoveUp(*document);  // takes the place of the saved state, which cannot be met again
  EXPECT_TRUE(document->IsDirty());
  edits::Undo(*document);
  EXPECT_TRUE(document->IsDirty());
  EXPECT_EQ(Show(*OutlineDocument::Open(file)), "a [b] c");
  document->GetSelection().SelectAll();
  EXPECT_TRUE(document->IsDirty());
}

TEST_F(OutlineDocumentTest, ForgettingTheStackKeepsTheMarkRight) {
  const auto document = MakeDocument("a b* c");
  const File file = MakeFile("o.opml");
  edits::Indent(*document);
  document->SaveAsFile(file);
  ClearUndoStack(*document);
  EXPECT_FALSE(document->IsDirty());

  edits::Outdent(*document);
  document->Save();
  edits::Undo(*document);
  ClearUndoStack(*document);  // the undoer now answers with the number of what was saved
  EXPECT_TRUE(document->IsDirty());
  edits::MoveUp(*document);
  edits::Undo(*document);
  EXPECT_TRUE(document->IsDirty());
  document->Save();
  EXPECT_FALSE(document->IsDirty());
}

TEST_F(OutlineDocumentTest, AFailedSaveLeavesFileAndMarkAsTheyWere) {
  const auto document = MakeDocument("a b* c");
  document->SaveAsFile(MakeFile("o.opml"));
  const std::string saved = Contents(document->GetProjectFile());
  edits::Indent(*document);

  const lumcore::filesupport::Dir taken(mFolder.GetDir(), "taken.opml");
  lumcore::filesupport::Dir(taken, "inside").Create();
  const File failing(taken.GetPath());
  try {
    document->SaveAsFile(failing);
    ADD_FAILURE() << "was saved";
  } catch (const lumcore::filesupport::FileError& error) {
    EXPECT_NE(std::string(error.what()).find(failing.GetPath()), std::string::npos) << error.what();
  }
  EXPECT_TRUE(document->IsDirty());
  EXPECT_TRUE(taken.Exists());
  EXPECT_EQ(mFolder.GetDir().GetFiles().size(), 1u);
  EXPECT_EQ(document->GetProjectFile().GetPath(), MakeFile("o.opml").GetPath());
  EXPECT_EQ(Contents(document->GetProjectFile()), saved);

  document->Save();
  EXPECT_FALSE(document->IsDirty());
  EXPECT_EQ(Contents(document->GetProjectFile()), outliner::WriteOpml(document->GetTree()));
}

TEST_F(OutlineDocumentTest, AFileThatCannotBeReadOpensNothingAndIsNamed) {
  const File missing = MakeFile("missing.opml");
  try {
    OutlineDocument::Open(missing);
    ADD_FAILURE() << "was opened";
  } catch (const lumcore::filesupport::FileError& error) {
    EXPECT_NE(std::string(error.what()).find(missing.GetPath()), std::string::npos);
  }
  const File bad = MakeFile("bad.opml");
  bad.ReplaceContents("<opml>\n<body>\n");
  try {
    OutlineDocument::Open(bad);
    ADD_FAILURE() << "was opened";
  } catch (const lumcore::config::Error& error) {
    EXPECT_EQ(std::string(error.what()).find(bad.GetPath() + ":3:1: "), 0u) << error.what();
  }
  EXPECT_EQ(Contents(bad), "<opml>\n<body>\n");
}

TEST_F(OutlineDocumentTest, KeepsALimitedNumberOfStepsAndStaysDirtyBelowThem) {
  const auto document = MakeDocument("a*");
  const int steps = OutlineDocument::kUndoLevels + 10;
  for (int step = 0; step < steps; ++step)
    edits::SetText(*document, *document->GetTree().GetLines().front(),
                   ToUTF16(std::to_string(step)));
  while (edits::CanUndo(*document))
    edits::Undo(*document);
  EXPECT_EQ(Show(*document), "10*");
  EXPECT_TRUE(document->IsDirty());
}

}  // namespace
