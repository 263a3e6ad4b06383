// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/utility/ResourceManager.h"

#include "lumcore/utility/StringUtils.h"
#include "utility/ResourceError.h"
#include "utility/ResourceRegistry.h"

namespace lumui::utility {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;

bool ResourceManager::HasBinary(const UTF16String& inName, const char* inType) const {
  return ResourceRegistry::Find(mModule, inName, ToUTF16(inType)).isFound;
}

bool ResourceManager::GetBinary(const UTF16String& inName, const char* inType,
                                std::vector<unsigned char>& outBytes) const {
  const auto found = ResourceRegistry::Find(mModule, inName, ToUTF16(inType));
  outBytes.assign(found.bytes.begin(), found.bytes.end());
  return found.isFound;
}

std::vector<unsigned char> ResourceManager::GetRequiredBinary(const UTF16String& inName,
                                                              const char* inType) const {
  std::vector<unsigned char> bytes;
  if (!GetBinary(inName, inType, bytes)) ThrowMissingResource(mModule, inName, ToUTF16(inType));
  return bytes;
}

}  // namespace lumui::utility
