// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cctype>
#include <sstream>
#include <string>

#include "lumui/drawbot/Image.h"
#include "vek/hierarchyview/HierarchyEntry.h"
#include "vek/hierarchyview/HierarchyGeometry.h"
#include "vek/hierarchyview/TreeListControlBase.h"

namespace test_support {

using vek::hierarchyview::ENodeState;
using vek::hierarchyview::HierarchyEntry;
using vek::hierarchyview::HierarchyEntryBase;
using vek::hierarchyview::HierarchyGeometry;
using vek::hierarchyview::kNodeCollapsed;
using vek::hierarchyview::kNodeExpanded;
using EntryP = boost::intrusive_ptr<HierarchyEntryBase>;

// What a concrete entry has to say, over either base: a name that is the text of every cell.
template <class Base>
class Named : public Base {
 public:
  Named(const std::string& inName, HierarchyEntryBase* inParent, ENodeState inState = kNodeExpanded)
      : Base(inState, inParent), mName(inName) {}
  Named(const std::string& inName, HierarchyEntryBase* inParent,
        const HierarchyEntryBase::List& inChildren)
      : Base(kNodeExpanded, inParent, inChildren), mName(inName) {}

  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetNodeIcon() override { return nullptr; }
  void GetCellText(unsigned int const&, lumcore::UTF16String& outText) const override {
    outText.assign(mName.begin(), mName.end());
  }
  bool CanExpand() const override { return true; }
  bool CanCollapse() const override { return true; }

  using Base::child_begin;
  using Base::RemoveAllChildren;
  using Base::RemoveChild;

  const std::string mName;
};
using NamedEntry = Named<HierarchyEntry>;

inline std::string NameOf(const HierarchyEntryBase* inEntry) {
  lumcore::UTF16String text;
  if (!inEntry) return "-";
  inEntry->GetCellText(0, text);
  return std::string(text.begin(), text.end());
}

// "r [a [b] c]"
inline std::string ShapeOf(const HierarchyEntryBase& inEntry) {
  std::string text;
  for (const EntryP& child : inEntry.GetChildren())
    text += (text.empty() ? " [" : " ") + ShapeOf(*child);
  return NameOf(&inEntry) + (text.empty() ? text : text + "]");
}

// "x,y widthxheight"
inline std::string TextOf(const lumcore::geom::RectT<float>& inRect) {
  std::ostringstream text;
  text << inRect.x << "," << inRect.y << " " << inRect.width << "x" << inRect.height;
  return text.str();
}

// Reads the text of a shape. Names are single letters, and capitals make closed entries.
inline EntryP ReadTree(const std::string& inText) {
  EntryP root;
  HierarchyEntryBase* parent = nullptr;
  HierarchyEntryBase* last = nullptr;
  for (const char letter : inText) {
    if (letter == '[') parent = last;
    if (letter == ']') parent = parent->GetParent();
    if (!std::isalpha(static_cast<unsigned char>(letter))) continue;
    const bool closed = std::isupper(static_cast<unsigned char>(letter)) != 0;
    const EntryP entry(
        new NamedEntry(std::string(1, letter), parent, closed ? kNodeCollapsed : kNodeExpanded));
    if (parent) parent->AddChild(entry, false);
    if (!root) root = entry;
    last = entry.get();
  }
  return root;
}

inline NamedEntry* Find(const EntryP& inRoot, char inName) {
  if (NameOf(inRoot.get()) == std::string(1, inName)) return static_cast<NamedEntry*>(inRoot.get());
  for (const EntryP& child : inRoot->GetChildren()) {
    if (NamedEntry* const found = Find(child, inName)) return found;
  }
  return nullptr;
}

// Seven units a letter.
class FixedFont : public lumui::drawbot::FontInterface {
 public:
  const lumcore::UTF16String& GetFamilyName() const override { return mFamily; }
  float GetSize() const override { return 12; }
  lumui::drawbot::FontStyle GetStyle() const override { return {}; }
  float GetAscent() const override { return 9; }
  float GetDescent() const override { return 3; }
  float GetLeading() const override { return 0; }
  float GetLineHeight() const override { return 12; }
  float MeasureWidth(const lumcore::UTF16String& inText) const override {
    return 7.0f * static_cast<float>(inText.size());
  }
  float MeasureWidthOnce(const lumcore::UTF16String& inText) const override {
    return MeasureWidth(inText);
  }
  std::size_t GetCachedTextCount() const override { return 0; }

 private:
  lumcore::UTF16String mFamily;
};

// Shows a tree in two columns, 60 and 40.5 wide.
class TestControl : public vek::hierarchyview::TreeListControlBase {
 public:
  explicit TestControl(const EntryP& inRoot)
      : TreeListControlBase(nullptr, false, 10, false, false) {
    SetRootEntry(inRoot);
    SetFont(lumui::drawbot::FontP(new FixedFont));
    for (const float width : {60.0f, 40.5f})
      InsertColumn(0U, width, 0.0f, nullptr, nullptr);
  }
  using TreeListControlBase::SetRootEntry;
  void ResizeHierarchy() override {}

  int NumSelectedEntries() override { return 0; }
  vek::selection::Manager* GetSelectionManager() const override { return nullptr; }
  vek::selection::Manager* GetSelectionManager() override { return nullptr; }

 protected:
  void DoBuildHierarchy() override {}
  std::auto_ptr<vek::hierarchyview::TreeRowGeometryFactory> CreateRowGeometryFactory() override {
    return std::auto_ptr<vek::hierarchyview::TreeRowGeometryFactory>();
  }
  void DoDeselectAll() override {}
  void DoSelectEntry(HierarchyEntryBase*, bool) override {}
  void DoToggleEntrySelectionState(EntryList&) override {}
};

}  // namespace test_support
