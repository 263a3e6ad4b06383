// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "lumcore/Strings.h"
#include "lumscripting/Export.h"

namespace lumscripting {

enum class ScriptType { kNothing, kString, kInteger, kNumber, kBoolean };

struct ScriptParameter {
  lumcore::UTF16String name;
  ScriptType type;
  lumcore::UTF8String description = {};
  bool isOptional = false;  // may be left out, or be undefined
};

struct ScriptFunction {
  lumcore::UTF16String name;
  std::vector<ScriptParameter> parameters;  // the optional ones stand behind the others
  ScriptType returns;
  lumcore::UTF8String description;
};

// Scripts read it and cannot write it.
struct ScriptProperty {
  lumcore::UTF16String name;
  ScriptType type;
  lumcore::UTF8String description;
};

struct ScriptConstant {
  lumcore::UTF16String name;
  lumcore::UTF16String value;
  lumcore::UTF8String description;
};

// What scripts see under one global name, as plain data that any thread may read.
struct ScriptDefinition {
  lumcore::UTF16String name;
  lumcore::UTF8String description;
  std::vector<ScriptFunction> functions;
  std::vector<ScriptProperty> properties;
  std::vector<ScriptConstant> constants;
};

// The definition as lines for a person who writes scripts; help() in a script gives the same.
LUMSCRIPTING_API lumcore::UTF16String WriteReference(const ScriptDefinition& inDefinition);

}  // namespace lumscripting
