// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Export.h"
#include "lumcore/Strings.h"

namespace lumcore::filesupport {
class Dir;
}

namespace lumcore::config {

// Turns a key with its default, "$$$/vek/area/Name=English text", into the text for the user. The
// base class knows no catalogue: it answers with the text behind the first '=', which is empty
// where there is none. One localizer is in place for the process; any number of threads may ask it
// as long as none puts another in its place.
class LUMCORE_API Localizer {
 public:
  Localizer();
  // One that is destroyed while it is in place leaves it.
  virtual ~Localizer();
  Localizer(const Localizer&) = delete;
  Localizer& operator=(const Localizer&) = delete;

  // The one in place, or one of this base class where there is none. Never null.
  static Localizer* Get();
  // Tells the localizer where the catalogues lie and puts it in place; it stays its owner's. Null
  // takes away the one that is there. What throws while the catalogues are read leaves the one
  // before in place.
  static void Set(Localizer* inLocalizer, const filesupport::Dir& inLocalizationDir);

  UTF16String GetLocalizedString(const char* inKey) const;

 protected:
  virtual UTF16String DoGetLocalizedString(const char* inKey) const;

 private:
  virtual void DoSetLocalizationDir(const filesupport::Dir& inDir);  // the default does nothing
};

}  // namespace lumcore::config
