// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>
#include <QTemporaryDir>
#include <vector>

namespace resourcetool {

// Collects resources by type and name and packs them. A name that comes twice, in any case, is a
// Failure: nobody could tell which of the two would be found.
class Container {
 public:
  Container();

  void Add(const QString& inType, const QString& inName, const QByteArray& inBytes,
           const QString& inPlace);
  // The resource compiler's binary form, uncompressed and without times, so that equal contents
  // are equal bytes.
  QByteArray Pack() const;

 private:
  struct Entry {
    QString key;
    QString file;
  };
  void WriteList(const QString& inPath) const;

  QTemporaryDir mFolder;
  std::vector<Entry> mEntries;
  QSet<QString> mKeys;
};

}  // namespace resourcetool
