// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include "lumcore/Strings.h"
#include "vek/config/Export.h"

namespace vek::uisupport {

// The root of the command chain: it decides who executes a command, which is an int that means
// nothing here, and who answers for its state in menus. There is one current handler and one
// default handler for the process, and three walks start there: execute, ask for enablement, end a
// held command. The current handler is asked first, then the default one, also where it stood on
// the current chain already: such a handler is asked twice, and hosts count on it.
//
// Handlers are owned by nobody here; one that dies while it is current or default leaves null
// behind and tells no one. All of it is for the user interface thread.
class VEK_API CommandHandlerBase {
 public:
  using HandlerChangeFunction = boost::function<void(CommandHandlerBase*)>;

  // Not forced, a handler on the current chain already leaves the current handler alone.
  virtual void SetAsCurrentCommandHandler(bool inForce) = 0;
  virtual ~CommandHandlerBase();
  CommandHandlerBase(const CommandHandlerBase&) = delete;
  CommandHandlerBase& operator=(const CommandHandlerBase&) = delete;

  // True when somebody took the command. What a handler throws reaches the caller.
  static bool CallCommandChain(int inCommand);
  // True when somebody answered for the command; else the three mean nothing. The caller passes
  // false, false and no text. ioTitle replaces the text of the menu item where it is not empty.
  static bool CallEnablementChain(int inCommand, bool& ioEnabled, bool& ioChecked,
                                  lumcore::UTF16String& ioTitle);
  // A held key has been released.
  static bool CallEndHoldCommand(int inCommand);

  // The same walks from this handler on, whatever the current one is, and without the default one.
  bool CallMyCommandChain(int inCommand);
  bool CallMyEnablementChain(int inCommand, bool& ioEnabled, bool& ioChecked,
                             lumcore::UTF16String& ioTitle);
  bool CallMyEndHoldCommand(int inCommand);

  static CommandHandlerBase* GetCurrentCommandHandler();
  // The old one loses focus, the new one gains it, then the callbacks hear of it. The current
  // handler set again loses and gains focus, and no callback hears of it.
  static void SetCurrentCommandHandler(CommandHandlerBase* inHandler);
  static CommandHandlerBase* GetDefaultCommandHandler();
  static void SetDefaultCommandHandler(CommandHandlerBase* inHandler);
  bool IsCurrentCommandHandler() const;

  // Called with the new current handler, which may be null. There is no removal: a subscriber
  // clears the function that it holds.
  static void NotifyWhenCurrHandlerChanges(boost::shared_ptr<HandlerChangeFunction> inCallback);

  // No current and no default handler and no callbacks, as at start; nobody is told. For tests.
  static void ResetCommandChain();

  // A name that key maps may bind keys to. Empty for none.
  const lumcore::UTF8String& GetCommandContext() { return DoGetCommandContext(); }
  bool HasCommandContext() { return !DoGetCommandContext().empty(); }

 protected:
  CommandHandlerBase();

  static void NotifyCurrHandlerChanged();
  void DoSetAsCurrentCommandHandler();
  void GainedCommandFocus() { DoGainedCommandFocus(); }
  void LostCommandFocus() { DoLostCommandFocus(); }

  virtual bool DoCallMyCommandChain(int inCommand) = 0;
  virtual bool DoCallMyEnablementChain(int inCommand, bool& ioEnabled, bool& ioChecked,
                                       lumcore::UTF16String& ioTitle) = 0;
  virtual bool DoCallEndHoldCommand(int inCommand) = 0;
  // The default is one empty text that lives for the process.
  virtual const lumcore::UTF8String& DoGetCommandContext();
  virtual void DoLostCommandFocus();
  virtual void DoGainedCommandFocus();
};

}  // namespace vek::uisupport
