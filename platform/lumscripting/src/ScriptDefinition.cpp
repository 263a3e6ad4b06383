// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumscripting/ScriptDefinition.h"

#include <string>
#include <string_view>

#include "lumcore/utility/StringUtils.h"

namespace lumscripting {

namespace {

using lumcore::utility::ToStdString;

// Words of the scripts' language, not of the user's.
std::string_view NameOf(ScriptType inType) {
  switch (inType) {
    case ScriptType::kNothing:
      return "undefined";
    case ScriptType::kString:
      return "string";
    case ScriptType::kInteger:
      return "integer";
    case ScriptType::kNumber:
      return "number";
    case ScriptType::kBoolean:
      return "boolean";
  }
  return {};
}

std::string ParametersOf(const ScriptFunction& inFunction) {
  std::string text;
  for (const ScriptParameter& parameter : inFunction.parameters) {
    if (!text.empty()) text += ", ";
    std::string words(NameOf(parameter.type));
    words.append(" ").append(ToStdString(parameter.name));
    text += parameter.isOptional ? "[" + words + "]" : words;
  }
  return text;
}

void AddParameterDescriptions(const ScriptFunction& inFunction, std::string& ioText) {
  for (const ScriptParameter& parameter : inFunction.parameters) {
    if (parameter.description.empty()) continue;
    ioText +=
        "    " + ToStdString(parameter.name) + ": " + ToStdString(parameter.description) + "\n";
  }
}

}  // namespace

lumcore::UTF16String WriteReference(const ScriptDefinition& inDefinition) {
  std::string text =
      ToStdString(inDefinition.name) + ": " + ToStdString(inDefinition.description) + "\n";
  const auto add = [&](const std::string& inLine, const lumcore::UTF8String& inDescription) {
    text += "  " + inLine + "\n";
    if (!inDescription.empty()) text += "    " + ToStdString(inDescription) + "\n";
  };
  for (const auto& function : inDefinition.functions) {
    add(std::string(NameOf(function.returns)) + " " + ToStdString(function.name) + "(" +
            ParametersOf(function) + ")",
        function.description);
    AddParameterDescriptions(function, text);
  }
  for (const auto& property : inDefinition.properties) {
    add("readonly " + std::string(NameOf(property.type)) + " " + ToStdString(property.name),
        property.description);
  }
  for (const auto& constant : inDefinition.constants) {
    add(ToStdString(constant.name) + " = \"" + ToStdString(constant.value) + "\"",
        constant.description);
  }
  return lumcore::utility::ToUTF16(text);
}

}  // namespace lumscripting
