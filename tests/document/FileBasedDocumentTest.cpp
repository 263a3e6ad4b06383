// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/document/FileBasedDocument.h"

#include <gtest/gtest.h>

#include <string>

#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/dialogs/FileDialog.h"
#include "lumui/dialogs/MessageDialog.h"
#include "support/TemporaryFolder.h"

namespace {

using lumcore::filesupport::File;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;

class Note : public vek::document::FileBasedDocument {
 public:
  void Close() override {}
  void LoadFromFile(const File& inFile) override { SetFile(inFile); }
  void SaveToFile(const File& inFile) override {
    if (mFails) throw lumcore::config::Error(ToUTF16("disk full"));
    inFile.ReplaceContents("note");
    if (mClears) SetDirty(false);
  }
  bool mFails = false;
  bool mClears = true;
};

// A dirty document without a file, and a user who answers the box and the file dialog.
class Closing : public ::testing::Test {
 protected:
  Closing() {
    mNote.SetDirty(true);
    mOldBox = lumui::dialogs::SetDialogAnswerer([this](const auto& inBox) {
      mAsked += ToStdString(inBox.title) + ": " + ToStdString(inBox.text) + "\n";
      return mAnswer;
    });
    mOldFile = lumui::dialogs::SetFileDialogAnswerer([this](const auto& inArgs) {
      mAsked += inArgs.kind == inArgs.kSave ? "save as\n" : "open\n";
      return mPath;
    });
  }
  ~Closing() override {
    lumui::dialogs::SetDialogAnswerer(mOldBox);
    lumui::dialogs::SetFileDialogAnswerer(mOldFile);
  }

  static constexpr int kYes = 0, kNo = 1, kCancel = 2;

  TemporaryFolder mFolder;
  Note mNote;
  int mAnswer = kCancel;
  lumcore::UTF16String mPath;
  std::string mAsked;
  lumui::dialogs::DialogAnswerer mOldBox;
  lumui::dialogs::FileDialogAnswerer mOldFile;
};

TEST_F(Closing, FollowsTheAnswer) {
  EXPECT_FALSE(mNote.CanClose());
  EXPECT_EQ(mAsked,
            "Close Document: The document has been modified. Do you want to save before closing "
            "it?\n");
  mAnswer = kNo;
  EXPECT_TRUE(mNote.CanClose());
  EXPECT_TRUE(mNote.IsDirty());
  mAnswer = kYes;
  EXPECT_FALSE(mNote.CanClose()) << "the file dialog was cancelled";
  EXPECT_FALSE(mNote.IsFileBacked());
  EXPECT_EQ(ToStdString(mNote.GetTitle()), "Untitled");

  const File file(mFolder.GetDir(), "kept.txt");
  mPath = file.FullPath();
  mNote.mClears = false;
  EXPECT_FALSE(mNote.CanClose()) << "the document is still dirty";
  mNote.mClears = true;
  mAsked.clear();
  EXPECT_TRUE(mNote.CanClose());
  EXPECT_EQ(mAsked.find("save as"), mAsked.npos) << "it has a file by now";
  EXPECT_EQ(ToStdString(mNote.GetTitle()), "kept.txt");
  EXPECT_TRUE(mNote.IsFileBacked());
  file.Remove();
  EXPECT_FALSE(mNote.IsFileBacked());

  mAsked.clear();
  EXPECT_TRUE(mNote.CanClose());
  EXPECT_EQ(mAsked, "") << "a clean document asks nothing";
}

TEST_F(Closing, AFailedSaveLeavesTheDocumentDirtyAndReachesTheCaller) {
  mNote.LoadFromFile(File(mFolder.GetDir(), "a.txt"));
  mNote.mFails = true;
  mAnswer = kYes;
  EXPECT_THROW(mNote.CanClose(), lumcore::config::Error);
  EXPECT_TRUE(mNote.IsDirty());
}

}  // namespace
