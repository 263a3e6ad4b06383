// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "lumui/UITest.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/drawbot/Surface.h"
#include "lumui/ui/KeyframeThemeEditor.h"
#include "support/ThemeDocuments.h"
#include "vek/hierarchyview/BasicTreeControlBase.h"
#include "vek/hierarchyview/MultiColumnHeaderView.h"
#include "vek/selection/ActiveManager.h"
#include "vek/selection/Manager.h"
#include "vek/sharedui/UIMultiTreeList.h"
#include "vek/sharedui/UIMultiTreeListController.h"
#include "vek/sharedui/UIMultiTreeListView.h"
#include "vek/trackview/PlatformScrollView.h"

namespace {

using namespace vek;
using hierarchyview::BasicTreeControlBase;
using hierarchyview::BasicTreeNode;
using lumui::drawbot::Drawbot;
using lumui::drawbot::Surface;
using lumui::test::U16;
using trackview::Point;
using trackview::Rect;
using trackview::TrackView;

constexpr int kWidth = 320, kHeight = 140, kHeader = 20;

constexpr int kBlockWidth = 32, kBlockHeight = 19;
constexpr float kTolerance = 0.05f;

// Beside pictures of before, in tests/hierarchyview/pictures. Letters differ from system to system,
// so the means of blocks are compared, and those by no more than a text that is lost makes of them.
// Where VEK_NEW_PICTURES names a folder, the pictures of now are put there.
class TreePictures : public lumui::test::UITest,
                     public testing::WithParamInterface<std::pair<float, bool>> {
 protected:
  TreePictures() {
    lumui::ui::Theme::Initialize(new lumui::ui::KeyframeThemeEditor(385, 3, 1));
    vek::test::LoadTheme("LUMColorThemesV2");
    lumui::ui::Theme::SetBrightness(GetParam().second ? 0.0f : 1.0f);
  }
  ~TreePictures() override {
    mWindow->UI_DestroyWindow();
    lumui::ui::Theme::Terminate();
  }
  void Show(lumui::ui::UI_Node& ioNode) {
    mWindow->UI_AddChild(boost::intrusive_ptr<lumui::ui::UI_Node>(&ioNode));
    ioNode.UI_SetLocalRectF(Rect(0, 0, kWidth, kHeight));
    App().PumpPendingEvents();
  }
  static void Draw(TrackView& ioView, Drawbot& ioDrawbot, float inTop, float inHeight) {
    const lumui::drawbot::StDrawbotState state(ioDrawbot);
    ioDrawbot.Translate(0, inTop);
    ioView.ImageRect(Rect(0, 0, kWidth, inHeight), ioDrawbot, lumui::ui::Theme::Get());
  }
  boost::intrusive_ptr<Surface> NewSurface() {
    return mSupplier.NewSurface(kWidth, kHeight, GetParam().first);
  }
  void Compare(Surface& ioNow, const std::string& inWhat) {
    const std::string name = inWhat + (GetParam().second ? "-dark-" : "-light-") +
                             std::to_string(std::lround(GetParam().first * 100)) + ".png";
    if (const char* const folder = std::getenv("VEK_NEW_PICTURES"))
      ioNow.SavePNG(std::string(folder) + "/" + name);
    const auto before = NewSurface();
    const auto image =
        mSupplier.NewImageFromFile(std::string(TEST_PICTURES) + "/" + name, GetParam().first);
    ASSERT_TRUE(image) << name;
    before->GetDrawbot().DrawImage(*image, Point(0, 0));
    for (int top = 0; top < kHeight; top += kBlockHeight) {
      for (int left = 0; left < kWidth; left += kBlockWidth) {
        const auto a = MeanOf(ioNow, left, top), b = MeanOf(*before, left, top);
        const float difference = std::max(
            {std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue)});
        EXPECT_LT(difference, kTolerance) << name << " at " << left << "," << top;
      }
    }
  }
  static lumui::drawbot::ColorRGBA MeanOf(const Surface& inPicture, int inLeft, int inTop) {
    const auto pixel = [](int inUnit) {
      return static_cast<int>(std::lround(static_cast<float>(inUnit) * GetParam().first));
    };
    const int right = std::min(pixel(inLeft + kBlockWidth), inPicture.GetPixelWidth());
    const int bottom = std::min(pixel(inTop + kBlockHeight), inPicture.GetPixelHeight());
    lumui::drawbot::ColorRGBA sum(0, 0, 0);
    float count = 0;
    for (int y = pixel(inTop); y < bottom; ++y) {
      for (int x = pixel(inLeft); x < right; ++x, ++count) {
        const auto color = inPicture.GetPixel(x, y);
        sum.red += color.red;
        sum.green += color.green;
        sum.blue += color.blue;
      }
    }
    return lumui::drawbot::ColorRGBA(sum.red / count, sum.green / count, sum.blue / count);
  }

  const lumui::drawbot::SupplierInterface& mSupplier = *lumui::drawbot::GetDefaultSupplier();
  boost::intrusive_ptr<lumui::ui::OS_Window> mWindow = MakeWindow();
};

TEST_P(TreePictures, OfATreeLookAsTheyDid) {
  const auto scroll = trackview::PlatformScrollView::Create();
  TrackView& track = *scroll->GetPlatformView().GetTrackView();
  auto* const tree = new BasicTreeControlBase(&track);
  std::auto_ptr<trackview::Overlay> overlay(tree);
  std::vector<BasicTreeNode*> nodes;
  BasicTreeNode* parent = nullptr;
  for (const char* name : {"Fruits", "-Apple", "-Cherry", "Roots", "-Beet", "Zebra"}) {
    const bool isChild = *name == '-';
    nodes.push_back(tree->AddNode(isChild ? parent : nullptr, U16(isChild ? name + 1 : name)));
    if (!isChild) parent = nodes.back();
  }
  track.InstallOverlay(overlay, false);
  tree->BuildHierarchy();
  Show(*scroll);
  tree->ExpandAll();
  tree->CollapseNode(nodes[3], true);
  tree->SelectEntry(nodes[2], false);
  tree->SetDrawBorder(true);
  tree->SetMarqueeRect(Rect(150, 30, 80, 45));
  tree->SetDragFeedback(nodes[5], false);
  const auto now = NewSurface();
  Draw(track, now->GetDrawbot(), 0, kHeight);
  Compare(*now, "tree");
}

class Texts : public UIMultiTreeListController {
 public:
  void GetTextForNode(UIMultiTreeListView&, const UIMultiTreeListNode& inNode,
                      unsigned int inColumn, lumcore::UTF16String& outText) override {
    static const char* const kTexts[][3] = {{"Notes", "Folder", "today"},
                                            {"A letter that goes on and on", "Text", "June"},
                                            {"Plans", "Folder", "May"},
                                            {"Garden", "Picture", "May"},
                                            {"Zoo", "Picture", "in a year that is far off"}};
    outText = U16(kTexts[inNode.GetID()][inColumn]);
  }
};

// Selected rows with and without the activity of the list, a sort arrow, a cell that is cut off,
// and a column on its way.
TEST_P(TreePictures, OfAListLookAsTheyDid) {
  Texts texts;
  const boost::intrusive_ptr<UIMultiTreeList> node(new UIMultiTreeList);
  UIMultiTreeListView& list = *node->GetTreeControl();
  node->SetColumns({U16("Name"), U16("Kind"), U16("Changed")});
  list.SetColumnWidth(0, 120);
  list.SetColumnWidth(1, 90);
  list.SetController(&texts);
  std::vector<UIMultiTreeListView::NodeP> rows;
  for (unsigned int id = 0; id < 5; ++id)
    rows.push_back(new UIMultiTreeListNode(id, hierarchyview::kNodeExpanded));
  for (const std::size_t row : {0U, 2U, 4U})
    list.InsertItem(rows[row]);
  list.InsertItem(rows[1], rows[0].get());
  list.InsertItem(rows[3], rows[2].get());
  Show(*node);
  list.CollapseNode(rows[2].get(), true);
  list.SelectEntry(rows[1].get(), false);
  list.SelectEntry(rows[4].get(), true);
  list.SetShowIfInactiveSelMgr(false);
  selection::SetActiveManager(GetParam().second ? list.GetSelectionManager() : nullptr);
  list.SortIsAscending(false);
  hierarchyview::MultiColumnHeaderView& header = *node->GetHeaderView();
  header.SetDragFeedbackRect(Rect(160, 0, 89, kHeader - 1));
  header.SetDragInsertionRect(Rect(117, 0, 3, kHeader));
  const auto now = NewSurface();
  Draw(*header.GetTrackView(), now->GetDrawbot(), 0, kHeader);
  Draw(*list.GetTrackView(), now->GetDrawbot(), kHeader, kHeight - kHeader);
  Compare(*now, "list");
  list.SetController(nullptr);
}

INSTANTIATE_TEST_SUITE_P(Scales, TreePictures,
                         testing::Values(std::pair(1.0f, true), std::pair(1.5f, true),
                                         std::pair(2.0f, true), std::pair(1.0f, false),
                                         std::pair(1.5f, false), std::pair(2.0f, false)));

}  // namespace
