// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>
#include <list>

#include "lumcore/Strings.h"
#include "lumcore/utility/CallbackList.h"
#include "lumui/ui/KeyboardCode.h"
#include "lumui/ui/KeyboardEvent.h"
#include "vek/config/Export.h"
#include "vek/uisupport/KeyCommand.h"

namespace lumcore::filesupport {
class File;
}

namespace vek::uisupport {

class CommandHandlerBase;

// Turns key events into commands. It holds the mappings of the process: a global list, and a list
// for each context that a command handler may name; and it runs what they map a key to through the
// command chain. Within a list one key means one command: adding a mapping takes the key from an
// older one and appends. When routing, the first mapping that matches counts; for what menus show,
// the last.
//
// While the auto-repeat of a hold mapping runs its command again and again, the manager knows what
// is held, and the next key up tells the chain that it is over. Mappings that are replaced or
// removed stay alive, so that pointers from GetShortcutList do; only a load destroys mappings.
// Nobody is told of a change but by who makes it, through NotifyOfKeyMappingsChanged.
class VEK_API KeyCommandManager {
 public:
  using Modifiers = KeyCommand::Modifiers;
  using Action = KeyCommand::Action;
  using MappingsChangedFunction = boost::function<void(int)>;

  // Until this has been called, no event means a command.
  static void Init();
  static KeyCommandManager& Get();
  // Back to the state before Init, with another instance. For tests.
  static void Reset();
  ~KeyCommandManager();
  KeyCommandManager(const KeyCommandManager&) = delete;
  KeyCommandManager& operator=(const KeyCommandManager&) = delete;

  // A null context is for global mappings. A key is the same with the same code, type, modifiers
  // and repeat flag.
  void AddKeyMapping(const int& inCommand, lumui::ui::KeyboardCode inCode, Modifiers inModifiers,
                     Action inKeyType, const unsigned char* inContext, bool inRepeat,
                     bool inIsProtected);
  // Removes the mapping of this key if it is this command's, protected or not.
  void RemoveKeyMapping(const int& inCommand, lumui::ui::KeyboardCode inCode, Modifiers inModifiers,
                        Action inKeyType, const unsigned char* inContext, bool inRepeat,
                        bool inIsProtected);

  // The last global mapping of a command. False when there is none, and then the other arguments
  // stay as they are.
  bool GetShortcut(int inCommand, lumui::ui::KeyboardCode& outCode, Modifiers& outModifiers) const;
  bool GetShortcutString(int inCommand, lumcore::UTF16String& outText) const;
  // All global mappings of a command, borrowed until the next load.
  void GetShortcutList(int inCommand, std::list<KeyCommand*>& outMappings) const;
  // Of all commands, in the order in which routing looks through them.
  const KeyCommandList& GetGlobalMappings() const { return mGlobalMappings; }
  // "Ctrl+Alt+Page Up". Empty, without modifiers too, for a key without a name.
  static lumcore::UTF16String GetShortcutString(lumui::ui::KeyboardCode inCode,
                                                Modifiers inModifiers);

  // The command of the first global mapping of a key down, else 0. A key up ends a hold, whichever
  // key it is, and outEndedHold tells.
  int GetCommandIdFromKeyEvent(const lumui::ui::KeyboardEvent& inEvent, bool& outEndedHold);
  // True when the event is consumed. A mapping in the context of the current handler (or the
  // default one, where none is current) goes before a global one. A command that is known and
  // disabled consumes its key; one that nobody in the chain knows leaves it to the next.
  bool RouteKeyEvent(const lumui::ui::KeyboardEvent& inEvent);
  // Whether RouteKeyEvent would find a mapping for a key down, without asking the chain for its
  // command. For who must tell beforehand whether a key is claimed.
  bool HasMappingFor(const lumui::ui::KeyboardEvent& inEvent) const;
  void RouteEndHoldCommand();
  bool IsHandlingHoldCommand() const { return mHandlingHold; }

  void AddKeyMappingsChangedCallback(const boost::shared_ptr<MappingsChangedFunction>& inCallback);
  void RemoveKeyMappingsChangedCallback(
      const boost::shared_ptr<MappingsChangedFunction>& inCallback);
  // The meaning of the number is between who notifies and who listens.
  void NotifyOfKeyMappingsChanged(int inChange) const;

  // A load replaces all mappings. Throws what reading and parsing throw, a missing file included,
  // and then there are no mappings. The registry has to know the commands already.
  void LoadKeyMappings(const lumcore::filesupport::File& inFile);
  // An empty buffer gives no mappings.
  void LoadKeyMappingsFromBuffer(const lumcore::UTF8String& inBytes);
  // Writes the global mappings whose commands the registry knows; those of contexts are not
  // written. The file is deleted, created and written; after a throw of FileError the old one is
  // back.
  void SaveKeyMappings(const lumcore::filesupport::File& inFile) const;
  void SaveKeyMappingsToBuffer(lumcore::UTF8String& outBytes) const;

 private:
  KeyCommandManager();
  KeyCommandList& GetList(const unsigned char* inContext);
  void Unlink(KeyCommandList& ioList, KeyCommandList::iterator inMapping);
  const KeyCommand* FindInContext(CommandHandlerBase& ioHandler,
                                  const lumui::ui::KeyboardEvent& inEvent) const;
  bool RunIfKnown(int inCommand, bool inRepeat);
  void ClearMappings();
  template <class Read>
  void Load(Read inRead);

  KeyCommandContexts mContextMappings;  // owned
  KeyCommandList mGlobalMappings;       // owned
  bool mHandlingHold = false;
  int mHeldCommand = 0;
  CommandHandlerBase* mHoldHandler = nullptr;  // null asks the whole chain
  mutable lumcore::utility::CallbackList<int> mMappingsChanged;
  KeyCommandList mUnlinked;  // owned
};

}  // namespace vek::uisupport
