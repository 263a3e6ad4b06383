// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

#include "support/TemporaryFolder.h"

#include "lumcore/filesupport/FileError.h"
#include "lumcore/filesupport/FileStream.h"

namespace {

using lumcore::filesupport::File;
using lumcore::filesupport::FileError;

std::string ReplaceError(const File& inFile, const std::string& inBytes = "new") {
  try {
    inFile.ReplaceContents(inBytes);
  } catch (const FileError& error) {
    EXPECT_EQ(error.GetPath(), inFile.GetPath());
    return error.what();
  }
  return "no error";
}

// The words without the folder, whose name differs from run to run.
std::string WithoutFolder(const TemporaryFolder& inFolder, std::string inText) {
  const std::string path = inFolder.GetPath("");
  for (std::size_t at; (at = inText.find(path)) != inText.npos;)
    inText.erase(at, path.size());
  return inText;
}

mode_t ModeOf(const File& inFile) {
  struct stat status = {};
  ::stat(inFile.GetPath().c_str(), &status);
  return status.st_mode & 07777;
}

// Files may grow to so many bytes while this stands.
class StFileSizeLimit {
 public:
  explicit StFileSizeLimit(rlim_t inBytes) {
    ::getrlimit(RLIMIT_FSIZE, &mOld);
    const rlimit limit = {inBytes, mOld.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~StFileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &mOld); }

 private:
  rlimit mOld;
};

// The administrator passes by all permissions, so as such the test takes another user's place.
class StOrdinaryUser {
 public:
  explicit StOrdinaryUser(const TemporaryFolder& inFolder) : mOld(::geteuid()) {
    constexpr uid_t kNobody = 65534;
    if (mOld != 0) return;
    EXPECT_EQ(::chown(inFolder.GetDir().GetPath().c_str(), kNobody, static_cast<gid_t>(-1)), 0);
    EXPECT_EQ(::seteuid(kNobody), 0);
  }
  ~StOrdinaryUser() { EXPECT_EQ(::seteuid(mOld), 0); }

 private:
  uid_t mOld;
};

TEST(Replacing, LeavesOneFileWithTheNewContent) {
  const TemporaryFolder folder;
  folder.GetFile("a").ReplaceContents("first");
  folder.GetFile("b").ReplaceContents(std::string("x\0y", 3));
  EXPECT_EQ(folder.Describe(), std::string("a=first b=x\0y", 13));
  folder.GetFile("a").ReplaceContents("2nd");
  folder.GetFile("b").ReplaceContents("");
  EXPECT_EQ(folder.Describe(), "a=2nd b=");

  const std::string large(3 << 20, 'l');
  folder.GetFile("b").ReplaceContents(large);
  EXPECT_EQ(folder.Describe(), "a=2nd b=" + large);
}

TEST(Replacing, KeepsPermissionsAndGivesNewFilesThoseOfTheProcess) {
  const TemporaryFolder folder;
  const File file = folder.GetFile("f");
  const mode_t oldMask = ::umask(027);
  file.ReplaceContents("new");
  ::umask(oldMask);
  EXPECT_EQ(ModeOf(file), 0640u);
  for (const mode_t mode : {0600u, 0755u, 0664u}) {
    ::chmod(file.GetPath().c_str(), mode);
    file.ReplaceContents("newer");
    EXPECT_EQ(ModeOf(file), mode);
  }
}

TEST(Replacing, FollowsLinks) {
  const TemporaryFolder folder;
  const auto link = [&](const char* inTarget, const char* inName) {
    ASSERT_EQ(::symlink(inTarget, folder.GetPath(inName).c_str()), 0);
  };
  lumcore::filesupport::Dir(folder.GetDir(), "sub").Create();
  folder.GetFile("sub/real").ReplaceContents("old");
  link("sub/real", "first");
  link("first", "second");
  link("sub/absent", "dangling");
  link("loop", "loop");

  folder.GetFile("second").ReplaceContents("new");
  folder.GetFile("dangling").ReplaceContents("made");
  EXPECT_EQ(folder.Describe(), "dangling=made first=new second=new sub/");
  struct stat status = {};
  for (const char* name : {"first", "second", "dangling"}) {
    ::lstat(folder.GetPath(name).c_str(), &status);
    EXPECT_TRUE(S_ISLNK(status.st_mode)) << name;
  }
  EXPECT_EQ(WithoutFolder(folder, ReplaceError(folder.GetFile("loop"))),
            "Cannot save \"loop\": Too many levels of symbolic links");
}

TEST(Replacing, FullDiskLeavesTheOldFileAndNothingBeside) {
  const TemporaryFolder folder;
  const File file = folder.GetFile("f");
  file.ReplaceContents("old");
  std::string error;
  std::string fresh;
  {
    const StFileSizeLimit limit(10000);
    error = ReplaceError(file, std::string(20000, 'n'));
    fresh = ReplaceError(folder.GetFile("g"), std::string(20000, 'n'));
    EXPECT_EQ(ReplaceError(file, std::string(10000, 'n')), "no error");
  }
  EXPECT_EQ(WithoutFolder(folder, error), "Cannot write \"f\": File too large");
  EXPECT_EQ(WithoutFolder(folder, fresh), "Cannot write \"g\": File too large");
  EXPECT_EQ(folder.Describe(), "f=" + std::string(10000, 'n'));
}

TEST(Replacing, CleansWhatKilledSavesHaveLeft) {
  const TemporaryFolder folder;
  const char* const left = ".lumcore-save-0123456789abcdef";
  const char* const used = ".lumcore-save-00000000000000bb";
  const char* const other = ".lumcore-save-of-somebody-here";
  for (const char* name : {left, used, other})
    lumcore::filesupport::OutputFileStream(folder.GetFile(name));
  const int number = ::open(folder.GetPath(used).c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_EQ(::flock(number, LOCK_EX), 0);  // as a process that is at it holds its own

  folder.GetFile("f").ReplaceContents("new");
  EXPECT_EQ(folder.Describe(), std::string(used) + "= " + other + "= f=new");
  ::close(number);
  folder.GetFile("f").ReplaceContents("newer");
  EXPECT_EQ(folder.Describe(), std::string(other) + "= f=newer");
}

TEST(Replacing, RefusesWhatIsNoFile) {
  const TemporaryFolder folder;
  folder.GetFile("f").ReplaceContents("old");
  lumcore::filesupport::Dir(folder.GetDir(), "d").Create();
  const std::pair<const char*, const char*> rows[] = {
      {"d", "Cannot save \"d\": Is a directory"},
      {"none/x", "Cannot save \"none/x\": No such file or directory"},
      {"f/x", "Cannot save \"f/x\": Not a directory"},
  };
  for (const auto& [name, words] : rows) {
    EXPECT_EQ(WithoutFolder(folder, ReplaceError(folder.GetFile(name))), words);
  }
  EXPECT_EQ(folder.Describe(), "f=old d/");
  EXPECT_EQ(ReplaceError(File("/dev/full")), "Cannot save \"/dev/full\": Not a regular file");
  EXPECT_EQ(ReplaceError(File()), "Cannot save \"\": No such file or directory");
  EXPECT_EQ(ReplaceError(File(std::string(5000, 'n'))).substr(0, 13), "Cannot save \"");
}

TEST(Replacing, HeedsWriteProtection) {
  const TemporaryFolder folder;
  const std::string path = folder.GetDir().GetPath();
  std::string file;
  std::string closedFolder;
  {
    const StOrdinaryUser user(folder);
    folder.GetFile("f").ReplaceContents("old");
    ::chmod(folder.GetPath("f").c_str(), 0444);
    file = ReplaceError(folder.GetFile("f"));
    ::chmod(folder.GetPath("f").c_str(), 0644);
    ::chmod(path.c_str(), 0555);
    closedFolder = ReplaceError(folder.GetFile("f"));
    ::chmod(path.c_str(), 0755);
  }
  EXPECT_EQ(WithoutFolder(folder, file), "Cannot save \"f\": Permission denied");
  EXPECT_EQ(WithoutFolder(folder, closedFolder), "Cannot save \"f\": Permission denied");
  EXPECT_EQ(folder.Describe(), "f=old");
}

// The old file goes first, and so its links and permissions do.
TEST(Recreating, LeavesAFileOfItsOwnOrTheOldOne) {
  const TemporaryFolder folder;
  const auto recreate = [&](const std::string& inPath, const std::string& inBytes) {
    try {
      File(inPath).Recreate(inBytes);
    } catch (const FileError& error) {
      return WithoutFolder(folder, error.what());
    }
    return std::string("no error");
  };
  folder.GetFile("real").ReplaceContents("old");
  ::chmod(folder.GetPath("real").c_str(), 0444);
  ASSERT_EQ(::symlink("real", folder.GetPath("link").c_str()), 0);
  ASSERT_EQ(::symlink("absent", folder.GetPath("dangling").c_str()), 0);
  {
    const StFileSizeLimit limit(10000);
    for (const char* name : {"real", "link", "fresh"})
      EXPECT_EQ(recreate(folder.GetPath(name), std::string(20000, 'n')),
                "Cannot write \"" + std::string(name) + "\": File too large");
  }
  EXPECT_EQ(folder.Describe(), "link=old real=old");
  EXPECT_EQ(recreate("/dev/null", "x"), "Cannot save \"/dev/null\": Not a regular file");
  for (const char* name : {"link", "dangling"})
    EXPECT_EQ(recreate(folder.GetPath(name), "new"), "no error");
  EXPECT_EQ(folder.Describe(), "dangling=new link=new real=old");
  EXPECT_EQ(recreate(folder.GetPath("real"), "new"), "no error");
}

}  // namespace
