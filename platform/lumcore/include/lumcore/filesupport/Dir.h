// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lumcore/Export.h"
#include "lumcore/Strings.h"

namespace lumcore::filesupport {

class File;

// Names a folder. See File for what a path is.
class LUMCORE_API Dir {
 public:
  Dir();
  explicit Dir(std::string_view inPath);
  explicit Dir(const UTF16String& inPath);
  Dir(const Dir& inParent, std::string_view inName);

  static Dir TempDir();  // the system's folder for temporary files
  // Where the user's settings of this application lie: the folder that config::SetClientPrefsDir
  // has named, or else that of the company and the client within the system's folder for settings.
  // It need not be there.
  static Dir PrefDir();
  static Dir AppDir();  // where the program of this process lies, links to it followed

  bool Exists() const;
  const std::string& GetPath() const { return mPath; }
  UTF16String FullPath() const;
  UTF16String GetName() const;
  Dir Parent() const;

  void Create() const;  // with its parents; throws FileError
  // Deletes the folder with all that is in it; throws FileError.
  void RemoveAll() const;

  // In ascending order of the names' bytes; throws FileError.
  std::vector<File> GetFiles() const;
  std::vector<Dir> GetDirs() const;

 private:
  std::string mPath;
};

}  // namespace lumcore::filesupport
