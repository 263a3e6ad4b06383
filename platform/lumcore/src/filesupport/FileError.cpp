// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/filesupport/FileError.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "filesupport/ThrowFileError.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/filesupport/FileStream.h"
#include "lumcore/utility/StringUtils.h"

namespace lumcore::filesupport {

namespace {

constexpr UTF16String::value_type kReplacementCharacter = 0xFFFD;

UTF16String Text(const char* inKey, const std::string& inPath, const std::string& inCause) {
  UTF16String path = utility::ToUTF16(inPath);
  // A zero would end the text where it is read as what().
  std::replace(path.begin(), path.end(), UTF16String::value_type(0), kReplacementCharacter);
  return utility::ReplaceInString(config::Localizer::Get()->GetLocalizedString(inKey),
                                  {path, utility::ToUTF16(inCause)});
}

}  // namespace

FileError::FileError(const UTF16String& inText, std::string inPath, int inSystemCode)
    : Error(inText), mPath(std::move(inPath)), mSystemCode(inSystemCode) {}

FileError::~FileError() = default;

const std::string& FileError::GetPath() const {
  return mPath;
}

int FileError::GetSystemCode() const {
  return mSystemCode;
}

UTF16String FileError::GetSystemWords() const {
  if (mSystemCode == 0) return UTF16String();
  return utility::ToUTF16(std::system_category().message(mSystemCode));
}

eof_error::eof_error(std::string inPath)
    : FileError(Text("$$$/lumcore/filesupport/Error/EndOfFile=\"@0\" ends too early", inPath, {}),
                inPath, 0) {}

eof_error::~eof_error() = default;

void ThrowSystemError(const char* inKey, const std::string& inPath, int inSystemCode) {
  const std::string words = std::system_category().message(inSystemCode);
  throw FileError(Text(inKey, inPath, words), inPath, inSystemCode);
}

void ThrowFileError(const char* inKey, const std::string& inPath) {
  throw FileError(Text(inKey, inPath, {}), inPath, 0);
}

}  // namespace lumcore::filesupport
