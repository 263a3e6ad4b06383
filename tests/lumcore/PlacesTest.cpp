// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "lumcore/filesupport/FileError.h"
#include "lumcore/filesupport/UserDirs.h"
#include "lumcore/filesupport/Volumes.h"
#include "lumcore/utility/StringUtils.h"
#include "support/UserFolders.h"

namespace {

using lumcore::filesupport::Dir;
using lumcore::filesupport::File;
using lumcore::filesupport::FindUserDir;
using lumcore::filesupport::UserDir;
using lumcore::filesupport::Volume;

std::string Volumes(const std::string& inTable) {
  std::string text;
  for (const Volume& volume : lumcore::filesupport::ReadMountTable(inTable))
    text += (text.empty() ? "" : " | ") + volume.dir.GetPath() + " of " + volume.source;
  return text;
}

// Lines as kernels write them.
TEST(Places, VolumesAreWhatStoresFiles) {
  EXPECT_EQ(Volumes("22 27 0:21 / /proc rw,relatime shared:5 - proc proc rw\n"
                    "27 1 254:0 / / rw,relatime - ext4 /dev/vda rw,discard\n"
                    "28 27 0:25 / /run/user/1000 rw - tmpfs tmpfs rw,size=4k\n"
                    "31 27 8:1 / /media/my\\040stick rw shared:9 master:2 - vfat /dev/sdb1 rw\n"
                    "33 27 0:40 / /home/u/far rw - fuse.sshfs host:/a\\134b rw\n"
                    "34 27 0:41 / /run/user/1000/doc rw - fuse.portal portal rw\n"
                    "35 27 0:50 /@home /home rw - btrfs /dev/vdb rw\n"
                    "a line of another kind\n\n"),
            "/ of /dev/vda | /home of /dev/vdb | /home/u/far of host:/a\\b | "
            "/media/my stick of /dev/sdb1");
  // What is mounted last hides what was there; the top is always one.
  EXPECT_EQ(Volumes("1 0 8:1 / / rw - tmpfs live rw\n"
                    "2 1 8:2 / /a rw - ext4 /dev/x rw\n"
                    "3 1 8:3 / /a rw - xfs /dev/y rw\n"
                    "4 1 8:4 / /b rw - ext4 /dev/z rw\n"
                    "5 1 8:5 / /b rw - tmpfs none rw"),
            "/ of live | /a of /dev/y");
  EXPECT_EQ(lumcore::filesupport::GetVolumes().front().dir.GetPath(), "/");
  EXPECT_TRUE(FindVolumeLabel(Volume{Dir("/"), "none"}).has_value());
  EXPECT_FALSE(FindVolumeLabel(Volume{Dir("/none-such"), "none"}).has_value());
}

TEST(Places, UserFoldersAreWhereTheDesktopSaysAndAreMade) {
  const UserFolders home;
  const auto where = [](UserDir inWhich) {
    const auto dir = FindUserDir(inWhich);
    return dir ? dir->GetPath() : "none";
  };
  const auto choose = [&](const std::string& inLines) {
    home.MakeFolder(".config");
    File(home.GetPath(".config/user-dirs.dirs")).Recreate(inLines);
  };
  home.GetDir("Documents").RemoveAll();
  EXPECT_EQ(where(UserDir::kDocuments), home.GetPath("Documents"));
  EXPECT_TRUE(home.GetDir("Documents").Exists());
  choose(
      "# comment\nXDG_DESKTOP_DIR=\"$HOME/Schreib \\\"tisch\"\n  XDG_DOCUMENTS_DIR=\"$HOME/\"\n");
  EXPECT_EQ(where(UserDir::kDesktop), home.GetPath("Schreib \"tisch"));
  EXPECT_TRUE(home.GetDir("Schreib \"tisch").Exists());
  EXPECT_EQ(where(UserDir::kDocuments) + "/", home.GetPath(""));
  choose("XDG_DESKTOP_DIR=\"relative\"\nXDG_DOCUMENTS_DIR=\"/a\"\nXDG_DOCUMENTS_DIR=\"" +
         home.GetPath("later") + "\"");
  EXPECT_EQ(where(UserDir::kDesktop), home.GetPath("Desktop"));
  EXPECT_EQ(where(UserDir::kDocuments), home.GetPath("later"));
  home.MakeFile("file");
  choose("XDG_DESKTOP_DIR=\"$HOME/file/in\"");
  EXPECT_EQ(where(UserDir::kDesktop), "none");
}

TEST(Places, FoldersAreWalkedAsPeopleLookForNames) {
  const UserFolders home;
  home.MakeFolder("in");
  for (const char* name : {"in/b10", "in/A", "in/.z", "in/a", "in/B", "in/a.b", "in/\xFF", "in/_"})
    home.MakeFile(name);
  home.MakeFolder("in/folder");
  home.MakeLink("in/linked", home.GetPath("in/folder"));
  home.MakeLink("in/nowhere", home.GetPath("none"));
  const Dir dir = home.GetDir("in");
  const auto names = [](auto inAt, const auto& inEnd) {
    std::string text;
    for (; inAt != inEnd; ++inAt)
      text += lumcore::utility::ToStdString((*inAt).GetName()) + " ";
    return text;
  };
  EXPECT_EQ(names(dir.BeginFiles(), dir.EndFiles()), "_ A a a.b B b10 \xEF\xBF\xBD .z ");
  EXPECT_EQ(names(dir.BeginFiles(true), dir.EndFiles()), "_ A a a.b B b10 \xEF\xBF\xBD ");
  EXPECT_EQ(names(dir.BeginSubdirs(), dir.EndSubdirs()), "folder linked ");
  EXPECT_THROW(home.GetDir("none").BeginFiles(), lumcore::filesupport::FileError);
  EXPECT_TRUE(home.GetDir("in/linked").IsSameFolder(home.GetDir("in/folder")));
  EXPECT_FALSE(home.GetDir("in/nowhere").IsSameFolder(home.GetDir("in/nowhere")));
  EXPECT_TRUE(home.GetDir("in/x/../folder/") == home.GetDir("in/folder"));
  EXPECT_TRUE(Dir("//").IsTopLevelDir() && !Dir("/a").IsTopLevelDir());
  EXPECT_EQ(lumcore::utility::ToStdString(File("/a/b.TAR.gz").GetExtension(true)), ".gz");
}

}  // namespace
