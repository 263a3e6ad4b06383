// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace resourcetool {

// The document with the values of its own entities in the place of the references to them, in the
// attributes of elements without content, which are the many in a document of settings: whoever
// parses it gets the same, in half the time where everything has a name. The document type stays,
// and so do references to what is declared elsewhere, nowhere, or as more than a plain text.
// Expects an encoding that contains ASCII; what is no document stays as it is, for the parser to
// complain of.
QByteArray ResolveEntities(const QByteArray& inDocument);

}  // namespace resourcetool
