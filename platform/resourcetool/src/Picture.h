// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace resourcetool {

// What stands behind the name of a raster of this scale, in percent; null for a scale without name.
const char* ScaleSuffix(int inScale);

// An SVG picture that is rendered to PNG files which are the same on every machine.
class Picture {
 public:
  // Throws a Failure with path, line and cause: broken XML, another format, text (which would
  // depend on the fonts of the machine).
  explicit Picture(const QString& inPath);

  // The height is in units, the width follows; 0 takes the picture's own. A colour that is not
  // empty takes the place of currentColor.
  QByteArray RenderPNG(int inHeight, int inScale, const QString& inColor) const;

 private:
  void Check() const;

  QString mPath;
  QByteArray mSource;
};

}  // namespace resourcetool
