// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <list>

#include "lumcore/utility/RefCounted.h"
#include "vek/config/Export.h"
#include "vek/messaging/Broadcaster.h"
#include "vek/selection/ActiveManager.h"
#include "vek/selection/Messages.h"

namespace vek::selection {

class Junction;
class Node;
class RestorerFactory;

// Both are ints at heart, so that a host's own value is well defined. Only 1 deselects others.
enum DeselectOthersEnum : int { eKeepOthers = 0, eDeselectOthers = 1 };
// Any value but 0 suppresses.
enum SuppressMessagesEnum : int { eSendMessages = 0, eSuppressMessages = 1 };

// The selected nodes of one junction. A whole change is one toggle with one message that lists the
// nodes affected, sent on this manager's broadcaster and then on the process-wide one. The set
// cleans itself: before it is used, what the junction no longer knows is dropped without a message.
//
// It owns neither nodes nor junction, and a null junction is for who never selects. It is held by
// boost::intrusive_ptr; a listener may drop the last reference to it in the middle of a change.
class VEK_API Manager : public lumcore::utility::RefCountedObject {
 public:
  explicit Manager(Junction* inJunction);
  // An active manager is announced as gone from here, when the derived parts are gone already.
  ~Manager() override;
  Manager(const Manager&) = delete;
  Manager& operator=(const Manager&) = delete;

  virtual void SelectAll();
  virtual void DeselectAll();
  // Null unless a host says otherwise. The caller owns the factory.
  virtual RestorerFactory* NewRestorerFactory();

  Junction* GetJunction();
  // Deselects all, with its messages, while the old junction is in place; then tells of the change,
  // also when the junction is the same.
  void SetJunction(Junction* inJunction);

  messaging::Broadcaster<const SelectionChangeMessage&>* GetSelectionChangeNotifier();
  messaging::Broadcaster<const JunctionChangeMessage&>* GetJunctionChangeNotifier();

  // Selects those of inNodes that are not selected. The message lists them in the caller's order
  // and behind them the deselected ones by ascending address. A node that stands twice flips twice.
  // Nothing changed, no message.
  void Select(const std::list<Node*>& inNodes, DeselectOthersEnum inDeselectOthers,
              SuppressMessagesEnum inSuppress);
  // Flips each entry of the list, also nodes that the junction does not know: they stay until the
  // next cleaning.
  void ToggleSelectables(const std::list<Node*>& inNodes, SuppressMessagesEnum inSuppress);

  // As the set stands, without cleaning it first.
  bool Selected(const Node* inNode) const;
  // Cleaned, by ascending address.
  std::list<Node*> SelectedSelectables() const;
  // Another one after each change of the set, also by cleaning: for who keeps what it has made of
  // it.
  std::uint64_t GetVersion() const;
  // Whether the junction has any nodes at all.
  bool AnySelectableNodes() const;

 private:
  struct Impl;
  Impl* mImpl;  // owned
};

}  // namespace vek::selection
