// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// What the file classes ask of the system. Each platform has one file that implements all of it;
// paths are those of File, and every failure is a FileError with the system's own words.
namespace lumcore::filesupport::system {

// An open file. The number is what the platform makes of it; -1 is none.
class Handle {
 public:
  Handle(std::intptr_t inNumber, std::string inPath);
  // Closes without a report.
  ~Handle();
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  // Up to inCount bytes; 0 only at the end of the file.
  std::size_t ReadSome(void* outBytes, std::size_t inCount);
  void WriteAll(const void* inBytes, std::size_t inCount);
  void FlushToDisk();
  // Throws when the system reports late that bytes did not reach the file. The handle is closed
  // either way.
  void Close();

  // 0 where the system does not know; the file may have grown by the next call.
  std::uint64_t GetSizeHint() const;
  bool IsOpen() const { return mNumber != -1; }
  const std::string& GetPath() const { return mPath; }

 private:
  std::intptr_t mNumber;
  std::string mPath;
};

std::intptr_t OpenForReading(const std::string& inPath);
// An existing file is emptied, a new one has the permissions that the process gives.
std::intptr_t OpenForWriting(const std::string& inPath);

std::string ProgramPath();   // of this process's executable file
std::string HomePath();      // the user's own folder
std::string SettingsPath();  // the folder for the settings of all of the user's programs
bool FileExists(const std::string& inPath);
bool FolderExists(const std::string& inPath);
bool IsAbsent(const std::string& inPath);
std::uint64_t FileSize(const std::string& inPath);
void RemoveFile(const std::string& inPath);
// The names in a folder, in no order. Links count as what they point to; one that points nowhere is
// neither a file nor a folder.
struct FolderNames {
  std::vector<std::string> folders;
  std::vector<std::string> files;
};
FolderNames ListFolder(const std::string& inPath);
bool AreSameFolder(const std::string& inA, const std::string& inB);  // by whatever ways
std::int64_t ModifiedTime(const std::string& inPath);  // seconds since the beginning of 1970
// See File::ReplaceContents.
void ReplaceFile(const std::string& inPath, std::string_view inBytes);
// See File::Recreate.
void RecreateFile(const std::string& inPath, std::string_view inBytes);

}  // namespace lumcore::filesupport::system
