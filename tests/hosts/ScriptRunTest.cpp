// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "outliner/ScriptRun.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "hosts/RunningOutliner.h"
#include "lumui/ui/Application.h"
#include "outliner/KeyChord.h"

namespace {

using tests::RunningOutliner;

// What the run printed, what it failed with and its result; the folder is left out.
std::string RunScript(RunningOutliner& ioHost, const std::string& inScript) {
  const lumcore::filesupport::File script(ioHost.GetPath("s.js"));
  const std::string folder = ioHost.GetPath("");
  script.ReplaceContents("const folder = '" + folder + "', print = Outliner.print;" + inScript);
  std::ostringstream log;
  log << outliner::ScriptRun(ioHost.GetApp(), log, log).Run(script);
  std::string text = log.str();
  for (auto at = text.find(folder); at != text.npos; at = text.find(folder))
    text.erase(at, folder.size());
  return text;
}

TEST(ScriptRun, KeysClicksAndFilesAreThoseOfAUser) {
  RunningOutliner host("a b [c]");
  EXPECT_EQ(RunScript(host,
                      "Outliner.setSize(400, 500); Outliner.click(300, 158); Outliner.type(' d');\n"
                      "print([Outliner.rowText(1), Outliner.isDirty, Outliner.title].join());"
                      "Outliner.save(); Outliner.key('Return'); Outliner.type('x');"
                      "Outliner.doubleClick(300, 140); Outliner.type('!');"
                      "Outliner.saveAs(folder + 'n.opml'); Outliner.picture(folder + 'p.png');"
                      "Outliner.click(300, 158, 'Ctrl');"
                      "print([Outliner.rowText(1), Outliner.rowLevel(2), Outliner.rowCount,"
                      "       Outliner.selection, Outliner.isDirty].join('/'))"),
            "b,true,*o.opml \xE2\x80\x94 outliner\nb d/2/4/0,1/false\n0");
  EXPECT_EQ(host.Show(), "a!* b d* [c] x");
  EXPECT_EQ(lumcore::filesupport::File(host.GetPath("p.png")).ReadAll().substr(1, 3),
            lumcore::UTF8String({'P', 'N', 'G'}));
  EXPECT_EQ(host.GetWindow().UI_GetLocalRectF().width, 400);
}

TEST(ScriptRun, ListenersHearEachCommandOnceAlsoThoseThatListenersGive) {
  RunningOutliner host("a b");
  EXPECT_EQ(RunScript(host,
                      "Command.addEventListener(CommandEvent.EVENT_INVOKE_COMMAND, event => {"
                      "  print(event.title);"
                      "  if (event.name === 'outliner.select.all')"
                      "    Command.invokeCommand(Command.COMMAND_OUTLINER_ROW_DELETE);"
                      "  if (event.name === 'outliner.row.delete') throw new Error('no more');"
                      "});\nOutliner.key('Down'); Command.invokeCommandByID(77);"
                      "Command.invokeCommand('outliner.select.all'); print('end');"),
            "end\nEdit.Select Next Row\nEdit.Select All\nRows.Delete\ns.js:1: Error: no more\n"
            "o.opml has changes that are not saved\n1");
}

TEST(ScriptRun, WhatFailsIsAnExceptionOfItsStep) {
  const struct {
    const char* script;
    const char* log;
  } kCases[] = {
      {"\nOutliner.key('Ctlr+Z')", "s.js:2: Error: \"Ctlr+Z\" is no key\n1"},
      {"Outliner.click(3, 4, 'Hyper')", "s.js:1: Error: \"Hyper\" is no modifier\n1"},
      {"Outliner.setSize(500, 300); Outliner.click(NaN, 4)",
       "s.js:1: Error: the place is outside the window, whose size is 500 x 300\n1"},
      {"Outliner.setSize(0, 9)", "s.js:1: Error: a window cannot have the size 0 x 9\n1"},
      {"Outliner.rowText(2)", "s.js:1: Error: there is no row 2 in an outline of 2 rows\n1"},
      {"Outliner.rowLevel(-1)", "s.js:1: Error: there is no row -1 in an outline of 2 rows\n1"},
      {"Outliner.key('Ctrl+W'); print('.')\nOutliner.rowCount",
       ".\ns.js:2: Error: no outline is open\n1"},
      {"Outliner.key('Ctrl+Q'); print('.')\nOutliner.title",
       ".\ns.js:2: Error: the outliner has ended\n1"},
      {"Outliner.key('Ctrl+O')", "s.js:1: Error: the dialog \"Open an outline\" has no answer\n1"},
      {"Outliner.answer('/no'); Outliner.key('Ctrl+O')",
       "s.js:1: Error: the dialog \"Open an outline\" cannot choose /no: there is no such file\n1"},
      {"\n\nprint('a'", "s.js:3: SyntaxError: Expected token `)'\n1"},
  };
  for (const auto& bad : kCases) {
    SCOPED_TRACE(bad.script);
    RunningOutliner host("a b");
    EXPECT_EQ(RunScript(host, bad.script), bad.log);
  }
}

TEST(KeyChords, NameTheKeysByNumbersToo) {
  const struct {
    const char* name;
    unsigned key;  // 0 for no key
    unsigned char modifiers;
  } kCases[] = {
      {"F12", 0x12, 0},
      {"F24", 0x1E, 0},
      {"F25", 0, 0},
      {"Num0", 0xC0000030, 0},
      {"Num10", 0, 0},
      {"F01", 0, 0},
      {"F", 0x80000046, 0},
      {"Alt+Num9", 0xC0000039, 16},
      {"Ctrl+NumPlus", 0xC000002B, 4},
      {"Ctrl++", 0x8000002B, 4},
  };
  for (const auto& row : kCases) {
    outliner::KeyChord chord;
    EXPECT_EQ(outliner::ParseKeyChord(row.name, chord), row.key != 0) << row.name;
    if (row.key == 0) continue;
    EXPECT_EQ(chord.code.GetValue(true), row.key) << row.name;
    EXPECT_EQ(chord.modifiers.GetBits(), row.modifiers) << row.name;
  }
}

TEST(ScriptRun, BoxesGetTheAnswersGivenBefore) {
  RunningOutliner host("a b");
  EXPECT_EQ(RunScript(host,
                      "Outliner.key('Down'); Outliner.key('Delete'); Outliner.answer('Cancel');"
                      "Outliner.answer('Never'); Outliner.key('Ctrl+Q');"
                      "for (const i of [1, 2])"
                      "  try { Command.invokeCommand('outliner.app.quit') }"
                      "  catch (e) { print(e.message) }"),
            "the box \"Unsaved changes\" (Save the changes to \"o.opml\" before it is closed?) has "
            "no button \"Never\"; its buttons: Save, Discard, Cancel\n"
            "the box \"Unsaved changes\" (Save the changes to \"o.opml\" before it is closed?) has "
            "no answer; its buttons: Save, Discard, Cancel\n"
            "o.opml has changes that are not saved\n0");
  // A save that fails is reported, not thrown, by the command.
  const std::string path = host.GetPath("o.opml");
  lumcore::filesupport::File(path).Remove();
  lumcore::filesupport::Dir(path + "/full").Create();
  const std::string log = RunScript(
      host,
      "Outliner.answer('Save');\ntry { Outliner.key('Ctrl+Q') } catch (e) { print('caught') }"
      "\nOutliner.answer('Save'); Command.invokeCommand('outliner.app.quit')");
  EXPECT_EQ(log.find("caught\ns.js:3: Error: "), 0u) << log;
  EXPECT_EQ(RunScript(host, "Outliner.answer('Discard'); Outliner.key('Ctrl+Q'); print('on')"),
            "on\n0");
}

TEST(ScriptRun, QuittingTheApplicationStopsTheScriptAndKeepsTheOutline) {
  RunningOutliner host("a b");
  lumui::ui::Application::Get()->Quit(130);
  EXPECT_EQ(RunScript(host, "for (;;) {}"), "s.js: the script was stopped\n130");
  EXPECT_EQ(RunScript(host, "Outliner.rowCount"), "0") << "another run is not stopped";
}

}  // namespace
