// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "vek/app/DocumentApplication.h"

namespace vek::app {

// Any number of documents is open, in the order of opening.
class VEK_API MultiDocApplication : public DocumentApplication {
 public:
  ~MultiDocApplication() override;

  // From the first to the last; each close makes the next one current in its turn.
  void CloseAnyOpenDocuments() override;

 protected:
  using Documents = std::vector<document::DocumentInterface*>;

  MultiDocApplication();

  // One that is not open here is a contract failure. Then the next document becomes current, or
  // the first when the last was closed, also when the closed one was not current.
  void CloseDocument(document::DocumentInterface* inDocument) override;
  // It does not become current. One that is open already is a contract failure.
  virtual void DocumentPushBack(document::DocumentInterface* inDocument);

  Documents::iterator DocumentBegin() { return mDocuments.begin(); }
  Documents::iterator DocumentEnd() { return mDocuments.end(); }
  Documents::const_iterator DocumentBegin() const { return mDocuments.begin(); }
  Documents::const_iterator DocumentEnd() const { return mDocuments.end(); }

 private:
  bool IsOpen(const document::DocumentInterface* inDocument) const;

  Documents mDocuments;
};

}  // namespace vek::app
