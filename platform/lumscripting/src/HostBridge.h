// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJSValue>
#include <QObject>
#include <QString>
#include <map>
#include <memory>
#include <string>

#include "lumscripting/ScriptRunner.h"

class QJSEngine;

namespace lumscripting {

QString ToQString(const lumcore::UTF16String& inText);
lumcore::UTF16String FromQString(const QString& inText);
QJSValue ToScript(const ScriptValue& inValue);
ScriptValue FromScript(const QJSValue& inValue);

// The object behind the host's functions, on the script thread. Each function that a script sees is
// a small script function that calls Call with its own name.
class HostBridge : public QObject {
  Q_OBJECT

 public:
  explicit HostBridge(QJSEngine& ioEngine);
  ~HostBridge() override;

  void AddFunction(const lumcore::UTF16String& inName, ScriptRunner::HostFunction inFunction);

  Q_INVOKABLE QJSValue Call(const QString& inName, const QJSValue& inArguments);

 private:
  QJSEngine& mEngine;
  std::map<QString, std::shared_ptr<const ScriptRunner::HostFunction>> mFunctions;
};

}  // namespace lumscripting
