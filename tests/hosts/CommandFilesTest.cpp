// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <string>

#include "hosts/RunningOutliner.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/testing/SyntheticInput.h"
#include "outliner/CommandList.h"
#include "outliner/OutlinerCommands.h"
#include "vek/uisupport/CommandHandlerBase.h"
#include "vek/uisupport/CommandRegistry.h"

namespace {

using lumcore::filesupport::File;
using lumcore::utility::ToUTF16;
using outliner::CommandSystem;
using tests::RunningOutliner;
using vek::uisupport::CommandRegistry;

std::string Bytes(const File& inFile) {
  const auto bytes = inFile.ReadAll();
  return std::string(bytes.begin(), bytes.end());
}

std::string WithoutFolder(std::string inText, const std::string& inFolder) {
  for (auto at = inText.find(inFolder); at != inText.npos; at = inText.find(inFolder))
    inText.erase(at, inFolder.size());
  return inText;
}

std::string Entry(const std::string& inCommand, const std::string& inKey) {
  return "<keycmd><cmd>outliner." + inCommand + "</cmd>" + inKey + "</keycmd>";
}

TEST(CommandFiles, EveryCommandIsAnsweredFor) {
  RunningOutliner host("a b");
  const CommandRegistry& registry = CommandRegistry::Get();
  for (auto at = registry.RegistryBegin(); at != registry.RegistryEnd(); ++at) {
    bool isEnabled = false;
    bool isChecked = false;
    lumcore::UTF16String title;
    EXPECT_TRUE(vek::uisupport::CommandHandlerBase::CallEnablementChain(at->first, isEnabled,
                                                                        isChecked, title))
        << at->first;
  }
}

TEST(CommandFiles, FilesThatDoNotFitEndTheStartWithTheirNameAndCause) {
  const TemporaryFolder folder;
  const outliner::CommandFiles good = outliner::FindCommandFiles();
  std::string withoutUndo = Bytes(good.commands);
  withoutUndo.replace(withoutUndo.find("\"1012\""), 6, "\"2012\"");
  std::string withOther = Bytes(good.commands);
  withOther.insert(withOther.rfind("</cmdreg>"), "<cmd id='7'><name>x</name></cmd>");
  const struct {
    std::string commands;
    std::string keys;
    const char* cause;
  } kCases[] = {
      {"", "<k/>", "c.xml: there is no command file"},
      {"<cmdreg>\n<cmd id='1'></cmdreg>", "<k/>", "c.xml:2:15: mismatched tag"},
      {withoutUndo, "<k/>", "c.xml: the command 1012 is missing"},
      {withOther, "<k/>", "c.xml: nobody answers for the command 7, \"x\""},
      {Bytes(good.commands), "<keymap>", "k.xml:1:9: "},
      {Bytes(good.commands), "", "Cannot open \"k.xml\""},
  };
  for (const auto& bad : kCases) {
    SCOPED_TRACE(bad.cause);
    const outliner::CommandFiles files{folder.GetFile("c.xml"), folder.GetFile("k.xml")};
    files.commands.Remove();
    files.keys->Remove();
    if (!bad.commands.empty()) files.commands.ReplaceContents(bad.commands);
    if (!bad.keys.empty()) files.keys->ReplaceContents(bad.keys);
    try {
      CommandSystem commands(files);
      commands.LoadKeys();
      ADD_FAILURE() << "it has started";
    } catch (const lumcore::config::Error& error) {
      EXPECT_EQ(WithoutFolder(error.what(), folder.GetPath("")).find(bad.cause), 0u)
          << error.what();
    }
    CommandSystem(good).LoadKeys();
  }
}

TEST(UserKeys, ReplaceTheHostsOwnAndLeaveTextsAlone) {
  RunningOutliner host("a b c");
  const File map(host.GetPath("k.xml"));
  map.ReplaceContents("<keymap>" + Entry("row.delete", "<uchar>x</uchar>") +
                      Entry("row.delete", "<uchar>@</uchar>") + Entry("file.save", "<key>1</key>") +
                      Entry("text.edit", "<key>8</key>") + "</keymap>");
  host.GetApp().GetCommandSystem().LoadUserKeys(map);
  host.Click(1);
  host.Keys("Delete X");
  EXPECT_EQ(host.Show(), "a c*");
  host.Type("yx z");
  // As a German keyboard types it, with AltGr.
  lumui::testing::PressTypingKey(
      host.GetWindow(), lumui::ui::KeyboardCode(0x80000051),
      lumui::ui::ModifierKeys(lumui::ui::kModCommand | lumui::ui::kModAlt),
      lumcore::utility::ToUTF16("@"));
  EXPECT_EQ(host.Show(), "a c* / cyx z@|");
  // The file knows nothing of contexts, as no saved map does.
  host.Keys("Escape F2");
  EXPECT_EQ(host.Show(), "a c* / c|");
  host.Keys("Escape");

  // A key whose command fails types nothing either.
  const std::string path = host.GetPath("o.opml");
  File(path).Remove();
  lumcore::filesupport::Dir(path + "/full").Create();
  host.Keys("Space");
  EXPECT_EQ(host.TakeMessages().find("error: "), 0u);
  EXPECT_EQ(host.Show(), "a c*");
}

TEST(UserKeys, AMapThatGivesNoneIsReportedAndLeavesTheHostsOwn) {
  const struct {
    const char* map;
    const char* cause;
  } kCases[] = {
      {"<keymap>\n<keycmd>", "k.xml:2:9: "},
      {"<opml><keycmd><cmd>other.delete</cmd><key>35</key></keycmd></opml>",
       "k.xml: there is no key for any command of the outliner"},
      {nullptr, "Cannot open \"k.xml\""},
  };
  for (const auto& bad : kCases) {
    SCOPED_TRACE(bad.cause);
    RunningOutliner host("a b");
    const File map(host.GetPath("k.xml"));
    if (bad.map) map.ReplaceContents(bad.map);
    host.GetApp().GetCommandSystem().LoadUserKeys(map);
    const std::string message = WithoutFolder(host.TakeMessages(), host.GetPath(""));
    EXPECT_EQ(message.find(std::string("error: ") + bad.cause), 0u) << message;
    EXPECT_NE(message.find(". The outliner's own keys are used.\n"), std::string::npos);
    if (bad.map) {
      EXPECT_EQ(Bytes(map), bad.map);
    }
    host.Keys("Down F2 End");
    EXPECT_EQ(host.Show(), "a* b / a|");
    host.Keys("Escape");
    EXPECT_EQ(host.Show(), "a* b");
  }
}

TEST(CommandList, ColumnsStandWhereWideTextsEnd) {
  CommandSystem commands(outliner::FindCommandFiles());
  commands.LoadKeys();
  CommandRegistry::Get().LoadFromBuffer(lumcore::UTF8String(), false);
  CommandRegistry::Get().RegisterCommand(7, ToUTF16("x|y"), ToUTF16("\xE5\x89\xAA\xE5\x88\x87"),
                                         ToUTF16("a_b"), false);
  CommandRegistry::Get().RegisterCommand(outliner::kCommandRedo, ToUTF16("redo"), ToUTF16("R"), {},
                                         false);
  EXPECT_EQ(outliner::RenderCommandTable(),
            "id    name  text  keys\n"
            "7     x|y   \xE5\x89\xAA\xE5\x88\x87\n"
            "1013  redo  R     Ctrl+Y, Ctrl+Shift+Z\n");
  EXPECT_NE(
      outliner::RenderCommandPage().find("\n| x\\|y | \xE5\x89\xAA\xE5\x88\x87 | a\\_b | |\n"),
      std::string::npos);
}

}  // namespace
