// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>

#include "lumcore/config/ClientInfo.h"
#include "lumcore/utility/StringUtils.h"
#include "outliner/FileCheck.h"
#include "outliner/FileRecords.h"
#include "support/TemporaryFolder.h"

namespace {

using lumcore::utility::ToUTF16;

const outliner::CommandFiles& OwnFiles() {
  static const outliner::CommandFiles sFiles = outliner::FindCommandFiles();
  return sFiles;
}

// What the check says of files with these bytes, the host's own in the place of empty ones.
std::string Check(const std::string& inCommands, const std::string& inKeys) {
  const TemporaryFolder folder;
  outliner::CommandFiles files = OwnFiles();
  if (!inCommands.empty()) files.commands = folder.GetFile("c");
  if (!inCommands.empty()) files.commands.ReplaceContents(inCommands);
  if (!inKeys.empty()) files.keys = folder.GetFile("k");
  if (!inKeys.empty()) files.keys->ReplaceContents(inKeys);
  std::ostringstream out;
  EXPECT_FALSE(outliner::CheckFiles(files, out));
  std::string text = out.str();
  const std::string path = folder.GetPath("");
  for (auto at = text.find(path); at != text.npos; at = text.find(path))
    text.erase(at, path.size());
  return text;
}

std::string With(const std::string& inRecord) {
  const auto bytes = OwnFiles().commands.ReadAll();
  std::string file(bytes.begin(), bytes.end());
  return file.insert(file.find("<cmdreg>") + 8, inRecord);
}

constexpr const char* kName = "<displayname>$$$/x=Y.X</displayname>";

TEST(FileCheck, NamesWhatACommandFileHasWrongByLineAndCause) {
  const struct {
    std::string record;
    const char* finding;  // in line 4
  } kCases[] = {
      {"<cmd id='1099'><name>a&amp;b</name>%</cmd>",
       "the name \"a&b\" holds \"&\", \"<\" or a quote, which a saved key map cannot carry\n"
       "c:4: nobody answers for the command 1099"},
      {"<cmd id='61440'><name>a</name>%</cmd>", "\"61440\" is no id from 1 to 61439"},
      {"<cmd id='10'><id>x</id><name>a</name>%</cmd>", "\"10x\" is no id from 1 to 61439"},
      {"<cmd><name>a</name>%</cmd>", "\"\" is no id from 1 to 61439"},
      {"<cmd id='7'>%</cmd>", "the command has no name\nc:4: nobody answers for the command 7"},
      {"<cmd id='61439'><name>a</name><displayname>($$$/x)</displayname></cmd>",
       "nobody answers for the command 61439\n"
       "c:4: there is no display name that gives a text"},
      {"<cmd id='61439'><name>a</name><displayname>$$$/x=X...</displayname></cmd>",
       "nobody answers for the command 61439\n"
       "c:4: the display name \"X...\" has no category: it reads as \"category.name\""},
      {"<cmd id='7'><name>a</name>%<repeatable>True</repeatable><key>3</key></cmd>",
       "\"key\" means nothing in a command file\nc:4: nobody answers for the command 7\n"
       "c:4: \"True\" counts as \"false\" for \"repeatable\""},
  };
  for (const auto& bad : kCases) {
    SCOPED_TRACE(bad.record);
    std::string record = bad.record;
    if (const auto at = record.find('%'); at != record.npos) record.replace(at, 1, kName);
    EXPECT_EQ(Check(With(record), ""), std::string("c:4: ") + bad.finding + "\n");
  }
  // The first of two keeps what both want; another system's record wants nothing.
  const std::string twice =
      "<cmd id='1001' os='mac'/><cmd id='1001'><name>outliner.edit.undo"
      "</name><displayname>$$$/x=Y.X</displayname></cmd>";
  const std::string file = With(twice);
  const auto undo = static_cast<std::ptrdiff_t>(file.find("id=\"1012\""));
  const auto line = 1 + std::count(file.begin(), file.begin() + undo, '\n');
  EXPECT_EQ(Check(file, "<k/>"), "c:5: the id 1001 is taken by line 4\nc:" + std::to_string(line) +
                                     ": the name \"outliner.edit.undo\" is taken by line 4\n");
  EXPECT_EQ(Check("<cmdreg>\n<cmd>", "<k"),
            "c:2:6: no element found: the document ends inside an "
            "element\n");
}

TEST(FileCheck, NamesWhatAKeyMapHasWrongByLineAndCause) {
  const std::string undo = "<cmd>outliner.edit.undo</cmd>";
  const struct {
    std::string entry;
    const char* finding;  // empty for none; in line 2
  } kCases[] = {
      {undo + "<uchar>k</uchar><ext/>", ""},
      {undo + "<key>44</key><mod><ctrl/></mod>", "\"ctrl\" means nothing in a key map"},
      {"<cmd>outliner.fold</cmd><key>9</key>", "no command has the name \"outliner.fold\""},
      {undo, "the entry has no key: \"uchar\" must stand behind \"cmd\" and \"ctx\""},
      {"<uchar>k</uchar>" + undo,
       "the entry has no key: \"uchar\" must stand behind \"cmd\" and \"ctx\""},
      {undo + "<key>9</key><ext/><ctx>c</ctx>",
       "\"ext\" is lost: it must stand behind \"cmd\", \"ctx\" and the key"},
      {undo + "<key>9</key><ext/>",
       "no key press matches a key code with \"ext\": without it, the code stands for both forms "
       "of "
       "the key"},
      {undo + "<key>F2</key>", "\"F2\" is no key code"},
      {undo + "<uchar>kl</uchar>", "\"kl\" is more than one character, and only the first counts"},
      {"<cmd>outliner.app.quit</cmd><key>9</key><hold/>",
       "the command \"outliner.app.quit\" does not repeat, so its key cannot be held"},
      {undo + "<uchar>a</uchar><shift/>", "the key \"Shift+A\" is taken by line 1"},
      {undo + "<uchar>a</uchar><shift/><hold/>", ""},
      {undo + "<uchar>a</uchar><ctx>c</ctx><shift/><uchar>a</uchar>", ""},
      {undo + "<uchar>a</uchar><shift/><alt/>", ""},
  };
  for (const auto& bad : kCases) {
    SCOPED_TRACE(bad.entry);
    const std::string file = "<k><keycmd>" + undo + "<mod><shift/></mod><uchar>A</uchar></keycmd>" +
                             "<keycmd os='mac'/>\n<keycmd>" + bad.entry +
                             "</keycmd>\n<keycmd/></k>";
    std::string expected = bad.finding;
    if (!expected.empty()) expected = "k:2: " + expected + "\n";
    EXPECT_EQ(Check("", file),
              expected +
                  "k:3: no command has the name \"\"\nk:3: the entry has no key: \"uchar\" "
                  "must stand behind \"cmd\" and \"ctx\"\n");
  }
}

TEST(FileCheck, RefusesAProgramNameThatASavedMapCannotCarry) {
  lumcore::config::SetApplicationName(ToUTF16("cut & paste"));
  const std::string findings = Check("", "");
  lumcore::config::SetApplicationName({});
  EXPECT_EQ(findings.find("outliner: the program's name or version \"cut & paste\" holds "), 0u);
}

}  // namespace
