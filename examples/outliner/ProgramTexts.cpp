// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ProgramTexts.h"

#include <algorithm>
#include <string>

#include "lumcore/Locale.h"

namespace outliner {

namespace {

std::string TakeLanguage(int& ioCount, char** ioArguments) {
  for (int at = 1; at + 1 < ioCount; ++at) {
    if (std::string("--language") != ioArguments[at]) continue;
    const std::string language = ioArguments[at + 1];
    std::copy(ioArguments + at + 2, ioArguments + ioCount, ioArguments + at);
    ioCount -= 2;
    return language;
  }
  return {};
}

}  // namespace

ProgramTexts::ProgramTexts(int& ioCount, char** ioArguments) {
  using lumcore::config::Localizer;
  lumcore::Locale::SetApplicationLanguage(TakeLanguage(ioCount, ioArguments));
  mLocalizer =
      std::make_unique<lumcore::config::CatalogueLocalizer>(std::vector<std::string>{"outliner"});
  Localizer::Set(mLocalizer.get(), lumcore::config::FindProgramLocalizationDir("outliner"));
}

ProgramTexts::~ProgramTexts() = default;

}  // namespace outliner
