// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>
#include <map>
#include <utility>

#include "lumui/utility/ksv/IDelegateInterface.h"
#include "vek/config/Export.h"

namespace lumui::ui {
class UI_Node;
}

namespace vek::sharedui {

// The commands of the registry and the keys of the KeyCommandManager, for a keyboard view. Every
// edit changes the live key map at once and is told through NotifyOfKeyMappingsChanged(-1); whoever
// wants to keep it saves the map then. Keys of contexts are neither shown nor touched.
//
// A key has a plain mapping and, for a repeatable command, a hold one beside it, as in the shortcut
// dialog; both go and come together here.
class VEK_API KSVDelegate : public lumui::utility::ksv::IDelegateInterface {
 public:
  using Command = lumui::utility::ksv::Command;
  using KeyUse = lumui::utility::ksv::KeyUse;

  // Where the questions stand: a node in the window that they belong to, borrowed; null for none.
  explicit KSVDelegate(lumui::ui::UI_Node* inQuestionParent = nullptr);
  ~KSVDelegate() override;
  KSVDelegate(const KSVDelegate&) = delete;
  KSVDelegate& operator=(const KSVDelegate&) = delete;

  void SetQuestionParent(lumui::ui::UI_Node* inParent) { mQuestionParent = inParent; }

  // All registered commands. The category is the display name up to the first '.', unless that is
  // one of "Open..."; a command without a category goes by its display name, or by its name.
  std::vector<Command> GetCommands() const override;
  KeyUse GetUse(lumui::ui::KeyboardCode inCode, lumui::ui::ModifierKeys inModifiers) const override;
  lumcore::UTF16String GetKeyText(lumui::ui::KeyboardCode inCode,
                                  lumui::ui::ModifierKeys inModifiers) const override;
  lumcore::UTF16String GetKeyTextOf(int inCommand) const override;

  // A key that is protected is refused with a message. One that other commands have is taken from
  // them if the user says so. The command is registered (a contract).
  bool Assign(int inCommand, lumui::ui::KeyboardCode inCode,
              lumui::ui::ModifierKeys inModifiers) override;
  bool Remove(lumui::ui::KeyboardCode inCode, lumui::ui::ModifierKeys inModifiers) override;

  void SetChangedFunction(const boost::function<void()>& inFunction) override;

 private:
  // A key as the map tells keys apart: the extended form of one that is no character is the plain
  // one.
  using Key = std::pair<std::uint32_t, unsigned char>;

  static Key KeyOf(lumui::ui::KeyboardCode inCode, lumui::ui::ModifierKeys inModifiers);
  bool MayTake(const std::vector<int>& inHolders, int inCommand, const Key& inKey,
               const lumcore::UTF16String& inKeyText);
  void ReadKeys();
  void KeysChanged();
  void RemoveBoth(int inCommand, const Key& inKey);
  static void Tell();

  lumui::ui::UI_Node* mQuestionParent;
  std::map<Key, KeyUse> mUses;
  boost::function<void()> mChanged;
  boost::shared_ptr<boost::function<void(int)>> mMappingsChanged;
};

}  // namespace vek::sharedui
