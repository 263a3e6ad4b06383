// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/app/MultiDocApplication.h"

#include <algorithm>

#include "lumcore/debug/Contract.h"

namespace vek::app {

using document::DocumentInterface;

namespace {

// Who watches contracts knows these checks by the place that they have always been told with.
constexpr const char* kSourcePath = "..\\..\\app\\src\\MultiDocApplication";
constexpr const char* kCloseDocument = "vek::app::MultiDocApplication::CloseDocument";
constexpr const char* kDocumentPushBack = "vek::app::MultiDocApplication::DocumentPushBack";

}  // namespace

MultiDocApplication::MultiDocApplication() = default;

MultiDocApplication::~MultiDocApplication() = default;

void MultiDocApplication::CloseAnyOpenDocuments() {
  const Documents documents = mDocuments;
  for (DocumentInterface* const document : documents) {
    // One that is closed may close others.
    if (IsOpen(document)) CloseDocument(document);
  }
}

void MultiDocApplication::CloseDocument(DocumentInterface* inDocument) {
  const auto docIter = std::find(mDocuments.begin(), mDocuments.end(), inDocument);
  if (docIter == mDocuments.end()) {
    lumcore::debug::FailInputContract("docIter != mDocuments.end()", kSourcePath, kCloseDocument,
                                      68);
    return;
  }
  auto next = docIter + 1;
  if (next == mDocuments.end()) next = mDocuments.begin();
  DocumentInterface* const newActiveDocument = next == docIter ? nullptr : *next;
  if (newActiveDocument == inDocument) {
    lumcore::debug::FailInputContract("newActiveDocument != inDocument", kSourcePath,
                                      kCloseDocument, 77);
    return;
  }
  mDocuments.erase(docIter);
  DocumentApplication::CloseDocument(inDocument);
  // Its own Close may have closed the neighbour as well.
  if (newActiveDocument && IsOpen(newActiveDocument)) SetDocument(newActiveDocument);
}

bool MultiDocApplication::IsOpen(const DocumentInterface* inDocument) const {
  return std::find(mDocuments.begin(), mDocuments.end(), inDocument) != mDocuments.end();
}

void MultiDocApplication::DocumentPushBack(DocumentInterface* inDocument) {
  if (IsOpen(inDocument)) {
    lumcore::debug::FailInputContract(
        "find(mDocuments.begin(), mDocuments.end(), inDocument) == mDocuments.end()", kSourcePath,
        kDocumentPushBack, 132);
    return;
  }
  mDocuments.push_back(inDocument);
}

}  // namespace vek::app
