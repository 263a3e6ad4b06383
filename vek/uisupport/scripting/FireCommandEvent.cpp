// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/scripting/FireCommandEvent.h"

#include <utility>

#include "lumcore/utility/StringUtils.h"
#include "lumscripting/events/QueueEvent.h"
#include "vek/uisupport/scripting/CommandEvent.h"

namespace vek::scripting {

bool FireCommandEvent(
    int inCommand,
    boost::function<boost::intrusive_ptr<lumcore::utility::RefCountedObject>()> inGetTarget) {
  static const lumcore::UTF16String sName = lumcore::utility::ToUTF16(kCommandEventName);
  static const lumcore::UTF16String sType = lumcore::utility::ToUTF16(kInvokeCommandType);
  return lumscripting::events::QueueEvent(
      sName, sType,
      [inCommand](lumscripting::ScriptEventObject& ioEvent) {
        dynamic_cast<CommandEvent&>(ioEvent).Fill(inCommand);
      },
      [getTarget = std::move(inGetTarget)] {
        return boost::dynamic_pointer_cast<lumscripting::ScriptObject>(getTarget());
      });
}

}  // namespace vek::scripting
