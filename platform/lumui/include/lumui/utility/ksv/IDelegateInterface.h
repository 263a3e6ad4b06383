// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <vector>

#include "lumcore/Strings.h"
#include "lumui/Export.h"
#include "lumui/ui/KeyboardCode.h"
#include "lumui/ui/ModifierKeys.h"

namespace lumui::utility::ksv {

// What may be done by a key. The id is never 0.
struct Command {
  int id = 0;
  lumcore::UTF16String category;  // empty for a command that stands alone
  lumcore::UTF16String name;
  lumcore::UTF16String description;
};

// What a key with its modifiers does.
struct KeyUse {
  int command = 0;  // 0 for nothing
  bool isProtected = false;
};

// Who keeps the commands and the keys that a keyboard view shows and edits. The view borrows it and
// asks it on the thread of the user interface; it remembers nothing that it was told longer than
// until the next change.
class LUMUI_API IDelegateInterface {
 public:
  virtual ~IDelegateInterface();

  // In the order in which lists show them: by category, then by name.
  virtual std::vector<Command> GetCommands() const = 0;
  virtual KeyUse GetUse(ui::KeyboardCode inCode, ui::ModifierKeys inModifiers) const = 0;
  // As menus show it: "Ctrl+S". Of a command, all its keys, joined by ", ".
  virtual lumcore::UTF16String GetKeyText(ui::KeyboardCode inCode,
                                          ui::ModifierKeys inModifiers) const = 0;
  virtual lumcore::UTF16String GetKeyTextOf(int inCommand) const = 0;

  // Each may ask the user or tell why not, and returns whether anything has changed; then the
  // changed function has been called.
  virtual bool Assign(int inCommand, ui::KeyboardCode inCode, ui::ModifierKeys inModifiers) = 0;
  virtual bool Remove(ui::KeyboardCode inCode, ui::ModifierKeys inModifiers) = 0;

  // Called after each change of the keys, whoever made it. Empty for none.
  virtual void SetChangedFunction(const boost::function<void()>& inFunction) = 0;

 protected:
  IDelegateInterface() = default;
  IDelegateInterface(const IDelegateInterface&) = default;
  IDelegateInterface& operator=(const IDelegateInterface&) = default;
};

}  // namespace lumui::utility::ksv
