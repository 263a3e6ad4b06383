// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/config/CatalogueLocalizer.h"

#include <utility>

#include "config/Catalogue.h"
#include "filesupport/ModulePaths.h"
#include "lumcore/Locale.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/console/Console.h"
#include "lumcore/utility/StringUtils.h"

namespace lumcore::config {

namespace {

using filesupport::Dir;
using filesupport::File;

// One catalogue holds the texts of all libraries that are built and installed together.
constexpr const char* kLibraryDomain = "vek";
constexpr int kFoldersAround = 3;  // "/usr/lib/x86_64-linux-gnu" and "/usr/share" are the farthest

Dir FindLocalizationDir(Dir inModuleDir, std::string_view inName) {
  for (int step = 0; step <= kFoldersAround && !inModuleDir.GetPath().empty(); ++step) {
    const Dir found(inModuleDir, "share/" + std::string(inName) + "/locale");
    if (found.Exists()) return found;
    inModuleDir = inModuleDir.Parent();
  }
  return Dir();
}

// "de_AT.UTF-8@euro" is asked for as "de_AT" and "de".
std::vector<std::string> Candidates(const std::string& inLanguage) {
  const std::string plain = inLanguage.substr(0, inLanguage.find_first_of(".@"));
  const std::string language = plain.substr(0, plain.find_first_of("_-"));
  // What came from a command line must not lead out of the folder.
  if (language.empty() || plain.find('/') != plain.npos) return {};
  if (language == plain) return {language};
  return {language + "_" + plain.substr(language.size() + 1), language};
}

}  // namespace

class CatalogueLocalizer::Impl {
 public:
  Impl(std::vector<std::string> inDomains, const std::string& inLanguage)
      : mDomains(std::move(inDomains)), mLanguages(Candidates(inLanguage)) {
    Read(FindLocalizationDir(filesupport::system::LibraryDir(), kLibraryDomain), kLibraryDomain,
         mOwn);
    mDomains.emplace_back(kLibraryDomain);
  }

  void Read(const Dir& inDir, const std::string& inDomain, std::vector<Catalogue>& ioInto) const {
    if (inDir.GetPath().empty()) return;
    for (const std::string& language : mLanguages) {
      const File file(inDir, language + "/LC_MESSAGES/" + inDomain + ".mo");
      if (!file.Exists()) continue;
      try {
        ioInto.emplace_back(file);
        console::ConsoleLogFile::Write("texts: " + file.GetPath());
      } catch (const Error& error) {
        // The user is better off with English texts than without the program.
        console::ConsoleLogFile::WriteProblem(error.what());
      }
    }
  }

  std::vector<std::string> mDomains;
  std::vector<std::string> mLanguages;
  std::vector<Catalogue> mHosts;
  std::vector<Catalogue> mOwn;
};

CatalogueLocalizer::CatalogueLocalizer(std::vector<std::string> inDomains,
                                       const std::string& inLanguage)
    : mImpl(std::make_unique<Impl>(
          std::move(inDomains), inLanguage.empty() ? Locale::ApplicationLangauge() : inLanguage)) {}

CatalogueLocalizer::~CatalogueLocalizer() = default;

UTF16String CatalogueLocalizer::DoGetLocalizedString(const char* inKey) const {
  for (const auto* catalogues : {&mImpl->mHosts, &mImpl->mOwn}) {
    for (const Catalogue& catalogue : *catalogues) {
      const std::string_view text = catalogue.Find(inKey);
      if (!text.empty()) return utility::ToUTF16(text);
    }
  }
  return Localizer::DoGetLocalizedString(inKey);
}

void CatalogueLocalizer::DoSetLocalizationDir(const Dir& inDir) {
  std::vector<Catalogue> catalogues;
  for (const std::string& domain : mImpl->mDomains)
    mImpl->Read(inDir, domain, catalogues);
  mImpl->mHosts = std::move(catalogues);
}

Dir FindProgramLocalizationDir(std::string_view inName) {
  return FindLocalizationDir(Dir::AppDir(), inName);
}

}  // namespace lumcore::config
