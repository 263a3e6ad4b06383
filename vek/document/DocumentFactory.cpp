// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/document/DocumentFactory.h"

#include <algorithm>
#include <cwctype>

namespace vek::document {

using lumcore::UTF16String;

namespace {

// Unit by unit: an extension is a name, not a text. The letters of ASCII go their own way, since
// some languages have another small letter for one of them.
UTF16String ToLowerUnits(UTF16String inText) {
  for (unsigned short& unit : inText) {
    const bool isASCII = unit >= 'A' && unit <= 'Z';
    unit = static_cast<unsigned short>(isASCII ? unit - 'A' + 'a' : std::towlower(unit));
  }
  return inText;
}

}  // namespace

DocumentFactory::DocumentFactory() = default;

DocumentFactory::~DocumentFactory() = default;

void DocumentFactory::RegisterDocumentType(TypeInfoPtr inType) {
  if (!inType) return;
  mTypes.push_back(inType);
  for (auto extension = inType->ExtensionBegin(); extension != inType->ExtensionEnd();
       ++extension) {
    mExtensions.emplace(ToLowerUnits(*extension), inType);
  }
}

void DocumentFactory::UnregisterDocumentType(TypeInfoPtr inType) {
  if (!inType) return;
  for (auto extension = inType->ExtensionBegin(); extension != inType->ExtensionEnd();
       ++extension) {
    mExtensions.erase(ToLowerUnits(*extension));
  }
  const auto found = std::find(mTypes.begin(), mTypes.end(), inType);
  if (found != mTypes.end()) mTypes.erase(found);
}

bool DocumentFactory::HasTypeInfoForExtension(const UTF16String& inExtension) const {
  return GetTypeInfoForExtension(inExtension) != nullptr;
}

DocumentInterface* DocumentFactory::CreateDocumentForExtension(
    const UTF16String& inExtension) const {
  return CreateDocumentForTypeInfo(GetTypeInfoForExtension(inExtension));
}

DocumentInterface* DocumentFactory::CreateDocumentForTypeInfo(TypeInfoPtr inType) const {
  return inType ? inType->CreateDocument() : nullptr;
}

DocumentFactory::TypeInfoPtr DocumentFactory::GetTypeInfoForExtension(
    const UTF16String& inExtension) const {
  UTF16String extension = inExtension;
  if (!extension.empty() && extension.front() == '.') extension.erase(0, 1);
  const auto found = mExtensions.find(ToLowerUnits(extension));
  return found == mExtensions.end() ? nullptr : found->second;
}

}  // namespace vek::document
