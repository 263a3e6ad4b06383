// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <list>
#include <vector>

#include "lumcore/Strings.h"
#include "lumcore/filesupport/File.h"
#include "lumui/ui/KeyboardCode.h"
#include "lumui/ui/ModifierKeys.h"
#include "vek/config/Export.h"
#include "vek/sharedui/CommandCache.h"
#include "vek/uisupport/KeyCommand.h"

namespace vek::sharedui {

class ShortcutEditorView;

// What the shortcut dialog does, without its window: the sets of shortcuts as files, and the edits
// of the mappings with one level of undo. All of it works on the live mappings of the
// KeyCommandManager, so an edit counts at once and Cancel puts a snapshot back.
//
// A set is the file "<name>.xml" in the folder "Shortcuts" of the preferences; the default set has
// none, and an edit of it is kept as "(Custom).xml" without ever having a name. Two flags tell what
// is in force: custom, an edit of the default set, and dirty, not as the file has it.
//
// Loading a set loses the mappings of contexts, and so does Cancel. Failures of files and of their
// reading reach the caller; the mappings, names and flags are then as they were.
class VEK_API ShortcutEditor {
 public:
  // What the last edit was, and undoing takes back.
  enum UndoKind : int {
    kNothing = 0,
    kNewKey = 1,
    kNewKeyTaken = 2,  // from another command
    kRemoved = 3,
    kReplaced = 4,
    kReplacedTaken = 5,
  };

  // Both are borrowed for the editor's life. Takes the snapshot; Open does the rest.
  ShortcutEditor(const lumcore::UTF16String& inCurrentSet, const lumcore::UTF8String& inDefaultKeys,
                 ShortcutEditorView& inView);
  ~ShortcutEditor();
  ShortcutEditor(const ShortcutEditor&) = delete;
  ShortcutEditor& operator=(const ShortcutEditor&) = delete;

  // Lists the sets and loads the current one.
  void Open();
  // After the user has chosen another one in the popup. Asks what becomes of an edit.
  void SetChosen();
  // True if a name was given and the set is saved.
  bool SaveAs();
  void DeleteSet();
  void Finish(bool inOK);
  // "(Custom)" for what has no file of its own name.
  lumcore::UTF16String GetCurrentShortcutSetName() const;

  // A key for a command: in the place of ioKey, or besides it if inIsNew says that this one holds
  // none yet. Takes the key from another command, with a warning, but refuses one that is
  // protected. True if the mappings have changed; ioKey then is the new one.
  bool AssignKey(uisupport::KeyCommand& ioKey, bool inIsNew, lumui::ui::KeyboardCode inCode,
                 lumui::ui::ModifierKeys inModifiers);
  // Plain mappings of one command. Those that are protected stay; false if nothing has changed. A
  // hold mapping of the same key stays as well.
  bool RemoveKey(const uisupport::KeyCommand& inKey);
  bool RemoveKeys(const std::vector<uisupport::KeyCommand>& inKeys);
  void Undo();
  bool CanUndo() const { return mUndoKind != kNothing; }
  // The command that has lost a key to the last edit; -1 for none.
  int GetGotoCommand() const { return mGotoCommand; }

  void SetFilter(const lumcore::UTF16String& inText, bool inMatchCase);
  bool HasFilter() const { return !mFilter.empty(); }
  bool IsShown(CommandCache& inCache) const;
  const CommandCaches& GetCaches() const { return mCaches; }

 private:
  using KeyCommand = uisupport::KeyCommand;

  void FillSets();
  void LoadCurrentSet(const lumcore::UTF8String& inBefore);
  void ShowSetState(int inIndex);
  bool SaveUnder(const lumcore::UTF16String& inName, bool inOverwrite);
  void SaveToCurrent(bool inDirtyIsCustom);
  lumcore::filesupport::File FileOf(const lumcore::UTF16String& inName) const;
  int IndexOfCurrentSet() const;

  void MarkEdited();
  void AddKey(const KeyCommand& inKey);
  void RemoveBoth(const KeyCommand& inKey);
  void RefreshCommand(int inCommand);

  lumcore::UTF8String mSnapshot;
  lumcore::UTF8String mDefaultKeys;
  lumcore::UTF16String mInitialSet;
  lumcore::UTF16String mCurrentSet;
  bool mCustom = false;
  bool mDirty = false;
  lumcore::UTF16String mShownSet;  // in the popup, where it is not the item's text
  lumcore::UTF16String mFilter;
  lumcore::UTF16String mFilterLower;
  int mUndoKind = kNothing;
  KeyCommand mOldKey;
  KeyCommand mNewKey;
  KeyCommand mDisplacedKey;
  std::list<KeyCommand> mRemovedKeys;
  int mGotoCommand = -1;
  CommandCaches mCaches;
  bool mMatchCase = false;
  std::vector<lumcore::UTF16String> mItems;
  ShortcutEditorView& mView;
};

}  // namespace vek::sharedui
