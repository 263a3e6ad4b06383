// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "OutlineRow.h"
#include "lumcore/Strings.h"

namespace outliner {

class OutlineTree;

// What the columns of an outline can show: the rows' texts, and their attributes. Columns are known
// by numbers within one list, and by the names of attributes from one run to the next.
class OutlineColumns {
 public:
  using Attribute = unsigned int;

  // No column has the number 0. Those behind the last of these are the other attributes that rows
  // have, as they come up.
  static constexpr Attribute kText = 1;
  static constexpr Attribute kType = 2;
  static constexpr Attribute kCreated = 3;
  static constexpr Attribute kLinks = 4;  // the address that a row leads to

  struct Setting {
    lumcore::UTF16String name;
    float width;  // units; 0 for a column that takes the room that others leave
  };
  using Settings = std::vector<Setting>;  // from left to right

  // The tree is borrowed.
  explicit OutlineColumns(const OutlineTree& inTree);

  // Looks for attributes that have come up since. False if there are none.
  bool Update();
  Attribute GetEnd() const { return static_cast<Attribute>(mNames.size()); }
  const lumcore::UTF16String& GetName(Attribute inAttribute) const { return mNames[inAttribute]; }
  lumcore::UTF16String GetTitle(Attribute inAttribute) const;
  Attribute Find(const lumcore::UTF16String& inName) const;  // 0 for a name that is none

  void GetText(const OutlineRow& inRow, Attribute inAttribute, lumcore::UTF16String& outText) const;
  // Whether any row has something to show there.
  bool IsUsed(Attribute inAttribute) const;

  // The place of each row, by its number, in the order by that column: times by what they mean,
  // numbers by their size, texts without regard to case. Rows with nothing come last, and what is
  // equal stays in the order of the outline.
  std::vector<std::uint32_t> RankRows(Attribute inAttribute) const;

 private:
  const OutlineTree& mTree;
  std::vector<lumcore::UTF16String> mNames;  // by number
  std::size_t mKnownNames = 0;               // of the tree's pool
};

// "text=0;type=80", as settings keep it. What cannot be read is left out.
lumcore::UTF16String WriteColumns(const OutlineColumns::Settings& inSettings);
OutlineColumns::Settings ReadColumns(const lumcore::UTF16String& inText);

// Seconds since 1970 of a time as outlines have it, "Sat, 21 Nov 2026 08:00:00 GMT" or
// "2026-11-21T08:00:00". False for any other text.
bool ReadTime(const lumcore::UTF16String& inText, double& outSeconds);

}  // namespace outliner
