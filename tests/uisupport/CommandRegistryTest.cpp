// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/CommandRegistry.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <memory>
#include <stdexcept>
#include <string>

#include "lumcore/config/Localizer.h"
#include "support/KeyFiles.h"
#include "support/TemporaryFolder.h"
#include "vek/uisupport/SyntheticCmdMgr.h"

namespace {

using lumcore::UTF16String;
using vek::uisupport::CommandRegistry;
using vek::uisupport::SyntheticCmdMgr;

class CommandRegistryTest : public testing::Test {
 protected:
  CommandRegistryTest() { Load(""); }
  ~CommandRegistryTest() override {
    Load("");
    SyntheticCmdMgr::ResetSyntheticCmdMgr();
  }

  static CommandRegistry& Registry() { return CommandRegistry::Get(); }

  static void Register(int inCommand, const char* inName) {
    Registry().RegisterCommand(inCommand, U16(inName), U16("d"), false);
  }

  static void Load(const std::string& inText, bool inReserveIds = false) {
    Registry().LoadFromBuffer(Bytes(inText), inReserveIds);
  }

  static std::string Loaded(const std::string& inCommands, bool inReserveIds = false) {
    Load("<cmdreg>" + inCommands + "</cmdreg>", inReserveIds);
    return Commands();
  }

  // "1 name|display name|description, 2 name|||repeatable" by ascending id.
  static std::string Commands() {
    std::string text;
    for (auto entry = Registry().RegistryBegin(); entry != Registry().RegistryEnd(); ++entry) {
      const auto& [id, command] = *entry;
      EXPECT_EQ(id, command.GetCommandID());
      if (!text.empty()) text += ", ";
      text += std::to_string(id) + " " + U8(command.GetName()) + "|" +
              U8(command.GetDisplayName()) + "|" + U8(command.GetDescription()) +
              (command.GetRepeatable() ? "|repeatable" : "");
    }
    return text;
  }

  static std::string Ids(std::initializer_list<const char*> inNames) {
    std::string text;
    for (const char* name : inNames)
      text += std::string(name) + "=" + std::to_string(Registry().GetCommandID(name, false)) + " ";
    return text;
  }
};

TEST_F(CommandRegistryTest, TheLastRegistrationWinsAndOldNamesStay) {
  Register(7, "Cut");
  Register(3, "Copy");
  Register(7, "Paste");  // 7 under a second name
  Register(9, "Copy");   // "Copy" moves, the record of 3 stays
  EXPECT_EQ(Commands(), "3 Copy||d, 7 Paste||d, 9 Copy||d");
  EXPECT_EQ(Ids({"Cut", "Copy", "Paste", "copy", "Cop"}), "Cut=7 Copy=9 Paste=7 copy=0 Cop=0 ");

  Registry().UnregisterCommand(3);  // takes the name with it that 9 has by now
  EXPECT_EQ(Commands(), "7 Paste||d, 9 Copy||d");
  EXPECT_EQ(Ids({"Cut", "Copy", "Paste"}), "Cut=7 Copy=0 Paste=7 ");
  Registry().UnregisterCommand(3);
  Registry().UnregisterCommand(7);
  EXPECT_EQ(Commands(), "9 Copy||d");
  EXPECT_EQ(Ids({"Cut", "Paste"}), "Cut=7 Paste=0 ");
}

TEST_F(CommandRegistryTest, LookupLeavesItsArgumentsAloneForAnUnknownId) {
  Registry().RegisterCommand(5, U16("Play"), U16("Abspielen"), U16("Plays"), true);
  UTF16String name = U16("n");
  UTF16String description = U16("d");
  bool repeatable = true;
  EXPECT_FALSE(Registry().CommandLookup(4, name, description, repeatable));
  EXPECT_FALSE(Registry().CommandLookup(4, name, description));
  EXPECT_EQ(U8(name) + U8(description) + (repeatable ? "1" : "0"), "nd1");
  EXPECT_TRUE(Registry().FindCommandByID(4) == Registry().RegistryEnd());

  repeatable = false;
  EXPECT_TRUE(Registry().CommandLookup(5, name, description, repeatable));
  EXPECT_EQ(U8(name) + U8(description) + (repeatable ? "1" : "0"), "PlayPlays1");
}

TEST_F(CommandRegistryTest, ReadsACommandFile) {
  EXPECT_EQ(
      Loaded("\n  <cmd id='12'>\n    <name>Zoom<!-- in two pieces -->In</name>\n"
             "    <displayname>($$$/a/b=Zoom &amp; pan)</displayname>\n"
             "    <description>$$$/a/c=Comes (closer)</description>\n"
             "    <repeatable>true</repeatable>\n  </cmd>\n"
             "  <cmd os='win'><id>4</id><name>\xC3\x9C</name><repeatable>True</repeatable></cmd>"
             "  <cmd id='5' os='mac'><name>Lost</name></cmd>"
             "  <cmd id='6'>x<name>A<b>y</b>z</name>w<other>v</other>u</cmd>"),
      "4 \xC3\x9C||, 6 A||, 12 ZoomIn|Zoom & pan|Comes (closer|repeatable");
  EXPECT_EQ(Ids({"ZoomIn", "A", "Lost"}), "ZoomIn=12 A=6 Lost=0 ");
}

// Gives back what it is asked for.
class EchoLocalizer : public lumcore::config::Localizer {
 private:
  UTF16String DoGetLocalizedString(const char* inKey) const override {
    return U16("[" + std::string(inKey) + "]");
  }
};

TEST_F(CommandRegistryTest, BracketsGoOneByOneBeforeAKeyIsLookedUp) {
  EchoLocalizer localizer;
  lumcore::config::Localizer::Set(&localizer, {});
  const char* const rows[][2] = {
      {"($$$/a/b=T)", "$$$/a/b=T"},
      {"()", ""},
      {"(", "("},
      {")", ")"},
      {"(a", "a"},
      {"a)", "a"},
      {"((a))", "(a)"},
      {"", ""},
      {")a(", ")a("},
      {"((", "("},
      {" (a)", " (a"},
  };
  for (const auto& [text, key] : rows) {
    const std::string t = text;
    EXPECT_EQ(Loaded("<cmd id='1'><displayname>" + t + "</displayname><description>" + t +
                     "</description></cmd>"),
              "1 |[" + std::string(key) + "]|[" + key + "]")
        << t;
  }
}

TEST_F(CommandRegistryTest, ReadsIdsAsUnsignedDecimals) {
  const char* const rows[][2] = {
      {"<cmd id='61439'/>", "61439"},
      {"<cmd id='1'><id>2</id></cmd>", "12"},
      {"<cmd><id>1</id><id>3</id></cmd>", "13"},
      {"<cmd id=' 007 '/>", "7"},
      {"<cmd id='12x4'/>", "12"},
      {"<cmd id='abc'/>", "0"},
      {"<cmd id='0x1F'/>", "0"},
      {"<cmd id='-5'/>", "0"},
      {"<cmd id='+-5'/>", "0"},
      {"<cmd id=' '/>", "0"},
      {"<cmd id='99999999999999999999'/>", "0"},
      {"<cmd id='&#x663;'/>", "0"},
  };
  for (const auto& [text, id] : rows)
    EXPECT_EQ(Loaded(text), std::string(id) + " ||") << text;
}

TEST_F(CommandRegistryTest, WithoutIdsAllCommandsShareNoneOrReserveTheirOwn) {
  const std::string commands =
      "<cmd><name>A</name></cmd><cmd id='4'><name>B</name></cmd>"
      "<cmd os='mac'><name>C</name></cmd><cmd id=''><name>D</name></cmd>"
      "<cmd id='x'><name>E</name></cmd>";
  EXPECT_EQ(Loaded(commands), "0 E||, 4 B||");

  SyntheticCmdMgr::InitSyntheticCmdMgr(900);
  EXPECT_EQ(Loaded(commands, true), "0 E||, 4 B||, 900 A||, 901 D||");
  EXPECT_EQ(Ids({"A", "B", "C", "D"}), "A=900 B=4 C=0 D=901 ");
}

TEST_F(CommandRegistryTest, AFailedLoadLeavesItEmptyAndSaysWhatIsWrong) {
  const TemporaryFolder folder;
  const std::string good = "<cmdreg><cmd id='1'><name>A</name></cmd>";
  const struct {
    std::string bytes;
    const char* words;
  } rows[] = {
      {good, ":1:41: no element found: the document ends inside an element"},
      {good + "\n<cmd>", ":2:6: no element found: the document ends inside an element"},
      {good + "\n</cmd></cmdreg>", ":2:3: mismatched tag"},
      {"not a document", ":1:1: syntax error"},
      {"", ":1:1: no element found"},
      {good + "\n<cmd id='2' id='3'/></cmdreg>", ":2:13: duplicate attribute"},
      {good + std::string("\n<x>a\0b</x></cmdreg>", 21), ":2:5: not well-formed (invalid token)"},
      {std::string("\xFF\xFE<\0r\0>", 7),
       ":1:3: the bytes 3E are no character in the encoding \"UTF-16LE\""},
      {"<!DOCTYPE r [<!ENTITY e SYSTEM \"/etc/passwd\">]>\n<r>&e;</r>",
       ":2:4: the entity \"e\" stands in another file, and other files are not read"},
  };
  for (const auto& row : rows) {
    Register(8, "Before");
    const auto file = folder.GetFile("\xFF commands.xml");
    file.ReplaceContents(row.bytes);
    EXPECT_EQ(WordsOf([&] { Registry().LoadFromFile(file, false); }),
              folder.GetPath("\xEF\xBF\xBD commands.xml") + row.words);
    EXPECT_EQ(Commands() + Ids({"A", "Before"}), "A=0 Before=0 ") << row.bytes;
  }

  Register(8, "Before");
  EXPECT_EQ(WordsOf([&] { Load(good + "<cmd/></cmdreg>", true); }),
            "SyntheticCmdMgr not initialized");
  EXPECT_EQ(Commands() + Ids({"A", "Before"}), "A=0 Before=0 ");

  // What is there and cannot be read is not missing.
  ASSERT_EQ(::symlink("loop", folder.GetPath("loop").c_str()), 0);
  for (const char* name : {"", "loop"}) {
    Register(8, "Before");
    const auto file = folder.GetFile(name);
    EXPECT_NE(
        WordsOf([&] { Registry().LoadFromFile(file, false); }).find(U8(file.FullPath()) + "\": "),
        std::string::npos);
    EXPECT_EQ(Commands(), "");
  }
}

TEST_F(CommandRegistryTest, ALoadReplacesAndAMissingFileEmpties) {
  const TemporaryFolder folder;
  const auto file = folder.GetFile("c.xml");
  file.ReplaceContents("<any><cmd id='2'><name>B</name></cmd></any>");
  Register(8, "Before");
  Registry().LoadFromFile(file, false);
  EXPECT_EQ(Commands() + " " + Ids({"B", "Before"}), "2 B|| B=2 Before=0 ");
  Registry().LoadFromFile(folder.GetFile("none.xml"), false);
  EXPECT_EQ(Commands() + Ids({"B"}), "B=0 ");
}

TEST(SyntheticCommands, AreKnownOnceTheyAreGivenOut) {
  EXPECT_EQ(WordsOf([] { SyntheticCmdMgr::Get(); }), "SyntheticCmdMgr not initialized");
  SyntheticCmdMgr::InitSyntheticCmdMgr(500);
  SyntheticCmdMgr& manager = SyntheticCmdMgr::Get();
  const auto known = [&manager] {
    std::string text;
    for (int id = 498; id < 510; ++id) {
      if (manager.IsSyntheticCmdID(id)) text += std::to_string(id) + " ";
    }
    return text;
  };
  EXPECT_EQ(known(), "");
  EXPECT_EQ(manager.ReserveCmdRange(0), 500);
  EXPECT_EQ(manager.ReserveCmd(), 500);
  EXPECT_EQ(manager.ReserveCmdRange(3), 501);
  EXPECT_EQ(WordsOf([] { SyntheticCmdMgr::InitSyntheticCmdMgr(1); }),
            "SyntheticCmdMgr already initialized");
  EXPECT_EQ(known(), "500 501 502 503 ");
  EXPECT_EQ(manager.ReserveCmdRange(-2), 504);
  EXPECT_EQ(known(), "500 501 ");
  EXPECT_EQ(manager.ReserveCmd(), 502);
  SyntheticCmdMgr::ResetSyntheticCmdMgr();
}

}  // namespace
