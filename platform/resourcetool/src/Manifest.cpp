// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "Manifest.h"

#include <QColor>
#include <QFile>
#include <QTextStream>

#include "Failure.h"
#include "Picture.h"

namespace resourcetool {

namespace {

constexpr int kLargestHeight = 1024;  // in units

using Pair = std::pair<QString, QString>;

// "NAME=VALUE" for each word.
std::vector<Pair> SplitPairs(const QStringList& inWords, const QString& inPlace) {
  std::vector<Pair> pairs;
  for (const QString& word : inWords) {
    const auto equals = word.indexOf('=');
    if (equals <= 0)
      throw Failure(inPlace, QString("\"%1\" is not of the form NAME=VALUE").arg(word));
    pairs.emplace_back(word.left(equals), word.mid(equals + 1));
  }
  return pairs;
}

std::vector<int> ReadScales(const QStringList& inWords, const QString& inPlace) {
  std::vector<int> scales;
  for (const QString& word : inWords) {
    const int scale = word.toInt();
    if (!ScaleSuffix(scale)) {
      throw Failure(inPlace, QString("\"%1\" is no scale: 100, 150, 200 and 300 are").arg(word));
    }
    scales.push_back(scale);
  }
  return scales;
}

std::vector<Manifest::Size> ReadSizes(const QStringList& inWords, const QString& inPlace) {
  std::vector<Manifest::Size> sizes;
  for (const auto& [name, value] : SplitPairs(inWords, inPlace)) {
    const int height = value.toInt();
    if (height < 1 || height > kLargestHeight) {
      throw Failure(inPlace,
                    QString("the size \"%1\" is not from 1 to %2").arg(value).arg(kLargestHeight));
    }
    sizes.push_back({name, height});
  }
  return sizes;
}

std::vector<Manifest::Ink> ReadInks(const QStringList& inWords, const QString& inPlace) {
  std::vector<Manifest::Ink> inks;
  for (const auto& [name, value] : SplitPairs(inWords, inPlace)) {
    if (!QColor::isValidColor(value))
      throw Failure(inPlace, QString("\"%1\" is no colour").arg(value));
    inks.push_back({name, value});
  }
  return inks;
}

}  // namespace

Manifest Manifest::Read(const QString& inPath) {
  QFile file(inPath);
  if (!file.open(QIODevice::ReadOnly)) throw Failure(inPath, file.errorString());
  Manifest manifest;
  manifest.mPath = inPath;
  QTextStream stream(&file);
  for (int line = 1; !stream.atEnd(); ++line) {
    const QString text = stream.readLine().trimmed();
    if (text.isEmpty() || text.startsWith('#')) continue;
    const QString word = text.section(' ', 0, 0);
    const QString rest = text.section(' ', 1).trimmed();
    const QStringList words = rest.split(' ', Qt::SkipEmptyParts);
    const QString place = QString("%1:%2").arg(inPath).arg(line);
    if (rest.isEmpty()) throw Failure(place, QString("nothing stands behind \"%1\"").arg(word));
    if (word == "scales") {
      manifest.mScales = ReadScales(words, place);
    } else if (word == "sizes") {
      manifest.mSizes = ReadSizes(words, place);
    } else if (word == "inks") {
      manifest.mInks = ReadInks(words, place);
    } else if (word == "image") {
      manifest.mSources.push_back({line, rest, Manifest::Kind::kImage});
    } else if (word == "document") {
      manifest.mSources.push_back({line, rest, Manifest::Kind::kDocument});
    } else if (word == "file") {
      manifest.mSources.push_back({line, rest, Manifest::Kind::kFile});
    } else {
      throw Failure(place, QString("\"%1\" is not known here").arg(word));
    }
  }
  return manifest;
}

}  // namespace resourcetool
