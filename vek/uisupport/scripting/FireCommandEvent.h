// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>

#include "lumcore/utility/RefCounted.h"
#include "vek/config/Export.h"

namespace vek::scripting {

inline constexpr char kCommandEventName[] = "CommandEvent";
inline constexpr char kInvokeCommandType[] = "Command.Invoke";

// Queues a CommandEvent for the scripts that listen at the object that inGetTarget gives, which is
// a lumscripting::ScriptObject or nothing comes of it. True when somebody listens there. Scripts
// can neither veto nor replace the command, and no failure of theirs, or of inGetTarget, comes
// back. For the user interface thread.
VEK_API bool FireCommandEvent(
    int inCommand,
    boost::function<boost::intrusive_ptr<lumcore::utility::RefCountedObject>()> inGetTarget);

}  // namespace vek::scripting
