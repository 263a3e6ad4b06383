// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/noncopyable.hpp>
#include <vector>

#include "lumcore/Strings.h"
#include "lumcore/utility/RefCounted.h"
#include "vek/config/Export.h"

namespace vek::document {

class DocumentInterface;

// One kind of document: how to make one, and the extensions of its files. Extensions are given
// without a dot: one that begins with a dot is never found.
class VEK_API DocumentTypeInfo : public lumcore::utility::RefCountedObject,
                                 private boost::noncopyable {
 public:
  // Makes a document that the caller owns.
  using Creator = boost::function<DocumentInterface*(const DocumentTypeInfo&)>;
  using Extensions = std::vector<lumcore::UTF16String>;

  DocumentTypeInfo(const Creator& inCreator, const lumcore::UTF16String& inUniqueID,
                   const lumcore::UTF16String& inDescription);
  ~DocumentTypeInfo() override;

  // In the order of adding; an extension that is there already is added again.
  virtual void ExtensionPushBack(const lumcore::UTF16String& inExtension);
  // Takes the first that is exactly equal, in case too.
  virtual void ExtensionRemove(const lumcore::UTF16String& inExtension);
  virtual Extensions::const_iterator ExtensionBegin() const;
  virtual Extensions::const_iterator ExtensionEnd() const;

  const lumcore::UTF16String& GetUniqueID() const { return mUniqueID; }
  const lumcore::UTF16String& GetDescription() const { return mDescription; }

  // The caller owns the document; null without a creator.
  DocumentInterface* CreateDocument() const;

 private:
  Creator mCreator;
  lumcore::UTF16String mUniqueID;
  lumcore::UTF16String mDescription;
  Extensions mExtensions;
};

}  // namespace vek::document
