// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// A map of 20,000 rows in a track view, beside a graphics view of Qt's with the same boxes, lines
// and texts. Both are windows of the same size on the same screen, and both draw what waits when
// their events are handled.

#include <malloc.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "QtMapPeer.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/KeyframeThemeEditor.h"
#include "lumui/ui/KeyframeThemeParser.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/utility/ResourceManager.h"
#include "outliner/MapPane.h"
#include "outliner/OutlineDocument.h"
#include "support/Pair.h"
#include "vek/trackview/LUMPlatformView.h"
#include "vek/trackview/TrackView.h"
#include "vek/utility/VekResources.h"

namespace {

using outliner::MapLayout;
using outliner::OutlineRow;
using vek::trackview::Point;
using vek::trackview::Rect;

constexpr int kRows = 20000;
constexpr int kWidth = 1000;
constexpr int kHeight = 700;
constexpr int kDamage = 50;
constexpr unsigned kStepsInOneLoop = 32;
constexpr double kZooms[] = {0.8, 1, 1.25, 1};

// Four levels, branches of up to 20, texts of one to six words.
std::unique_ptr<outliner::OutlineDocument> MakeDocument() {
  auto document = std::make_unique<outliner::OutlineDocument>();
  outliner::OutlineTree& tree = document->GetTree();
  std::mt19937 random(1);
  const auto text = [&] {
    std::string words;
    for (auto count = 1 + random() % 6; count > 0; --count)
      words.append(2 + random() % 8, static_cast<char>('a' + random() % 26)).append(" ");
    return lumcore::utility::ToUTF16(words);
  };
  std::vector<OutlineRow*> parents{&tree.GetRoot()};
  for (int row = 0; row < kRows; ++row) {
    OutlineRow& parent = *parents[row < 40 ? 0 : random() % parents.size()];
    OutlineRow& added = tree.AppendRow(parent);
    tree.SetText(added, text());
    if (added.GetDepth() < 4 && parents.size() < 1500) parents.push_back(&added);
  }
  return document;
}

std::size_t HeapBytes() {
  return mallinfo2().uordblks + mallinfo2().hblkhd;
}

class Ours {
 public:
  explicit Ours(outliner::OutlineDocument& inDocument) {
    mWindow->UI_SetLocalRectF(Rect(0, 0, kWidth, kHeight));
    mPane.reset(new outliner::MapPane(&inDocument, {[] {}, [](const auto&) {}}));
    mWindow->UI_AddChild(mPane);
    mPane->UI_SetLocalRectF(Rect(0, 0, kWidth, kHeight));
    mWindow->UI_Show(true);
    lumui::testing::ProcessEvents();
  }
  ~Ours() {
    mWindow->UI_RemoveChild(mPane.get());
    mPane.reset();
    mWindow->UI_DestroyWindow();
  }

  vek::trackview::TrackView& Track() { return mPane->GetTrackView(); }
  vek::trackview::PlatformView& View() { return Track().GetPlatformView(); }
  const MapLayout& GetLayout() { return mPane->GetScene().GetLayout(); }
  void Flush() { static_cast<vek::trackview::LUMPlatformView&>(View()).UpdateNow(); }
  void SetScale(double inScale) {
    Track().SetCoordScale(static_cast<float>(inScale), true, Point(-1, -1));
  }
  void CenterOn(const Point& inPoint) {
    const Point size = View().DataSize();
    View().DataPos(inPoint - Point(size.x / 2, size.y / 2), false);
  }
  // In units of the view.
  void Invalidate(float inX, float inY, float inWidth, float inHeight) {
    const Rect area = Track().DataArea();
    const float scale = Track().GetCoordScale();
    View().InvalidateDataRect(
        Rect(area.x + inX / scale, area.y + inY / scale, inWidth / scale, inHeight / scale));
  }
  lumui::ui::OS_Window& Window() { return *mWindow; }

 private:
  boost::intrusive_ptr<lumui::ui::OS_Window> mWindow{new lumui::ui::OS_Window};
  boost::intrusive_ptr<outliner::MapPane> mPane;
};

std::vector<QtMapPeer::Box> BoxesOf(outliner::OutlineDocument& inDocument,
                                    const MapLayout& inLayout) {
  std::vector<QtMapPeer::Box> boxes;
  for (MapLayout::Index index = 0; index < inLayout.GetNodes().size(); ++index) {
    const MapLayout::Node& node = inLayout.GetNode(index);
    const Rect box = inLayout.GetBox(index);
    const OutlineRow* const row = inDocument.GetTree().FindRow(node.row);
    const bool hasChildren = node.childCount > 0;
    boxes.push_back(
        {box.x, box.y, box.width, box.height,
         node.parent == MapLayout::kNone ? -1 : static_cast<int>(node.parent),
         hasChildren ? inLayout.GetNode(node.firstChild).middle : 0,
         hasChildren ? inLayout.GetNode(MapLayout::EndOfChildren(node) - 1).middle : 0, hasChildren,
         std::min<std::size_t>(node.depth, 3),
         index == 0 ? std::string("Untitled") : lumcore::utility::ToStdString(row->GetText())});
  }
  return boxes;
}

void LoadTheme() {
  auto* const editor = new lumui::ui::KeyframeThemeEditor(385, 3, 1);
  lumui::ui::Theme::Initialize(editor);
  const auto bytes = vek::utility::GetResourceManager()->GetRequiredBinary(
      lumcore::utility::ToUTF16("LUMColorThemesV5"), "xml");
  std::auto_ptr<lumcore::xml::AbstractParseHandler> handler(
      new lumui::ui::KeyframeThemeParser(*editor));
  lumcore::xml::GetParser(handler)->Parse({bytes.begin(), bytes.end()},
                                          lumcore::utility::ToUTF16("LUMColorThemesV5"));
  lumui::ui::Theme::SetBrightness(1);
  lumui::ui::Theme::NotifyThemeChanged();
}

// Both sides, at the same scale and over the same place.
struct Sides {
  Sides() : document(MakeDocument()) {
    std::size_t before = HeapBytes();
    ours = std::make_unique<Ours>(*document);
    ourBytes = static_cast<double>(HeapBytes() - before) / kRows;
    const auto boxes = BoxesOf(*document, ours->GetLayout());
    before = HeapBytes();
    peer = std::make_unique<QtMapPeer>(kWidth, kHeight, boxes);
    peerBytes = static_cast<double>(HeapBytes() - before) / kRows;
    const Rect area = ours->GetLayout().GetBox(static_cast<MapLayout::Index>(kRows / 2));
    middle = Point(area.x, area.y);
    const Point size = ours->GetLayout().GetSize();
    fit = std::min(kWidth / size.x, kHeight / size.y);
  }

  void Show(double inScale) {
    ours->SetScale(inScale);
    ours->CenterOn(middle);
    ours->Flush();
    peer->SetScale(inScale);
    peer->CenterOn(middle.x, middle.y);
    peer->Flush();
  }

  std::unique_ptr<outliner::OutlineDocument> document;
  std::unique_ptr<Ours> ours;
  std::unique_ptr<QtMapPeer> peer;
  Point middle;
  double fit = 1;
  double ourBytes = 0;
  double peerBytes = 0;
};

template <class Step>
bench::Body At(Sides& ioSides, double inScale, Step inStep, bool inDraws = true) {
  return [&ioSides, inScale, inStep, inDraws](benchmark::State& ioState) {
    ioSides.Show(inScale);
    unsigned turn = 0;
    for (auto _ : ioState) {
      // As a loop does: what draws leave in the queue is looked through at each of the next ones.
      if (inDraws && turn % kStepsInOneLoop == 0) lumui::testing::ProcessEvents();
      inStep(turn++);
    }
  };
}

bench::Pair FullFrame(Sides& ioSides, const std::string& inName, double inScale) {
  return {inName, "ms", bench::RatioAtMost(0.5),
          At(ioSides, inScale,
             [&](unsigned) {
               ioSides.ours->View().InvalidateDataRect(ioSides.ours->Track().DataArea());
               ioSides.ours->Flush();
             }),
          At(ioSides, inScale, [&](unsigned) {
            ioSides.peer->InvalidateAll();
            ioSides.peer->Flush();
          })};
}

bench::Pair Damage(Sides& ioSides, const std::string& inName, double inScale) {
  constexpr int kLeft = (kWidth - kDamage) / 2;
  constexpr int kTop = (kHeight - kDamage) / 2;
  return {inName, "ms", bench::RatioAtMost(0.5),
          At(ioSides, inScale,
             [&](unsigned) {
               ioSides.ours->Invalidate(kLeft, kTop, kDamage, kDamage);
               ioSides.ours->Flush();
             }),
          At(ioSides, inScale, [&](unsigned) {
            ioSides.peer->Invalidate(kLeft, kTop, kDamage, kDamage);
            ioSides.peer->Flush();
          })};
}

bench::Pair ZoomStep(Sides& ioSides, const std::string& inName, double inScale) {
  return {inName, "ms", bench::RatioAtMost(0.5),
          At(ioSides, inScale,
             [&, inScale](unsigned inTurn) {
               ioSides.ours->SetScale(inScale * kZooms[inTurn % 4]);
               ioSides.ours->CenterOn(ioSides.middle);
               ioSides.ours->Flush();
             }),
          At(ioSides, inScale, [&, inScale](unsigned inTurn) {
            ioSides.peer->SetScale(inScale * kZooms[inTurn % 4]);
            ioSides.peer->CenterOn(ioSides.middle.x, ioSides.middle.y);
            ioSides.peer->Flush();
          })};
}

// Down and to the right, and back before the place is another one.
bench::Pair PanStep(Sides& ioSides, const std::string& inName, double inScale) {
  const auto sign = [](unsigned inTurn) { return inTurn / 8 % 2 == 0 ? 1 : -1; };
  return {inName, "ms", bench::RatioAtMost(0.5),
          At(ioSides, inScale,
             [&, inScale, sign](unsigned inTurn) {
               const Point old = ioSides.ours->View().DataPos();
               const auto step = static_cast<float>(sign(inTurn) / inScale);
               ioSides.ours->View().DataPos(Point(old.x + 7 * step, old.y + 13 * step), false);
               ioSides.ours->Flush();
             }),
          At(ioSides, inScale, [&, sign](unsigned inTurn) {
            ioSides.peer->Scroll(7 * sign(inTurn), 13 * sign(inTurn));
            ioSides.peer->Flush();
          })};
}

bench::Pair HitTest(Sides& ioSides, const std::string& inName, double inScale) {
  const auto place = [](unsigned inTurn) {
    return std::pair<int, int>(inTurn * 97 % kWidth, inTurn * 61 % kHeight);
  };
  return {inName, "us", bench::RatioAtMost(0.5),
          At(
              ioSides, inScale,
              [&, place](unsigned inTurn) {
                const auto [x, y] = place(inTurn);
                Point point(static_cast<float>(x), static_cast<float>(y));
                point = point + ioSides.ours->Track().LocalArea().Origin();
                ioSides.ours->Track().LocalToData(point);
                benchmark::DoNotOptimize(ioSides.ours->GetLayout().FindBox(point));
              },
              false),
          At(
              ioSides, inScale,
              [&, place](unsigned inTurn) {
                const auto [x, y] = place(inTurn);
                benchmark::DoNotOptimize(ioSides.peer->HasItemAt(x, y));
              },
              false)};
}

}  // namespace

int main(int argc, char** argv) {
  lumui::ui::Application application(argc, argv);
  LoadTheme();
  int result = 0;
  {
    Sides sides;
    const double fit = sides.fit;
    result = bench::Run(
        "trackview", argc, argv,
        {
            FullFrame(sides, "paint a full frame of 20,000 boxes at 1:1", 1),
            FullFrame(sides, "paint a full frame, all boxes in view", fit),
            Damage(sides, "paint a damage of 50 x 50 at 1:1", 1),
            Damage(sides, "paint a damage of 50 x 50, all boxes in view", fit),
            ZoomStep(sides, "zoom by a step at 1:1", 1),
            ZoomStep(sides, "zoom by a step, all boxes in view", fit),
            PanStep(sides, "pan by a step at 1:1", 1),
            HitTest(sides, "hit test of a press at 1:1", 1),
            HitTest(sides, "hit test of a press, all boxes in view", fit),
        },
        {{"memory for a box", "B", bench::RatioAtMost(0.5), sides.ourBytes, sides.peerBytes}});
  }
  lumui::ui::Theme::Terminate();
  return result;
}
