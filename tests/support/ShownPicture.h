// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <string>

namespace test_support {

// Of the active window as it is shown, after what has been asked for has been painted.
QImage ShownPicture();
// The same after all of it has been painted anew, over something that is no part of it.
QImage WholePicture();
// How many pixels differ and where, empty for none.
std::string Difference(const QImage& inShown, const QImage& inWhole);

}  // namespace test_support
