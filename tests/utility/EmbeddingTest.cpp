// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <cstdio>

#include "support/TemporaryFolder.h"

namespace {

// What the tool says, without the folder's path.
std::string Embed(const TemporaryFolder& inFolder, std::string inManifest) {
  for (std::size_t at; (at = inManifest.find('~')) != std::string::npos;)
    inManifest.replace(at, 1, inFolder.GetPath(""));
  inFolder.GetFile("list").ReplaceContents(inManifest);
  const std::string command = std::string(VEK_EMBED) + " '" + inFolder.GetPath("list") + "' '" +
                              inFolder.GetPath("out.cpp") + "' 2>&1";
  FILE* const pipe = popen(command.c_str(), "r");
  std::string output;
  for (int character; (character = std::fgetc(pipe)) != EOF;)
    output += static_cast<char>(character);
  if (pclose(pipe) == 0) output += "fine";
  for (std::size_t at; (at = output.find(inFolder.GetPath(""))) != std::string::npos;)
    output.erase(at, inFolder.GetPath("").size());
  return output;
}

}  // namespace

TEST(Embedding, BadInputIsToldWithFileLineAndCauseAndWritesNothing) {
  const TemporaryFolder folder;
  const auto write = [&](const char* inName, const std::string& inText) {
    folder.GetFile(inName).ReplaceContents(inText);
  };
  write("a b.svg", "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 2 1'></svg>");
  write("A B.PNG", "");
  write("broken.svg", "<svg>\n<g></svg>");
  write("words.svg", "<svg>\n<text/></svg>");
  write("page.svg", "\n<html/>");
  write("flat.svg", "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 0 1'></svg>");
  write("plain", "");
  struct Row {
    const char* manifest;
    const char* expected;
  };
  const Row rows[] = {
      {"image ~broken.svg", "broken.svg:2: Opening and ending tag mismatch.\n"},
      {"image ~words.svg",
       "words.svg:2: a text depends on the fonts of the machine; draw it as a path\n"},
      {"image ~page.svg", "page.svg:2: this is not an SVG picture\n"},
      {"image ~flat.svg", "flat.svg: it has no size\n"},
      {"image ~gone.svg", "gone.svg: No such file or directory\n"},
      {"file ~plain", "plain: its type cannot be told without an extension\n"},
      {"# a comment\n\nfile ~a b.svg\nfile ~A b.svg", "A b.svg: No such file or directory\n"},
      {"image ~a b.svg\nfile ~A B.PNG",
       "list:2: A B.PNG: there is a resource \"A B\" of the type \"PNG\" already\n"},
      {"scales 100 120", "list:1: \"120\" is no scale: 100, 150, 200 and 300 are\n"},
      {"sizes XS", "list:1: \"XS\" is not of the form NAME=VALUE\n"},
      {"sizes XS=0", "list:1: the size \"0\" is not from 1 to 1024\n"},
      {"inks N=mauvish", "list:1: \"mauvish\" is no colour\n"},
      {"\nimage", "list:2: nothing stands behind \"image\"\n"},
      {"picture a.svg", "list:1: \"picture\" is not known here\n"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Embed(folder, row.manifest), std::string("vek-embed: ") + row.expected);
    EXPECT_FALSE(folder.GetFile("out.cpp").Exists()) << row.manifest;
  }
  EXPECT_EQ(Embed(folder, "sizes XS=3\nimage ~a b.svg\nfile ~A B.PNG"), "fine");
}
