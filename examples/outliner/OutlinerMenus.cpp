// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlinerMenus.h"

#include <algorithm>
#include <string>

#include "CommandList.h"
#include "OutlinerCommands.h"
#include "Texts.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/OS_Menu.h"
#include "vek/uisupport/PlatformMenu.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;
using namespace vek::uisupport;

namespace {

constexpr std::size_t kWorkspaceMenu = 3;  // in the bar

constexpr int kSeparator = 0;
constexpr int kRecentFilesHere = -1;
constexpr int kDocumentsHere = -2;
constexpr int kBrightnessHere = -3;
constexpr int kMapHere = -4;

// Nobody answers for it, so that it is disabled: the line of an empty list.
constexpr unsigned kNothing = kRecentFilesEnd;

using Items = std::vector<int>;

const Items& FileItems() {
  static const Items sItems = {
      kCommandNew,      kCommandOpen, kRecentFilesHere,      kSeparator, kCommandSave,
      kCommandSaveAs,   kSeparator,   kCommandOwnFileDialog, kSeparator, kCommandClose,
      kCommandCloseAll, kSeparator,   kCommandQuit};
  return sItems;
}

const Items& EditItems() {
  static const Items sItems = {
      kCommandUndo,      kCommandRedo,         kSeparator,     kCommandNewSibling,
      kCommandNewChild,  kCommandEditText,     kCommandDelete, kSeparator,
      kCommandIndent,    kCommandOutdent,      kCommandMoveUp, kCommandMoveDown,
      kSeparator,        kCommandSelectAll,    kSeparator,     kCommandFindText,
      kCommandFindNext,  kCommandFindPrevious, kCommandFind,   kSeparator,
      kCommandShortcuts, kCommandKeyboardMap};
  return sItems;
}

const Items& RowItems() {
  static const Items sItems = {kCommandEditText, kCommandNewSibling, kCommandNewChild,
                               kCommandDelete,   kSeparator,         kCommandIndent,
                               kCommandOutdent,  kCommandMoveUp,     kCommandMoveDown};
  return sItems;
}

const Items& ViewItems() {
  static const Items sItems = {kCommandShowOutline,
                               kCommandShowNotes,
                               kCommandShowCommands,
                               kCommandShowMap,
                               kMapHere,
                               kCommandShowProperties,
                               kCommandShowHistory,
                               kCommandShowSearch,
                               kCommandShowFiles,
                               kCommandShowConsole,
                               kCommandShowNodes,
                               kSeparator,
                               kCommandExpandAll,
                               kCommandCollapseAll,
                               kCommandOutlineOrder,
                               kSeparator,
                               kCommandNextDocument,
                               kCommandPreviousDocument,
                               kDocumentsHere,
                               kSeparator,
                               kBrightnessHere};
  return sItems;
}

const Items& WorkspaceItems() {
  static const Items sItems = {
      kCommandWorkspaceSave, kCommandWorkspaceRevert, kCommandWorkspaceReset, kSeparator,
      kCommandWorkspaceNew,  kCommandWorkspaceDelete, kCommandWorkspaceEdit};
  return sItems;
}

// In a menu one "&" marks a letter, and two are one to be read.
UTF16String Escaped(const UTF16String& inText) {
  UTF16String text;
  for (const unsigned short unit : inText)
    text.append(unit == '&' ? 2 : 1, unit);
  return text;
}

UTF16String NameOf(int inCommand) {
  return Escaped(TitleOfCommand(inCommand));
}

void Clear(HMENU inMenu) {
  while (GetItemCount(inMenu) > 0)
    RemoveItem(inMenu, 0);
}

// Where the letter for the keyboard stands: the first that no other item has, those at the front of
// a word before others. The end for none.
std::size_t FindMnemonic(const UTF16String& inText, const UTF16String& inTaken) {
  const UTF16String folded = lumcore::utility::FoldCase(inText);
  if (folded.size() != inText.size()) return inText.size();
  const auto isFree = [&](std::size_t inAt) {
    const unsigned short unit = folded[inAt];
    const bool isLetter = (unit >= 'a' && unit <= 'z') || (unit >= '0' && unit <= '9') ||
                          (unit >= 0xC0 && unit < 0xD800);
    return isLetter && inTaken.find(unit) == UTF16String::npos;
  };
  for (std::size_t at = 0; at < inText.size(); ++at) {
    if ((at == 0 || inText[at - 1] == ' ') && isFree(at)) return at;
  }
  std::size_t at = 0;
  while (at < inText.size() && !isFree(at))
    ++at;
  return at;
}

UTF16String WithoutMnemonic(const UTF16String& inText) {
  UTF16String text;
  for (std::size_t at = 0; at < inText.size(); ++at) {
    if (inText[at] == '&' && at + 1 < inText.size()) {
      if (inText[at + 1] == '&') text += inText.substr(at, 2), ++at;
      continue;
    }
    text += inText[at];
  }
  return text;
}

}  // namespace

OutlinerMenus::OutlinerMenus() : mRowMenu(CreatePlatformMenu(true)) {
  for (const int command : RowItems()) {
    if (command == kSeparator) {
      AppendSeparator(mRowMenu, 0);
    } else {
      AppendItem(mRowMenu, NameOf(command), static_cast<unsigned>(command), false);
    }
  }
}

OutlinerMenus::~OutlinerMenus() {
  DestroyPlatformMenu(mRowMenu);
}

void OutlinerMenus::AddBrightness(HMENU inMenu) {
  const HMENU menu = AppendSubMenu(inMenu, Localized("$$$/outliner/Menu/Brightness=Brightness"), 0);
  for (int command = kCommandDarkest; command <= kCommandLightest; ++command)
    AppendItem(menu, NameOf(command), static_cast<unsigned>(command), true);
}

void OutlinerMenus::AddMap(HMENU inMenu) {
  const HMENU menu = AppendSubMenu(inMenu, Localized("$$$/outliner/Menu/Map=Map Tools"), 0);
  for (int command = kCommandMapSelect; command <= kCommandMapGoToRow; ++command) {
    if (command == kCommandMapZoomIn || command == kCommandMapGoToRow) AppendSeparator(menu, 0);
    AppendItem(menu, NameOf(command), static_cast<unsigned>(command), command < kCommandMapZoomIn);
  }
}

void OutlinerMenus::Build(HMENU inBar) {
  const struct {
    UTF16String title;
    Items items;
  } menus[] = {{Localized("$$$/outliner/Menu/File=File"), FileItems()},
               {Localized("$$$/outliner/Menu/Edit=Edit"), EditItems()},
               {Localized("$$$/outliner/Menu/View=View"), ViewItems()},
               {Localized("$$$/outliner/Menu/Workspace=Workspace"), WorkspaceItems()},
               {Localized("$$$/outliner/Menu/Help=Help"), {kCommandAbout}}};
  for (const auto& entry : menus) {
    const HMENU menu = AppendSubMenu(inBar, entry.title, 0);
    for (const int item : entry.items) {
      if (item == kSeparator) {
        AppendSeparator(menu, 0);
      } else if (item == kRecentFilesHere) {
        mRecentFiles = AppendSubMenu(menu, Localized("$$$/outliner/Menu/Recent=Open Recent"), 0);
      } else if (item == kDocumentsHere) {
        mDocuments = AppendSubMenu(menu, Localized("$$$/outliner/Menu/Documents=Documents"), 0);
      } else if (item == kMapHere) {
        AddMap(menu);
      } else if (item == kBrightnessHere) {
        AddBrightness(menu);
      } else {
        AppendItem(menu, NameOf(item), static_cast<unsigned>(item), false);
      }
    }
    if (&entry == &menus[kWorkspaceMenu]) mWorkspaces = menu;
    SetMnemonics(menu);
  }
  SetMnemonics(inBar);
}

void OutlinerMenus::ListRecentFiles(HMENU inMenu, const std::vector<UTF16String>& inPaths) const {
  if (inMenu != mRecentFiles) return;
  Clear(inMenu);
  unsigned command = kRecentFilesBegin;
  for (const UTF16String& path : inPaths) {
    if (command == kRecentFilesEnd) break;
    const auto number = ToUTF16(std::to_string(command - kRecentFilesBegin + 1) + "  ");
    AppendItem(inMenu, number + Escaped(path), command++, false);
  }
  if (inPaths.empty()) {
    AppendItem(inMenu, Localized("$$$/outliner/Menu/NoRecent=No files yet"), kNothing, false);
  }
}

void OutlinerMenus::ListDocuments(HMENU inMenu, const std::vector<UTF16String>& inTitles) const {
  if (inMenu != mDocuments) return;
  Clear(inMenu);
  unsigned command = kDocumentsBegin;
  for (const UTF16String& title : inTitles) {
    if (command == kDocumentsEnd) break;
    const auto number = ToUTF16(std::to_string(command - kDocumentsBegin + 1) + "  ");
    AppendItem(inMenu, number + Escaped(title), command++, true);
  }
  if (inTitles.empty()) {
    AppendItem(inMenu, Localized("$$$/outliner/Menu/NoDocuments=No outline is open"), kNothing,
               false);
  }
}

void OutlinerMenus::SetMnemonics(HMENU inMenu) {
  UTF16String taken;
  const unsigned count = GetItemCount(inMenu);
  for (unsigned at = 0; at < count && count != lumui::ui::kMenuFailed; ++at) {
    UTF16String text;
    unsigned id = 0;
    GetItem(inMenu, at, text, id);
    if (text.empty()) continue;
    const std::size_t tab = std::min(text.find('\t'), text.size());
    UTF16String title = WithoutMnemonic(text.substr(0, tab));
    const std::size_t place = FindMnemonic(title, taken);
    if (place < title.size()) {
      taken += lumcore::utility::FoldCase(title.substr(place, 1));
      title.insert(place, 1, '&');
    }
    SetItemTitle(inMenu, at, title + text.substr(tab));
  }
}

void OutlinerMenus::OpenRowMenu(lumui::ui::OS_Window& inWindow,
                                const lumcore::geom::PointT<int>& inPlace) const {
  lumui::ui::OS_Menu::PopUp(mRowMenu, inWindow, inPlace);
}

}  // namespace outliner
