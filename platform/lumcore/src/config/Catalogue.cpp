// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "config/Catalogue.h"

#include <boost/locale/gnu_gettext.hpp>
#include <exception>

#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"

namespace lumcore::config {

namespace {

using utility::ToUTF16;

[[noreturn]] void ThrowUnusable(const filesupport::File& inFile, const UTF16String& inCause) {
  throw Error(utility::ReplaceInString(
      Localizer::Get()->GetLocalizedString(
          "$$$/lumcore/config/Error/Catalogue=@0: this catalogue of texts cannot be used: @1"),
      {ToUTF16(inFile.GetPath()), inCause}));
}

}  // namespace

Catalogue::Catalogue(const filesupport::File& inFile) {
  namespace gettext = boost::locale::gnu_gettext;
  const UTF8String content = inFile.ReadAll();
  const std::vector<char> bytes(content.begin(), content.end());
  const UTF16String fault = FindCatalogueFault({bytes.data(), bytes.size()});
  if (!fault.empty()) ThrowUnusable(inFile, fault);

  gettext::messages_info info;
  info.language = "any";
  info.encoding = "UTF-8";
  info.domains.emplace_back("only");
  info.paths.emplace_back(".");
  info.callback = [&bytes](const std::string&, const std::string&) { return bytes; };
  try {
    mMessages = gettext::create_messages_facet<char>(info);
  } catch (const std::exception& error) {
    ThrowUnusable(inFile, ToUTF16(error.what()));
  }
  mLocale = std::locale(std::locale::classic(), mMessages);
}

std::string_view Catalogue::Find(const char* inKey) const {
  const char* const text = mMessages->get(0, nullptr, inKey);
  return text ? text : std::string_view();
}

}  // namespace lumcore::config
