// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>

// A plain dialog of Qt's with a search field, two buttons and a tree of rows with three texts under
// categories, as anybody would write it. Its texts are at hand.
class QtRowsDialogPeer {
 public:
  QtRowsDialogPeer(int inCategories, int inRows);
  ~QtRowsDialogPeer();

  // Makes the dialog and its rows, shows and paints it.
  void Open();
  void Close();
  // What the search field says; painted. The rows that are left.
  int Search(const std::string& inText);

 private:
  class Impl;
  std::unique_ptr<Impl> mImpl;
};
