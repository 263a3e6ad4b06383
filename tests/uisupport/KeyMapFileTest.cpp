// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <random>

#include "lumcore/config/ClientInfo.h"
#include "support/TemporaryFolder.h"
#include "uisupport/KeyFixture.h"

namespace {

using vek::uisupport::CommandHandlerBase;

class KeyMapFile : public KeyFixture {
 protected:
  KeyMapFile() {
    lumcore::config::SetApplicationName(U16("D\xC3\xA9j\xC3\xA0 > Vu @1"));
    lumcore::config::SetClientVersion(U16("2.5"));
  }
  ~KeyMapFile() override {
    lumcore::config::SetApplicationName(U16(""));
    lumcore::config::SetClientVersion(U16(""));
  }
};

TEST_F(KeyMapFile, IsWrittenToTheByte) {
  Map(1, Char('x'), 31, true, nullptr, true);
  Map(2, Char('<'), 9);
  Map(9, Char('Q'));  // a command that the registry does not know
  Map(3, KeyboardCode::CreateFromControlCode(KeyboardCode::kDelete, true), 16);
  Map(4, Char('+', true));
  Map(4, Char('Y'), 4, false, "canvas");
  Map(2, KeyboardCode::CreateFromKeyboardChar(0xE9, false), 2);
  EXPECT_EQ(
      Saved(),
      "<?xml version='1.0'?>\r\n"
      "<keymap app=\"D\xC3\xA9j\xC3\xA0 > Vu @1\" version=\"2.5\">\r\n"
      "<keycmd>\r\n<cmd>Cut</cmd>\r\n<uchar>X</uchar>\r\n<hold/>\r\n<protected/>\r\n<mod>\r\n"
      "<shift/>\r\n<cmdkey/>\r\n<alt/>\r\n</mod>\r\n</keycmd>\r\n"
      "<keycmd>\r\n<cmd>Copy</cmd>\r\n<uchar>&lt;</uchar>\r\n<mod>\r\n</mod>\r\n</keycmd>\r\n"
      "<keycmd>\r\n<cmd>Paste</cmd>\r\n<key>35</key>\r\n<ext/>\r\n<mod>\r\n<alt/>\r\n</mod>\r\n"
      "</keycmd>\r\n"
      "<keycmd>\r\n<cmd>Play</cmd>\r\n<uchar>+</uchar>\r\n<ext/>\r\n</keycmd>\r\n"
      "<keycmd>\r\n<cmd>Copy</cmd>\r\n<uchar>\xC3\x89</uchar>\r\n<mod>\r\n<shift/>\r\n</mod>\r\n"
      "</keycmd>\r\n"
      "</keymap>");
}

TEST_F(KeyMapFile, ComesBackWithoutContextsAndControlModifiers) {
  const TemporaryFolder folder;
  const auto file = folder.GetFile("\xFF.xml");
  file.ReplaceContents(std::string(5000, 'x'));
  Map(1, Char('&'), 22, true, nullptr, true);
  Map(2, Char('\''), 13);
  Map(2, KeyboardCode(KeyboardCode::kF1));
  Map(3, Char('7', true), 1);
  Map(4, Char('Y'), 4, false, "canvas");
  test_support::EventLog log;
  ContextHandler canvas(log, "canvas");
  canvas.mEnabled = {4};
  Manager().SaveKeyMappings(file);
  const std::string saved = Saved();
  Manager().LoadKeyMappings(file);
  EXPECT_EQ(Shortcuts(), "1:80000026/16 hold protected 2:80000027/4 2:7/0 3:C0000037/0");
  EXPECT_EQ(folder.Describe(), "\xFF.xml=" + saved);
  CommandHandlerBase::SetCurrentCommandHandler(&canvas);
  EXPECT_FALSE(Manager().RouteKeyEvent(Down(Char('Y'), 4)));
}

// Any key that there can be, by chance, and what a file does not hold.
TEST_F(KeyMapFile, ComesBackToTheByteWhateverTheKeysAre) {
  std::mt19937 random(20260213);
  const auto below = [&random](unsigned inLimit) { return random() % inLimit; };
  vek::uisupport::CommandRegistry::Get().RegisterCommand(
      5, U16("G\xC3\xBCltig \xF0\x9F\x8E\xB9 > '"), U16(""), false);
  for (int i = 0; i < 2000; ++i) {
    const auto unit = static_cast<unsigned short>(below(below(2) ? 0x80 : 0xFFFE));
    const bool isText = unit >= ' ' && (unit < 0xD800 || unit >= 0xE000) && below(3) != 0;
    const auto create =
        isText ? &KeyboardCode::CreateFromKeyboardChar : &KeyboardCode::CreateFromControlCode;
    Map(static_cast<int>(1 + below(6)), create(unit, below(4) == 0),
        static_cast<unsigned char>(below(32)), below(3) == 0, below(10) == 0 ? "canvas" : nullptr,
        below(5) == 0);
  }
  std::string saved = Saved();
  Manager().LoadKeyMappingsFromBuffer(Bytes(saved));
  // Modifiers that are not written leave an empty element.
  const std::string empty = "<mod>\r\n</mod>\r\n";
  for (std::size_t at; (at = saved.find(empty)) != saved.npos;)
    saved.erase(at, empty.size());
  EXPECT_EQ(Saved(), saved);
}

TEST_F(KeyMapFile, IsReadElementByElement) {
  const std::string start = "<keycmd><cmd>Cut</cmd>";
  const std::string key = "<uchar>x</uchar>";
  const std::string end = "</keycmd>";
  const struct {
    std::string file;
    const char* shortcuts;
  } rows[] = {
      {start + key + end, "1:80000058/0"},
      {start + "<uchar>xyz</uchar>" + end, "1:80000058/0"},
      {start + "<uchar> </uchar>" + end, "1:80000020/0"},
      {start + "<key>35</key><ext/>" + end, "1:40000023/0"},
      {start + key + "<shift/><mod><alt/><x><cmdkey/></x></mod>" + end, "1:80000058/16"},
      {start + key + "<cnt/><macctrlkey/><hold/><protected/>" + end, "1:80000058/0 hold protected"},
      // The last of the two kinds of key counts, and an empty character is none.
      {start + "<key>35</key>" + key + end, "1:80000058/0"},
      {start + key + "<key>35</key>" + end, "1:23/0"},
      {start + "<key>35</key><uchar></uchar>" + end, "1:23/0"},
      {start + "<uchar/>" + end, ""},
      {start + end, ""},
      // A text forgets the character and the extended form before it.
      {start + key + "<ext/><ctx/>" + end, ""},
      {start + "<ext/>" + key + end, "1:80000058/0"},
      {start + "<key>35</key><ext/><ctx></ctx>" + end, "1:23/0"},
      {"<keycmd>" + key + "<cmd>Cut</cmd>" + end, ""},
      // Texts end with the next end tag, whichever it is.
      {"<keycmd><cmd>C<b/>ut</cmd>" + key + end, ""},
      {"<keycmd><cmd>C<!-- -->u<![CDATA[t]]></cmd>" + key + end, "1:80000058/0"},
      // Nothing is carried into the next entry.
      {start + "<key>35</key><hold/><alt/><ext/><protected/>" + end + start + key + end +
           "<keycmd>" + key + end,
       "1:40000023/10 hold protected 1:80000058/0"},
      {"<keycmd os='win'><cmd>Cut</cmd>" + key + end + "<keycmd os='mac'><cmd>Copy</cmd>" + key +
           end + "<keycmd os='Win'><cmd>Copy</cmd>" + key + end,
       "1:80000058/0"},
      {"<keycmd><cmd>Gone</cmd>" + key + end + "<keycmd><cmd>cut</cmd>" + key + end, ""},
      {start + "<key>abc</key>" + end, "1:0/0"},
      {start + "<key>-35</key>" + end, "1:0/0"},
      {start + "<key>65536</key>" + end, "1:0/0"},
      {start + "<key> 35px</key>" + end, "1:23/0"},
      // Doubled keys stay side by side.
      {start + key + end + start + key + end, "1:80000058/0 1:80000058/0"},
      {start + key + "<ctx>canvas</ctx>" + end, ""},
      {"<keycmd><cmd>Cut</cmd><ctx>canvas</ctx>" + key + end, ""},
  };
  for (const auto& row : rows) {
    Load(row.file);
    EXPECT_EQ(Shortcuts(), row.shortcuts) << row.file;
  }
}

TEST_F(KeyMapFile, AFailedLoadLeavesNoMappingsAndSaysWhatIsWrong) {
  const TemporaryFolder folder;
  const auto file = folder.GetFile("Mine.xml");
  const std::string good =
      "<keymap><keycmd><cmd>Cut</cmd><uchar>x</uchar></keycmd>"
      "<keycmd><cmd>Copy</cmd><ctx>canvas</ctx><uchar>y</uchar></keycmd>";
  const struct {
    std::string bytes;
    const char* words;
  } rows[] = {
      {good, ":1:121: no element found: the document ends inside an element"},
      {good + "\r\n<cmd>Cut & Run</cmd></keymap>", ":2:11: not well-formed (invalid token)"},
      {good + "\r\n\xFF</keymap>", ":2:1: not well-formed (invalid token)"},
      {"", ":1:1: no element found"},
      {"<!DOCTYPE k [<!ENTITY a 'x'>]>\n<keymap>&a;&b;</keymap>", ":2:12: undefined entity"},
  };
  for (const auto& row : rows) {
    Map(3, Char('Z'));
    file.ReplaceContents(row.bytes);
    EXPECT_EQ(WordsOf([&] { Manager().LoadKeyMappings(file); }), file.GetPath() + row.words);
    EXPECT_EQ(Shortcuts(), "") << row.bytes;
  }
  for (const auto& path : {folder.GetPath("none.xml"), folder.GetDir().GetPath()}) {
    Map(3, Char('Z'));
    const lumcore::filesupport::File missing(path);
    const std::string words = WordsOf([&] { Manager().LoadKeyMappings(missing); });
    EXPECT_NE(words.find(path), std::string::npos) << words;
    EXPECT_EQ(Shortcuts(), "");
  }
  Map(3, Char('Z'));
  Manager().LoadKeyMappingsFromBuffer(Bytes(""));
  EXPECT_EQ(Shortcuts(), "");
}

}  // namespace
