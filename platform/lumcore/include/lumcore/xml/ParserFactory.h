// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "lumcore/xml/Parser.h"

namespace lumcore::xml {

// Makes the parsers that GetParser gives. A host may put its own reader of XML in the place of the
// platform's, which this class makes.
class LUMCORE_API DocParserFactory {
 public:
  DocParserFactory();
  virtual ~DocParserFactory();
  DocParserFactory(const DocParserFactory&) = delete;
  DocParserFactory& operator=(const DocParserFactory&) = delete;

  virtual std::auto_ptr<Parser> CreateParser(std::auto_ptr<AbstractParseHandler> inHandler);
};

// Takes the factory over. An empty one brings the platform's back.
LUMCORE_API void SetParserFactory(std::auto_ptr<DocParserFactory> inFactory);

}  // namespace lumcore::xml
