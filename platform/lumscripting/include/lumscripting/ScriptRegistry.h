// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <functional>
#include <map>
#include <memory>

#include "lumcore/Strings.h"
#include "lumscripting/Export.h"
#include "lumscripting/ScriptDefinition.h"

namespace lumscripting {

class ScriptEventObject;
class ScriptObject;

// What all scripts of the process see beside the functions of their runner: objects, and the kinds
// of events with their constants, each as one global name. A runner calls the factories of the
// objects when its first script is queued; what is registered later is for later runners.
//
// For the user interface thread. Registering a name again replaces what it meant.
class LUMSCRIPTING_API ScriptRegistry {
 public:
  // Called on the user interface thread. May give the same object to several runners; null gives
  // scripts nothing.
  using ObjectFactory = std::function<boost::intrusive_ptr<ScriptObject>()>;
  // Called on script threads, so it counts nothing and touches nothing of the host.
  using EventFactory = std::function<std::unique_ptr<ScriptEventObject>()>;

  struct Object {
    lumcore::UTF8String description;
    ObjectFactory make;
  };
  struct Event {
    ScriptDefinition definition;
    EventFactory make;
  };

  static ScriptRegistry& Get();
  ScriptRegistry(const ScriptRegistry&) = delete;
  ScriptRegistry& operator=(const ScriptRegistry&) = delete;

  void RegisterObject(const lumcore::UTF16String& inName, const lumcore::UTF8String& inDescription,
                      ObjectFactory inMake);
  // The definition's name is the event object's; functions have no place in it.
  void RegisterEvent(const ScriptDefinition& inDefinition, EventFactory inMake);
  void Unregister(const lumcore::UTF16String& inName);

  const std::map<lumcore::UTF16String, Object>& GetObjects() const { return mObjects; }
  const std::map<lumcore::UTF16String, std::shared_ptr<const Event>>& GetEvents() const {
    return mEvents;
  }

 private:
  ScriptRegistry();

  std::map<lumcore::UTF16String, Object> mObjects;
  std::map<lumcore::UTF16String, std::shared_ptr<const Event>> mEvents;
};

}  // namespace lumscripting
