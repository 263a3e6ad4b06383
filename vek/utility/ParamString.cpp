// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/utility/ParamString.h"

namespace vek::utility {

namespace {

template <class String>
void Substitute(String& ioText, const String* const (&inParameters)[4]) {
  String marker(2, '^');
  marker[1] = '1';
  for (const String* parameter : inParameters) {
    const auto at = parameter ? ioText.find(marker) : String::npos;
    if (at != String::npos) ioText.replace(at, marker.size(), *parameter);
    ++marker[1];
  }
}

}  // namespace

void ParamString(std::string& ioText, const std::string* inP1, const std::string* inP2,
                 const std::string* inP3, const std::string* inP4) {
  Substitute(ioText, {inP1, inP2, inP3, inP4});
}

void ParamString(lumcore::UTF16String& ioText, const lumcore::UTF16String* inP1,
                 const lumcore::UTF16String* inP2, const lumcore::UTF16String* inP3,
                 const lumcore::UTF16String* inP4) {
  Substitute(ioText, {inP1, inP2, inP3, inP4});
}

}  // namespace vek::utility
