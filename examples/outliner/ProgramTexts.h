// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "lumcore/config/CatalogueLocalizer.h"

namespace outliner {

// Puts the program's texts in the user's language in place for as long as it lives: that of
// "--language LANGUAGE" on the command line, else the system's.
class ProgramTexts {
 public:
  // The option and its value are taken out of the arguments. One without a value stays, for whoever
  // reads the others to refuse.
  ProgramTexts(int& ioCount, char** ioArguments);
  ~ProgramTexts();

 private:
  std::unique_ptr<lumcore::config::CatalogueLocalizer> mLocalizer;
};

}  // namespace outliner
