// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <utility>

#include "lumcore/filesupport/Dir.h"
#include "lumcore/utility/StringUtils.h"
#include "vek/sharedui/ShortcutEditor.h"
#include "vek/sharedui/ShortcutEditorView.h"
#include "vek/sharedui/src/ShortcutTexts.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace vek::sharedui {

using lumcore::UTF16String;
using lumcore::filesupport::Dir;
using lumcore::filesupport::File;
using lumcore::utility::ToUTF16;
using uisupport::KeyCommandManager;

namespace {

constexpr int kAllChanged = -1;

Dir SetsDir() {
  return Dir(Dir::PrefDir(), "Shortcuts");
}

lumcore::UTF8String LiveKeys() {
  lumcore::UTF8String bytes;
  KeyCommandManager::Get().SaveKeyMappingsToBuffer(bytes);
  return bytes;
}

// The names of the sets in the folder, in the order of the files.
std::vector<UTF16String> SetsIn(const Dir& inDir) {
  const UTF16String ending = ToUTF16(".xml");
  std::vector<UTF16String> names;
  for (const File& file : inDir.GetFiles()) {
    const UTF16String name = file.GetName();
    if (!EndsWith(name, ending)) continue;
    const UTF16String base = name.substr(0, name.size() - ending.size());
    if (!base.empty() && base != CustomSetName()) names.push_back(base);
  }
  return names;
}

}  // namespace

ShortcutEditor::ShortcutEditor(const UTF16String& inCurrentSet,
                               const lumcore::UTF8String& inDefaultKeys, ShortcutEditorView& inView)
    : mDefaultKeys(inDefaultKeys),
      mInitialSet(inCurrentSet),
      mCurrentSet(inCurrentSet),
      mCustom(inCurrentSet == CustomSetName()),
      mOldKey(0, lumui::ui::KeyboardCode(), lumui::ui::ModifierKeys(),
              lumui::ui::KeyboardEvent::kActionKeyDown, false, false),
      mNewKey(mOldKey),
      mDisplacedKey(mOldKey),
      mView(inView) {
  mSnapshot = LiveKeys();
}

ShortcutEditor::~ShortcutEditor() = default;

// Behind the path as text, so that a name that is no UTF-8 leads back to its file.
File ShortcutEditor::FileOf(const UTF16String& inName) const {
  return File(SetsDir().FullPath() + ToUTF16("/") + inName + ToUTF16(".xml"));
}

void ShortcutEditor::Open() {
  FillSets();
}

// A load that fails leaves no mappings at all, which the next save would write.
void ShortcutEditor::LoadCurrentSet(const lumcore::UTF8String& inBefore) {
  KeyCommandManager& manager = KeyCommandManager::Get();
  const File custom = FileOf(CustomSetName());
  try {
    if (IndexOfCurrentSet() > 0) {
      manager.LoadKeyMappings(FileOf(mCurrentSet));
    } else if (mCustom && custom.Exists()) {
      manager.LoadKeyMappings(custom);
    } else {
      mCustom = false;
      manager.LoadKeyMappingsFromBuffer(mDefaultKeys);
    }
  } catch (...) {
    manager.LoadKeyMappingsFromBuffer(inBefore);
    throw;
  }
}

int ShortcutEditor::IndexOfCurrentSet() const {
  for (std::size_t i = 1; i < mItems.size(); ++i) {
    if (mItems[i] == mCurrentSet) return static_cast<int>(i);
  }
  return 0;
}

// Nothing is shown before the set is read, which may fail.
void ShortcutEditor::FillSets() {
  const Dir dir = SetsDir();
  if (!dir.Exists()) dir.Create();
  std::vector<UTF16String> items = {LocalizedText(ShortcutText::kDefaultSet)};
  for (UTF16String& name : SetsIn(dir))
    items.push_back(std::move(name));
  // Nothing has been edited when the dialog opens.
  const lumcore::UTF8String before = mItems.empty() ? mSnapshot : LiveKeys();
  mItems.swap(items);
  LoadCurrentSet(before);
  mView.SetSetItems(mItems);
  ShowSetState(IndexOfCurrentSet());
  mCaches.RefreshAll();
  mView.AllCommandsChanged();
  mView.UpdateButtons();
}

void ShortcutEditor::ShowSetState(int inIndex) {
  mShownSet.clear();
  mView.ChooseSet(mCustom ? -1 : inIndex);
  if (mCustom) {
    mShownSet = LocalizedText(ShortcutText::kCustom);
  } else if (mDirty) {
    mShownSet = mItems[static_cast<std::size_t>(inIndex)] + DirtyMark();
  }
  if (!mShownSet.empty()) mView.ShowSetText(mShownSet);
}

void ShortcutEditor::SetChosen() {
  const int chosen = mView.GetSetIndex();
  if (chosen < 0 || chosen >= static_cast<int>(mItems.size())) return;
  if (mDirty || mCustom) {
    using Answer = ShortcutEditorView::Answer;
    Answer answer = mView.Ask(LocalizedText(ShortcutText::kSaveSet), true);
    if (answer == Answer::kYes && !mCurrentSet.empty() && !mCustom) {
      SaveToCurrent(false);
    } else if (answer == Answer::kYes && !SaveAs()) {
      answer = Answer::kCancel;
    }
    if (answer == Answer::kCancel) return ShowSetState(IndexOfCurrentSet());
  }
  const bool custom = std::exchange(mCustom, false);
  const bool dirty = std::exchange(mDirty, false);
  // Saving under a name fills the popup anew and chooses that set, which is the one to go on with.
  const int shown = mView.GetSetIndex();
  const UTF16String name = shown > 0 ? mItems[static_cast<std::size_t>(shown)] : UTF16String();
  const UTF16String before = std::exchange(mCurrentSet, name);
  mGotoCommand = -1;
  try {
    FillSets();
  } catch (...) {
    mCustom = custom;
    mDirty = dirty;
    mCurrentSet = before;
    mView.SetSetItems(mItems);
    ShowSetState(IndexOfCurrentSet());
    throw;
  }
  mView.RebuildField();
}

bool ShortcutEditor::SaveAs() {
  UTF16String name =
      !mCurrentSet.empty() && !mCustom ? mCurrentSet : LocalizedText(ShortcutText::kProposedName);
  if (EndsWith(name, DirtyMark())) name.resize(name.size() - DirtyMark().size());
  while (mView.AskName(name)) {
    if (IsPermittedSetName(name)) return SaveUnder(name, false);
    mView.Tell(LocalizedText(ShortcutText::kNotPermitted, {name}));
  }
  return false;
}

bool ShortcutEditor::SaveUnder(const UTF16String& inName, bool inOverwrite) {
  const Dir dir = SetsDir();
  if (!dir.Exists()) dir.Create();
  const File file = FileOf(inName);
  if (!inOverwrite && file.Exists()) {
    const auto answer = mView.Ask(LocalizedText(ShortcutText::kReplaceSet), false);
    return answer == ShortcutEditorView::Answer::kYes && SaveUnder(inName, true);
  }
  KeyCommandManager::Get().SaveKeyMappings(file);
  mCurrentSet = inName;
  mCustom = false;
  mDirty = false;
  FillSets();
  return true;
}

void ShortcutEditor::SaveToCurrent(bool inDirtyIsCustom) {
  const bool custom = mCustom || (mDirty && inDirtyIsCustom);
  KeyCommandManager::Get().SaveKeyMappings(FileOf(custom ? CustomSetName() : mCurrentSet));
  KeyCommandManager::Get().NotifyOfKeyMappingsChanged(kAllChanged);
}

void ShortcutEditor::DeleteSet() {
  const auto answer = mView.Ask(LocalizedText(ShortcutText::kDeleteSet), false);
  if (answer != ShortcutEditorView::Answer::kYes) return;
  const File file = FileOf(mCurrentSet);
  if (SetsDir().Exists() && file.Exists()) file.Remove();
  mCurrentSet.clear();
  mDirty = false;
  FillSets();
}

void ShortcutEditor::Finish(bool inOK) {
  if (inOK) {
    if (mView.GetSetIndex() == 0) return;
    SaveToCurrent(false);
    mDirty = false;
    return;
  }
  KeyCommandManager::Get().LoadKeyMappingsFromBuffer(mSnapshot);
  mCurrentSet = mInitialSet;
  // The snapshot is of the set that was there at the start, whatever has been chosen since.
  mCustom = mInitialSet == CustomSetName();
  if (!mCurrentSet.empty()) SaveToCurrent(false);
}

UTF16String ShortcutEditor::GetCurrentShortcutSetName() const {
  return mCustom || mDirty ? CustomSetName() : mCurrentSet;
}

}  // namespace vek::sharedui
