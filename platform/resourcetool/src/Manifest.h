// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <vector>

namespace resourcetool {

// What is to be embedded. The manifest is text, one entry a line: a word and what belongs to it up
// to the end of the line. "scales", "sizes" and "inks" hold lists, each divided by blanks, and
// count for all images; "image", "document" and "file" hold a path. Lines that begin with # are
// comments.
struct Manifest {
  struct Size {
    QString suffix;  // "XS"; empty if images have one size, their own
    int height;      // in units; 0 for the picture's own
  };
  struct Ink {
    QString suffix;  // "N_D"; empty if images come in one colour
    QString color;   // what currentColor stands for; empty leaves it alone
  };
  enum class Kind { kImage, kDocument, kFile };
  struct Source {
    int line;
    QString path;
    Kind kind;
  };

  static Manifest Read(const QString& inPath);

  QString mPath;
  std::vector<int> mScales{100};  // percent
  std::vector<Size> mSizes{{{}, 0}};
  std::vector<Ink> mInks{{{}, {}}};
  std::vector<Source> mSources;
};

}  // namespace resourcetool
