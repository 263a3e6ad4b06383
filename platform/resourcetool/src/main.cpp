// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// vek-embed MANIFEST OUTPUT: renders and packs what the manifest names and writes it as the source
// file that builds it into a module. See cmake/VekResources.cmake, which calls it.

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cstdio>

#include "Container.h"
#include "Document.h"
#include "Failure.h"
#include "Manifest.h"
#include "Picture.h"
#include "utility/ContainerChecksum.h"

namespace resourcetool {

namespace {

QString Join(const QString& inName, const QString& inSuffix) {
  return inSuffix.isEmpty() ? inName : inName + '_' + inSuffix;
}

void AddImage(Container& ioContainer, const Manifest& inManifest, const Manifest::Source& inSource,
              const QString& inPlace) {
  const Picture picture(inSource.path);
  const QString stem = QFileInfo(inSource.path).completeBaseName().toUpper();
  for (const auto& size : inManifest.mSizes) {
    for (const auto& ink : inManifest.mInks) {
      const QString name = Join(Join(stem, size.suffix), ink.suffix);
      for (const int scale : inManifest.mScales) {
        ioContainer.Add("PNG", name + ScaleSuffix(scale),
                        picture.RenderPNG(size.height, scale, ink.color), inPlace);
      }
    }
  }
}

void AddFile(Container& ioContainer, const Manifest::Source& inSource, const QString& inPlace) {
  const QString& path = inSource.path;
  const QFileInfo info(path);
  if (info.suffix().isEmpty()) throw Failure(path, "its type cannot be told without an extension");
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw Failure(path, file.errorString());
  QByteArray bytes = file.readAll();
  if (inSource.kind == Manifest::Kind::kDocument) bytes = ResolveEntities(bytes);
  ioContainer.Add(info.suffix().toUpper(), info.completeBaseName().toUpper(), bytes, inPlace);
}

QByteArray ToSource(const QByteArray& inBytes) {
  const auto* bytes = reinterpret_cast<const unsigned char*>(inBytes.constData());
  const auto size = static_cast<std::size_t>(inBytes.size());
  QByteArray text =
      "// Written by vek-embed.\n\n#include \"lumui/utility/ModuleResources.h\"\n\nnamespace {\n\n"
      "alignas(8) const unsigned char kBytes[] = {";
  constexpr std::size_t kBytesInLine = 24;
  for (std::size_t i = 0; i < size; ++i) {
    if (i % kBytesInLine == 0) text += '\n';
    text += QByteArray::number(bytes[i]) + ',';
  }
  text += "\n};\nconst lumui::utility::ModuleResources sResources(kBytes, sizeof kBytes, 0x";
  text += QByteArray::number(qulonglong(lumui::utility::ContainerChecksum(bytes, size)), 16);
  return text + "u);\n\n}  // namespace\n";
}

void Run(const QString& inManifest, const QString& inOutput) {
  const Manifest manifest = Manifest::Read(inManifest);
  Container container;
  for (const auto& source : manifest.mSources) {
    const QString place = QString("%1:%2: %3").arg(inManifest).arg(source.line).arg(source.path);
    if (source.kind == Manifest::Kind::kImage) {
      AddImage(container, manifest, source, place);
    } else {
      AddFile(container, source, place);
    }
  }
  QSaveFile output(inOutput);
  const QByteArray text = ToSource(container.Pack());
  const bool written = output.open(QIODevice::WriteOnly) && output.write(text) == text.size();
  if (!written || !output.commit()) throw Failure(inOutput, output.errorString());
}

}  // namespace

}  // namespace resourcetool

int main(int inCount, char** inArguments) {
  QCoreApplication application(inCount, inArguments);
  const QStringList arguments = application.arguments();
  if (arguments.size() != 3) {
    std::fputs("usage: vek-embed MANIFEST OUTPUT\n", stderr);
    return 2;
  }
  try {
    resourcetool::Run(arguments[1], arguments[2]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "vek-embed: %s\n", error.what());
    return 1;
  }
}
