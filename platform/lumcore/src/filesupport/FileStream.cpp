// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/filesupport/FileStream.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "filesupport/SystemFile.h"
#include "lumcore/debug/Contract.h"

namespace lumcore::filesupport {

namespace {

// One call of the system a buffer instead of one for each small piece.
constexpr std::size_t kBufferBytes = 64 * 1024;

}  // namespace

struct InputFileStream::Impl {
  explicit Impl(const std::string& inPath) : handle(system::OpenForReading(inPath), inPath) {}

  system::Handle handle;
  std::vector<char> buffer;
  std::size_t at = 0;  // the first byte of the buffer that was not handed out
};

InputFileStream::InputFileStream(const File& inFile)
    : mImpl(std::make_unique<Impl>(inFile.GetPath())) {}

InputFileStream::~InputFileStream() = default;

std::size_t InputFileStream::ReadSome(void* outBytes, std::size_t inCount) {
  if (inCount == 0) return 0;
  Impl& impl = *mImpl;
  if (impl.at == impl.buffer.size()) {
    if (inCount >= kBufferBytes) return impl.handle.ReadSome(outBytes, inCount);
    impl.buffer.resize(kBufferBytes);
    impl.at = impl.buffer.size();
    const std::size_t count = impl.handle.ReadSome(impl.buffer.data(), kBufferBytes);
    impl.buffer.resize(count);
    impl.at = 0;
  }
  const std::size_t count = std::min(inCount, impl.buffer.size() - impl.at);
  std::copy_n(impl.buffer.data() + impl.at, count, static_cast<char*>(outBytes));
  impl.at += count;
  return count;
}

void InputFileStream::Read(void* outBytes, std::size_t inCount) {
  for (char* bytes = static_cast<char*>(outBytes); inCount > 0;) {
    const std::size_t count = ReadSome(bytes, inCount);
    if (count == 0) throw eof_error(mImpl->handle.GetPath());
    bytes += count;
    inCount -= count;
  }
}

struct OutputFileStream::Impl {
  explicit Impl(const std::string& inPath) : handle(system::OpenForWriting(inPath), inPath) {}

  // The buffer is empty afterwards also when the write fails: who was told of the failure must not
  // have the same bytes written again later.
  void WriteBuffer() {
    std::vector<char> bytes;
    bytes.swap(buffer);
    if (!bytes.empty()) handle.WriteAll(bytes.data(), bytes.size());
    bytes.clear();
    buffer.swap(bytes);
  }

  system::Handle handle;
  std::vector<char> buffer;
};

OutputFileStream::OutputFileStream(const File& inFile)
    : mImpl(std::make_unique<Impl>(inFile.GetPath())) {}

OutputFileStream::~OutputFileStream() {
  try {
    Close();
  } catch (const FileError&) {
    // A destructor reports nothing; who must know calls Close.
  }
}

void OutputFileStream::Write(const void* inBytes, std::size_t inCount) {
  Impl& impl = *mImpl;
  LUM_INPUT_CONTRACT(impl.handle.IsOpen());
  if (impl.buffer.size() + inCount > kBufferBytes) impl.WriteBuffer();
  if (inCount >= kBufferBytes) return impl.handle.WriteAll(inBytes, inCount);
  const char* bytes = static_cast<const char*>(inBytes);
  impl.buffer.insert(impl.buffer.end(), bytes, bytes + inCount);
}

void OutputFileStream::FlushToDisk() {
  LUM_INPUT_CONTRACT(mImpl->handle.IsOpen());
  mImpl->WriteBuffer();
  mImpl->handle.FlushToDisk();
}

void OutputFileStream::Close() {
  if (!mImpl->handle.IsOpen()) return;
  mImpl->WriteBuffer();
  mImpl->handle.Close();
}

}  // namespace lumcore::filesupport
