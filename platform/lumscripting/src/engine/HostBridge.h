// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJSValue>
#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "engine/EventListeners.h"
#include "lumscripting/ScriptDefinition.h"
#include "lumscripting/ScriptValue.h"

class QJSEngine;

namespace lumscripting {

class HostSide;
class ScriptEventObject;

// What the script thread knows of the host: an object behind the host's functions and objects. What
// a script sees are small script functions that call the invokable operations here by number.
class HostBridge : public QObject {
  Q_OBJECT

 public:
  HostBridge(QJSEngine& ioEngine, std::weak_ptr<HostSide> inHostSide, ListenedTypes& ioListened);
  ~HostBridge() override;

  void AddFunction(const lumcore::UTF16String& inName, int inFunction);
  // Objects come in the order of their numbers. A kind of events has no target, and no functions.
  void AddObject(std::shared_ptr<const ScriptDefinition> inDefinition,
                 const ScriptObject* inTarget);

  EventListeners& GetListeners() { return mListeners; }
  QJSValue MakeEvent(const ScriptDefinition& inDefinition, const ScriptEventObject& inEvent,
                     const lumcore::UTF16String& inType, const ScriptObject* inTarget);
  // What the listener gives back or throws; the stack has entries where it throws.
  QJSValue CallListener(const QJSValue& inListener, const QJSValue& inEvent, QStringList& outStack);

  Q_INVOKABLE QJSValue Call(int inFunction, const QString& inName, const QJSValue& inArguments);
  Q_INVOKABLE QJSValue CallObject(int inObject, int inFunction, const QJSValue& inArguments);
  Q_INVOKABLE QJSValue GetProperty(int inObject, int inProperty);
  Q_INVOKABLE void Listen(int inObject, bool inAdd, const QJSValue& inType,
                          const QJSValue& inListener);
  Q_INVOKABLE QJSValue Help(const QJSValue& inName);

 private:
  struct Object {
    std::shared_ptr<const ScriptDefinition> definition;
    const ScriptObject* target;  // on the other thread
    QJSValue global;
  };

  QJSValue Ask(const QString& inFunction, std::function<ScriptValue(HostSide&)> inQuestion);
  bool Accept(const Object& inObject, const ScriptFunction& inFunction,
              const QJSValue& inArguments);
  void Refuse(const char* inKey, const lumcore::UTF16String& inWhere,
              const lumcore::UTF16String& inWhat);

  QJSEngine& mEngine;
  const std::weak_ptr<HostSide> mHostSide;
  EventListeners mListeners;
  std::vector<Object> mObjects;
  QJSValue mSelf;
  QJSValue mMakeFunction;
  QJSValue mMakeObject;
  QJSValue mFreeze;
  QJSValue mPrepareDelivery;
};

}  // namespace lumscripting
