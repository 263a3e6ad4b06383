// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "lumcore/utility/StringUtils.h"
#include "vek/document/DocumentFactory.h"
#include "vek/document/FileBasedDocument.h"

namespace {

using lumcore::utility::ToUTF16;
using vek::document::DocumentFactory;
using vek::document::DocumentInterface;
using vek::document::DocumentTypeInfo;
using TypePtr = boost::intrusive_ptr<DocumentTypeInfo>;

struct TypedDocument : vek::document::FileBasedDocument {
  explicit TypedDocument(const DocumentTypeInfo& inType) : type(inType.GetUniqueID()) {}
  void Close() override {}
  void LoadFromFile(const lumcore::filesupport::File&) override {}
  void SaveToFile(const lumcore::filesupport::File&) override {}
  lumcore::UTF16String type;
};

TypePtr MakeType(const char* inID, std::initializer_list<const char*> inExtensions) {
  TypePtr type = new DocumentTypeInfo(
      [](const DocumentTypeInfo& inType) -> DocumentInterface* {
        return new TypedDocument(inType);
      },
      ToUTF16(inID), {});
  for (const char* extension : inExtensions)
    type->ExtensionPushBack(ToUTF16(extension));
  return type;
}

// The unique id of the type that is chosen for each extension, "-" where there is none.
std::string Chosen(const DocumentFactory& inFactory,
                   std::initializer_list<const char*> inExtensions) {
  std::string text;
  for (const char* extension : inExtensions) {
    const std::unique_ptr<DocumentInterface> document(
        inFactory.CreateDocumentForExtension(ToUTF16(extension)));
    EXPECT_EQ(document != nullptr, inFactory.HasTypeInfoForExtension(ToUTF16(extension)));
    text +=
        document ? lumcore::utility::ToStdString(static_cast<TypedDocument&>(*document).type) : "-";
    text += " ";
  }
  return text;
}

TEST(DocumentFactory, ChoosesByExtensionWithoutRegardToCaseAndToOneDot) {
  DocumentFactory factory;
  factory.RegisterDocumentType(nullptr);
  factory.RegisterDocumentType(MakeType("text", {"TXT", "", ".dotted"}));
  EXPECT_EQ(Chosen(factory, {"txt", ".Txt", "..txt", "dotted", ".dotted", "..dotted", "", "."}),
            "text text - - - text text text ");
}

TEST(DocumentFactory, TheFirstTypeKeepsAnExtensionAndTheSecondTakesItAway) {
  DocumentFactory factory;
  const TypePtr second = MakeType("second", {"b", "c", "b"});
  factory.RegisterDocumentType(MakeType("first", {"a", "b"}));
  factory.RegisterDocumentType(second);
  EXPECT_EQ(Chosen(factory, {"a", "b", "c"}), "first first second ");
  second->ExtensionPushBack(ToUTF16("late"));
  factory.UnregisterDocumentType(second);
  EXPECT_EQ(Chosen(factory, {"a", "b", "c", "late"}), "first - - - ");
  EXPECT_EQ(factory.TypeInfoEnd() - factory.TypeInfoBegin(), 1);
}

}  // namespace
