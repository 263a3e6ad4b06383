// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "hosts/RunningOutliner.h"
#include "outliner/EditScript.h"

namespace {

using tests::RunningOutliner;

// What the run printed, and behind it what it failed with; the script's folder is left out.
std::string RunScript(RunningOutliner& ioHost, const std::string& inScript) {
  const lumcore::filesupport::File script(ioHost.GetPath("s.script"));
  script.ReplaceContents(inScript);
  std::ostringstream log;
  try {
    outliner::EditScript(ioHost.GetWindow(), log).Run(script);
  } catch (const std::exception& error) {
    log << error.what();
  }
  std::string text = log.str();
  const std::string folder = ioHost.GetPath("");
  for (auto at = text.find(folder); at != text.npos; at = text.find(folder))
    text.erase(at, folder.size());
  return text;
}

TEST(EditScript, ReplaysKeysClicksAndTextAndTellsWhatItSaved) {
  RunningOutliner host("a b");
  EXPECT_EQ(RunScript(host,
                      "# a comment\n\nclick 300 94\r\ntype  c d\nkey Ctrl+S\nkey Return\n"
                      "title\ndouble-click 300 70\ntype !\nsave-as " +
                          host.GetPath("n.opml") + "\npicture " + host.GetPath("p.png") +
                          "\nsize 400 300\nclick 300 94 Ctrl\n"),
            "saved o.opml: 2 rows\n*o.opml \xE2\x80\x94 outliner\nsaved n.opml: 3 rows\n"
            "picture p.png\n");
  EXPECT_EQ(host.Show(), "a!* b c d* -");
  EXPECT_EQ(lumcore::filesupport::File(host.GetPath("p.png")).ReadAll().substr(1, 3),
            lumcore::UTF8String({'P', 'N', 'G'}));
  EXPECT_EQ(host.GetWindow().UI_GetLocalRectF().width, 400);
}

TEST(EditScript, AnswersBoxes) {
  RunningOutliner host("a b");
  EXPECT_EQ(RunScript(host,
                      "key Down\nkey Delete\nanswer Cancel\nkey Ctrl+Q\nanswer Save\n"
                      "key Ctrl+Q\n"),
            "saved o.opml: 1 rows\n");
  EXPECT_TRUE(host.HasQuit());
}

TEST(EditScript, AStepThatFailsIsNamedByFileLineAndCause) {
  const struct {
    const char* script;
    const char* log;
  } kCases[] = {
      {"key Down\njump 3\n", "s.script:2: \"jump\" is no step"},
      {"\n\nkey Ctlr+Z", "s.script:3: \"Ctlr+Z\" is no key"},
      {"key", "s.script:1: \"\" is no key"},
      {"click 3", "s.script:1: a number is expected: \"3\""},
      {"click 3 4 Hyper", "s.script:1: \"Hyper\" is no modifier"},
      {"click 3 4 Ctrl 5", "s.script:1: too many words: \"3 4 Ctrl 5\""},
      {"size 0 9", "s.script:1: a window cannot have the size \"0 9\""},
      {"key Ctrl+W\nkey Down", "s.script:2: the window has closed before \"key Down\""},
  };
  for (const auto& bad : kCases) {
    SCOPED_TRACE(bad.script);
    RunningOutliner host("a b");
    EXPECT_EQ(RunScript(host, bad.script), bad.log);
  }
  RunningOutliner host("a b");
  const std::string log =
      RunScript(host, "key Down\nkey Delete\nsave-as " + host.GetPath("none/o.opml") + "\ntitle");
  EXPECT_EQ(log.find("s.script:3: "), 0u) << log;
  EXPECT_NE(log.find("none/o.opml"), std::string::npos) << log;
}

}  // namespace
