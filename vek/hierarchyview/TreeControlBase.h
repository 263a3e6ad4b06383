// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumui/drawbot/Color.h"
#include "lumui/drawbot/Font.h"
#include "vek/config/Export.h"

namespace vek::hierarchyview {

class HierarchyEntryBase;

// What shows a tree, as far as its rows ask it: the root, which it owns, the font and the colour.
class VEK_API TreeControlBase {
 public:
  virtual ~TreeControlBase();
  TreeControlBase(const TreeControlBase&) = delete;
  TreeControlBase& operator=(const TreeControlBase&) = delete;

  HierarchyEntryBase* GetRootEntry() const { return mRootEntry.get(); }  // may be null
  // Made on first use, from the interface's font.
  lumui::drawbot::FontP GetFont();
  void SetFont(lumui::drawbot::FontP const& inFont) { mFont = inFont; }

  // In place of the theme's.
  virtual void SetCustomTextColor(lumui::drawbot::ColorRGBA const& inColor);
  bool HasCustomTextColor() const { return mHasCustomTextColor; }
  lumui::drawbot::ColorRGBA const& GetCustomTextColor() const { return mCustomTextColor; }

 protected:
  TreeControlBase();
  void SetRootEntry(boost::intrusive_ptr<HierarchyEntryBase> const& inRoot);

 private:
  boost::intrusive_ptr<HierarchyEntryBase> mRootEntry;
  lumui::drawbot::FontP mFont;
  bool mHasCustomTextColor = false;
  lumui::drawbot::ColorRGBA mCustomTextColor = lumui::drawbot::ColorRGBA(0, 0, 0, 1);
};

}  // namespace vek::hierarchyview
