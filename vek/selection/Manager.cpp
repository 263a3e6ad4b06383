// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/selection/Manager.h"

#include <algorithm>
#include <cassert>
#include <functional>
#include <memory>
#include <set>
#include <utility>
#include <vector>

#include "lumcore/utility/ScopedValue.h"
#include "vek/selection/ActiveManagerState.h"
#include "vek/selection/KnowingJunction.h"

namespace vek::selection {

namespace {

using lumcore::utility::StKeepAlive;
using SelectionNotifier = messaging::Broadcaster<const SelectionChangeMessage&>;
using JunctionNotifier = messaging::Broadcaster<const JunctionChangeMessage&>;

// Addresses of unrelated objects have no built-in order; std::less has the one that std::set uses.
using AddressOrder = std::less<Node*>;

}  // namespace

struct Manager::Impl {
  explicit Impl(Junction* inJunction)
      : mJunction(inJunction),
        mSelectionNotifier(new SelectionNotifier),
        mJunctionNotifier(new JunctionNotifier) {}

  void Clean();
  void ToggleEach(const std::list<Node*>& inNodes);
  std::list<Node*> ListToggles(const std::list<Node*>& inNodes, bool inDeselectOthers) const;

  Junction* mJunction;
  std::set<Node*> mSelected;
  // Destroyed in the opposite order, and before the set.
  std::unique_ptr<SelectionNotifier> mSelectionNotifier;
  std::unique_ptr<JunctionNotifier> mJunctionNotifier;
  bool mSelecting = false;
  std::uint64_t mVersion = 0;
};

// A junction that knows its nodes one by one is asked for those that are selected. Any other is
// asked for its list every time, but no set of all its nodes is built: what is selected is
// looked for in its list, and mostly that is little.
void Manager::Impl::Clean() {
  assert(mJunction);  // whoever uses a manager has given it one
  if (auto* const knowing = dynamic_cast<KnowingJunction*>(mJunction)) {
    // Of a copy: a host that is asked may change the selection.
    const std::vector<Node*> selected(mSelected.begin(), mSelected.end());
    for (Node* const node : selected) {
      if (!knowing->Knows(node)) mVersion += mSelected.erase(node);
    }
    return;
  }
  const std::list<Node*> known = mJunction->AllSelectables();
  if (mSelected.empty()) return;
  const std::vector<Node*> selected(mSelected.begin(), mSelected.end());
  std::vector<bool> survives(selected.size(), false);
  std::size_t missing = selected.size();
  for (Node* node : known) {
    const auto at = std::lower_bound(selected.begin(), selected.end(), node, AddressOrder());
    if (at == selected.end() || *at != node) continue;
    const auto index = static_cast<std::size_t>(at - selected.begin());
    if (survives[index]) continue;
    survives[index] = true;
    if (--missing == 0) return;
  }
  ++mVersion;
  auto entry = mSelected.begin();
  for (const bool stays : survives) {
    entry = stays ? std::next(entry) : mSelected.erase(entry);
  }
}

void Manager::Impl::ToggleEach(const std::list<Node*>& inNodes) {
  ++mVersion;
  for (Node* node : inNodes) {
    const auto [entry, inserted] = mSelected.insert(node);
    if (!inserted) mSelected.erase(entry);
  }
}

std::list<Node*> Manager::Impl::ListToggles(const std::list<Node*>& inNodes,
                                            bool inDeselectOthers) const {
  std::list<Node*> toggles;
  for (Node* node : inNodes) {
    if (mSelected.count(node) == 0) toggles.push_back(node);
  }
  if (!inDeselectOthers || mSelected.empty()) return toggles;
  std::vector<Node*> wanted(inNodes.begin(), inNodes.end());
  std::sort(wanted.begin(), wanted.end(), AddressOrder());
  for (Node* node : mSelected) {
    if (!std::binary_search(wanted.begin(), wanted.end(), node, AddressOrder())) {
      toggles.push_back(node);
    }
  }
  return toggles;
}

Manager::Manager(Junction* inJunction) : mImpl(new Impl(inJunction)) {}

Manager::~Manager() {
  // Nobody may take a reference here: the count is 0 for good, and a listener gets a bare address.
  ActiveManagerState::Get().ManagerDies(this);
  delete mImpl;
}

void Manager::SelectAll() {
  const StKeepAlive alive(*this);
  Select(mImpl->mJunction->AllSelectables(), eKeepOthers, eSendMessages);
}

void Manager::DeselectAll() {
  const StKeepAlive alive(*this);
  Select(std::list<Node*>(), eDeselectOthers, eSendMessages);
}

RestorerFactory* Manager::NewRestorerFactory() {
  return nullptr;
}

Junction* Manager::GetJunction() {
  return mImpl->mJunction;
}

void Manager::SetJunction(Junction* inJunction) {
  const StKeepAlive alive(*this);
  Select(std::list<Node*>(), eDeselectOthers, eSendMessages);
  const JunctionChangeMessage message(mImpl->mJunction, inJunction);
  mImpl->mJunction = inJunction;
  mImpl->mJunctionNotifier->BroadcastMessage(message);
  GetGlobalJunctionChangeNotifier()->BroadcastMessage(message);
}

messaging::Broadcaster<const SelectionChangeMessage&>* Manager::GetSelectionChangeNotifier() {
  return mImpl->mSelectionNotifier.get();
}

messaging::Broadcaster<const JunctionChangeMessage&>* Manager::GetJunctionChangeNotifier() {
  return mImpl->mJunctionNotifier.get();
}

void Manager::Select(const std::list<Node*>& inNodes, DeselectOthersEnum inDeselectOthers,
                     SuppressMessagesEnum inSuppress) {
  // Emptiness is looked at before cleaning: with nothing selected the junction is not even asked.
  if (inNodes.empty() && (inDeselectOthers == eKeepOthers || mImpl->mSelected.empty())) return;
  const StKeepAlive alive(*this);
  mImpl->Clean();
  const lumcore::utility::StScopedValue<bool> selecting(mImpl->mSelecting, true);
  const std::list<Node*> toggles = mImpl->ListToggles(inNodes, inDeselectOthers == eDeselectOthers);
  if (!toggles.empty()) ToggleSelectables(toggles, inSuppress);
}

void Manager::ToggleSelectables(const std::list<Node*>& inNodes, SuppressMessagesEnum inSuppress) {
  if (inNodes.empty()) return;
  const StKeepAlive alive(*this);
  mImpl->Clean();
  mImpl->ToggleEach(inNodes);
  if (inSuppress != eSendMessages) return;
  const SelectionChangeMessage message(inNodes);
  mImpl->mSelectionNotifier->BroadcastMessage(message);
  GetGlobalSelectionChangeNotifier()->BroadcastMessage(message);
}

bool Manager::Selected(const Node* inNode) const {
  return mImpl->mSelected.count(const_cast<Node*>(inNode)) != 0;
}

std::list<Node*> Manager::SelectedSelectables() const {
  mImpl->Clean();
  return std::list<Node*>(mImpl->mSelected.begin(), mImpl->mSelected.end());
}

std::uint64_t Manager::GetVersion() const {
  return mImpl->mVersion;
}

bool Manager::AnySelectableNodes() const {
  return !mImpl->mJunction->AllSelectables().empty();
}

}  // namespace vek::selection
