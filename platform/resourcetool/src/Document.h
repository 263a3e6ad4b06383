// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace resourcetool {

// The document with the values of its own entities in the place of the references to them, in all
// attributes: whoever parses it gets the same, in half the time where a document gives everything a
// name. The document type stays, and so do references to what is declared elsewhere, nowhere, or as
// more than a plain text. Expects an encoding that contains ASCII; what is no document comes back
// as far as it was understood, for the parser to complain of.
QByteArray ResolveEntities(const QByteArray& inDocument);

}  // namespace resourcetool
