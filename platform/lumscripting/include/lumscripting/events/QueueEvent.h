// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>

#include "lumcore/Strings.h"
#include "lumscripting/Export.h"
#include "lumscripting/ScriptEventObject.h"
#include "lumscripting/ScriptObject.h"

namespace lumscripting::events {

// Runs on the script thread and is destroyed on either: what it needs of the host it gets by
// threads::DirectVoidCallOnUIThread, and it holds no counted object.
using FillFunction = boost::function<void(ScriptEventObject&)>;
using TargetFunction = boost::function<boost::intrusive_ptr<ScriptObject>()>;

// Queues an event behind the scripts and events that wait already. It is delivered later, to the
// listeners of its type that scripts have added at the target, in the order in which they were
// added. True when some script listens there; else nothing is queued, and where no script listens
// to the type at all the target function is not even called. It is called at once, here. What it
// throws goes to the failure functions of the runners, as does what the fill function and the
// listeners throw; none of that reaches the caller.
//
// For the user interface thread.
LUMSCRIPTING_API bool QueueEvent(const lumcore::UTF16String& inEventObjectName,
                                 const lumcore::UTF16String& inType, const FillFunction& inFill,
                                 const TargetFunction& inGetTarget);

}  // namespace lumscripting::events
