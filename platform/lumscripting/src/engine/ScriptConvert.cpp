// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "engine/ScriptConvert.h"

#include <QUrl>

namespace lumscripting {

namespace {

// An entry of the stack reads "function:line:column:file". The engine has made a URL of the file.
constexpr int kLinePart = 1;
constexpr int kFilePart = 3;

}  // namespace

QString ToQString(const lumcore::UTF16String& inText) {
  return QString::fromUtf16(reinterpret_cast<const char16_t*>(inText.data()),
                            static_cast<qsizetype>(inText.size()));
}

lumcore::UTF16String FromQString(const QString& inText) {
  return lumcore::UTF16String(reinterpret_cast<const unsigned short*>(inText.utf16()),
                              static_cast<std::size_t>(inText.size()));
}

QJSValue ToScript(const ScriptValue& inValue) {
  if (const auto* truth = std::get_if<bool>(&inValue)) return QJSValue(*truth);
  if (const auto* number = std::get_if<double>(&inValue)) return QJSValue(*number);
  if (const auto* text = std::get_if<lumcore::UTF16String>(&inValue)) {
    return QJSValue(ToQString(*text));
  }
  return QJSValue(QJSValue::UndefinedValue);
}

ScriptValue FromScript(const QJSValue& inValue) {
  if (inValue.isUndefined() || inValue.isNull()) return {};
  if (inValue.isBool()) return inValue.toBool();
  if (inValue.isNumber()) return inValue.toNumber();
  return FromQString(inValue.toString());
}

// The innermost entry that has a file: an error that comes from the host is made in a function that
// the user has not written.
ScriptError ErrorFromScript(const QJSValue& inError, const QStringList& inStack,
                            const lumcore::UTF16String& inFile) {
  const lumcore::UTF16String message = FromQString(inError.toString());
  for (const QString& entry : inStack) {
    const QString file = entry.section(QLatin1Char(':'), kFilePart);
    const int line = entry.section(QLatin1Char(':'), kLinePart, kLinePart).toInt();
    if (!file.isEmpty()) {
      return ScriptError(FromQString(QUrl(file).toLocalFile()), line, message);
    }
  }
  return ScriptError(inFile, inError.property(QStringLiteral("lineNumber")).toInt(), message);
}

}  // namespace lumscripting
