// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/debug/DebugDatabase.h"

#include <gtest/gtest.h>

#include <string>

#include "lumcore/console/Console.h"
#include "support/TemporaryFolder.h"

namespace {

using lumcore::debug::DebugDatabase;

template <class Function>
std::string WhatOf(Function inFunction) {
  try {
    inFunction();
  } catch (const std::exception& error) {
    return error.what();
  }
  return "nothing";
}

TEST(DebugDatabases, ReadNamedValuesAndNameTheLineOfAWrongOne) {
  const TemporaryFolder folder;
  const auto file = folder.GetFile("Debug.txt");
  DebugDatabase database;
  database.Load(file);
  EXPECT_TRUE(database.GetBoolean("Show Windows Console", true));

  file.ReplaceContents(
      "# a = b\r\n"
      "\tShow Windows Console =  true \r\n"
      "\n"
      "Rows=-12\n"
      "Wide = 12x\n"
      "Path = /a = b\n"
      "Rows = 99999999999");
  database.Load(file);
  EXPECT_TRUE(database.GetBoolean("Show Windows Console", false));
  EXPECT_FALSE(database.GetBoolean("show windows console", false));
  EXPECT_EQ(database.GetInteger("Rows", 1), 99999999999);
  EXPECT_EQ(database.GetText("Path", "x"), "/a = b");
  EXPECT_EQ(database.GetText("# a", "x"), "x");
  const std::string path = file.GetPath();
  EXPECT_EQ(WhatOf([&] { database.GetInteger("Wide", 1); }),
            path + ":5: \"Wide\" is \"12x\", and should be a whole number");
  EXPECT_EQ(WhatOf([&] { database.GetBoolean("Rows", true); }),
            path + ":7: \"Rows\" is \"99999999999\", and should be \"true\" or \"false\"");

  file.ReplaceContents("Rows = 3\n= true\n");
  EXPECT_EQ(WhatOf([&] { database.Load(file); }),
            path + ":2: \"= true\" should read \"Name = value\"");
  EXPECT_EQ(database.GetText("Wide", ""), "12x");
}

std::string WithoutTimes(const std::string& inLog) {
  std::string lines;
  for (std::size_t at = 0; at < inLog.size(); at = inLog.find('\n', at) + 1) {
    EXPECT_EQ(inLog.substr(at, 13).find_first_not_of("0123456789:. "), std::string::npos) << inLog;
    lines += inLog.substr(at + 13, inLog.find('\n', at) + 1 - at - 13);
  }
  return lines;
}

TEST(ConsoleLog, ShowsLinesOnceItIsOpenAndProblemsAlways) {
  using lumcore::console::ConsoleLogFile;
  ConsoleLogFile::Terminate();
  testing::internal::CaptureStderr();
  for (int line = 0; line < 202; ++line)
    ConsoleLogFile::Write(std::to_string(line));
  ConsoleLogFile::WriteProblem("problem");
  lumcore::console::CreateStandardConsoleWindow();
  ConsoleLogFile::Write("open");
  ConsoleLogFile::Terminate();
  ConsoleLogFile::Write("closed");
  const std::string log = WithoutTimes(testing::internal::GetCapturedStderr());
  EXPECT_EQ(log.substr(0, 14), "problem\n2\n3\n4\n");
  EXPECT_EQ(log.substr(log.size() - 13), "200\n201\nopen\n");
  ConsoleLogFile::Terminate();
}

}  // namespace
