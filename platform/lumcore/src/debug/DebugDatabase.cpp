// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/debug/DebugDatabase.h"

#include <charconv>
#include <sstream>
#include <utility>

#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/filesupport/File.h"
#include "lumcore/utility/StringUtils.h"

namespace lumcore::debug {

namespace {

std::string Trimmed(const std::string& inText) {
  constexpr const char* kBlanks = " \t\r";
  const auto first = inText.find_first_not_of(kBlanks);
  if (first == inText.npos) return {};
  return inText.substr(first, inText.find_last_not_of(kBlanks) + 1 - first);
}

[[noreturn]] void Throw(const char* inKey, const std::string& inOrigin, const std::string& inWhat,
                        const std::string& inValue) {
  throw config::Error(utility::ReplaceInString(
      config::Localizer::Get()->GetLocalizedString(inKey),
      {utility::ToUTF16(inOrigin), utility::ToUTF16(inWhat), utility::ToUTF16(inValue)}));
}

}  // namespace

DebugDatabase& DebugDatabase::Instance() {
  static DebugDatabase* const sInstance = new DebugDatabase;
  return *sInstance;
}

void DebugDatabase::Load(const filesupport::File& inFile) {
  std::map<std::string, Value> values;
  const UTF8String content = inFile.Exists() ? inFile.ReadAll() : UTF8String();
  std::istringstream lines(std::string(content.begin(), content.end()));
  int number = 0;
  for (std::string line; std::getline(lines, line);) {
    const std::string origin = inFile.GetPath() + ":" + std::to_string(++number) + ": ";
    line = Trimmed(line);
    if (line.empty() || line.front() == '#') continue;
    const auto equals = line.find('=');
    const std::string name = Trimmed(line.substr(0, equals));
    if (equals == line.npos || name.empty()) {
      Throw("$$$/lumcore/debug/Error/NoNameAndValue=@0\"@1\" should read \"Name = value\"", origin,
            line, {});
    }
    values[name] = {Trimmed(line.substr(equals + 1)), origin};
  }
  for (auto& [name, value] : values)
    mValues[name] = std::move(value);
}

void DebugDatabase::Clear() {
  mValues.clear();
}

const DebugDatabase::Value* DebugDatabase::Find(const std::string& inName) const {
  const auto found = mValues.find(inName);
  return found == mValues.end() ? nullptr : &found->second;
}

bool DebugDatabase::GetBoolean(const std::string& inName, bool inDefault) const {
  const Value* const value = Find(inName);
  if (!value) return inDefault;
  if (value->text == "true") return true;
  if (value->text == "false") return false;
  Throw("$$$/lumcore/debug/Error/NoBoolean=@0\"@1\" is \"@2\", and should be \"true\" or \"false\"",
        value->origin, inName, value->text);
}

std::int64_t DebugDatabase::GetInteger(const std::string& inName, std::int64_t inDefault) const {
  const Value* const value = Find(inName);
  if (!value) return inDefault;
  std::int64_t number = 0;
  const char* const end = value->text.data() + value->text.size();
  const auto read = std::from_chars(value->text.data(), end, number);
  if (read.ec == std::errc() && read.ptr == end) return number;
  Throw("$$$/lumcore/debug/Error/NoInteger=@0\"@1\" is \"@2\", and should be a whole number",
        value->origin, inName, value->text);
}

std::string DebugDatabase::GetText(const std::string& inName, const std::string& inDefault) const {
  const Value* const value = Find(inName);
  return value ? value->text : inDefault;
}

void DebugDatabase::SetBoolean(const std::string& inName, bool inValue) {
  SetText(inName, inValue ? "true" : "false");
}

void DebugDatabase::SetInteger(const std::string& inName, std::int64_t inValue) {
  SetText(inName, std::to_string(inValue));
}

void DebugDatabase::SetText(const std::string& inName, const std::string& inValue) {
  mValues[inName] = {inValue, {}};
}

}  // namespace lumcore::debug
