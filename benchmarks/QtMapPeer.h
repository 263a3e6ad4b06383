// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

// A graphics view of Qt's with one item for each box of a map: rounded boxes with texts, and the
// same lines between them. Texts of less than 4 pixels are left out.
class QtMapPeer {
 public:
  struct Box {
    float x, y, width, height;
    int parent;  // -1 for the root
    float firstChildMiddle, lastChildMiddle;
    bool hasChildren;
    std::size_t level;
    std::string text;
  };

  QtMapPeer(int inWidth, int inHeight, const std::vector<Box>& inBoxes);
  ~QtMapPeer();

  void SetScale(double inScale);
  void CenterOn(double inX, double inY);
  void Scroll(int inX, int inY);
  void InvalidateAll();
  void Invalidate(int inX, int inY, int inWidth, int inHeight);
  // Draws what waits.
  void Flush();
  // Whether a box is under this point of the view.
  bool HasItemAt(int inX, int inY) const;
  void SavePicture(const std::string& inPath);

 private:
  class Impl;
  std::unique_ptr<Impl> mImpl;
};
