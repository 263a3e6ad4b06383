// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "Container.h"

#include <QFile>
#include <QLibraryInfo>
#include <QProcess>
#include <QXmlStreamWriter>

#include "Failure.h"
#include "utility/ResourceKey.h"

namespace resourcetool {

namespace {

void WriteFile(const QString& inPath, const QByteArray& inBytes) {
  QFile file(inPath);
  const bool written = file.open(QIODevice::WriteOnly) && file.write(inBytes) == inBytes.size();
  if (!written || !file.flush()) throw Failure(inPath, file.errorString());
}

}  // namespace

Container::Container() {
  if (!mFolder.isValid()) throw Failure(mFolder.path(), mFolder.errorString());
}

void Container::Add(const QString& inType, const QString& inName, const QByteArray& inBytes,
                    const QString& inPlace) {
  const QString key = lumui::utility::ResourceKey(inType, inName);
  if (key.isEmpty()) {
    throw Failure(inPlace, QString("\"%1\" is no name of a resource").arg(inName));
  }
  if (mKeys.contains(key)) {
    throw Failure(
        inPlace,
        QString("there is a resource \"%1\" of the type \"%2\" already").arg(inName, inType));
  }
  mKeys.insert(key);
  const QString file = mFolder.filePath(QString::number(mEntries.size()));
  WriteFile(file, inBytes);
  mEntries.push_back({key, file});
}

void Container::WriteList(const QString& inPath) const {
  QByteArray text;
  QXmlStreamWriter writer(&text);
  writer.writeStartElement("RCC");
  writer.writeStartElement("qresource");
  for (const Entry& entry : mEntries) {
    writer.writeStartElement("file");
    writer.writeAttribute("alias", entry.key);
    writer.writeCharacters(entry.file);
    writer.writeEndElement();
  }
  writer.writeEndDocument();
  WriteFile(inPath, text);
}

QByteArray Container::Pack() const {
  const QString list = mFolder.filePath("list.qrc");
  const QString packed = mFolder.filePath("packed.rcc");
  WriteList(list);
  const QString compiler = QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath) + "/rcc";
  QProcess process;
  process.start(compiler,
                {"--binary", "--no-compress", "--format-version", "1", "--output", packed, list});
  if (!process.waitForFinished(-1)) throw Failure(compiler, process.errorString());
  if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
    throw Failure(compiler, QString::fromLocal8Bit(process.readAllStandardError()).trimmed());
  }
  QFile file(packed);
  if (!file.open(QIODevice::ReadOnly)) throw Failure(packed, file.errorString());
  return file.readAll();
}

}  // namespace resourcetool
