// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <stdlib.h>

#include <filesystem>
#include <optional>
#include <string>

#include "support/TemporaryFolder.h"

// A home of a test's own, with a Desktop and Documents in it that are not named anywhere. While one
// lives, the process takes it for the user's.
class UserFolders {
 public:
  UserFolders() : mHome("HOME", mFolder.GetDir().GetPath()), mConfig("XDG_CONFIG_HOME", "") {
    MakeFolder("Desktop");
    MakeFolder("Documents");
  }

  std::string GetPath(const std::string& inName) const { return mFolder.GetPath(inName); }
  lumcore::filesupport::Dir GetDir(const std::string& inName) const {
    return lumcore::filesupport::Dir(GetPath(inName));
  }
  void MakeFolder(const std::string& inName) const { GetDir(inName).Create(); }
  void MakeFile(const std::string& inName) const { mFolder.GetFile(inName).Recreate("x"); }
  void MakeLink(const std::string& inName, const std::string& inTarget) const {
    std::filesystem::create_directory_symlink(inTarget, GetPath(inName));
  }

 private:
  class StVariable {
   public:
    StVariable(const char* inName, const std::string& inValue) : mName(inName) {
      if (const char* const old = ::getenv(inName)) mOld = old;
      ::setenv(inName, inValue.c_str(), 1);
    }
    ~StVariable() { mOld ? ::setenv(mName, mOld->c_str(), 1) : ::unsetenv(mName); }
    StVariable(const StVariable&) = delete;
    StVariable& operator=(const StVariable&) = delete;

   private:
    const char* mName;
    std::optional<std::string> mOld;
  };

  TemporaryFolder mFolder;
  StVariable mHome;
  StVariable mConfig;
};
