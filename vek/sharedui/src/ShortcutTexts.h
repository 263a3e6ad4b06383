// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <initializer_list>

#include "lumcore/Strings.h"

namespace vek::sharedui {

// The texts of the shortcut dialog that its logic says. The last two are no texts for the user: the
// name of the file of an edit that has none, and the mark of a set that is not as its file.
enum class ShortcutText {
  kDefaultSet,
  kCustom,
  kProposedName,
  kAlreadyInUse,
  kReserved,
  kReplaceSet,
  kDeleteSet,
  kSaveSet,
  kNotPermitted,
};

lumcore::UTF16String LocalizedText(ShortcutText inText);
lumcore::UTF16String LocalizedText(ShortcutText inText,
                                   std::initializer_list<lumcore::UTF16String> inArguments);
const lumcore::UTF16String& CustomSetName();
const lumcore::UTF16String& DirtyMark();

// Whether a set can have this name: it is none of those that stand for something else, and there
// can be one file of it.
bool IsPermittedSetName(const lumcore::UTF16String& inName);
bool EndsWith(const lumcore::UTF16String& inText, const lumcore::UTF16String& inEnd);

}  // namespace vek::sharedui
