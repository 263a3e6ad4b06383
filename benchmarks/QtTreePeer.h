// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

// A QTreeView with uniform row heights on a QStandardItemModel of three columns: rows in groups of
// equal size, or flat where there are no groups. Every operation returns when it is painted.
class QtTreePeer {
 public:
  QtTreePeer(int inRows, int inGroups);
  ~QtTreePeer();

  static void BuildModel(int inRows, int inGroups);

  void CollapseAll();
  void ExpandAll();
  void ToggleGroup(int inGroup);
  void Sort(int inColumn, bool inAscending);
  void SearchLastRow();
  void SelectAll();
  void SelectNone();
  void SelectMiddle();
  void PressDown();
  void Paint();
  void ScrollToEndAndBack(int inPages);

 private:
  class Impl;
  std::unique_ptr<Impl> mImpl;
};
