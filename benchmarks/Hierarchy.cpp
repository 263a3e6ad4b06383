// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <malloc.h>

#include <cstdint>
#include <memory>
#include <string>

#include "lumui/drawbot/Image.h"
#include "lumui/ui/Application.h"
#include "support/Pair.h"
#include "vek/hierarchyview/HierarchyEntry.h"
#include "vek/hierarchyview/PlainWalk.h"
#include "vek/hierarchyview/RowWalk.h"
#include "vek/hierarchyview/TreeGeometry.h"
#include "vek/hierarchyview/TreeListControlBase.h"
#include "vek/hierarchyview/TreeListGeometry.h"

namespace {

using namespace vek::hierarchyview;
using lumcore::geom::PointT;
using Traverse = HierarchyGeometry::TraverseEntry;
using EntryP = boost::intrusive_ptr<HierarchyEntryBase>;

constexpr int kRows = 200000;
constexpr int kSampled = 200;

class Line : public HierarchyEntry {
 public:
  explicit Line(HierarchyEntryBase* inParent) : HierarchyEntry(kNodeExpanded, inParent) {}
  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetNodeIcon() override { return nullptr; }
  // Another for each row.
  void GetCellText(unsigned int const&, lumcore::UTF16String& outText) const override {
    static const std::string kText = "a row of twenty and ";
    outText.assign(kText.begin(), kText.end());
    for (auto rest = reinterpret_cast<std::uintptr_t>(this); rest != 0; rest /= 16)
      outText += static_cast<unsigned short>('a' + rest % 16);
  }
  bool CanExpand() const override { return true; }
  bool CanCollapse() const override { return true; }
};

EntryP NewLine(HierarchyEntryBase* inParent) {
  EntryP line(new Line(inParent));
  if (inParent) inParent->AddChild(line, false);
  return line;
}

// A root with groups of equal size, or with nothing but lines.
class Tree : public TreeListControlBase {
 public:
  explicit Tree(int inGroups)
      : TreeListControlBase(nullptr, false, 10, false, false),
        mGeometry(this, 0, false),
        mTreeGeometry(this, 10, false, 19) {
    const std::size_t before = mallinfo2().uordblks;
    const EntryP root = NewLine(nullptr);
    SetRootEntry(root);
    EntryP parent = root;
    for (int row = 1; row < kRows; ++row) {
      const bool isGroup = inGroups > 0 && (row - 1) % (kRows / inGroups) == 0;
      const EntryP line = NewLine(isGroup ? root.get() : parent.get());
      if (isGroup) parent = line;
    }
    mBytesPerRow = static_cast<double>(mallinfo2().uordblks - before) / kRows;
    InsertColumn(0U, 300.0f, 0.0f, nullptr, nullptr);
  }

  void ResizeHierarchy() override {}
  int NumSelectedEntries() override { return 0; }
  vek::selection::Manager* GetSelectionManager() const override { return nullptr; }
  vek::selection::Manager* GetSelectionManager() override { return nullptr; }
  void DoBuildHierarchy() override {}
  std::auto_ptr<TreeRowGeometryFactory> CreateRowGeometryFactory() override {
    return std::auto_ptr<TreeRowGeometryFactory>();
  }
  void DoDeselectAll() override {}
  void DoSelectEntry(HierarchyEntryBase*, bool) override {}
  void DoToggleEntrySelectionState(EntryList&) override {}

  TreeListGeometry mGeometry;
  TreeGeometry mTreeGeometry;
  double mBytesPerRow = 0;
};

void CheckEnd(benchmark::State& ioState, float inTop) {
  if (inTop != TreeListGeometry::kRowHeight * (kRows - 1))
    ioState.SkipWithError("a row is missing");
  ioState.SetItemsProcessed(ioState.iterations() * kRows);
}

bench::Body Iterate(Tree& ioTree) {
  return [&](benchmark::State& ioState) {
    float top = 0;
    for (auto _ : ioState) {
      const auto end = ioTree.mGeometry.end();
      for (auto row = ioTree.mGeometry.begin(); row != end; ++row)
        top = ioTree.mGeometry.GetRowRect(row).y;
    }
    CheckEnd(ioState, top);
  };
}

bench::Body WalkRows(Tree& ioTree) {
  return [&](benchmark::State& ioState) {
    float top = 0;
    for (auto _ : ioState) {
      for (RowWalk row(ioTree.mGeometry); !row.AtEnd(); row.Next())
        top = row.GetArea().y;
    }
    CheckEnd(ioState, top);
  };
}

bench::Body WalkPlainly(Tree& ioTree) {
  return [&](benchmark::State& ioState) {
    TreeListGeometry& geometry = ioTree.mGeometry;
    float top = 0;
    for (auto _ : ioState) {
      for (Traverse row = PlainWalk::Begin(geometry, false);
           row.mEntry != PlainWalk::End(geometry, false).mEntry;
           PlainWalk::NextEntry(geometry, row, false)) {
        benchmark::DoNotOptimize(geometry.EntryWidthHeight(row.mEntry));
        top = row.mCookie.y;
      }
    }
    CheckEnd(ioState, top);
  };
}

// All rows of a flat list would take a minute: the same step, from rows that lie evenly in it.
bench::Body StepPlainly(Tree& ioTree) {
  return [&](benchmark::State& ioState) {
    TreeListGeometry& geometry = ioTree.mGeometry;
    std::vector<HierarchyEntryBase*> sampled;
    int index = 0;
    for (const EntryP& line : ioTree.GetRootEntry()->GetChildren()) {
      if (index++ % (kRows / kSampled) == kRows / kSampled / 2) sampled.push_back(line.get());
    }
    for (auto _ : ioState) {
      for (HierarchyEntryBase* const entry : sampled) {
        Traverse row(&geometry, entry, false, PointT<float>());
        PlainWalk::NextEntry(geometry, row, false);
        benchmark::DoNotOptimize(row.mEntry);
      }
    }
    ioState.SetItemsProcessed(ioState.iterations() * static_cast<int>(sampled.size()));
  };
}

// Around all rows of a tree, which are as wide as their texts.
bench::Body JoinRows(Tree& ioTree, lumcore::geom::RectT<float> (*inJoin)(HierarchyGeometry&)) {
  return [&ioTree, inJoin](benchmark::State& ioState) {
    lumcore::geom::RectT<float> area;
    for (auto _ : ioState)
      area = inJoin(ioTree.mTreeGeometry);
    if (area.width < 100 || area.height != 19.0f * kRows) ioState.SkipWithError("rows are missing");
  };
}

lumcore::geom::RectT<float> AreaOf(HierarchyGeometry& ioGeometry) {
  return ioGeometry.Area();
}

}  // namespace

int main(int argc, char** argv) {
  lumui::ui::Application application(argc, argv);  // fonts need it
  Tree grouped(1000), flat(0);
  return bench::Run(
      "hierarchy", argc, argv,
      {
          {"a row of 200000 grouped, iterators, beside the plain walk", "ns", std::nullopt,
           Iterate(grouped), WalkPlainly(grouped)},
          {"a row of 200000 grouped, RowWalk, beside the plain walk", "ns",
           bench::RatioAtMost(0.25), WalkRows(grouped), WalkPlainly(grouped)},
          {"a row of 200000 flat, iterators, beside the plain walk", "ns", std::nullopt,
           Iterate(flat), StepPlainly(flat)},
          {"a row of 200000 flat, RowWalk, beside the plain walk", "ns", bench::RatioAtMost(0.01),
           WalkRows(flat), StepPlainly(flat)},
          {"area of 200000 rows as wide as their texts, beside the plain walk", "ms",
           bench::RatioAtMost(0.5), JoinRows(grouped, AreaOf), JoinRows(grouped, PlainWalk::Area)},
      },
      {
          {"memory of a row, without its text", "bytes", std::nullopt, grouped.mBytesPerRow,
           std::nullopt},
      });
}
