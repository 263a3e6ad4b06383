// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/scripting/VekScriptObject.h"

#include <algorithm>
#include <vector>

#include "lumcore/utility/StringUtils.h"
#include "lumscripting/ScriptRegistry.h"
#include "vek/uisupport/CommandHandlerBase.h"
#include "vek/uisupport/CommandRegistry.h"
#include "vek/uisupport/scripting/CommandEvent.h"

namespace vek::scripting {

namespace {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;
using lumcore::utility::ToUTF8;
using lumscripting::ScriptType;
using lumscripting::ScriptValue;
using uisupport::CommandHandlerBase;
using uisupport::CommandRegistry;

struct Enablement {
  explicit Enablement(int inCommand)
      : answered(CommandHandlerBase::CallEnablementChain(inCommand, enabled, checked, title)) {}

  bool enabled = false;
  bool checked = false;
  UTF16String title;
  bool answered;  // behind what the walk writes to
};

// What the chain answers does not matter: nobody enables a command that nobody knows.
bool IsCommandIDEnabled(int inCommand) {
  return Enablement(inCommand).enabled;
}

// Says whether the command was enabled, not whether anybody took it.
bool InvokeCommandByID(int inCommand) {
  const bool enabled = IsCommandIDEnabled(inCommand);
  if (enabled && Enablement(inCommand).answered) CommandHandlerBase::CallCommandChain(inCommand);
  return enabled;
}

// 0 for a name that is not known, which goes through the chain like any other id.
int CommandFrom(const ScriptValue& inArgument) {
  if (const auto* number = std::get_if<double>(&inArgument)) return static_cast<int>(*number);
  return CommandRegistry::Get().CommandIDForName(std::get<UTF16String>(inArgument), true);
}

struct CommandFunction {
  const char* name;
  const char* parameter;
  ScriptType type;
  bool (*call)(int inCommand);
  const char* description;
};

const CommandFunction kFunctions[] = {
    {"invokeCommand", "command", ScriptType::kString, InvokeCommandByID,
     "Invokes a particular application command by its identifier string. These are similar to the "
     "commands shown in the Keyboard Shortcuts dialog. Returns true on success."},
    {"isCommandEnabled", "command", ScriptType::kString, IsCommandIDEnabled,
     "Returns true if the current application command is enabled and can be called in the current "
     "state."},
    {"invokeCommandByID", "commandID", ScriptType::kInteger, InvokeCommandByID,
     "Invokes a particular command ID. Returns true on success."},
    {"isCommandIDEnabled", "commandID", ScriptType::kInteger, IsCommandIDEnabled,
     "Returns true if the current command ID is enabled and can be called in the current state."},
};

// Done as the library is loaded, so that no host has to know of it.
[[maybe_unused]] const bool gRegistered = [] {
  auto& registry = lumscripting::ScriptRegistry::Get();
  registry.RegisterObject(ToUTF16("Command"), ToUTF8("Command handling"), [] {
    return boost::intrusive_ptr<lumscripting::ScriptObject>(new VekScriptObject);
  });
  registry.RegisterEvent(CommandEvent::MakeDefinition(),
                         [] { return std::make_unique<CommandEvent>(); });
  return true;
}();

}  // namespace

VekScriptObject::VekScriptObject() {
  AddCommandFunctions();
  AddCommandConstants();
}

VekScriptObject::~VekScriptObject() = default;

void VekScriptObject::AddCommandFunctions() {
  for (const CommandFunction& function : kFunctions) {
    AddFunction({ToUTF16(function.name),
                 {{ToUTF16(function.parameter), function.type}},
                 ScriptType::kBoolean,
                 ToUTF8(function.description)},
                [call = function.call](const std::vector<ScriptValue>& inArguments) {
                  return ScriptValue(call(CommandFrom(inArguments.front())));
                });
  }
}

void VekScriptObject::AddCommandConstants() {
  const CommandRegistry& registry = CommandRegistry::Get();
  for (auto entry = registry.RegistryBegin(); entry != registry.RegistryEnd(); ++entry) {
    const UTF16String name = entry->second.GetName();
    UTF16String constant = ToUTF16("COMMAND_") + name;
    std::replace(constant.begin(), constant.end(), UTF16String::value_type('.'),
                 UTF16String::value_type('_'));
    AddConstant(
        {lumcore::utility::ToUpperCase(constant), name, ToUTF8(entry->second.GetDescription())});
  }
}

}  // namespace vek::scripting
