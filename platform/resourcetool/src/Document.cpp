// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "Document.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace resourcetool {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

// Without the value for an entity that is not plain.
using Entities = std::map<std::string, std::optional<std::string>, std::less<>>;

bool StartsWith(std::string_view inText, std::string_view inStart) {
  return inText.substr(0, inStart.size()) == inStart;
}

bool IsPlain(std::string_view inValue) {
  return std::all_of(inValue.begin(), inValue.end(), [](unsigned char inByte) {
    return inByte >= ' ' && std::string_view("&%<>\"'").find(inByte) == std::string_view::npos;
  });
}

// Takes from the front of a text.
class Scanner {
 public:
  explicit Scanner(std::string_view inText) : mRest(inText) {}

  bool IsAtEnd() const { return mRest.empty(); }
  std::string_view GetRest() const { return mRest; }

  std::string_view Take(std::size_t inCount) {
    const std::string_view taken = mRest.substr(0, inCount);
    mRest.remove_prefix(taken.size());
    return taken;
  }
  // With the end itself; all, where there is none.
  std::string_view TakeThrough(std::string_view inEnd) {
    const std::size_t at = mRest.find(inEnd);
    return Take(at == mRest.npos ? at : at + inEnd.size());
  }
  std::string_view TakeUpTo(std::string_view inAnyOf) { return Take(mRest.find_first_of(inAnyOf)); }
  void SkipBlanks() { Take(std::min(mRest.find_first_not_of(kBlanks), mRest.size())); }
  // From quote to quote.
  std::string_view TakeQuoted() {
    const std::size_t end = mRest.find(mRest.front(), 1);
    return Take(end == mRest.npos ? end : end + 1);
  }
  // The rest of a tag or a declaration, whose end may also stand within quotes.
  void SkipTag() {
    for (;;) {
      TakeUpTo("\"'>");
      if (IsAtEnd()) return;
      if (mRest.front() == '>') {
        Take(1);
        return;
      }
      TakeQuoted();
    }
  }
  // What is not looked into, if such a thing is next.
  std::string_view TakeOpaque() {
    if (StartsWith(mRest, "<!--")) return TakeThrough("-->");
    if (StartsWith(mRest, "<?")) return TakeThrough("?>");
    if (StartsWith(mRest, "<![CDATA[")) return TakeThrough("]]>");
    return {};
  }

 private:
  std::string_view mRest;
};

// The inline part of a document type, whose bracket has been taken, up to the closing one.
Entities TakeDeclarations(Scanner& ioScanner) {
  Entities entities;
  while (!ioScanner.IsAtEnd() && ioScanner.GetRest().front() != ']') {
    if (!ioScanner.TakeOpaque().empty()) continue;
    const char next = ioScanner.GetRest().front();
    // What a parameter entity stands for may declare anything.
    if (next == '%') return {};
    if (next == '"' || next == '\'') {
      ioScanner.TakeQuoted();
      continue;
    }
    if (!StartsWith(ioScanner.GetRest(), "<!ENTITY")) {
      ioScanner.Take(1);
      continue;
    }
    ioScanner.TakeUpTo(kBlanks);
    ioScanner.SkipBlanks();
    const std::string_view name = ioScanner.TakeUpTo(kBlanks);
    ioScanner.SkipBlanks();
    if (ioScanner.IsAtEnd() || name == "%") return {};
    const char quote = ioScanner.GetRest().front();
    std::optional<std::string> value;
    if (quote == '"' || quote == '\'') {
      const std::string_view quoted = ioScanner.TakeQuoted();
      const std::string_view inner = quoted.substr(1, std::max<std::size_t>(quoted.size(), 2) - 2);
      if (IsPlain(inner)) value = inner;
    }
    // Of several declarations the first counts.
    entities.emplace(name, value);
    ioScanner.SkipTag();
  }
  return entities;
}

void AddResolved(std::string_view inText, const Entities& inEntities, std::string& ioResult) {
  Scanner scanner(inText);
  while (!scanner.IsAtEnd()) {
    ioResult += scanner.TakeUpTo("&");
    const std::string_view reference = scanner.TakeThrough(";");
    const auto found = reference.size() > 2 && reference.back() == ';'
                           ? inEntities.find(reference.substr(1, reference.size() - 2))
                           : inEntities.end();
    const bool isKnown = found != inEntities.end() && found->second;
    ioResult += isKnown ? std::string_view(*found->second) : reference;
  }
}

void AddTag(std::string_view inTag, const Entities& inEntities, std::string& ioResult) {
  const bool isEmptyElement = inTag.size() > 2 && inTag.substr(inTag.size() - 2) == "/>";
  Scanner scanner(inTag);
  while (isEmptyElement && !scanner.IsAtEnd()) {
    ioResult += scanner.TakeUpTo("\"'");
    if (!scanner.IsAtEnd()) AddResolved(scanner.TakeQuoted(), inEntities, ioResult);
  }
  ioResult += scanner.GetRest();
}

}  // namespace

QByteArray ResolveEntities(const QByteArray& inDocument) {
  Scanner scanner({inDocument.constData(), static_cast<std::size_t>(inDocument.size())});
  std::string result;
  Entities entities;
  while (!scanner.IsAtEnd()) {
    const std::string_view before = scanner.GetRest();
    if (const std::string_view opaque = scanner.TakeOpaque(); !opaque.empty()) {
      result += opaque;
    } else if (StartsWith(before, "<!DOCTYPE")) {
      scanner.TakeUpTo("[>");
      if (StartsWith(scanner.GetRest(), "[")) {
        scanner.Take(1);
        entities = TakeDeclarations(scanner);
      }
      scanner.TakeThrough(">");
      result += before.substr(0, before.size() - scanner.GetRest().size());
    } else if (before.front() == '<') {
      scanner.SkipTag();
      AddTag(before.substr(0, before.size() - scanner.GetRest().size()), entities, result);
    } else {
      result += scanner.TakeUpTo("<");
    }
  }
  return QByteArray::fromStdString(result);
}

}  // namespace resourcetool
