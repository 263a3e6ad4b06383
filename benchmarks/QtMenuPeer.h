// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

// A bare menu of Qt's whose actions are brought up to date as it is about to show, in one loop over
// plain arrays: what an application does that has no commands. Each time every second item changes
// between enabled and not, and every tenth has another text.
class QtMenuPeer {
 public:
  explicit QtMenuPeer(int inItems);
  ~QtMenuPeer();

  void Open();
  unsigned GetTurns() const;

 private:
  class Impl;
  std::unique_ptr<Impl> mImpl;
};

// Closes whatever popup is open, one of ours as well.
void CloseOpenPopup();
