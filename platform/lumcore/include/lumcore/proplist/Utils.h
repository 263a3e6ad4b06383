// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

#include "lumcore/Export.h"
#include "lumcore/Strings.h"
#include "lumcore/filesupport/File.h"
#include "lumcore/geom/Rect.h"
#include "lumcore/proplist/PropList.h"

// Property lists as files, in the one format that settings and dialog archives share: the XML of
// "prop.map", version 4, in ASCII with CRLF line ends. What is written depends on the list alone,
// and reads back as an equal list with the keys in the same order, whatever its texts hold. Numbers
// that are none and infinite ones are written "nan", "inf" and "-inf".
namespace lumcore::proplist::utils {

// Takes in a file. inKeepOthers leaves what the list holds and the file does not name, in sub-lists
// too; otherwise the list becomes what the file says. Throws FileError or xml::ParseError, and the
// list is then as it was.
//
// What the format does not know is refused, and so are numbers that are none or do not fit, a key
// that stands twice in one list, and lists that are nested more than 512 deep. Comments, attributes
// of no meaning and space between elements are passed over, and are not written back.
LUMCORE_API void LoadPropList(const filesupport::File& inFile, PropList& ioList, bool inKeepOthers);
// inName stands in error texts where a path would; it may be empty.
LUMCORE_API void LoadPropListFromBuffer(const UTF8String& inBytes, const UTF16String& inName,
                                        PropList& ioList, bool inKeepOthers);

// Replaces the file in one step, see File::ReplaceContents. Throws FileError, and config::Error for
// lists that are nested too deep to be read again; the old file then stays.
LUMCORE_API void SavePropList(const filesupport::File& inFile, const PropList& inList);
LUMCORE_API UTF8String SavePropListToBuffer(const PropList& inList);

// A rectangle is a sub-list that says so. Reading answers false, and leaves the result alone, where
// the key has no rectangle.
LUMCORE_API bool ReadRect32(const PropList& inList, Key inKey, geom::RectT<float>& outRect);
LUMCORE_API void WriteRect32(PropList& ioList, Key inKey, const geom::RectT<float>& inRect);

// Some texts, and the index of the one that is chosen, which is not checked against them.
struct Choice {
  std::vector<UTF16String> items;
  std::int32_t selected = 0;
};
LUMCORE_API bool ReadChoice(const PropList& inList, Key inKey, Choice& outChoice);
LUMCORE_API void WriteChoice(PropList& ioList, Key inKey, const Choice& inChoice);

}  // namespace lumcore::proplist::utils
