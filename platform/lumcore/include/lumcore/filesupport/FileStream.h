// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "lumcore/Export.h"
#include "lumcore/filesupport/File.h"
#include "lumcore/filesupport/FileError.h"

namespace lumcore::filesupport {

// Thrown where bytes were asked for behind the end of a stream.
class LUMCORE_API eof_error : public FileError {
 public:
  explicit eof_error(std::string inPath);
  ~eof_error() override;
};

// Bytes from a file, in order. Throws FileError.
class LUMCORE_API InputFileStream {
 public:
  explicit InputFileStream(const File& inFile);
  ~InputFileStream();
  InputFileStream(const InputFileStream&) = delete;
  InputFileStream& operator=(const InputFileStream&) = delete;

  // Reads up to inCount bytes and answers how many; 0 only at the end.
  std::size_t ReadSome(void* outBytes, std::size_t inCount);
  // Reads exactly inCount bytes; throws eof_error when the file ends before.
  void Read(void* outBytes, std::size_t inCount);

 private:
  struct Impl;
  std::unique_ptr<Impl> mImpl;
};

// Bytes to a new file; an existing one is emptied first. Throws FileError.
class LUMCORE_API OutputFileStream {
 public:
  explicit OutputFileStream(const File& inFile);
  // Closes without a report; who must know that all is on disk calls Close.
  ~OutputFileStream();
  OutputFileStream(const OutputFileStream&) = delete;
  OutputFileStream& operator=(const OutputFileStream&) = delete;

  void Write(const void* inBytes, std::size_t inCount);
  void FlushToDisk();
  void Close();

 private:
  struct Impl;
  std::unique_ptr<Impl> mImpl;
};

}  // namespace lumcore::filesupport
