// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/sharedui/WorkspaceSwitcher.h"

#include <QPointer>
#include <algorithm>
#include <utility>

#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/OS_Menu.h"
#include "lumworkspace/workspace/ManagerBase.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "sharedui/SwitcherTabs.h"
#include "ui/WindowPeer.h"
#include "workspace/MenuText.h"

namespace lumworkspace::sharedui {

using lumcore::UTF16String;
using lumcore::UTF8String;
using lumui::ui::OS_Menu;

namespace {

// In front of each name in the text that is kept, which has a line for each.
constexpr unsigned char kShownMark = '+';
constexpr unsigned char kHiddenMark = '-';
constexpr unsigned char kLineEnd = '\n';

// The ids of the system's own menu items: an application asks no command about the state of these.
constexpr unsigned kFirstItem = 61440;
constexpr std::size_t kMostItems = 384;

template <class Entries>
auto Find(Entries& ioEntries, const UTF16String& inName) {
  return std::find_if(ioEntries.begin(), ioEntries.end(),
                      [&](const auto& inEntry) { return inEntry.name == inName; });
}

}  // namespace

class WorkspaceSwitcher::Bar {
 public:
  explicit Bar(WorkspaceSwitcher& ioSwitcher)
      : mTabs(new SwitcherTabs({
            [&ioSwitcher](const UTF16String& inName) { ioSwitcher.Apply(inName); },
            [&ioSwitcher](const std::vector<UTF16String>& inNames) {
              ioSwitcher.KeepPlaces(inNames);
            },
            [&ioSwitcher](const auto& inPoint) { ioSwitcher.ChooseShown(inPoint); },
        })),
        mWindow(static_cast<lumui::ui::WindowPeer&>(*ioSwitcher.mWindow->GetPeer())) {
    mWindow.SetBarCorner(mTabs);
  }
  ~Bar() { delete mTabs; }
  Bar(const Bar&) = delete;
  Bar& operator=(const Bar&) = delete;

  void Show(const std::vector<UTF16String>& inNames, const UTF16String& inCurrent) {
    // The window may have lost its native part, and them with it.
    if (mTabs && mTabs->Show(inNames, inCurrent)) mWindow.SetBarCorner(mTabs);
  }
  QPointer<SwitcherTabs> GetTabs() const { return mTabs; }

 private:
  QPointer<SwitcherTabs> mTabs;
  lumui::ui::WindowPeer& mWindow;  // of the switcher's window
};

WorkspaceSwitcher::WorkspaceSwitcher(workspace::TopLevelWindow& ioWindow,
                                     workspace::ManagerBase& ioManager)
    : mManager(ioManager),
      mManagerPresence(ioManager.GetPresence()),
      mWindow(&ioWindow),
      mBar(std::make_unique<Bar>(*this)) {
  mManager.AddMenuHelper(this);
  WorkspaceSwitcherManager::Get()->AddListener(this);
}

WorkspaceSwitcher::~WorkspaceSwitcher() {
  WorkspaceSwitcherManager::Get()->RemoveListener(this);
  if (!mManagerPresence.expired()) mManager.RemoveMenuHelper(this);
}

std::vector<UTF16String> WorkspaceSwitcher::GetShownWorkspaces() const {
  std::vector<UTF16String> names;
  for (const Entry& entry : Arrange()) {
    if (entry.isShown) names.push_back(entry.name);
  }
  return names;
}

void WorkspaceSwitcher::WorkspacesChanged() {
  Show();
}

void WorkspaceSwitcher::WorkspacesConfigurationChanged() {
  Show();
}

// The commands of the menu are not the switcher's.
bool WorkspaceSwitcher::IsWorkspaceCommand(int) const {
  return false;
}

UTF16String WorkspaceSwitcher::WorkspaceNameForCmd(int) const {
  return UTF16String();
}

void WorkspaceSwitcher::HandleCommand(int) {}

// A text of another making loses what is not understood of it.
std::vector<WorkspaceSwitcher::Entry> WorkspaceSwitcher::Read(const UTF8String& inData) {
  std::vector<Entry> entries;
  for (std::size_t at = 0; at < inData.size();) {
    const std::size_t end = std::min(inData.find(kLineEnd, at), inData.size());
    const unsigned char mark = inData[at];
    if (mark == kShownMark || mark == kHiddenMark) {
      const UTF16String name = lumcore::utility::ToUTF16(inData.substr(at + 1, end - at - 1));
      if (Find(entries, name) == entries.end()) entries.push_back({name, mark == kShownMark});
    }
    at = end + 1;
  }
  return entries;
}

std::vector<WorkspaceSwitcher::Entry> WorkspaceSwitcher::Arrange() const {
  if (mManagerPresence.expired()) return {};
  const std::vector<UTF16String> names = mManager.GetWorkspaceNames();
  std::vector<Entry> entries = Read(WorkspaceSwitcherManager::Get()->GetData());
  const auto isGone = [&names](const Entry& inEntry) {
    return std::find(names.begin(), names.end(), inEntry.name) == names.end();
  };
  entries.erase(std::remove_if(entries.begin(), entries.end(), isGone), entries.end());
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (Find(entries, names[i]) != entries.end()) continue;
    const auto place = i == 0 ? entries.begin() : std::next(Find(entries, names[i - 1]));
    entries.insert(place, {names[i], true});
  }
  // Whoever has deleted those that were shown still needs one to press.
  const auto isShown = [](const Entry& inEntry) { return inEntry.isShown; };
  if (!entries.empty() && std::none_of(entries.begin(), entries.end(), isShown))
    entries.front().isShown = true;
  return entries;
}

void WorkspaceSwitcher::Keep(const std::vector<Entry>& inEntries) {
  UTF8String data;
  for (const Entry& entry : inEntries) {
    data += entry.isShown ? kShownMark : kHiddenMark;
    data += lumcore::utility::ToUTF8(entry.name);
    data += kLineEnd;
  }
  WorkspaceSwitcherManager::Get()->SetData(data);
}

void WorkspaceSwitcher::Show() {
  if (mManagerPresence.expired()) return;
  mBar->Show(GetShownWorkspaces(), mManager.GetCurrentWorkspace());
}

void WorkspaceSwitcher::Apply(const UTF16String& inName) {
  if (mManagerPresence.expired()) return;
  if (mManager.HasCurrentWorkspace() && mManager.GetCurrentWorkspace() == inName) return;
  try {
    mManager.SetCurrentWorkspace(inName);
  } catch (...) {  // for the user; the tab of the one that stays comes to the front again
    Show();
    throw;
  }
}

// The hidden ones stay at the places that they have among the others.
void WorkspaceSwitcher::KeepPlaces(const std::vector<UTF16String>& inShown) {
  if (mManagerPresence.expired()) return;
  std::vector<Entry> entries = Arrange();
  auto name = inShown.begin();
  for (Entry& entry : entries) {
    if (entry.isShown && name != inShown.end()) entry.name = *name++;
  }
  Keep(entries);
}

void WorkspaceSwitcher::ChooseShown(const lumcore::geom::PointT<int>& inScreenPoint) {
  std::vector<Entry> entries = Arrange();
  if (entries.empty()) return;
  const bool isOne = GetShownWorkspaces().size() == 1;
  const HMENU menu = OS_Menu::Create(true);
  for (unsigned item = 0; item < std::min(entries.size(), kMostItems); ++item) {
    OS_Menu::InsertItem(menu, item, 0, kFirstItem + item, workspace::MenuText(entries[item].name));
    OS_Menu::CheckItem(menu, item, entries[item].isShown);
    OS_Menu::EnableItem(menu, item, !(isOne && entries[item].isShown));
  }
  const QPointer<SwitcherTabs> tabs = mBar->GetTabs();
  const unsigned chosen = OS_Menu::TrackPopup(menu, *mWindow, inScreenPoint);
  OS_Menu::Destroy(menu);
  // While the menu was open the window may have gone, and this with it.
  if (!tabs || chosen == 0) return;
  Entry& entry = entries[chosen - kFirstItem];
  entry.isShown = !entry.isShown;
  Keep(entries);
}

}  // namespace lumworkspace::sharedui
