// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <QApplication>
#include <QTabBar>
#include <string>

#include "hosts/OutlineText.h"
#include "hosts/RunningOutliner.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_TextEdit.h"
#include "lumui/testing/Menus.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Accessible.h"
#include "lumui/ui/Application.h"
#include "lumworkspace/sharedui/WorkspaceSwitcherManager.h"
#include "lumworkspace/testing/Layouts.h"
#include "lumworkspace/workspace/ManagerBase.h"
#include "lumworkspace/workspace/Workspace.h"
#include "outliner/AttributeEditor.h"
#include "outliner/AttributeEdits.h"
#include "outliner/CommandsView.h"
#include "outliner/OpmlWriter.h"
#include "outliner/OutlineEdits.h"
#include "vek/app/AppActivationMessage.h"
#include "vek/app/AppBase.h"
#include "vek/messaging/Listener.h"

namespace {

using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using lumui::testing::ChooseMenuItem;
using tests::RunningOutliner;
namespace edits = outliner::edits;

lumui::ui::UI_Node* Node(RunningOutliner& ioHost, const char* inName) {
  return ioHost.GetWindow().UI_GetNodeForID(lumcore::utility::ToUTF8(inName));
}

lumui::controls::UI_TextEdit& Field(RunningOutliner& ioHost) {
  return dynamic_cast<lumui::controls::UI_TextEdit&>(*Node(ioHost, "note"));
}

std::string Note(RunningOutliner& ioHost, const char* inRow) {
  auto& document = ioHost.GetDocument();
  return ToStdString(edits::GetNote(document, *tests::FindRow(document, inRow)));
}

// "outline / notes" for the panels on screen, and the current workspace behind it.
std::string Panels(RunningOutliner& ioHost) {
  lumui::testing::ProcessEvents();
  std::string text = lumworkspace::testing::LayoutAsText(*ioHost.GetApp().GetWorkspace());
  for (auto at = text.find("outliner."); at != text.npos; at = text.find("outliner."))
    text.erase(at, 9);
  return text + " " + ToStdString(ioHost.GetApp().GetWorkspaceManager()->GetCurrentWorkspace());
}

QTabBar* FindTabs() {
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    for (auto* const tabs : window->findChildren<QTabBar*>()) {
      if (tabs->accessibleName() == QStringLiteral("Workspaces")) return tabs;
    }
  }
  return nullptr;
}
std::string Tabs() {
  const QTabBar* const tabs = FindTabs();
  std::string text;
  for (int tab = 0; tabs && tab < tabs->count(); ++tab)
    text += (tab > 0 ? " " : "") + tabs->tabText(tab).toStdString();
  return text;
}

void ChooseWorkspace(RunningOutliner& ioHost, const char* inName) {
  ChooseMenuItem(ioHost.GetWindow(), {ToUTF16("Workspace"), ToUTF16(inName)});
  lumui::testing::ProcessEvents();
}

TEST(Notes, OfAFileChangeAloneAndComeBackByteByByte) {
  const struct {
    const char* row;
    const char* note;
    const char* written;
  } kCases[] = {
      {"text='t'", "n", "text=\"t\" _note=\"n\""},
      {"text='t' b='1'", "n\nm", "text=\"t\" b=\"1\" _note=\"n&#10;m\""},
      {"text='t' _note='o' b='1'", "n", "text=\"t\" _note=\"n\" b=\"1\""},
      {"a='0' _note='o' text='t' b='1'", "", "a=\"0\" text=\"t\" b=\"1\""},
      {"_note='o' text='t'", "", "text=\"t\""},
      {"text='t' _note='o'", "", "text=\"t\""},
      {"text='t' _note='a&#13;&#10;b'", "a\nc\nd", "text=\"t\" _note=\"a&#13;&#10;c&#13;&#10;d\""},
      {"text='t' _note='a&#13;b'", "a\nb", "text=\"t\" _note=\"a&#13;b\""},
      {"text='t'", "x\x01\xC2\xA0y", "text=\"t\" _note=\"x\xEF\xBF\xBD\xC2\xA0y\""},
  };
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.row);
    outliner::OutlineDocument document(
        tests::Read("<opml><body><outline " + std::string(row.row) + "/></body></opml>"), {});
    const std::string before = outliner::WriteOpml(document.GetTree());
    edits::SetNote(document, *document.GetTree().GetLines()[0], ToUTF16(row.note));
    const std::string after = outliner::WriteOpml(document.GetTree());
    EXPECT_NE(after.find("<outline " + std::string(row.written) + "/>"), after.npos) << after;
    edits::Undo(document);
    EXPECT_EQ(outliner::WriteOpml(document.GetTree()), before);
    edits::Redo(document);
    EXPECT_EQ(outliner::WriteOpml(document.GetTree()), after);
  }
}

TEST(Notes, ThatAreTypedBecomeOneDeedHoweverTheFieldIsLeft) {
  const char* const kWays[] = {"row", "panel", "tab", "workspace", "command", "save"};
  for (const std::string way : kWays) {
    SCOPED_TRACE(way);
    RunningOutliner host("a b");
    auto& document = host.GetDocument();
    host.Click(1);
    host.Keys("Ctrl+2 Ctrl+2");
    host.Type("one");
    host.Keys("Return");
    host.Type("two");
    EXPECT_EQ(Note(host, "b"), "");
    EXPECT_TRUE(document.IsDirty());
    if (way == "row") host.Click(0);
    if (way == "panel") host.Keys("Ctrl+2");
    if (way == "tab") host.Keys("Ctrl+N Ctrl+Tab");
    if (way == "workspace") ChooseWorkspace(host, "Commands");
    if (way == "command") host.GetApp().GetOutline()->CommitTyping();
    if (way == "save") host.Keys("Ctrl+S");
    EXPECT_EQ(Note(host, "b"), "one\ntwo");
    EXPECT_EQ(document.IsDirty(), way != "save");
    EXPECT_EQ(host.Show(), way == "row" ? "a* b" : "a b*");
    tests::Select(document, "a");
    ChooseMenuItem(host.GetWindow(), {ToUTF16("Edit"), ToUTF16("Undo Change Note")});
    EXPECT_EQ(Note(host, "b"), "");
    EXPECT_EQ(host.Show(), "a b*");
    EXPECT_FALSE(document.GetUndoer().CouldUndoDeed());
    document.SetDirty(false);
  }
}

TEST(Notes, ThatAreTypedAreAskedAboutAndOutliveTheirRowAndTheirField) {
  RunningOutliner host("a b");
  host.Click(0);
  host.Keys("Ctrl+2 Ctrl+2");
  host.Type("kept");
  // Without the field: it shows another row by now.
  tests::Select(host.GetDocument(), "b");
  EXPECT_EQ(ToStdString(Field(host).GetText()), "");
  tests::Select(host.GetDocument(), "a");
  EXPECT_EQ(ToStdString(Field(host).GetText()), "kept");
  host.GetApp().GetWorkspace()->CloseTab(lumcore::utility::ToUTF8("outliner.notes"));
  host.AnswerNextBox("Cancel");
  host.Keys("Ctrl+W");
  EXPECT_EQ(host.TakeMessages(), "box: Save the changes to \"o.opml\" before it is closed?\n");
  EXPECT_EQ(Note(host, "a"), "kept");
  host.GetDocument().GetNoteEditor().SetValue({tests::FindRow(host.GetDocument(), "b")->GetId()},
                                              outliner::attributes::Note(), ToUTF16("more"));
  edits::Delete(host.GetDocument());
  tests::Select(host.GetDocument(), "b");
  edits::Delete(host.GetDocument());
  host.Keys("Ctrl+S");
  EXPECT_NE(host.ReadFile().find("_note=\"more\""), std::string::npos) << host.ReadFile();
}

TEST(Notes, FieldFollowsUndoAndSaysWhyItIsEmpty) {
  RunningOutliner host("a b");
  EXPECT_TRUE(Field(host).IsReadOnly());
  host.Click(0);
  EXPECT_FALSE(Field(host).IsReadOnly());
  host.Keys("Ctrl+2 Ctrl+2");
  host.Type("n");
  host.Keys("Ctrl+S");
  lumui::testing::ChooseMenuItem(host.GetWindow(), {ToUTF16("Edit"), ToUTF16("Undo Change Note")});
  EXPECT_EQ(ToStdString(Field(host).GetText()), "");
  host.GetDocument().SetDirty(false);
  host.Keys("Ctrl+W");
  EXPECT_EQ(ToStdString(Field(host).GetPlaceholder()), "No outline is open");
}

TEST(CommandsPanel, SaysWhatTheChainSaysAndRunsWhatIsChosen) {
  RunningOutliner host("a b");
  ChooseWorkspace(host, "Commands");
  const boost::intrusive_ptr<outliner::CommandsView> list(
      dynamic_cast<outliner::CommandsView*>(Node(host, "commands")));
  list->UI_SetKeyboardFocus(lumui::ui::kFocusOther);
  const auto text = [&] {
    lumui::ui::Application::Get()->PumpPendingEvents();
    list->Update();
    return ToStdString(list->AsText());
  };
  host.Type("redo");
  EXPECT_EQ(text(), "> ~ Redo  Ctrl+Y, Ctrl+Shift+Z\n");
  host.Keys("Return Backspace Backspace Backspace Backspace");
  host.Type("new ");
  EXPECT_EQ(text(),
            "> New Row  Return, Enter\nNew Child Row  Ctrl+Return, Ctrl+Enter\n"
            "New Workspace...\n");
  host.Keys("Down Return");
  EXPECT_EQ(host.Show(), "a b -* / |") << "the keyboard is in the new row";
  host.Type("c");
  list->SetFilter(ToUTF16("takes the last"));
  EXPECT_EQ(text(), "> Undo Typing  Ctrl+Z\n");
  lumui::testing::DoubleClickMouse(host.GetWindow(), host.PlaceIn("commands", 100, 20));
  EXPECT_EQ(host.Show(), "a b -*");
  EXPECT_EQ(text(), "> Undo New Child Row  Ctrl+Z\n");
  // As those hear it who do not see it.
  using namespace lumui::ui;
  list->SetFilter(ToUTF16("next outline"));
  AccessibleItem row;
  ASSERT_TRUE(
      list->UI_GetAccessibleItems()->Describe(list->UI_GetAccessibleItems()->GetAt({5, 5}), row));
  EXPECT_EQ(ToStdString(row.name + row.value), "Next OutlineCtrl+Tab, Ctrl+Page Down");
  EXPECT_TRUE(row.states & kAccessibleDisabled);
  EXPECT_FALSE(row.actions & kAccessiblePress);
  list->SetFilter(ToUTF16("all commands"));
  AccessibleItems& items = *list->UI_GetAccessibleItems();
  EXPECT_EQ(items.GetChildCount(AccessibleID()), 1);
  EXPECT_TRUE(items.GetAt({5, 50}).IsNode());
  // A command that takes the list away from under itself.
  list->SetFilter(ToUTF16("all commands"));
  EXPECT_EQ(text(), "> * Commands  Ctrl+3\n");
  list->UI_SetKeyboardFocus(lumui::ui::kFocusOther);
  host.Keys("Return");
  EXPECT_EQ(Node(host, "commands"), nullptr);
}

struct ActivationLog : vek::messaging::Listener<const vek::app::AppActivationMessage&> {
  void ListenToMessage(const vek::app::AppActivationMessage& inMessage) override {
    using Message = vek::app::AppActivationMessage;
    text += inMessage.GetActivateStatus() == Message::kActivated ? "in " : "out ";
  }
  std::string text;
};

TEST(OutlinersWorkspaces, ComeBackAtTheNextStart) {
  TemporaryFolder folder;
  {
    RunningOutliner host(folder);
    EXPECT_EQ(Panels(host), "left[outline / notes] Writing");
    ActivationLog log;
    vek::app::AppBase::GetAppActivationNotifier().AddListener(&log);
    lumui::testing::ActivateWindow(nullptr);
    lumui::testing::ActivateWindow(&host.GetWindow());
    EXPECT_EQ(log.text, "out in ");
    ChooseWorkspace(host, "Notes");
    ChooseMenuItem(host.GetWindow(), {ToUTF16("View"), ToUTF16("Commands")});
    host.GetWindow().UI_SetSize(700, 500);
    EXPECT_EQ(Panels(host), "left[outline + notes|commands*|~properties|~search|~history] Notes");
  }
  {
    RunningOutliner host(folder);
    EXPECT_EQ(Panels(host), "left[outline + notes|commands*|~properties|~search|~history] Notes");
    EXPECT_EQ(host.GetWindow().UI_GetLocalRectF().width, 700);
    lumui::testing::OpenMenu(host.GetWindow(), {ToUTF16("Workspace")});
    EXPECT_EQ(
        ToStdString(lumui::testing::MenuAsText(nullptr)),
        "&Writing | (*)&Notes | &Commands | &Map | --- | &Save Workspace | &Revert Workspace... | "
        "R&eset Workspace... | --- | New W&orkspace... | &Delete Workspace... | "
        "Ed&it Workspaces...");
    lumui::testing::CloseMenus(host.GetWindow());
    host.AnswerNextBox("Cancel");
    ChooseWorkspace(host, "Reset Workspace...");
    EXPECT_EQ(Panels(host), "left[outline + notes|commands*|~properties|~search|~history] Notes");
    host.AnswerNextBox("Reset");
    ChooseWorkspace(host, "Reset Workspace...");
    EXPECT_EQ(Panels(host), "left[outline + notes*|~commands|~properties|~search|~history] Notes");
    host.Keys("Ctrl+1");
    EXPECT_EQ(Panels(host), "left[~outline + notes*|~commands|~properties|~search|~history] Notes");
    host.Keys("Ctrl+N");
    EXPECT_EQ(Panels(host), "left[outline + notes*|~commands|~properties|~search|~history] Notes")
        << "there to be written in";
  }
}

TEST(OutlinersWorkspaces, HaveTabsThatStayAsTheUserHasThem) {
  const auto& switcher = lumworkspace::sharedui::WorkspaceSwitcherManager::Get();
  TemporaryFolder folder;
  {
    RunningOutliner host(folder);
    EXPECT_EQ(Tabs(), "Writing Notes Commands Map");
    auto* const tabs = FindTabs();
    tabs->setCurrentIndex(1);  // as a click does, or who works without a pointer
    lumui::testing::ProcessEvents();
    EXPECT_EQ(Panels(host).substr(Panels(host).rfind(' ')), " Notes");
    tabs->moveTab(3, 0);
    EXPECT_EQ(Tabs(), "Map Writing Notes Commands");
  }
  switcher->SetData(lumcore::UTF8String());
  {
    RunningOutliner host(folder);
    EXPECT_EQ(Tabs(), "Map Writing Notes Commands");
  }
  switcher->SetData(lumcore::UTF8String());
}

TEST(OutlinersWorkspaces, ThatAreDamagedAreSetAsideAndBeginAnew) {
  TemporaryFolder folder;
  const auto start = [&](const char* inFile, const std::string& inBytes) {
    folder.GetFile(inFile).ReplaceContents(inBytes);
    RunningOutliner host(folder);
    const std::string panels = Panels(host);
    return panels + "\n" + host.TakeMessages();
  };
  {
    RunningOutliner host(folder);
    host.Keys("Ctrl+2");
    host.GetApp().GetWorkspaceManager()->SaveWorkspace(ToUTF16("Mine"));
  }
  constexpr const char* kMine = "settings/Workspaces/Mine.workspace";
  constexpr const char* kWriting = "settings/Workspaces/Writing.workspace";
  const std::string good = ToStdString(folder.GetFile(kMine).ReadAll());
  std::string twice = good;
  twice.replace(twice.find("outliner.notes"), 14, "outliner.outline");
  for (const std::string& bad : {good.substr(0, good.size() / 2), twice, std::string("<plist/>")}) {
    folder.GetFile(kMine).ReplaceContents(good);
    {
      RunningOutliner host(folder);
      ChooseWorkspace(host, "Mine");
    }
    const std::string text = start(kMine, bad);
    EXPECT_EQ(text.find("left[outline / notes] Writing\nerror: "), 0u) << text;
    EXPECT_NE(text.find("Mine.workspace"), text.npos) << text;
    EXPECT_NE(text.find("Mine.workspace.defective"), text.npos) << text;
  }
  EXPECT_EQ(ToStdString(folder.GetFile("settings/Workspaces/Mine.workspace.defective-2").ReadAll()),
            twice);
  const std::string text = start(kWriting, "<");
  EXPECT_EQ(text.find("left[outline / notes] Writing\nerror: "), 0u) << text;
  // One that cannot be read stays, and there is an outline all the same.
  folder.GetFile(kWriting).Remove();
  lumcore::filesupport::Dir(folder.GetPath(kWriting)).Create();
  RunningOutliner host(folder);
  EXPECT_EQ(Panels(host), "left[outline] ");
  EXPECT_NE(host.TakeMessages().find("Writing.workspace"), std::string::npos);
}

}  // namespace
