// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/locale/message.hpp>
#include <locale>
#include <string>
#include <string_view>
#include <vector>

#include "lumcore/filesupport/File.h"

namespace lumcore::config {

// One compiled gettext catalogue, read whole when it is made.
class Catalogue {
 public:
  // Throws FileError, and config::Error for a file that is no sound catalogue.
  explicit Catalogue(const filesupport::File& inFile);

  // UTF-8; empty when the catalogue has no text for the key. Any thread may ask.
  std::string_view Find(const char* inKey) const;

 private:
  std::locale mLocale;  // owns the messages
  const boost::locale::message_format<char>* mMessages;
};

// Empty for a sound catalogue, else what is wrong with it. The reader of the messages trusts the
// offsets in a file, so every one is looked at before it.
UTF16String FindCatalogueFault(std::string_view inBytes);

}  // namespace lumcore::config
