// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumcore/xml/Parser.h"
#include "vek/config/Export.h"

namespace vek::uisupport {

// Reads a command file into the registry. Each "cmd" element is one command: its children "name",
// "displayname", "id", "description" and "repeatable" hold the texts, its attribute "id" may hold
// the id, and one for another system than "win" in its attribute "os" is passed over. Names of
// other elements, and of the root, mean nothing.
//
// Texts are taken as they come: a missing one is empty, a doubled one is joined (so are the
// attribute and the element "id"), and an id that is no number is 0.
class VEK_API CommandRegistryParseHandler : public lumcore::xml::AbstractParseHandler {
 public:
  explicit CommandRegistryParseHandler(bool inReserveSyntheticIds);
  ~CommandRegistryParseHandler() override;

  void StartElement(const lumcore::UTF16String& inName,
                    const lumcore::xml::Attributes& inAttributes) override;
  void EndElement(const lumcore::UTF16String& inName) override;
  void Characters(const lumcore::UTF16String& inText) override;

 private:
  void StartCommand(const lumcore::xml::Attributes& inAttributes);
  lumcore::UTF16String* GetTextOfState();
  int DetermineId() const;

  lumcore::UTF16String mName;
  lumcore::UTF16String mDisplayName;
  lumcore::UTF16String mId;
  lumcore::UTF16String mDescription;
  lumcore::UTF16String mRepeatable;
  int mState;
  bool mReserveSyntheticIds;
  bool mSystemMatches;
};

}  // namespace vek::uisupport
