// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <string>

#include "hosts/RunningOutliner.h"
#include "lumcore/filesupport/Dir.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_Popup_Combo.h"
#include "lumui/controls/UI_TextButton.h"
#include "lumui/controls/UI_TextEdit.h"
#include "lumui/dialogs/DialogDriver.h"
#include "lumui/dialogs/FileDialog.h"
#include "lumui/testing/Menus.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/UI_Dialog.h"
#include "outliner/FilesPane.h"
#include "outliner/ScriptConsole.h"
#include "support/UserFolders.h"
#include "vek/sharedui/UIShellEntries.h"
#include "vek/sharedui/UIShellTrackView.h"

namespace {

using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using lumui::testing::ChooseMenuItem;
using lumui::ui::UI_Dialog;
using tests::RunningOutliner;

template <class View>
View& Node(RunningOutliner& ioHost, const char* inName) {
  return dynamic_cast<View&>(*ioHost.GetWindow().UI_GetNodeForID(lumcore::utility::ToUTF8(inName)));
}

// Until what runs on the script's own thread has come to its end.
void AwaitLines(outliner::ScriptConsole& inConsole) {
  auto& application = *lumui::ui::Application::Get();
  while (inConsole.IsRunning())
    application.PumpPendingEvents();
}

TEST(ScriptConsole, RunsLinesTellsWhatFailedAndBringsThemBack) {
  RunningOutliner host("a b");
  ChooseMenuItem(host.GetWindow(), {ToUTF16("View"), ToUTF16("Script Console")});
  auto& input = Node<lumui::controls::UI_TextEdit>(host, "line");
  auto& console = dynamic_cast<outliner::ScriptConsole&>(*input.UI_GetParentNode());
  const auto run = [&](const char* inLine) {
    host.Type(inLine);
    host.Keys("Return");
    AwaitLines(console);
    const std::string text = ToStdString(console.GetOutput().GetText());
    console.Clear();
    return text;
  };
  EXPECT_EQ(run("var n = 6 * 7; n"), "> var n = 6 * 7; n\n42");
  EXPECT_EQ(run("print('n is', n, true)"), "> print('n is', n, true)\nn is 42 true");
  EXPECT_EQ(run("print(1); none()"),
            "> print(1); none()\n1\nline 3:1: ReferenceError: none is not defined");
  EXPECT_EQ(run("Command.invokeCommand('outliner.select.all')"),
            "> Command.invokeCommand('outliner.select.all')\ntrue");
  EXPECT_EQ(host.Show(), "a* b*");
  EXPECT_EQ(run("  "), "");
  // Neither the keys of rows nor those of the field itself.
  const auto shown = [&] { return ToStdString(input.GetText()); };
  host.Keys("Backspace Backspace");
  host.Type("unsent");
  host.Keys("Up Up");
  EXPECT_EQ(shown(), "print(1); none()");
  host.Keys("Down");
  EXPECT_EQ(shown(), "Command.invokeCommand('outliner.select.all')");
  host.Keys("Down Down");
  EXPECT_EQ(shown(), "unsent");
  EXPECT_EQ(host.Show(), "a* b*");
  // One that never ends is stopped, by the button and by closing the panel.
  input.SetText({});
  console.Run(ToUTF16("for (;;) {}"));
  Node<lumui::controls::UI_TextButton>(host, "stop").Press();
  AwaitLines(console);
  EXPECT_NE(ToStdString(console.GetOutput().GetText()).find("line 5"), std::string::npos);
  console.Run(ToUTF16("for (;;) {}"));
  ChooseMenuItem(host.GetWindow(), {ToUTF16("View"), ToUTF16("Script Console")});
  EXPECT_EQ(host.Show(), "a* b*");
}

TEST(FilesPanel, IsBuiltWhenItIsSeenOpensOutlinesAndComesBackWhereItWas) {
  TemporaryFolder folder;
  UserFolders home;
  const std::string path = home.GetPath("Documents/sub");
  lumcore::filesupport::Dir(path).Create();
  home.MakeFile("Documents/sub/other.txt");
  const auto tree = [](RunningOutliner& ioHost) {
    lumui::testing::ProcessEvents();
    return Node<outliner::FilesPane>(ioHost, "files").GetTree();
  };
  {
    RunningOutliner host(folder);
    lumui::testing::ActivateWindow(&host.GetWindow());
    const auto file = host.MakeFile("o.opml", "a b");
    lumcore::filesupport::File(path + "/kept.opml")
        .ReplaceContents("<opml version='2.0'><body><outline text='kept'/></body></opml>");
    ChooseMenuItem(host.GetWindow(), {ToUTF16("View"), ToUTF16("Files")});
    ASSERT_TRUE(tree(host));
    EXPECT_TRUE(tree(host)->ExpandAndSelectNode(lumcore::filesupport::Dir(path)));
    // The folder's only outline stands below it.
    host.Keys("Down Return");
    EXPECT_EQ(host.ShowDocuments(), "[kept.opml]");
    EXPECT_EQ(host.TakeMessages(), "");
  }
  RunningOutliner host(folder);
  const auto* const entry = tree(host) ? tree(host)->GetSelectedEntry() : nullptr;
  ASSERT_TRUE(entry && entry->GetDir());
  EXPECT_EQ(entry->GetDir()->GetPath(), path);
}

TEST(OwnFileDialog, IsAChoiceThatStaysAndTakesOnlyWhatCanBeOpened) {
  TemporaryFolder folder;
  {
    RunningOutliner host(folder);
    ChooseMenuItem(host.GetWindow(), {ToUTF16("File"), ToUTF16("Use vek's File Dialog")});
  }
  RunningOutliner host(folder);
  lumui::dialogs::SetFileDialogAnswerer(nullptr);
  host.GetApp().OpenOutline(host.MakeFile("o.opml", "a b"));
  host.MakeFile("p.opml", "c");
  const auto name = [](UI_Dialog& ioDialog, const char* inName) {
    dynamic_cast<lumui::controls::UI_Popup_Combo&>(*ioDialog.GetNodeForID("FilenameCombo"))
        .SetValueString(ToUTF16(inName), false);
  };
  lumui::dialogs::SetDialogDriver([&](UI_Dialog& ioDialog) {
    for (const char* const each : {"", "none"}) {
      name(ioDialog, each);
      host.AnswerNextBox("OK");
      ioDialog.EndDialog(UI_Dialog::kOK);
      EXPECT_TRUE(ioDialog.IsOpen());
    }
    name(ioDialog, "p");
    ioDialog.EndDialog(UI_Dialog::kOK);
  });
  host.Keys("Ctrl+O");
  EXPECT_EQ(host.ShowDocuments(), "o.opml [p.opml]");
  EXPECT_EQ(host.TakeMessages(), "box: Choose a file, or type a name.\nbox: There is no file \"" +
                                     folder.GetPath("none.opml") + "\".\n");
  lumui::dialogs::SetDialogDriver([&](UI_Dialog& ioDialog) {
    name(ioDialog, "o.opml");
    host.AnswerNextBox("Cancel");
    ioDialog.EndDialog(UI_Dialog::kOK);
    EXPECT_TRUE(ioDialog.IsOpen());
    name(ioDialog, "q");
    ioDialog.EndDialog(UI_Dialog::kOK);
  });
  host.Keys("Ctrl+Shift+S");
  EXPECT_TRUE(folder.GetFile("q.opml").Exists());
  EXPECT_EQ(host.ShowDocuments(), "o.opml [q.opml]");
  lumui::dialogs::SetDialogDriver(nullptr);
}

}  // namespace
