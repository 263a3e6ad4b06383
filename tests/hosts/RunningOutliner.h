// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/OS_Window.h"
#include "outliner/OutlineDocument.h"
#include "outliner/OutlinerApp.h"
#include "support/TemporaryFolder.h"

namespace tests {

// The host in a window, driven as a user drives it: every key and click passes the window system.
// Boxes are answered by the names of buttons that were given before, file dialogs by paths, and all
// are written down; so are reported errors. Its settings lie in a folder of its own.
class RunningOutliner {
 public:
  // The outline as tests::Show writes one, without marks; its file is o.opml in a folder of its
  // own.
  explicit RunningOutliner(const std::string& inOutline);
  // Without a document, on the folder of the one before that has ended.
  explicit RunningOutliner(TemporaryFolder& ioFolder);
  ~RunningOutliner();
  // Runs the loop, which has been quit, and ends the application.
  void End();

  // Chords separated by blanks, "Down Ctrl+Return".
  void Keys(const std::string& inChords);
  void HoldKey(const std::string& inChord, int inRepeats);
  void Type(const std::string& inText);
  // At the middle of a line, counted from 0, and inX units from the window's left edge.
  void Click(std::size_t inLine, const std::string& inModifier = "", float inX = 300);
  void DoubleClick(std::size_t inLine, float inX);

  // In coordinates of the window, from the left upper corner of the first node of that name.
  lumui::testing::Position PlaceIn(const std::string& inNode, float inX, float inY);

  // The rows, and behind them the text that is being typed, with "|" for the caret.
  std::string Show();
  std::string GetTitle();
  std::string ReadFile() const;
  std::string GetPath(const std::string& inName) const { return mFolder.GetPath(inName); }
  // The outline as a file of that name, without opening it.
  lumcore::filesupport::File MakeFile(const std::string& inName, const std::string& inOutline);
  // The titles of all documents, with the current one in brackets.
  std::string ShowDocuments();

  // The name of a button, or of a file in the folder.
  void AnswerNextBox(const std::string& inAnswer) { mAnswers.push_back(inAnswer); }
  // All that boxes have asked and errors have said since the last call, a line each.
  std::string TakeMessages();
  bool HasQuit() const;

  outliner::OutlinerApp& GetApp() { return *mApp; }
  lumui::ui::OS_Window& GetWindow() { return *mApp->FindMainWindow(); }
  outliner::OutlineDocument& GetDocument() { return *mApp->GetOutline(); }

 private:
  void Start();
  lumui::testing::Position PlaceOf(std::size_t inLine, float inX);
  std::optional<std::string> TakeAnswer();

  std::unique_ptr<TemporaryFolder> mOwnFolder;
  TemporaryFolder& mFolder;
  std::vector<std::string> mAnswers;
  std::string mMessages;
  std::unique_ptr<outliner::OutlinerApp> mApp;
};

}  // namespace tests
