// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "lumcore/Export.h"
#include "lumcore/Strings.h"

namespace lumcore::filesupport {

class Dir;
class File;

// Walks over what a folder held when the walk began.
template <class Item>
class DirIterator {
 public:
  DirIterator() = default;  // the end
  DirIterator(std::string inPrefix, std::vector<std::string> inNames)
      : mPrefix(std::move(inPrefix)),
        mNames(std::make_shared<std::vector<std::string>>(std::move(inNames))) {}

  Item operator*() const { return Item(mPrefix + (*mNames)[mAt]); }
  DirIterator& operator++() {
    ++mAt;
    return *this;
  }
  friend bool operator==(const DirIterator& inA, const DirIterator& inB) {
    return inA.GetLeft() == inB.GetLeft();
  }
  friend bool operator!=(const DirIterator& inA, const DirIterator& inB) { return !(inA == inB); }

 private:
  std::size_t GetLeft() const { return mNames ? mNames->size() - mAt : 0; }

  std::string mPrefix;  // the folder, with a separator
  std::shared_ptr<const std::vector<std::string>> mNames;
  std::size_t mAt = 0;
};

// Names a folder. See File for what a path is.
class LUMCORE_API Dir {
 public:
  using FileIterator = DirIterator<File>;
  using SubdirIterator = DirIterator<Dir>;

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

  // As people look for names: those that begin with a dot last, without regard to the case of
  // Latin letters, and equal ones by their bytes. Throws FileError. Of one folder, two walks are
  // equal where as much is left of them.
  FileIterator BeginFiles(bool inSkipHidden = false) const;  // those that begin with a dot
  FileIterator EndFiles() const { return FileIterator(); }
  SubdirIterator BeginSubdirs(bool inSkipHidden = false) const;
  SubdirIterator EndSubdirs() const { return SubdirIterator(); }
  // Both in one reading.
  struct Contents;
  Contents BeginContents(bool inSkipHidden = false) const;

  // Whether nothing is above it: "/", or a drive.
  bool IsTopLevelDir() const;
  // Whether both lead to one folder, over links or otherwise; false where one is not there.
  bool IsSameFolder(const Dir& inOther) const;
  // By the text of their full paths.
  LUMCORE_API friend bool operator==(const Dir& inA, const Dir& inB);
  friend bool operator!=(const Dir& inA, const Dir& inB) { return !(inA == inB); }

 private:
  std::string mPath;
};

struct Dir::Contents {
  SubdirIterator subdirs;
  FileIterator files;
};

}  // namespace lumcore::filesupport
