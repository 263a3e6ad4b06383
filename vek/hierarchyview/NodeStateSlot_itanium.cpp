// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <cstdint>
#include <cstring>

#include "lumui/drawbot/Image.h"
#include "vek/hierarchyview/HierarchyEntryBase.h"
#include "vek/hierarchyview/NodeStateSlot.h"

namespace vek::hierarchyview {

namespace {

// In the Itanium C++ ABI an object begins with the address of its table, and a pointer to a virtual
// member is the offset in that table: plus 1, or, on ARM, with an odd adjustment beside it.
std::uintptr_t GetOffset() {
  const auto member = &HierarchyEntryBase::GetNodeState;
  std::uintptr_t words[2];
  static_assert(sizeof(member) == sizeof(words));
  std::memcpy(words, &member, sizeof(words));
  return words[1] % 2 == 1 ? words[0] : words[0] - 1;
}

// What is called for the state. Never called, only compared.
std::uintptr_t ReadSlot(HierarchyEntryBase const& inEntry) {
  static const std::uintptr_t kOffset = GetOffset();
  const char* table;
  std::memcpy(&table, static_cast<const void*>(&inEntry), sizeof(table));
  std::uintptr_t slot;
  std::memcpy(&slot, table + kOffset, sizeof(slot));
  return slot;
}

class Probe : public HierarchyEntryBase {
 public:
  Probe() : HierarchyEntryBase(kNodeCollapsed, nullptr) {}
  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetNodeIcon() override { return nullptr; }
  void SortChildren(unsigned int const&, bool, boost::shared_ptr<CompareFunction>) override {}
  void ResortChildren() override {}
  bool HasSortAxis() const override { return false; }
  void GetCellText(unsigned int const&, lumcore::UTF16String&) const override {}
  bool Selected(selection::Manager*) const override { return false; }
  bool CanExpand() const override { return false; }
  bool CanCollapse() const override { return false; }
  selection::Node* GetDataAsSelNode() const override { return nullptr; }
};

}  // namespace

bool AnswersItsOwnState(HierarchyEntryBase const& inEntry) {
  static const std::uintptr_t kOwn = ReadSlot(Probe());
  return ReadSlot(inEntry) == kOwn;
}

}  // namespace vek::hierarchyview
