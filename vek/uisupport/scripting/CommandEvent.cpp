// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/scripting/CommandEvent.h"

#include <memory>
#include <optional>

#include "lumcore/utility/StringUtils.h"
#include "lumscripting/threads/DirectCall.h"
#include "vek/uisupport/CommandRegistry.h"
#include "vek/uisupport/scripting/FireCommandEvent.h"

namespace vek::scripting {

namespace {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;
using lumcore::utility::ToUTF8;
using lumscripting::ScriptType;
using uisupport::CommandRegistry;
using uisupport::RegisteredCommand;

}  // namespace

CommandEvent::CommandEvent() = default;

CommandEvent::~CommandEvent() = default;

lumscripting::ScriptDefinition CommandEvent::MakeDefinition() {
  lumscripting::ScriptDefinition definition;
  definition.name = ToUTF16(kCommandEventName);
  definition.description = ToUTF8("Command event object");
  definition.properties = {
      {ToUTF16("name"), ScriptType::kString, ToUTF8("Name of the command.")},
      {ToUTF16("title"), ScriptType::kString, ToUTF8("Title of the command.")},
      {ToUTF16("description"), ScriptType::kString, ToUTF8("Description of the command.")}};
  definition.constants = {{ToUTF16("EVENT_INVOKE_COMMAND"), ToUTF16(kInvokeCommandType),
                           ToUTF8("A command is about to be invoked")}};
  return definition;
}

// The call owns where it writes: were it given up, it might still run when this event is gone.
void CommandEvent::Fill(int inCommand) {
  const auto found = std::make_shared<std::optional<RegisteredCommand>>();
  lumscripting::threads::DirectVoidCallOnUIThread([inCommand, found] {
    const CommandRegistry& registry = CommandRegistry::Get();
    const auto entry = registry.FindCommandByID(inCommand);
    if (entry != registry.RegistryEnd()) *found = entry->second;
  });
  if (!*found) return;
  mName = (*found)->GetName();
  mTitle = (*found)->GetDisplayName();
  mDescription = (*found)->GetDescription();
}

lumscripting::ScriptValue CommandEvent::DoGetProperty(const UTF16String& inName) const {
  if (inName == ToUTF16("name")) return mName;
  if (inName == ToUTF16("title")) return mTitle;
  return mDescription;
}

}  // namespace vek::scripting
