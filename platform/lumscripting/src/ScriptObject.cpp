// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumscripting/ScriptObject.h"

#include <algorithm>
#include <utility>

#include "lumcore/debug/Contract.h"

namespace lumscripting {

namespace {

template <class Member>
auto Find(std::vector<Member>& ioMembers, const lumcore::UTF16String& inName) {
  return std::find_if(ioMembers.begin(), ioMembers.end(),
                      [&](const Member& inMember) { return inMember.name == inName; });
}

template <class Member>
bool Has(std::vector<Member>& ioMembers, const lumcore::UTF16String& inName) {
  return Find(ioMembers, inName) != ioMembers.end();
}

bool OptionalOnesAreLast(const std::vector<ScriptParameter>& inParameters) {
  return std::is_partitioned(
      inParameters.begin(), inParameters.end(),
      [](const ScriptParameter& inParameter) { return !inParameter.isOptional; });
}

}  // namespace

ScriptObject::ScriptObject() = default;

ScriptObject::~ScriptObject() = default;

ScriptValue ScriptObject::CallFunction(std::size_t inIndex,
                                       const std::vector<ScriptValue>& inArguments) const {
  return mImplementations.at(inIndex)(inArguments);
}

ScriptValue ScriptObject::GetProperty(std::size_t inIndex) const {
  return mGetters.at(inIndex)();
}

void ScriptObject::AddFunction(const ScriptFunction& inFunction, Implementation inImplementation) {
  LUM_INPUT_CONTRACT(inImplementation && !Has(mDefinition.functions, inFunction.name) &&
                     !Has(mDefinition.properties, inFunction.name) &&
                     !Has(mDefinition.constants, inFunction.name));
  LUM_INPUT_CONTRACT(OptionalOnesAreLast(inFunction.parameters));
  mDefinition.functions.push_back(inFunction);
  mImplementations.push_back(std::move(inImplementation));
}

void ScriptObject::AddProperty(const ScriptProperty& inProperty, Getter inGetter) {
  LUM_INPUT_CONTRACT(inGetter && !Has(mDefinition.functions, inProperty.name) &&
                     !Has(mDefinition.properties, inProperty.name) &&
                     !Has(mDefinition.constants, inProperty.name));
  mDefinition.properties.push_back(inProperty);
  mGetters.push_back(std::move(inGetter));
}

void ScriptObject::AddConstant(const ScriptConstant& inConstant) {
  LUM_INPUT_CONTRACT(!Has(mDefinition.functions, inConstant.name) &&
                     !Has(mDefinition.properties, inConstant.name));
  const auto found = Find(mDefinition.constants, inConstant.name);
  if (found != mDefinition.constants.end()) {
    *found = inConstant;
  } else {
    mDefinition.constants.push_back(inConstant);
  }
}

}  // namespace lumscripting
