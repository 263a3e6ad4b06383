// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>
#include <filesystem>
#include <optional>
#include <string>

#include "hosts/RunningOutliner.h"
#include "lumcore/filesupport/Dir.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/testing/Menus.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Application.h"
#include "outliner/CommandSystem.h"
#include "vek/uisupport/CommandHandlerBase.h"

namespace {

using lumcore::filesupport::File;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using tests::RunningOutliner;

std::string MenuText(RunningOutliner& ioHost, const lumui::testing::MenuPath& inPath) {
  lumui::testing::OpenMenu(ioHost.GetWindow(), inPath);
  std::string text = ToStdString(lumui::testing::MenuAsText(nullptr));
  lumui::testing::CloseMenus(ioHost.GetWindow());
  const std::string folder = ioHost.GetPath("");
  for (auto at = text.find(folder); at != text.npos; at = text.find(folder))
    text.erase(at, folder.size());
  return text;
}

TEST(Documents, AreOpenedOnceAndSwitchedByKeysAndTabs) {
  RunningOutliner host("a b");
  host.MakeFile("p.opml", "p");
  host.Keys("Ctrl+N");
  EXPECT_EQ(host.ShowDocuments(), "o.opml [Untitled]");
  host.AnswerNextBox("p.opml");
  host.Keys("Ctrl+O");
  EXPECT_EQ(host.ShowDocuments(), "o.opml [p.opml]") << "a pristine one gives way";
  std::filesystem::create_symlink(host.GetPath("o.opml"), host.GetPath("link.opml"));
  for (const char* name : {"o.opml", "p.opml", "./o.opml", "p.opml", "link.opml"}) {
    host.AnswerNextBox(name);
    host.Keys("Ctrl+O");
  }
  EXPECT_EQ(host.ShowDocuments(), "[o.opml] p.opml");
  host.Keys("Down Delete Ctrl+Tab");
  EXPECT_EQ(host.ShowDocuments(), "*o.opml [p.opml]");
  host.Keys("Down F2 Ctrl+N");
  EXPECT_EQ(host.ShowDocuments(), "*o.opml p.opml [Untitled]");
  host.Keys("Ctrl+PageDown");
  EXPECT_EQ(host.Show(), "b*");
  host.Keys("Ctrl+Shift+Tab Ctrl+PageUp");
  EXPECT_EQ(host.Show(), "p*");

  // The last tab of three, then its cross.
  lumui::testing::ClickMouse(host.GetWindow(), host.PlaceIn("documents", 500, 16));
  EXPECT_EQ(host.ShowDocuments(), "*o.opml p.opml [Untitled]");
  lumui::testing::ClickMouse(host.GetWindow(), host.PlaceIn("documents", 645, 16));
  EXPECT_EQ(host.ShowDocuments(), "[*o.opml] p.opml");
  lumui::testing::ClickMouse(host.GetWindow(), host.PlaceIn("documents", 300, 16));
  EXPECT_EQ(host.ShowDocuments(), "*o.opml [p.opml]");
}

TEST(Documents, SaveAsKeepsTheOldFileWhenItFailsAndNeverTakesThatOfAnother) {
  RunningOutliner host("a b");
  host.MakeFile("p.opml", "p");
  host.GetApp().OpenOutline(File(host.GetPath("p.opml")));
  host.Keys("Down Delete");
  const struct {
    const char* name;
    const char* message;
  } kCases[] = {
      {"Cancel", ""},
      {"o.opml", "error: o.opml: the file is open in another tab\n"},
      {"none/x.opml", "error: "},
  };
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.name);
    host.TakeMessages();
    host.AnswerNextBox(row.name);
    host.Keys("Ctrl+Shift+S");
    std::string message = host.TakeMessages();
    message.erase(0, std::string("file: Save the outline as\n").size());
    const auto at = message.find(host.GetPath(""));
    if (at != message.npos) message.erase(at, host.GetPath("").size());
    EXPECT_EQ(message.substr(0, std::string(row.message).size()), row.message) << message;
    EXPECT_EQ(host.ShowDocuments(), "o.opml [*p.opml]");
  }
  host.AnswerNextBox("n.opml");
  host.Keys("Ctrl+Shift+S");
  EXPECT_EQ(host.ShowDocuments(), "o.opml [n.opml]");
  EXPECT_EQ(MenuText(host, {ToUTF16("File"), ToUTF16("Open Recent")}),
            "&1  n.opml | &2  p.opml | &3  o.opml");
}

TEST(Documents, AFileThatAnotherProgramHasChangedIsOverwrittenOnlyAfterAQuestion) {
  const std::string question =
      "box: Another program has changed \"o.opml\" since it was opened or saved here. If it is "
      "overwritten, those changes are lost.\n";
  RunningOutliner host("a b c d");
  const File file(host.GetPath("o.opml"));
  const std::string opened = host.ReadFile();
  const std::string theirs = "<opml><body><outline text=\"theirs\"/></body></opml>";
  host.Keys("Down Delete");
  file.ReplaceContents(theirs);
  host.AnswerNextBox("Cancel");
  host.Keys("Ctrl+S");
  EXPECT_EQ(host.TakeMessages(), question);
  for (const char* answer : {"Save", "Cancel"})
    host.AnswerNextBox(answer);
  host.Keys("Ctrl+W");
  EXPECT_EQ(host.ShowDocuments(), "[*o.opml]") << "what is not saved stays open";
  EXPECT_EQ(host.ReadFile(), theirs);

  host.TakeMessages();
  file.ReplaceContents(opened);
  host.Keys("Ctrl+S");
  EXPECT_EQ(host.TakeMessages(), "") << "it is as it was";
  host.Keys("Down Delete");
  file.Remove();
  host.Keys("Ctrl+S");
  EXPECT_EQ(host.TakeMessages(), "") << "there is nothing to lose";
  host.Keys("Down Delete Ctrl+S");
  EXPECT_EQ(host.TakeMessages(), "") << "what was written here is known";

  // Of the same length, and at the same time as far as clocks tell.
  std::string changed = host.ReadFile();
  changed[changed.find("text=\"") + 6] = 'X';
  file.ReplaceContents(changed);
  host.Keys("Ctrl+Return");
  for (const char* answer : {"Save As...", "mine.opml"})
    host.AnswerNextBox(answer);
  host.Keys("Ctrl+S");
  EXPECT_EQ(host.ShowDocuments(), "[mine.opml]");
  EXPECT_EQ(host.ReadFile(), changed);
  File(host.GetPath("mine.opml")).ReplaceContents(theirs);
  host.Keys("Ctrl+Return");
  host.AnswerNextBox("Overwrite");
  host.Keys("Ctrl+S");
  EXPECT_EQ(host.ShowDocuments(), "[mine.opml]");
  EXPECT_NE(lumcore::utility::ToStdString(File(host.GetPath("mine.opml")).ReadAll()), theirs);
}

TEST(Documents, QuittingAsksEachUntilOneRefuses) {
  RunningOutliner host("a b");
  for (const char* name : {"p.opml", "q.opml"})
    host.GetApp().OpenOutline(host.MakeFile(name, name));
  for (int document = 0; document < 3; ++document)
    host.Keys("Down Delete Ctrl+Tab");
  for (const char* answer : {"Save", "Cancel"})
    host.AnswerNextBox(answer);
  host.Keys("Ctrl+Q");
  EXPECT_EQ(host.TakeMessages(),
            "box: Save the changes to \"o.opml\" before it is closed?\n"
            "box: Save the changes to \"p.opml\" before it is closed?\n");
  EXPECT_EQ(host.ShowDocuments(), "o.opml [*p.opml] *q.opml");
  EXPECT_FALSE(host.HasQuit());
  for (const char* answer : {"Discard", "Save"})
    host.AnswerNextBox(answer);
  EXPECT_TRUE(lumui::testing::EndSession());
  EXPECT_TRUE(host.HasQuit());
}

TEST(Menus, SayNamesKeysAndStatesAndDoWhatIsChosen) {
  RunningOutliner host("a b");
  const auto file = ToUTF16("File");
  EXPECT_EQ(MenuText(host, {file}),
            "&New\tCtrl+N | &Open...\tCtrl+O | Open &Recent > | --- | &Save\tCtrl+S | "
            "Save &As...\tCtrl+Shift+S | --- | &Use vek's File Dialog | --- | &Close\tCtrl+W | "
            "C&lose All\tCtrl+Shift+W | --- | "
            "&Quit\tCtrl+Q");
  host.Keys("Down Alt+Down");
  EXPECT_EQ(MenuText(host, {ToUTF16("Edit")}).find("&Undo Move Down\tCtrl+Z | ~&Redo"), 0u);
  lumui::testing::ChooseMenuItem(host.GetWindow(), {ToUTF16("Edit"), ToUTF16("Undo Move Down")});
  EXPECT_EQ(MenuText(host, {ToUTF16("Edit")}).find("~&Undo\tCtrl+Z | &Redo Move Down"), 0u);

  host.GetApp().OpenOutline(host.MakeFile("x & y.opml", "x"));
  EXPECT_EQ(MenuText(host, {ToUTF16("View"), ToUTF16("Documents")}),
            "&1  o.opml | (*)&2  x && y.opml");
  File(host.GetPath("o.opml")).Remove();
  EXPECT_EQ(MenuText(host, {file, ToUTF16("Open Recent")}), "&1  x && y.opml | ~&2  o.opml");
  lumui::testing::ChooseMenuItem(host.GetWindow(), {file, ToUTF16("Close All")});
  EXPECT_EQ(MenuText(host, {file}).find("~&Save\tCtrl+S | ~Save &As..."),
            std::string("&New\tCtrl+N | &Open...\tCtrl+O | Open &Recent > | --- | ").size());
  lumui::testing::ChooseMenuItem(host.GetWindow(), {file, ToUTF16("Open Recent"),
                                                    ToUTF16("1  " + host.GetPath("x & y.opml"))});
  EXPECT_EQ(host.ShowDocuments(), "[x & y.opml]");
}

TEST(Menus, TheRightButtonSelectsTheRowAndOpensItsMenu) {
  RunningOutliner host("a b c");
  host.Click(0);
  host.Click(1, "Ctrl");
  const auto press = [&](float inY) {
    lumui::testing::ClickMouse(host.GetWindow(), host.PlaceIn("rows", 300, inY),
                               lumui::ui::PointerEvent::kRightButton);
  };
  press(28);
  EXPECT_EQ(host.Show(), "a* b* c") << "what is selected together stays so";
  lumui::testing::CloseMenus(host.GetWindow());
  press(47);
  EXPECT_EQ(host.Show(), "a b c*");
  lumui::testing::ChooseMenuItem(host.GetWindow(), {ToUTF16("Move Up")});
  EXPECT_EQ(host.Show(), "a c* b");
}

constexpr const char* kSettings = "settings/AppPrefs.xml";

TEST(Settings, KeepTheRecentFilesAndTheBrightnessOfTheSession) {
  TemporaryFolder folder;
  {
    RunningOutliner host(folder);
    host.GetApp().OpenOutline(host.MakeFile("a.opml", "a"));
    host.GetApp().OpenOutline(host.MakeFile("b.opml", "b"));
    lumui::testing::ChooseMenuItem(host.GetWindow(),
                                   {ToUTF16("View"), ToUTF16("Brightness"), ToUTF16("Dark")});
    // As the system does that ends the process without a further word.
    EXPECT_TRUE(lumui::testing::EndSession());
    EXPECT_NE(folder.GetFile(kSettings).ReadAll().size(), 0u);
    folder.GetFile(kSettings).Remove();
  }
  RunningOutliner again(folder);
  EXPECT_EQ(MenuText(again, {ToUTF16("File"), ToUTF16("Open Recent")}), "&1  b.opml | &2  a.opml");
}

TEST(Settings, OfADefectiveFileAreKeptAndThoseOfAFailedStartAsWell) {
  TemporaryFolder folder;
  lumcore::filesupport::Dir(folder.GetPath("settings")).Create();
  const File file = folder.GetFile(kSettings);
  file.ReplaceContents("<?xml?><no settings");
  {
    outliner::CommandFiles files = outliner::FindCommandFiles();
    files.commands = folder.GetFile("none.xml");
    outliner::OutlinerApp app({files, "", folder.GetPath("settings")});
    file.ReplaceContents("<defective");
    EXPECT_ANY_THROW(app.Start());
    app.End();
  }
  EXPECT_TRUE(folder.GetFile("settings/AppPrefs.defective.xml").Exists());
  file.ReplaceContents("<more>");
  {
    RunningOutliner host(folder);
    lumui::testing::ProcessEvents();
    const std::string message = host.TakeMessages();
    EXPECT_EQ(message.find("error: " + file.GetPath() + ":1:1: "), 0u) << message;
    EXPECT_NE(message.find("AppPrefs.defective-2.xml"), std::string::npos);
  }
  EXPECT_EQ(ToStdString(folder.GetFile("settings/AppPrefs.defective-2.xml").ReadAll()), "<more>");
  EXPECT_NE(ToStdString(file.ReadAll()).find("App.RecentFiles"), std::string::npos);
}

// Notes, when a window is painted for the first time, whether the program has a document by then.
class FirstPainting : public QObject {
 public:
  explicit FirstPainting(const outliner::OutlinerApp& inApp) : mApp(inApp) {
    QCoreApplication::instance()->installEventFilter(this);
  }
  bool eventFilter(QObject* inObject, QEvent* inEvent) override {
    if (inEvent->type() == QEvent::Paint && inObject->isWidgetType() && !mHadDocument)
      mHadDocument = mApp.HasOpenDocument();
    return false;
  }
  std::optional<bool> mHadDocument;

 private:
  const outliner::OutlinerApp& mApp;
};

TEST(NewOutlines, OfAStartWithoutFilesAreThereBeforeTheFirstPainting) {
  TemporaryFolder folder;
  outliner::OutlinerApp app({outliner::FindCommandFiles(), "", folder.GetPath("settings"), true});
  const FirstPainting painting(app);
  app.Start();
  EXPECT_EQ(painting.mHadDocument, true);
  EXPECT_EQ(ToStdString(app.FindMainWindow()->UI_GetTitle()), "Untitled — outliner");
  app.End();
  lumui::ui::Application::Get()->CancelQuit();
}

}  // namespace
