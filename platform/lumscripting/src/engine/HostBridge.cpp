// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "engine/HostBridge.h"

#include <QJSEngine>
#include <cmath>
#include <limits>
#include <utility>

#include "HostSide.h"
#include "engine/ScriptConvert.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"
#include "lumscripting/ScriptEventObject.h"
#include "lumscripting/threads/DirectCall.h"

namespace lumscripting {

namespace {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;

const char kMakeFunction[] = R"(
(function (bridge, number, name) {
  return function () { return bridge.Call(number, name, Array.prototype.slice.call(arguments)); };
}))";

const char kMakeObject[] = R"(
(function (bridge, number, functions, properties, constants, hears) {
  const object = {};
  const show = (name, what) => { what.enumerable = true; Object.defineProperty(object, name, what); };
  functions.forEach((name, i) => show(name, { value: function () {
    return bridge.CallObject(number, i, Array.prototype.slice.call(arguments));
  }}));
  properties.forEach((name, i) => show(name, { get: () => bridge.GetProperty(number, i) }));
  for (const name in constants) show(name, { value: constants[name] });
  if (hears) {
    show("addEventListener", { value: (type, f) => bridge.Listen(number, true, type, f) });
    show("removeEventListener", { value: (type, f) => bridge.Listen(number, false, type, f) });
  }
  return Object.freeze(object);
}))";

// The engine tells where something was thrown only for what it evaluates as a program. So a
// listener is called by a program of one line, which finds the call prepared under this name.
const char kDeliveryProgram[] = R"(this["lumscripting delivery"]())";
const char kPrepareDelivery[] = R"(
(function () {
  let next = () => {};
  Object.defineProperty(this, "lumscripting delivery", { value: () => next() });
  return (listener, event) => { next = () => { next = () => {}; listener.call(event.target, event); }; };
})())";

ScriptValue Answer(HostSide& ioHost, const std::function<ScriptValue(HostSide&)>& inQuestion) {
  const ScriptRunner::CallFunction around = ioHost.callFunction;
  if (!around) return inQuestion(ioHost);
  ScriptValue answer;
  around([&] { answer = inQuestion(ioHost); });
  return answer;
}

// What a call works with. It is shared, since a call that is cancelled leaves the function running.
struct Exchange {
  std::function<ScriptValue(HostSide&)> question;
  ScriptValue result;
};

template <class Member>
QJSValue NamesOf(QJSEngine& ioEngine, const std::vector<Member>& inMembers) {
  QJSValue names = ioEngine.newArray(static_cast<uint>(inMembers.size()));
  for (std::size_t i = 0; i < inMembers.size(); ++i)
    names.setProperty(static_cast<quint32>(i), ToQString(inMembers[i].name));
  return names;
}

// The arguments as a script has given them.
std::vector<ScriptValue> ArgumentsFrom(const QJSValue& inArray) {
  std::vector<ScriptValue> arguments;
  const auto count = inArray.property(QStringLiteral("length")).toUInt();
  for (quint32 index = 0; index < count; ++index)
    arguments.push_back(FromScript(inArray.property(index)));
  return arguments;
}

bool IsInteger(const QJSValue& inValue) {
  const double number = inValue.toNumber();
  return inValue.isNumber() && std::trunc(number) == number &&
         number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
}

// The text to refuse the argument with; null for one that fits.
const char* Misfit(const QJSValue& inValue, ScriptType inType) {
  switch (inType) {
    case ScriptType::kString:
      if (inValue.isString()) return nullptr;
      return "$$$/lumscripting/Error/Argument/String=@0: @1 must be a string";
    case ScriptType::kInteger:
      if (IsInteger(inValue)) return nullptr;
      return "$$$/lumscripting/Error/Argument/Integer=@0: @1 must be an integer";
    case ScriptType::kNumber:
      if (inValue.isNumber()) return nullptr;
      return "$$$/lumscripting/Error/Argument/Number=@0: @1 must be a number";
    case ScriptType::kBoolean:
      if (inValue.isBool()) return nullptr;
      return "$$$/lumscripting/Error/Argument/Boolean=@0: @1 must be a boolean";
    case ScriptType::kNothing:
      break;
  }
  return nullptr;
}

UTF16String Join(const UTF16String& inObject, const UTF16String& inMember) {
  return inObject + ToUTF16(".") + inMember;
}

}  // namespace

HostBridge::HostBridge(QJSEngine& ioEngine, std::weak_ptr<HostSide> inHostSide,
                       ListenedTypes& ioListened)
    : mEngine(ioEngine), mHostSide(std::move(inHostSide)), mListeners(ioListened) {
  // The bridge is a member of its worker and must not be collected as garbage.
  QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
  mSelf = mEngine.newQObject(this);
  mMakeFunction = mEngine.evaluate(QString::fromLatin1(kMakeFunction));
  mMakeObject = mEngine.evaluate(QString::fromLatin1(kMakeObject));
  mPrepareDelivery = mEngine.evaluate(QString::fromLatin1(kPrepareDelivery));
  mFreeze = mEngine.evaluate(QStringLiteral("Object.freeze"));
  const QJSValue makeHelp = mEngine.evaluate(
      QStringLiteral("(function (bridge) { return (name) => bridge.Help(name); })"));
  mEngine.globalObject().setProperty(QStringLiteral("help"), makeHelp.call({mSelf}));
}

HostBridge::~HostBridge() = default;

void HostBridge::AddFunction(const UTF16String& inName, int inFunction) {
  const QString name = ToQString(inName);
  mEngine.globalObject().setProperty(
      name, mMakeFunction.call({mSelf, QJSValue(inFunction), QJSValue(name)}));
}

void HostBridge::AddObject(std::shared_ptr<const ScriptDefinition> inDefinition,
                           const ScriptObject* inTarget) {
  const ScriptDefinition& definition = *inDefinition;
  QJSValue constants = mEngine.newObject();
  for (const ScriptConstant& constant : definition.constants)
    constants.setProperty(ToQString(constant.name), ToQString(constant.value));
  // The properties of a kind of events are those of each event.
  const QJSValue properties =
      inTarget ? NamesOf(mEngine, definition.properties) : mEngine.newArray();
  const QJSValue global = mMakeObject.call({mSelf, QJSValue(static_cast<int>(mObjects.size())),
                                            NamesOf(mEngine, definition.functions), properties,
                                            constants, QJSValue(inTarget != nullptr)});
  mEngine.globalObject().setProperty(ToQString(definition.name), global);
  mObjects.push_back({std::move(inDefinition), inTarget, global});
}

QJSValue HostBridge::MakeEvent(const ScriptDefinition& inDefinition,
                               const ScriptEventObject& inEvent, const UTF16String& inType,
                               const ScriptObject* inTarget) {
  QJSValue event = mEngine.newObject();
  for (const ScriptProperty& property : inDefinition.properties)
    event.setProperty(ToQString(property.name), ToScript(inEvent.GetProperty(property.name)));
  event.setProperty(QStringLiteral("type"), ToQString(inType));
  for (const Object& object : mObjects) {
    if (object.target == inTarget) event.setProperty(QStringLiteral("target"), object.global);
  }
  return mFreeze.call({event});
}

QJSValue HostBridge::CallListener(const QJSValue& inListener, const QJSValue& inEvent,
                                  QStringList& outStack) {
  mPrepareDelivery.call({inListener, inEvent});
  return mEngine.evaluate(QString::fromLatin1(kDeliveryProgram), QString(), 1, &outStack);
}

// Asks on the user interface thread. The script waits, and gets what is thrown as an exception,
// which it may catch or end by.
QJSValue HostBridge::Ask(const QString& inFunction,
                         std::function<ScriptValue(HostSide&)> inQuestion) {
  const auto exchange = std::make_shared<Exchange>(Exchange{std::move(inQuestion), {}});
  try {
    threads::DirectVoidCallOnUIThread([exchange, weak = mHostSide] {
      if (const auto host = weak.lock()) exchange->result = Answer(*host, exchange->question);
    });
  } catch (const std::exception& failure) {
    mEngine.throwError(QString::fromUtf8(failure.what()));
    return QJSValue();
  } catch (...) {
    // For a host that throws something without a text.
    mEngine.throwError(QStringLiteral("The function %1 failed").arg(inFunction));
    return QJSValue();
  }
  return ToScript(exchange->result);
}

QJSValue HostBridge::Call(int inFunction, const QString& inName, const QJSValue& inArguments) {
  return Ask(inName, [inFunction, arguments = ArgumentsFrom(inArguments)](HostSide& ioHost) {
    // A reference of our own: the function may end the runner.
    const auto function = ioHost.functions.at(static_cast<std::size_t>(inFunction));
    return (*function)(arguments);
  });
}

QJSValue HostBridge::CallObject(int inObject, int inFunction, const QJSValue& inArguments) {
  const auto objectIndex = static_cast<std::size_t>(inObject);
  const auto functionIndex = static_cast<std::size_t>(inFunction);
  const Object& object = mObjects.at(objectIndex);
  const ScriptFunction& function = object.definition->functions.at(functionIndex);
  if (!Accept(object, function, inArguments)) return QJSValue();
  std::vector<ScriptValue> arguments = ArgumentsFrom(inArguments);
  arguments.resize(function.parameters.size());
  return Ask(ToQString(Join(object.definition->name, function.name)),
             [objectIndex, functionIndex, arguments = std::move(arguments)](HostSide& ioHost) {
               const boost::intrusive_ptr<ScriptObject> asked = ioHost.shown.at(objectIndex).object;
               return asked->CallFunction(functionIndex, arguments);
             });
}

QJSValue HostBridge::GetProperty(int inObject, int inProperty) {
  const auto objectIndex = static_cast<std::size_t>(inObject);
  const auto propertyIndex = static_cast<std::size_t>(inProperty);
  const ScriptDefinition& definition = *mObjects.at(objectIndex).definition;
  return Ask(ToQString(Join(definition.name, definition.properties.at(propertyIndex).name)),
             [objectIndex, propertyIndex](HostSide& ioHost) {
               const boost::intrusive_ptr<ScriptObject> asked = ioHost.shown.at(objectIndex).object;
               return asked->GetProperty(propertyIndex);
             });
}

bool HostBridge::Accept(const Object& inObject, const ScriptFunction& inFunction,
                        const QJSValue& inArguments) {
  const UTF16String where = Join(inObject.definition->name, inFunction.name);
  const auto& parameters = inFunction.parameters;
  const auto count = inArguments.property(QStringLiteral("length")).toUInt();
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    const QJSValue argument = inArguments.property(static_cast<quint32>(i));
    if (parameters[i].isOptional && argument.isUndefined()) continue;
    const char* const misfit = i < count
                                   ? Misfit(argument, parameters[i].type)
                                   : "$$$/lumscripting/Error/Argument/Missing=@0: @1 is missing";
    if (misfit) {
      Refuse(misfit, where, parameters[i].name);
      return false;
    }
  }
  if (count <= parameters.size()) return true;
  Refuse("$$$/lumscripting/Error/Argument/TooMany=@0: too many arguments, the last is @1", where,
         parameters.empty() ? ToUTF16("()") : parameters.back().name);
  return false;
}

void HostBridge::Refuse(const char* inKey, const UTF16String& inWhere, const UTF16String& inWhat) {
  const UTF16String text = lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
  mEngine.throwError(QJSValue::TypeError,
                     ToQString(lumcore::utility::ReplaceInString(text, {inWhere, inWhat})));
}

void HostBridge::Listen(int inObject, bool inAdd, const QJSValue& inType,
                        const QJSValue& inListener) {
  const Object& object = mObjects.at(static_cast<std::size_t>(inObject));
  const UTF16String where =
      Join(object.definition->name, ToUTF16(inAdd ? "addEventListener" : "removeEventListener"));
  if (const char* const misfit = Misfit(inType, ScriptType::kString)) {
    Refuse(misfit, where, ToUTF16("type"));
  } else if (!inListener.isCallable()) {
    Refuse("$$$/lumscripting/Error/Argument/Function=@0: @1 must be a function", where,
           ToUTF16("listener"));
  } else if (inAdd) {
    mListeners.Add(object.target, FromQString(inType.toString()), inListener);
  } else {
    mListeners.Remove(object.target, FromQString(inType.toString()), inListener);
  }
}

QJSValue HostBridge::Help(const QJSValue& inName) {
  QString text;
  for (const Object& object : mObjects) {
    if (inName.isUndefined() || ToQString(object.definition->name) == inName.toString())
      text += ToQString(WriteReference(*object.definition));
  }
  if (text.isEmpty() && !inName.isUndefined()) {
    Refuse("$$$/lumscripting/Error/NoHelp=@0: there is no object \"@1\"", ToUTF16("help"),
           FromQString(inName.toString()));
  }
  return QJSValue(text);
}

}  // namespace lumscripting
