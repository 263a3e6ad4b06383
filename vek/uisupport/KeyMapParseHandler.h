// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumcore/xml/Parser.h"
#include "vek/config/Export.h"
#include "vek/uisupport/KeyCommand.h"

namespace vek::uisupport {

// Reads a key map file. Each "keycmd" element appends one mapping to the global list, or to the
// list of the context that it names, without taking the key from an earlier mapping. An entry whose
// command the registry does not know, or that names no key, is passed over, and so is one for
// another system.
//
// "cmd", "uchar", "key" and "ctx" hold texts, and the start of each forgets the character and the
// extended form read before it. The marks "shift", "cmdkey", "alt", "hold", "ext" and "protected"
// count wherever they stand inside "keycmd". All other elements mean nothing.
class VEK_API KeyMapParseHandler : public lumcore::xml::AbstractParseHandler {
 public:
  // Both belong to the caller, who owns the mappings then.
  KeyMapParseHandler(KeyCommandList& ioGlobal, KeyCommandContexts& ioContexts);
  ~KeyMapParseHandler() override;

  void StartElement(const lumcore::UTF16String& inName,
                    const lumcore::xml::Attributes& inAttributes) override;
  void EndElement(const lumcore::UTF16String& inName) override;
  void Characters(const lumcore::UTF16String& inText) override;

 private:
  void StartMapping(const lumcore::xml::Attributes& inAttributes);
  void StartText();
  void TakeCharacter();
  void TakeControlCode();
  void Commit();

  KeyCommandList& mGlobal;
  KeyCommandContexts& mContexts;
  lumcore::UTF16String mText;
  bool mCollectingText = false;
  bool mKeyGivenByCode = false;
  KeyCommand::Modifiers mModifiers;
  unsigned short mControlCode;
  unsigned short mCharacter = 0;
  bool mExtended = false;
  lumcore::UTF16String mCommandName;
  lumcore::UTF16String mContext;
  bool mHold = false;
  bool mProtected = false;
  bool mSystemMatches = true;
};

}  // namespace vek::uisupport
