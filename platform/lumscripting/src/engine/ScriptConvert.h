// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJSValue>
#include <QString>
#include <QStringList>

#include "lumcore/Strings.h"
#include "lumscripting/ScriptError.h"
#include "lumscripting/ScriptValue.h"

namespace lumscripting {

QString ToQString(const lumcore::UTF16String& inText);
lumcore::UTF16String FromQString(const QString& inText);
QJSValue ToScript(const ScriptValue& inValue);
ScriptValue FromScript(const QJSValue& inValue);

// The error that the engine tells by a value and the stack of where it was thrown. inFile is for
// an error that has no place in a script.
ScriptError ErrorFromScript(const QJSValue& inError, const QStringList& inStack,
                            const lumcore::UTF16String& inFile);

}  // namespace lumscripting
