// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>
#include <unistd.h>

#include <functional>
#include <string>

#include "support/TemporaryFolder.h"

#include "lumcore/filesupport/FileError.h"
#include "lumcore/filesupport/FileStream.h"
#include "lumcore/utility/StringUtils.h"

namespace {

using lumcore::filesupport::Dir;
using lumcore::filesupport::File;
using lumcore::filesupport::FileError;
using lumcore::filesupport::InputFileStream;
using lumcore::filesupport::OutputFileStream;
using lumcore::utility::ToStdString;

std::string ErrorOf(const std::function<void()>& inFunction) {
  try {
    inFunction();
  } catch (const FileError& error) {
    return error.what();
  }
  return "no error";
}

TEST(Files, FailuresNamePathAndTheSystemsWords) {
  const std::string none = "/none-such/b.opml";
  const std::string tail = " \"/none-such/b.opml\": No such file or directory";
  EXPECT_EQ(ErrorOf([&] { File(none).ReadAll(); }), "Cannot open" + tail);
  EXPECT_EQ(ErrorOf([&] { InputFileStream stream{File(none)}; }), "Cannot open" + tail);
  EXPECT_EQ(ErrorOf([&] { OutputFileStream stream{File(none)}; }), "Cannot open" + tail);
  EXPECT_EQ(ErrorOf([&] { File(none).GetSize(); }), "Cannot measure" + tail);
  EXPECT_EQ(ErrorOf([&] { Dir(none).GetFiles(); }), "Cannot list" + tail);
  EXPECT_EQ(ErrorOf([&] { File("/tmp").ReadAll(); }), "Cannot read \"/tmp\": Is a directory");
  const TemporaryFolder folder;
  const std::string path = folder.GetDir().GetPath();
  EXPECT_EQ(ErrorOf([&] { File(path).Remove(); }),
            "Cannot delete \"" + path + "\": Is a directory");
  EXPECT_EQ(ErrorOf([&] { Dir("/dev/null/x").Create(); }),
            "Cannot create folder \"/dev/null/x\": Not a directory");
  EXPECT_EQ(ErrorOf([&] { File(none).Remove(); }), "no error");
  EXPECT_EQ(ErrorOf([&] { Dir(none).RemoveAll(); }), "no error");
}

// The system would stop at the zero and delete or read another file.
TEST(Files, ZeroWithinAPathNamesNothing) {
  const TemporaryFolder folder;
  folder.GetFile("f").ReplaceContents("kept");
  const File file(folder.GetPath("f") + std::string("\0.bak", 5));
  EXPECT_FALSE(file.Exists());
  for (const std::function<void()>& action : std::initializer_list<std::function<void()>>{
           [&] { file.ReadAll(); }, [&] { file.Remove(); }, [&] { file.ReplaceContents("x"); },
           [&] { OutputFileStream stream(file); }}) {
    EXPECT_NE(ErrorOf(action).find("Invalid argument"), std::string::npos);
  }
  EXPECT_EQ(folder.Describe(), "f=kept");
}

TEST(Files, NamesMayBeAnyBytes) {
  const TemporaryFolder folder;
  const std::string name = "\xFF\xC3\xA4.\xFE";
  folder.GetFile(name).ReplaceContents("x");
  EXPECT_EQ(folder.Describe(), name + "=x");
  EXPECT_EQ(ToStdString(folder.GetDir().GetFiles().front().GetName()),
            "\xEF\xBF\xBD\xC3\xA4.\xEF\xBF\xBD");
  EXPECT_NE(ErrorOf([&] { folder.GetFile("\xFF").ReadAll(); }).find("\xEF\xBF\xBD\": No such"),
            std::string::npos);
  // As UTF-16 and back: a surrogate in UTF-8 is none, and one that is alone stands for no byte.
  for (const std::string& path : {name, std::string("\xF0\x9F\x8E\xB9\xF0\x9F\x8E"),
                                  std::string("\xED\xB2\x80\xC0\xAF\xE2\x82")}) {
    const File file = folder.GetFile(path);
    EXPECT_EQ(File(file.FullPath()).GetPath(), file.GetPath());
  }
  EXPECT_EQ(File(lumcore::UTF16String{0xD83C, 'a', 0xDC7F, 0xDF00}).GetPath(),
            "\xEF\xBF\xBD"
            "a\xEF\xBF\xBD\xEF\xBF\xBD");
  folder.GetFile(name).Remove();
  EXPECT_EQ(folder.Describe(), "");
}

TEST(Files, FoldersListFilesAndFoldersApartAndSorted) {
  const TemporaryFolder folder;
  for (const char* name : {"b", "B", "a10", "a9"})
    folder.GetFile(name).ReplaceContents("");
  Dir(folder.GetDir(), "z/y").Create();
  Dir(folder.GetDir(), "c").Create();
  ASSERT_EQ(::symlink("c", folder.GetPath("to-c").c_str()), 0);
  ASSERT_EQ(::symlink("nowhere", folder.GetPath("dangling").c_str()), 0);
  EXPECT_EQ(folder.Describe(), "B= a10= a9= b= c/ to-c/ z/");

  // What a link points to outside is not deleted with the folder.
  folder.GetFile("c/kept").ReplaceContents("k");
  ASSERT_EQ(::symlink("../c", folder.GetPath("z/link").c_str()), 0);
  Dir(folder.GetDir(), "z").RemoveAll();
  EXPECT_TRUE(folder.GetFile("c/kept").Exists());
  EXPECT_EQ(folder.Describe(), "B= a10= a9= b= c/ to-c/");
}

TEST(Files, PathsAreTakenApartByTheirText) {
  struct Row {
    const char* path;
    const char* name;
    const char* extension;
    const char* parent;
  };
  const Row rows[] = {
      {"/a/b.tar.gz", "b.tar.gz", "gz", "/a"},
      {"/a/.profile", ".profile", "", "/a"},
      {"/a.d/b", "b", "", "/a.d"},
      {"b.", "b.", "", "."},
      {"/a/b/", "b", "", "/a"},
      {"/a", "a", "", "/"},
      {"/", "/", "", "/"},
      {"..", "..", "", "../.."},
      {".", ".", "", ".."},
      {"", "", "", ""},
  };
  for (const Row& row : rows) {
    const File file(row.path);
    EXPECT_EQ(ToStdString(file.GetName()), row.name) << row.path;
    EXPECT_EQ(ToStdString(file.GetExtension()), row.extension) << row.path;
    EXPECT_EQ(file.Parent().GetPath(), row.parent) << row.path;
  }
  EXPECT_EQ(ToStdString(File("/a/./b/../c//d/").FullPath()), "/a/c/d");
  EXPECT_EQ(ToStdString(Dir("x").FullPath()).front(), '/');
  EXPECT_EQ(File(Dir("/a/"), "b").GetPath(), "/a/b");
  EXPECT_EQ(File(Dir("/a"), "/etc/passwd").GetPath(), "/a//etc/passwd");
  EXPECT_EQ(File(Dir(), "b").GetPath(), "b");
}

TEST(Streams, CarryBytesInPiecesOfAnySize) {
  const TemporaryFolder folder;
  const File file = folder.GetFile("f");
  std::string written;
  {
    OutputFileStream out(file);
    for (std::size_t size : {1u, 7u, 65530u, 100000u, 0u, 65536u, 3u}) {
      const std::string piece(size, static_cast<char>('a' + size % 23));
      out.Write(piece.data(), piece.size());
      written += piece;
    }
  }
  const auto content = file.ReadAll();
  EXPECT_TRUE(std::string(content.begin(), content.end()) == written);

  InputFileStream in(file);
  std::string read(written.size(), '\0');
  std::size_t at = 0;
  for (std::size_t size : {5u, 70000u, 1u, 65536u}) {
    in.Read(read.data() + at, size);
    at += size;
  }
  while (const std::size_t count = in.ReadSome(read.data() + at, 40000))
    at += count;
  EXPECT_EQ(at, written.size());
  EXPECT_TRUE(read == written);
  char byte;
  EXPECT_EQ(in.ReadSome(&byte, 1), 0u);
  EXPECT_THROW(in.Read(&byte, 1), lumcore::filesupport::eof_error);
}

TEST(Streams, FullDiskIsReportedAndNotWrittenAgain) {
  const auto full = "Cannot write \"/dev/full\": No space left on device";
  OutputFileStream out{File("/dev/full")};
  out.Write("x", 1);
  EXPECT_EQ(ErrorOf([&] { out.FlushToDisk(); }), full);
  out.Write("y", 1);
  EXPECT_EQ(ErrorOf([&] { out.Close(); }), full);
  EXPECT_EQ(ErrorOf([] {
              OutputFileStream dropped{File("/dev/full")};
              dropped.Write("z", 1);
            }),
            "no error");
}

}  // namespace
