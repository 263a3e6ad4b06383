// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "TextPool.h"
#include "lumcore/Strings.h"
#include "lumcore/xml/Parser.h"

namespace outliner {

// Characters that no XML document may hold, not even as a reference (most control characters, lone
// surrogates, U+FFFE and U+FFFF), become U+FFFD.
lumcore::UTF16String CleanText(const lumcore::UTF16String& inText);

// Appends a value for double quotes. Line ends and tabs become references, since a parser would
// otherwise make blanks of them.
void AppendAttributeValue(TextView inText, lumcore::UTF16String& outMarkup);

// Turns the events of a parser back into markup that says the same. An element without content gets
// the short form.
class MarkupRecorder {
 public:
  void StartElement(const lumcore::UTF16String& inName,
                    const lumcore::xml::Attributes& inAttributes);
  void EndElement(const lumcore::UTF16String& inName);
  void Characters(const lumcore::UTF16String& inText);
  void Comment(const lumcore::UTF16String& inText);
  void ProcessingInstruction(const lumcore::UTF16String& inTarget,
                             const lumcore::UTF16String& inData);
  void StartCDATA();
  void EndCDATA();
  void Raw(const char* inASCII);
  void Raw(const lumcore::UTF16String& inMarkup);

  // What was recorded, after which the recorder is empty. A start tag at the end still lacks its
  // ">".
  lumcore::UTF16String Take();
  // The same without giving up the memory, to look at.
  const lumcore::UTF16String& Peek() const { return mMarkup; }
  void Clear();

 private:
  void CloseTag();

  lumcore::UTF16String mMarkup;
  bool mTagIsOpen = false;
  bool mInCDATA = false;
};

}  // namespace outliner
