// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineColumns.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <utility>

#include "OutlineTree.h"
#include "Texts.h"
#include "lumcore/utility/StringUtils.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;

namespace {

constexpr const char* kOwnNames[] = {"", "text", "type", "created", "links"};

// Days since 1970 in the Gregorian calendar: years begin in March here, so that the day that some
// have more comes last.
double DaysOf(int inYear, int inMonth, int inDay) {
  const int year = inMonth > 2 ? inYear : inYear - 1;
  const int month = (inMonth + 9) % 12;
  const int leaps = year / 4 - year / 100 + year / 400;
  constexpr int kToMarchOfYearZero = 719468;
  return 365.0 * year + leaps + (153 * month + 2) / 5 + inDay - 1 - kToMarchOfYearZero;
}

int MonthOf(const std::string& inName) {
  static const std::string kMonths = "JanFebMarAprMayJunJulAugSepOctNovDec";
  const std::size_t place = inName.size() == 3 ? kMonths.find(inName) : std::string::npos;
  return place == std::string::npos || place % 3 != 0 ? 0 : static_cast<int>(place / 3) + 1;
}

// "+0130"; the names of zones other than Greenwich's are not used any more.
double ZoneSeconds(const char* inZone) {
  if (*inZone != '+' && *inZone != '-') return 0;
  const int number = std::abs(std::atoi(inZone));
  const double seconds = (number / 100) * 3600.0 + (number % 100) * 60.0;
  return *inZone == '-' ? -seconds : seconds;
}

bool ReadNumber(const UTF16String& inText, double& outNumber) {
  const std::string text = ToStdString(inText);
  const auto result = std::from_chars(text.data(), text.data() + text.size(), outNumber);
  return result.ec == std::errc() && result.ptr == text.data() + text.size();
}

// Numbers before texts, and nothing behind all.
struct SortKey {
  double number = std::numeric_limits<double>::max();
  bool isEmpty = false;
  UTF16String text;
  std::uint32_t line = 0;

  bool operator<(const SortKey& inOther) const {
    if (isEmpty != inOther.isEmpty) return inOther.isEmpty;
    if (number != inOther.number) return number < inOther.number;
    const int order = text.compare(inOther.text);
    return order != 0 ? order < 0 : line < inOther.line;
  }
};

}  // namespace

bool ReadTime(const UTF16String& inText, double& outSeconds) {
  std::string text = ToStdString(inText);
  const std::size_t comma = text.find(',');
  if (comma != std::string::npos) text.erase(0, comma + 1);
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
  char name[4] = "";
  char zone[6] = "";
  const int words = std::sscanf(text.c_str(), " %2d %3s %4d %2d:%2d:%2d %5s", &day, name, &year,
                                &hour, &minute, &second, zone);
  if (words >= 5) {
    month = MonthOf(name);
  } else if (std::sscanf(text.c_str(), " %4d-%2d-%2d%*c%2d:%2d:%2d", &year, &month, &day, &hour,
                         &minute, &second) < 3) {
    return false;
  }
  if (month < 1 || month > 12 || day < 1 || day > 31) return false;
  outSeconds =
      DaysOf(year, month, day) * 86400 + hour * 3600.0 + minute * 60.0 + second - ZoneSeconds(zone);
  return true;
}

OutlineColumns::OutlineColumns(const OutlineTree& inTree) : mTree(inTree) {
  for (const char* const name : kOwnNames)
    mNames.push_back(ToUTF16(name));
  Update();
}

bool OutlineColumns::Update() {
  const std::size_t before = mNames.size();
  const TextPool& pool = mTree.GetNames();
  for (; mKnownNames < pool.GetCount(); ++mKnownNames) {
    const UTF16String& name = pool.Get(static_cast<TextPool::Id>(mKnownNames));
    if (Find(name) == 0) mNames.push_back(name);
  }
  return mNames.size() != before;
}

UTF16String OutlineColumns::GetTitle(Attribute inAttribute) const {
  switch (inAttribute) {
    case kText:
      return Localized("$$$/outliner/Column/Text=Text");
    case kType:
      return Localized("$$$/outliner/Column/Type=Type");
    case kCreated:
      return Localized("$$$/outliner/Column/Created=Created");
    case kLinks:
      return Localized("$$$/outliner/Column/Links=Links");
    default:
      break;
  }
  if (mNames[inAttribute] == ToUTF16("_note")) return Localized("$$$/outliner/Column/Note=Note");
  return mNames[inAttribute];
}

OutlineColumns::Attribute OutlineColumns::Find(const UTF16String& inName) const {
  const auto found = std::find(mNames.begin() + kText, mNames.end(), inName);
  return found == mNames.end() ? 0 : static_cast<Attribute>(found - mNames.begin());
}

void OutlineColumns::GetText(const OutlineRow& inRow, Attribute inAttribute,
                             UTF16String& outText) const {
  outText.clear();
  if (inAttribute == kText) {
    outText = inRow.GetText();
  } else if (inAttribute == kLinks) {
    static const UTF16String kPlaces[] = {ToUTF16("url"), ToUTF16("htmlUrl"), ToUTF16("xmlUrl")};
    for (const UTF16String& place : kPlaces) {
      const UTF16String* const address = mTree.FindAttribute(inRow, place);
      if (!address || address->empty()) continue;
      outText = *address;
      return;
    }
  } else if (inAttribute < mNames.size()) {
    if (const UTF16String* const value = mTree.FindAttribute(inRow, mNames[inAttribute])) {
      outText = *value;
    }
  }
}

bool OutlineColumns::IsUsed(Attribute inAttribute) const {
  const auto& lines = mTree.GetLines();
  return std::any_of(lines.begin(), lines.end(), [&](const OutlineRow* inRow) {
    if (inRow->GetAttributeCount() == 0 && inAttribute != kText) return false;
    UTF16String text;
    GetText(*inRow, inAttribute, text);
    return !text.empty();
  });
}

std::vector<std::uint32_t> OutlineColumns::RankRows(Attribute inAttribute) const {
  const auto& lines = mTree.GetLines();
  std::vector<SortKey> keys(lines.size());
  UTF16String text;
  OutlineRow::Id last = 0;
  for (std::uint32_t line = 0; line < lines.size(); ++line) {
    SortKey& key = keys[line];
    GetText(*lines[line], inAttribute, text);
    key.line = line;
    key.isEmpty = text.empty();
    const bool isNumber = inAttribute != kText && !text.empty() &&
                          (ReadTime(text, key.number) || ReadNumber(text, key.number));
    if (!isNumber) key.text = lumcore::utility::FoldCase(text);
    last = std::max(last, lines[line]->GetId());
  }
  std::sort(keys.begin(), keys.end());
  std::vector<std::uint32_t> ranks(last + 1);
  for (std::uint32_t rank = 0; rank < keys.size(); ++rank)
    ranks[lines[keys[rank].line]->GetId()] = rank;
  return ranks;
}

UTF16String WriteColumns(const OutlineColumns::Settings& inSettings) {
  UTF16String text;
  for (const auto& setting : inSettings) {
    if (!text.empty()) text += ';';
    text += setting.name + ToUTF16("=" + std::to_string(static_cast<int>(setting.width)));
  }
  return text;
}

OutlineColumns::Settings ReadColumns(const UTF16String& inText) {
  constexpr double kMostWidth = 10000;
  OutlineColumns::Settings settings;
  std::size_t from = 0;
  while (from < inText.size()) {
    const std::size_t end = std::min(inText.find(';', from), inText.size());
    const UTF16String part = inText.substr(from, end - from);
    const std::size_t equals = part.find('=');
    double width = 0;
    if (equals != UTF16String::npos && equals > 0 && ReadNumber(part.substr(equals + 1), width) &&
        width >= 0 && width <= kMostWidth) {
      settings.push_back({part.substr(0, equals), static_cast<float>(width)});
    }
    from = end + 1;
  }
  return settings;
}

}  // namespace outliner
