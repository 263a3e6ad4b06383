// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <malloc.h>

#include <memory>

#include "lumui/drawbot/Image.h"
#include "support/Pair.h"
#include "vek/hierarchyview/HierarchyEntry.h"
#include "vek/hierarchyview/PlainWalk.h"
#include "vek/hierarchyview/RowWalk.h"
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
  void GetCellText(unsigned int const&, lumcore::UTF16String&) const override {}
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
  explicit Tree(int inGroups) : mGeometry(this, 0, false) {
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
    mColumns.emplace_back(0U, 300.0f, 0.0f, lumcore::UTF16String(), nullptr);
  }

  TreeListGeometry mGeometry;
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
      for (auto row = ioTree.mGeometry.begin(); row != ioTree.mGeometry.end(); ++row)
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

}  // namespace

int main(int argc, char** argv) {
  Tree grouped(1000), flat(0);
  return bench::Run("hierarchy", argc, argv,
                    {
                        {"a row of 200000 grouped, iterators, beside the plain walk", "ns",
                         std::nullopt, Iterate(grouped), WalkPlainly(grouped)},
                        {"a row of 200000 grouped, RowWalk, beside the plain walk", "ns",
                         bench::RatioAtMost(0.25), WalkRows(grouped), WalkPlainly(grouped)},
                        {"a row of 200000 flat, iterators, beside the plain walk", "ns",
                         std::nullopt, Iterate(flat), StepPlainly(flat)},
                        {"a row of 200000 flat, RowWalk, beside the plain walk", "ns",
                         bench::RatioAtMost(0.01), WalkRows(flat), StepPlainly(flat)},
                    },
                    {
                        {"memory of a row, without its text", "bytes", std::nullopt,
                         grouped.mBytesPerRow, std::nullopt},
                    });
}
