// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// What docs/scripts.md shows of a host.

#include <exception>
#include <string>

#include "lumcore/filesupport/File.h"
#include "lumcore/utility/StringUtils.h"
#include "lumscripting/ScriptRegistry.h"
#include "lumscripting/ScriptRunner.h"
#include "vek/uisupport/CommandHandler.h"

namespace samples {

using lumcore::filesupport::File;
using lumcore::utility::ToUTF16;
using lumcore::utility::ToUTF8;
using lumscripting::ScriptObject;
using lumscripting::ScriptRegistry;
using lumscripting::ScriptValue;

class Window;
void Report(const std::exception_ptr& inFailure);

class OutlineObject : public ScriptObject {
 public:
  explicit OutlineObject(Window& inWindow);
};

void Run(lumscripting::ScriptRunner& runner, const std::string& path) {
  runner.RunFile(File(path), [](const ScriptValue& /*value*/, std::exception_ptr inFailure) {
    if (inFailure) Report(inFailure);  // a FileError, or a ScriptError "path:line: what is wrong"
  });
  runner.SetFailureFunction(
      &Report);          // what listeners throw; else the application's error function
  runner.StopRunning();  // a script, or a listener, that takes too long
}

void LetScriptsHear(vek::uisupport::CommandHandler& handler, lumscripting::ScriptRunner& runner) {
  handler.EnableScriptEvents([&runner] { return runner.FindObject(ToUTF16("Command")); });
}

void Register(Window& window) {
  ScriptRegistry::Get().RegisterObject(ToUTF16("Outline"), ToUTF8("The open outline"), [&window] {
    return boost::intrusive_ptr<ScriptObject>(new OutlineObject(window));
  });
}

}  // namespace samples
