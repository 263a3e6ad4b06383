// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "HostBridge.h"

#include <QJSEngine>
#include <utility>

#include "lumscripting/threads/DirectCall.h"

namespace lumscripting {

namespace {

// What a call works with. It is shared, since a call that is cancelled leaves the function running.
struct Exchange {
  std::shared_ptr<const ScriptRunner::HostFunction> function;
  std::vector<ScriptValue> arguments;
  ScriptValue result;
};

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

HostBridge::HostBridge(QJSEngine& ioEngine) : mEngine(ioEngine) {
  // The bridge is a member of its worker and must not be collected as garbage.
  QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
}

HostBridge::~HostBridge() = default;

void HostBridge::AddFunction(const lumcore::UTF16String& inName,
                             ScriptRunner::HostFunction inFunction) {
  const QString name = ToQString(inName);
  mFunctions[name] = std::make_shared<const ScriptRunner::HostFunction>(std::move(inFunction));
  QJSValue makeFunction = mEngine.evaluate(QStringLiteral(
      "(function (bridge, name) {"
      "  return function () { return bridge.Call(name, Array.prototype.slice.call(arguments)); };"
      "})"));
  mEngine.globalObject().setProperty(name,
                                     makeFunction.call({mEngine.newQObject(this), QJSValue(name)}));
}

QJSValue HostBridge::Call(const QString& inName, const QJSValue& inArguments) {
  const auto exchange = std::make_shared<Exchange>();
  exchange->function = mFunctions.at(inName);
  const int count = inArguments.property(QStringLiteral("length")).toInt();
  for (int index = 0; index < count; ++index) {
    exchange->arguments.push_back(FromScript(inArguments.property(static_cast<quint32>(index))));
  }
  try {
    threads::DirectVoidCallOnUIThread(
        [exchange] { exchange->result = (*exchange->function)(exchange->arguments); });
  } catch (const std::exception& failure) {
    // Becomes an exception in the script, which may catch it or end by it.
    mEngine.throwError(QString::fromUtf8(failure.what()));
    return QJSValue();
  } catch (...) {
    // As above, for a host that throws something without a text.
    mEngine.throwError(QStringLiteral("The function %1 failed").arg(inName));
    return QJSValue();
  }
  return ToScript(exchange->result);
}

}  // namespace lumscripting
