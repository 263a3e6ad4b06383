// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <malloc.h>

#include <array>
#include <memory>

#include "QtTreePeer.h"
#include "TreeTexts.h"
#include "lumui/drawbot/Image.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/OS_Window.h"
#include "support/Pair.h"
#include "vek/hierarchyview/BasicMultiColumnListBase.h"
#include "vek/hierarchyview/HierarchyEntry.h"
#include "vek/hierarchyview/TreeListGeometry.h"
#include "vek/selection/Manager.h"
#include "vek/selection/Node.h"
#include "vek/trackview/PlatformScrollView.h"

namespace {

using namespace vek::hierarchyview;
using lumcore::UTF16String;
using lumcore::geom::PointT;
using lumcore::geom::RectT;
using lumui::ui::KeyboardCode;

class Row : public HierarchyEntry, public vek::selection::Node {
 public:
  explicit Row(int inRow) : HierarchyEntry(kNodeExpanded, nullptr) {
    for (int column = 0; column < 3; ++column) {
      const std::string text = bench::TextOf(inRow, column);
      mCells[static_cast<std::size_t>(column)].assign(text.begin(), text.end());
    }
  }
  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetNodeIcon() override { return nullptr; }
  void GetCellText(unsigned int const& inAttribute, UTF16String& outText) const override {
    outText = mCells[inAttribute - 1];
  }
  bool CanExpand() const override { return !GetChildren().empty(); }
  bool CanCollapse() const override { return !GetChildren().empty(); }
  vek::selection::Node* GetDataAsSelNode() const override { return const_cast<Row*>(this); }

 private:
  std::array<UTF16String, 3> mCells;
};

// A host's own class: nothing is known of its rows beforehand.
class HostGeometry : public TreeListGeometry {
 public:
  using TreeListGeometry::TreeListGeometry;
};

class List : public BasicMultiColumnListBase {
 public:
  List(vek::trackview::TrackView* inView, bool inOwnGeometry)
      : BasicMultiColumnListBase(inView), mOwnGeometry(inOwnGeometry) {}

  using BasicMultiColumnListBase::TypedownClosestMatch;

  void Fill(int inRows, int inGroups) {
    HierarchyEntryBase* parent = nullptr;
    for (int row = 0; row < inRows; ++row) {
      const bool isGroup = inGroups > 0 && row % (inRows / inGroups) == 0;
      const boost::intrusive_ptr<HierarchyEntryBase> entry(new Row(row));
      InsertEntry(isGroup ? nullptr : parent, entry);
      if (isGroup) parent = entry.get();
    }
  }

 protected:
  std::auto_ptr<HierarchyGeometry> CreateGeometry() override {
    if (!mOwnGeometry) return BasicMultiColumnListBase::CreateGeometry();
    return std::auto_ptr<HierarchyGeometry>(new HostGeometry(this, 10, true));
  }

 private:
  bool mOwnGeometry;
};

std::size_t UsedBytes() {
  return mallinfo2().uordblks;
}

// The list in a window. Every operation returns when it is painted.
class Ours {
 public:
  Ours(int inRows, int inGroups, bool inOwnGeometry)
      : mRows(inRows), mWindow(new lumui::ui::OS_Window(nullptr)) {
    const std::size_t before = UsedBytes();
    mScroll = vek::trackview::PlatformScrollView::Create();
    mList = new List(View().GetTrackView(), inOwnGeometry);
    std::auto_ptr<vek::trackview::Overlay> overlay(mList);
    for (unsigned int column = 1; column <= 3; ++column)
      mList->InsertColumn(column, 180, 20, nullptr, nullptr);
    mList->Fill(inRows, inGroups);
    View().GetTrackView()->InstallOverlay(overlay, false);
    mList->BuildHierarchy();
    mBytesPerRow = static_cast<double>(UsedBytes() - before) / inRows;
    const RectT<float> area(0, 0, bench::kTreeWidth, bench::kTreeHeight);
    mWindow->UI_SetLocalRectF(area);
    mWindow->UI_AddChild(mScroll);
    mScroll->UI_SetLocalRectF(area);
    mWindow->UI_Show(true);
    View().UI_SetKeyboardFocus(0);
    lumui::testing::ProcessEvents();
  }
  ~Ours() { mWindow->UI_DestroyWindow(); }

  vek::trackview::LUMPlatformView& View() { return mScroll->GetPlatformView(); }
  List& GetList() { return *mList; }

  void Paint() {
    lumui::testing::ProcessEvents();
    View().UI_InvalidateAll();
    View().UpdateNow();
  }
  void CollapseAll() {
    for (const auto& group : mList->GetRootEntry()->GetChildren())
      mList->CollapseNode(group.get(), false);
    mList->ResizeHierarchy();
    Paint();
  }
  void ExpandAll() {
    mList->ExpandAll();
    Paint();
  }
  void ToggleGroup(int inGroup) {
    HierarchyEntryBase* const group =
        std::next(mList->GetRootEntry()->GetChildren().begin(), inGroup)->get();
    if (group->GetNodeState() == kNodeCollapsed) {
      mList->ExpandNode(group, true);
    } else {
      mList->CollapseNode(group, true);
    }
    Paint();
  }
  void Sort(unsigned short inColumn, bool inAscending) {
    if (mList->GetSortColumn() != inColumn) mList->SetSortColumn(inColumn);
    mList->SortIsAscending(inAscending);
    Paint();
  }
  void SearchLastRow() {
    const std::string text = bench::TextOf(mRows - 1, 0);
    mList->TypedownClosestMatch(UTF16String(text.begin(), text.end()));
    Paint();
  }
  void SelectAll() {
    mList->GetSelectionManager()->SelectAll();
    Paint();
  }
  void SelectNone() {
    mList->DeselectAll();
    Paint();
  }
  void SelectMiddle() {
    const auto& groups = mList->GetRootEntry()->GetChildren();
    mList->SelectEntry(std::next(groups.begin(), static_cast<int>(groups.size() / 2))->get(),
                       false);
    Paint();
  }
  void PressDown() {
    lumui::testing::TapKey(*mWindow, KeyboardCode(KeyboardCode::kDownArrow));
    Paint();
  }
  void ScrollToEndAndBack(int inPages) {
    View().DataPos(PointT<float>(0, View().GetTrackView()->DataSize().y), false);
    Paint();
    for (int page = 0; page < inPages; ++page) {
      const PointT<float> position = View().DataPos();
      View().DataPos(PointT<float>(0, position.y - View().DataSize().y), false);
      Paint();
    }
  }

  double mBytesPerRow = 0;

 private:
  int mRows;
  boost::intrusive_ptr<lumui::ui::OS_Window> mWindow;
  boost::intrusive_ptr<vek::trackview::PlatformScrollView> mScroll;
  List* mList = nullptr;
};

template <class Call>
bench::Body Timed(const Call& inCall) {
  return [=](benchmark::State& ioState) {
    for (auto _ : ioState)
      inCall();
  };
}

template <class Prepare, class Call>
bench::Body Timed(const Prepare& inPrepare, const Call& inCall) {
  return [=](benchmark::State& ioState) {
    for (auto _ : ioState) {
      ioState.PauseTiming();
      inPrepare();
      ioState.ResumeTiming();
      inCall();
    }
  };
}

// A tree of one size and the peer's.
struct Size {
  Size(int inRows, int inGroups, const char* inName)
      : rows(inRows), groups(inGroups), name(inName), ours(inRows, inGroups, false) {
    const std::size_t before = UsedBytes();
    peer.reset(new QtTreePeer(inRows, inGroups));
    peerBytesPerRow = static_cast<double>(UsedBytes() - before) / inRows;
  }

  // inName with the size behind it.
  bench::Pair Row(const char* inWhat, const char* inUnit, std::optional<bench::Goal> inGoal,
                  const bench::Body& inOurs, const bench::Body& inPeer) const {
    return {std::string(inWhat) + ", " + name, inUnit, inGoal, inOurs, inPeer};
  }

  int rows, groups;
  std::string name;
  Ours ours;
  std::unique_ptr<QtTreePeer> peer;
  double peerBytesPerRow = 0;
};

void Add(std::vector<bench::Pair>& ioPairs, Size& ioSize) {
  Ours& ours = ioSize.ours;
  QtTreePeer& peer = *ioSize.peer;
  const int rows = ioSize.rows, groups = ioSize.groups, late = groups - 2;
  const auto add = [&](const char* inWhat, const char* inUnit, std::optional<double> inLimit,
                       const bench::Body& inOurs, const bench::Body& inPeer) {
    ioPairs.push_back(ioSize.Row(
        inWhat, inUnit, inLimit ? std::optional(bench::RatioAtMost(*inLimit)) : std::nullopt,
        inOurs, inPeer));
  };
  add("build and destroy the tree", "ms", 0.5, Timed([=, &ours] {
        List list(ours.View().GetTrackView(), false);
        list.Fill(rows, groups);
      }),
      Timed([=] { QtTreePeer::BuildModel(rows, groups); }));
  add("expand all, to painted", "ms", 0.5,
      Timed([&] { ours.CollapseAll(); }, [&] { ours.ExpandAll(); }),
      Timed([&] { peer.CollapseAll(); }, [&] { peer.ExpandAll(); }));
  add("collapse or expand one group, to painted", "us", 1.0,
      Timed([=, &ours] { ours.ToggleGroup(late); }), Timed([=, &peer] { peer.ToggleGroup(late); }));
  add("sort all by a column both ways, to painted", "ms", 0.7, Timed([&] {
        ours.Sort(1, true);
        ours.Sort(1, false);
        ours.Sort(0, false);
      }),
      Timed([&] {
        peer.Sort(1, false);
        peer.Sort(1, true);
        peer.Sort(0, true);
      }));
  add("type-ahead to the last row, to painted", "ms", 1.0, Timed([&] { ours.SearchLastRow(); }),
      Timed([&] { peer.SearchLastRow(); }));
  add("select all and none, to painted", "ms", std::nullopt, Timed([&] {
        ours.SelectAll();
        ours.SelectNone();
      }),
      Timed([&] {
        peer.SelectAll();
        peer.SelectNone();
      }));
  add("paint a full view", "us", 0.8, Timed([&] { ours.Paint(); }), Timed([&] { peer.Paint(); }));
  add("scroll to the end, then 100 pages up", "ms", 1.0,
      Timed([&] { ours.ScrollToEndAndBack(100); }), Timed([&] { peer.ScrollToEndAndBack(100); }));
  add("Key Down in the middle, to painted", "us", 1.0,
      Timed([&] { ours.SelectMiddle(); }, [&] { ours.PressDown(); }),
      Timed([&] { peer.SelectMiddle(); }, [&] { peer.PressDown(); }));
}

}  // namespace

int main(int argc, char** argv) {
  lumui::ui::Application application(argc, argv);
  Size large(200000, 1000, "200000 rows"), small(20000, 100, "20000 rows");
  Ours host(200000, 1000, true);
  std::vector<bench::Pair> pairs;
  Add(pairs, large);
  Add(pairs, small);
  pairs.push_back(large.Row("collapse or expand one group, own geometry class", "us", std::nullopt,
                            Timed([&] { host.ToggleGroup(998); }),
                            Timed([&] { large.peer->ToggleGroup(998); })));
  pairs.push_back(large.Row("type-ahead to the last row, own geometry class", "ms", std::nullopt,
                            Timed([&] { host.SearchLastRow(); }),
                            Timed([&] { large.peer->SearchLastRow(); })));
  return bench::Run("trees", argc, argv, pairs,
                    {{"memory of a row of three cells", "bytes", bench::RatioAtMost(0.4),
                      large.ours.mBytesPerRow, large.peerBytesPerRow}});
}
