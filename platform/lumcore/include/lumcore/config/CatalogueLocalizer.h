// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "lumcore/Export.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/filesupport/Dir.h"

namespace lumcore::config {

// A localizer on compiled gettext catalogues, whose message ids are whole keys with their defaults:
// a key whose English text has changed has no translation until it is looked at again.
//
// Set reads <dir>/<language>/LC_MESSAGES/<domain>.mo for the host's domains. The libraries' own
// catalogue comes from where the libraries themselves lie, and the host's folder may hold another
// "vek.mo" that goes before it. For "de_AT", each catalogue of "de_AT" is asked before that of
// "de". A key that none has gets its default. A catalogue that cannot be used is told of in the
// console log, with its path and the cause, and counts as missing.
class LUMCORE_API CatalogueLocalizer : public Localizer {
 public:
  // Domains that stand first are asked first. An empty language is the application's.
  explicit CatalogueLocalizer(std::vector<std::string> inDomains,
                              const std::string& inLanguage = {});
  ~CatalogueLocalizer() override;

 private:
  UTF16String DoGetLocalizedString(const char* inKey) const override;
  void DoSetLocalizationDir(const filesupport::Dir& inDir) override;

  class Impl;
  std::unique_ptr<Impl> mImpl;
};

// The folder "share/<name>/locale" of this program: beside the program or beside one of the three
// folders around it, so that it is found in a build and in an installation that has been moved. An
// empty Dir where there is none.
LUMCORE_API filesupport::Dir FindProgramLocalizationDir(std::string_view inName);

}  // namespace lumcore::config
