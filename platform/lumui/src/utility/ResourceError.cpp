// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "utility/ResourceError.h"

#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/ModuleHandle.h"

namespace lumui::utility {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;

namespace {

[[noreturn]] void Throw(const char* inKey, std::initializer_list<UTF16String> inArguments) {
  const UTF16String text = lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
  throw lumcore::config::Error(lumcore::utility::ReplaceInString(text, inArguments));
}

}  // namespace

void ThrowMissingResource(HINSTANCE inModule, const UTF16String& inName,
                          const UTF16String& inType) {
  Throw(
      "$$$/lumui/utility/Resources/Missing=The module \"@0\" has no resource \"@1\" of the type "
      "\"@2\".",
      {ToUTF16(ui::NameOfModule(inModule)), inName, inType});
}

void ThrowDamagedContainer(HINSTANCE inModule, const char* inCause) {
  Throw("$$$/lumui/utility/Resources/Damaged=The resources of the module \"@0\" are damaged: @1.",
        {ToUTF16(ui::NameOfModule(inModule)), ToUTF16(inCause)});
}

}  // namespace lumui::utility
