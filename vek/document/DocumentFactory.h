// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <boost/noncopyable.hpp>
#include <map>
#include <vector>

#include "lumcore/Strings.h"
#include "vek/config/Export.h"
#include "vek/document/DocumentTypeInfo.h"

namespace vek::document {

class DocumentInterface;

// The kinds of documents that the application knows, chosen by the extension of a file. What it
// looks up may begin with a dot and be of any case. Documents that it makes are the caller's.
class VEK_API DocumentFactory : private boost::noncopyable {
 public:
  using TypeInfoPtr = boost::intrusive_ptr<DocumentTypeInfo>;
  using TypeInfos = std::vector<TypeInfoPtr>;

  DocumentFactory();
  virtual ~DocumentFactory();

  // Of two types with one extension the one that was registered first has it. A type is entered
  // with the extensions that it has now. Null does nothing, here and below.
  void RegisterDocumentType(TypeInfoPtr inType);
  // Takes the type's extensions away, also those that another type has got.
  void UnregisterDocumentType(TypeInfoPtr inType);

  bool HasTypeInfoForExtension(const lumcore::UTF16String& inExtension) const;
  // Null for an extension that no type has.
  DocumentInterface* CreateDocumentForExtension(const lumcore::UTF16String& inExtension) const;
  DocumentInterface* CreateDocumentForTypeInfo(TypeInfoPtr inType) const;

  // In the order of registration.
  TypeInfos::const_iterator TypeInfoBegin() const { return mTypes.begin(); }
  TypeInfos::const_iterator TypeInfoEnd() const { return mTypes.end(); }

 private:
  TypeInfoPtr GetTypeInfoForExtension(const lumcore::UTF16String& inExtension) const;

  TypeInfos mTypes;
  std::map<lumcore::UTF16String, TypeInfoPtr> mExtensions;  // by the extension in lower case
};

}  // namespace vek::document
