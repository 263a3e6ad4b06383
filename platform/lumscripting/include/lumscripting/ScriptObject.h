// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "lumcore/utility/RefCounted.h"
#include "lumscripting/Export.h"
#include "lumscripting/ScriptDefinition.h"
#include "lumscripting/ScriptValue.h"

namespace lumscripting {

// An object of the host that scripts see under a global name, once it is registered with the
// ScriptRegistry. A subclass adds what it offers in its constructor. Scripts can add listeners at
// it: object.addEventListener(type, function) and removeEventListener.
//
// It belongs to the user interface thread: there it is made, counted, called and destroyed. The
// script thread knows it by its address alone.
class LUMSCRIPTING_API ScriptObject : public lumcore::utility::RefCountedObject {
 public:
  // Gets as many arguments, of such types, as the definition says; an integer comes as a number
  // without a fraction, and an optional one that was left out as nothing. What it throws becomes an
  // exception in the script.
  using Implementation = std::function<ScriptValue(const std::vector<ScriptValue>&)>;
  using Getter = std::function<ScriptValue()>;

  ~ScriptObject() override;
  ScriptObject(const ScriptObject&) = delete;
  ScriptObject& operator=(const ScriptObject&) = delete;

  // Without a name and a description of the whole: those are the registry's.
  const ScriptDefinition& GetDefinition() const { return mDefinition; }

  // By their places in the definition.
  ScriptValue CallFunction(std::size_t inIndex, const std::vector<ScriptValue>& inArguments) const;
  ScriptValue GetProperty(std::size_t inIndex) const;

 protected:
  ScriptObject();

  // A name that is there already is a contract failure, and so is a parameter that must be given
  // behind one that need not be. A constant replaces one of its own name.
  void AddFunction(const ScriptFunction& inFunction, Implementation inImplementation);
  void AddProperty(const ScriptProperty& inProperty, Getter inGetter);
  void AddConstant(const ScriptConstant& inConstant);

 private:
  ScriptDefinition mDefinition;
  std::vector<Implementation> mImplementations;  // as many as functions
  std::vector<Getter> mGetters;                  // as many as properties
};

}  // namespace lumscripting
