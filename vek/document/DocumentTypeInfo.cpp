// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/document/DocumentTypeInfo.h"

#include <algorithm>

namespace vek::document {

using lumcore::UTF16String;

DocumentTypeInfo::DocumentTypeInfo(const Creator& inCreator, const UTF16String& inUniqueID,
                                   const UTF16String& inDescription)
    : mCreator(inCreator), mUniqueID(inUniqueID), mDescription(inDescription) {}

DocumentTypeInfo::~DocumentTypeInfo() = default;

void DocumentTypeInfo::ExtensionPushBack(const UTF16String& inExtension) {
  mExtensions.push_back(inExtension);
}

void DocumentTypeInfo::ExtensionRemove(const UTF16String& inExtension) {
  const auto found = std::find(mExtensions.begin(), mExtensions.end(), inExtension);
  if (found != mExtensions.end()) mExtensions.erase(found);
}

DocumentTypeInfo::Extensions::const_iterator DocumentTypeInfo::ExtensionBegin() const {
  return mExtensions.begin();
}

DocumentTypeInfo::Extensions::const_iterator DocumentTypeInfo::ExtensionEnd() const {
  return mExtensions.end();
}

DocumentInterface* DocumentTypeInfo::CreateDocument() const {
  return mCreator ? mCreator(*this) : nullptr;
}

}  // namespace vek::document
