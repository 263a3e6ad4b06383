// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <algorithm>
#include <boost/make_shared.hpp>
#include <memory>
#include <vector>

#include "support/EventLog.h"
#include "support/RecordingJunction.h"
#include "support/TestTree.h"
#include "vek/hierarchyview/CompareCellTexts.h"
#include "vek/hierarchyview/DynamicHierarchyEntry.h"
#include "vek/selection/Manager.h"

namespace {

using namespace test_support;
using vek::hierarchyview::CompareFunction;
using vek::hierarchyview::DynamicHierarchyEntry;

// By the first letter without its case, so that a and A are equal and keep their order. Attribute 2
// turns the order round.
const auto kByLetter = boost::make_shared<CompareFunction>(
    [](unsigned int inAttribute, const HierarchyEntryBase* inA, const HierarchyEntryBase* inB) {
      const int order = std::tolower(NameOf(inA)[0]) - std::tolower(NameOf(inB)[0]);
      return inAttribute == 2 ? order > 0 : order < 0;
    });

void Add(const EntryP& inParent, char inName, bool inResort) {
  inParent->AddChild(new NamedEntry(std::string(1, inName), inParent.get()), inResort);
}

TEST(Entries, StandAtTheEndWithoutAnAxisAndInFrontWithOne) {
  const EntryP root = ReadTree("r [c]");
  Add(root, 'a', true);
  EXPECT_EQ(ShapeOf(*root), "r [c a]");
  root->SortChildren(1, true, kByLetter);
  Add(root, 'b', false);
  Add(root, 'd', false);
  EXPECT_EQ(ShapeOf(*root), "r [d b a c]");
  root->ResortChildren();
  EXPECT_EQ(ShapeOf(*root), "r [a b c d]");
  Add(root, 'A', true);
  EXPECT_EQ(ShapeOf(*root), "r [A a b c d]");
}

// The open and the closed, but not below one that only has the base.
TEST(Sorting, CoversTheWholeSubtreeAndIsRemembered) {
  class Unsortable : public Named<HierarchyEntryBase> {
   public:
    using Named::Named;
    void SortChildren(unsigned int const&, bool, boost::shared_ptr<CompareFunction>) override {}
    void ResortChildren() override {}
    bool HasSortAxis() const override { return false; }
    bool Selected(vek::selection::Manager*) const override { return false; }
    vek::selection::Node* GetDataAsSelNode() const override { return nullptr; }
  };
  const EntryP root = ReadTree("r [c [b B a [y x]] A [f e] a]");
  const EntryP plain(new Unsortable("b", root.get()));
  Add(plain, 'z', false);
  Add(plain, 'y', false);
  root->AddChild(plain, false);

  root->SortChildren(1, true, kByLetter);
  EXPECT_EQ(ShapeOf(*root), "r [A [e f] a b [z y] c [a [x y] b B]]");
  root->SortChildren(1, false, kByLetter);
  EXPECT_EQ(ShapeOf(*root), "r [c [b B a [y x]] b [z y] A [f e] a]");
  Add(Find(root, 'A'), 'g', true);
  EXPECT_EQ(ShapeOf(*Find(root, 'A')), "A [g f e]");
  root->SortChildren(2, false, kByLetter);
  EXPECT_EQ(ShapeOf(*root), "r [A [e f g] a b [z y] c [a [x y] b B]]");
}

// The default order reads each text once and sorts those; a function like it is asked each time.
TEST(Sorting, ByTextsIsStableAndAsByTheFunction) {
  const char* const kNames[] = {"b", "", "ab", "a", "b", "abc", "B", "a"};
  for (const bool ascending : {true, false}) {
    std::string orders[2];
    for (const bool byTexts : {true, false}) {
      const EntryP root(new NamedEntry("r", nullptr));
      std::vector<HierarchyEntryBase*> made;
      for (const char* const name : kNames) {
        made.push_back(new NamedEntry(name, root.get()));
        root->AddChild(EntryP(made.back()), false);
      }
      const vek::hierarchyview::CompareCellTexts texts;
      const auto alike = [=](unsigned int inAttribute, const HierarchyEntryBase* inA,
                             const HierarchyEntryBase* inB) {
        return texts(inAttribute, inA, inB);
      };
      root->SortChildren(1, ascending,
                         byTexts ? boost::make_shared<CompareFunction>(texts)
                                 : boost::make_shared<CompareFunction>(alike));
      for (const EntryP& child : root->GetChildren()) {
        const auto place = std::find(made.begin(), made.end(), child.get());
        orders[byTexts] += std::to_string(place - made.begin());
      }
    }
    EXPECT_EQ(orders[0], orders[1]);
    EXPECT_EQ(orders[1], ascending ? "04523761" : "16372504");
  }
}

TEST(Sorting, WithoutAFunctionFailsOrDoesNothingAndLosesNoChild) {
  const EntryP root = ReadTree("r [c [b a]]");
  EXPECT_THROW(root->SortChildren(3, true, nullptr), boost::bad_function_call);
  Add(root, 'a', true);
  EXPECT_EQ(NameOf(root->GetChildren().front().get()), "a");
  EXPECT_THROW(root->SortChildren(3, true, boost::make_shared<CompareFunction>()),
               boost::bad_function_call);
  EXPECT_EQ(root->GetChildren().size() + Find(root, 'c')->GetChildren().size(), 4U);
}

// A host's destructor runs when the entry is out of the list already, and may look there.
TEST(Removing, TakesTheFirstThatIsTheEntryAndFollowsNoPointer) {
  struct LooksBack : NamedEntry {
    using NamedEntry::NamedEntry;
    ~LooksBack() override { mLog->Add(mName + ":" + ShapeOf(*GetParent())); }
    EventLog* mLog = nullptr;
  };
  EventLog log;
  const EntryP root = ReadTree("r [a b]");
  auto* const parent = static_cast<NamedEntry*>(root.get());
  for (const char* name : {"x", "y"}) {
    auto* const entry = new LooksBack(name, parent);
    entry->mLog = &log;
    parent->AddChild(entry, false);
  }
  parent->AddChild(Find(root, 'a'), false);
  parent->RemoveChild(nullptr);
  parent->RemoveChild(reinterpret_cast<HierarchyEntryBase*>(&log));
  EXPECT_EQ(ShapeOf(*root), "r [a b x y a]");
  parent->RemoveChild(Find(root, 'a'));
  parent->RemoveChild(Find(root, 'x'));
  EXPECT_EQ(ShapeOf(*root), "r [b y a]");
  parent->RemoveAllChildren();
  EXPECT_EQ(log.Take(), "x:r [b y a] y:r");
}

// Children go when their parent's destructor is through. One that lives on has no parent then.
TEST(Dying, GoesDownTheDeepestTreeWithoutRecursion) {
  struct Noted : NamedEntry {
    using NamedEntry::NamedEntry;
    ~Noted() override { mLog->Add(mName + (GetParent() ? "!" : "")); }
    EventLog* mLog = nullptr;
  };
  EventLog log;
  EntryP root(new NamedEntry("r", nullptr));
  EntryP last = root;
  for (int level = 0; level < 100000; ++level) {
    const EntryP child(new NamedEntry("e", last.get()));
    last->AddChild(child, false);
    last = child;
  }
  for (const char* name : {"x", "y"}) {
    auto* const child = new Noted(name, last.get());
    child->mLog = &log;
    last->AddChild(child, false);
  }
  const EntryP kept = last->GetChildren().front();
  root->SortChildren(2, true, kByLetter);
  EXPECT_EQ(ShapeOf(*last), "e [y x]");
  root.reset();
  EXPECT_EQ(log.Take(), "");
  last.reset();
  EXPECT_EQ(log.Take(), "y");
  EXPECT_EQ(kept->GetParent(), nullptr);
}

TEST(DynamicEntries, BuildAndDropTheirChildrenAtEverySetting) {
  struct Folder : Named<DynamicHierarchyEntry> {
    using Named::Named;
    void BuildChildList() override { Add("build"); }
    void ClearChildList() override { Add("clear"); }
    void EntryStateChanged() override { Add("changed"); }
    void Add(const std::string& inEvent) { mLog.Add(inEvent + std::to_string(GetNodeState())); }
    EventLog mLog;
  };
  const boost::intrusive_ptr<Folder> folder(new Folder("f", nullptr, kNodeCollapsed));
  for (const ENodeState state : {kNodeExpanded, kNodeExpanded, kNodeCollapsed})
    folder->SetNodeState(state);
  EXPECT_EQ(folder->mLog.Take(), "build1 changed1 build1 changed1 clear0 changed0");
}

TEST(Entries, AnswerForTheSelectionByTheirDataOrByThemselves) {
  struct OfData : NamedEntry {
    using NamedEntry::NamedEntry;
    vek::selection::Node* GetDataAsSelNode() const override { return mData; }
    vek::selection::Node* mData = nullptr;
  };
  struct Both : OfData, vek::selection::Node {
    using OfData::OfData;
  };
  RecordingJunction junction;
  NamedNodes nodes;
  const boost::intrusive_ptr<vek::selection::Manager> manager(
      new vek::selection::Manager(&junction));
  const boost::intrusive_ptr<Both> entry(new Both("e", nullptr));
  junction.mKnown = {entry.get()};
  manager->SelectAll();
  EXPECT_TRUE(entry->Selected(manager.get()));
  entry->mData = nodes.Get('a');  // goes before the entry itself
  EXPECT_FALSE(entry->Selected(manager.get()));
  manager->ToggleSelectables({nodes.Get('a')}, vek::selection::eSendMessages);
  EXPECT_TRUE(entry->Selected(manager.get()));
  EXPECT_FALSE(ReadTree("r")->Selected(manager.get()));
}

}  // namespace
