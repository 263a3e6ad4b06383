// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QtGui/private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <QAccessible>
#include <QApplication>
#include <QWidget>
#include <set>

#include "lumui/UITest.h"
#include "support/TestTree.h"
#include "vek/hierarchyview/BasicMultiColumnListBase.h"
#include "vek/hierarchyview/BasicTreeControlBase.h"
#include "vek/hierarchyview/BasicTreeListRowGeometry.h"
#include "vek/hierarchyview/TreeListGeometry.h"
#include "vek/selection/Manager.h"
#include "vek/selection/Node.h"
#include "vek/trackview/PlatformScrollView.h"

namespace {

using namespace test_support;
using namespace vek::hierarchyview;
using lumui::test::U16;
namespace tv = vek::trackview;
using Rect = tv::Rect;

// Its cells read "a1" and so on, by the column's attribute. Capitals take no selection.
class Entry : public Named<HierarchyEntry>, public vek::selection::Node {
 public:
  explicit Entry(char inName) : Named(std::string(1, inName), nullptr, kNodeCollapsed) {}
  void GetCellText(unsigned int const& inAttribute, lumcore::UTF16String& outText) const override {
    outText = U16((mName + std::to_string(inAttribute)).c_str());
  }
  bool CanExpand() const override { return !GetChildren().empty(); }
  bool CanCollapse() const override { return CanExpand(); }
  vek::selection::Node* GetDataAsSelNode() const override { return const_cast<Entry*>(this); }

 private:
  bool DoSelectable() const override { return mName[0] >= 'a'; }
};

// Notes the rows that it paints, each as "a1@38" by its top in the data.
class PaintNotingList : public BasicMultiColumnListBase {
 public:
  PaintNotingList(tv::TrackView& inTrackView, bool inHideRoot, bool inOwnGeometry)
      : BasicMultiColumnListBase(&inTrackView, false, false, false, inHideRoot),
        mOwnGeometry(inOwnGeometry) {}
  std::set<std::pair<float, std::string>> mPainted;

 private:
  class Layout : public BasicTreeListRowGeometry {
   public:
    Layout(PaintNotingList& inList, HierarchyEntryBase const* inEntry, Point const& inPosition)
        : BasicTreeListRowGeometry(&inList, inList.GetTrackView(), inEntry, inPosition, false,
                                   false),
          mList(inList) {}
    void ImageNode(HierarchyGeometry const&, lumui::drawbot::Drawbot&, Rect const& inRow,
                   bool) override {
      const lumcore::UTF16String text = GetText(1);
      mList.mPainted.emplace(inRow.y, std::string(text.begin(), text.end()));
    }

   private:
    PaintNotingList& mList;
  };
  class Factory : public TreeRowGeometryFactory {
   public:
    explicit Factory(PaintNotingList& inList) : mList(inList) {}
    std::auto_ptr<TreeRowGeometry> ServeRowGeometry(HierarchyEntryBase const* inEntry,
                                                    Point const& inPosition) override {
      return std::auto_ptr<TreeRowGeometry>(new Layout(mList, inEntry, inPosition));
    }

   private:
    PaintNotingList& mList;
  };
  std::auto_ptr<TreeRowGeometryFactory> CreateRowGeometryFactory() override {
    return std::auto_ptr<TreeRowGeometryFactory>(new Factory(*this));
  }
  // A class of a host's own, whose rows are found by walking alone.
  class Geometry : public TreeListGeometry {
    using TreeListGeometry::TreeListGeometry;
  };
  std::auto_ptr<HierarchyGeometry> CreateGeometry() override {
    if (!mOwnGeometry) return BasicMultiColumnListBase::CreateGeometry();
    return std::auto_ptr<HierarchyGeometry>(new Geometry(this, 10, GetHideRoot()));
  }

  bool mOwnGeometry;
};

std::string* sEvents = nullptr;

std::string NameOf(QAccessibleInterface* inItem) {
  return inItem ? inItem->text(QAccessible::Name).toStdString() : "none";
}

void NoteEvent(QAccessibleEvent* inEvent) {
  const char* type = inEvent->type() == QAccessible::Focus           ? "focus:"
                     : inEvent->type() == QAccessible::StateChanged  ? "state:"
                     : inEvent->type() == QAccessible::Selection     ? "selection"
                     : inEvent->type() == QAccessible::ObjectReorder ? "items"
                                                                     : "other:";
  QAccessibleInterface* const from = inEvent->accessibleInterface();
  const bool isRow = from && from->role() == QAccessible::TreeItem;
  *sEvents += type + (isRow ? NameOf(from) : "") + " ";
}

// A list of two columns, 100 and 60 wide, in a real window of 200 by 100 that has the keyboard.
class ReadTrees : public lumui::test::UITest {
 protected:
  ReadTrees() {
    mScroll->UI_SetLocalRectF(Rect(0, 0, 200, 100));
    mWindow->UI_AddChild(mScroll);
  }
  tv::TrackView& Track() { return *View().GetTrackView(); }
  tv::LUMPlatformView& View() { return mScroll->GetPlatformView(); }
  // The shape as ReadTree has it; the hidden root is not in it.
  void Build(const std::string& inShape, bool inHideRoot = true, bool inOwnGeometry = false) {
    if (mList) Track().RemoveOverlay(mList);
    View().DataPos(tv::Point(0, 0), true);
    std::auto_ptr<tv::Overlay> overlay(mList =
                                           new PaintNotingList(Track(), inHideRoot, inOwnGeometry));
    mList->InsertColumn(1U, 100, 10, U16("First").c_str(), nullptr);
    mList->InsertColumn(2U, 60, 10, U16("Second").c_str(), nullptr);
    HierarchyEntryBase* parent = nullptr;
    HierarchyEntryBase* last = nullptr;
    for (const char letter : inShape) {
      if (letter == '[') parent = last;
      if (letter == ']') parent = parent->GetParent();
      if (!std::isalpha(static_cast<unsigned char>(letter))) continue;
      mList->InsertEntry(parent, EntryP(last = mEntries[letter] = new Entry(letter)));
    }
    mList->BuildHierarchy();
    Track().InstallOverlay(overlay, false);
    View().UI_SetKeyboardFocus(0);
    App().PumpPendingEvents();
    mNode = QAccessible::queryAccessibleInterface(QApplication::focusWidget());
  }
  // What of the rows is in view: as it was painted, and as its nodes tell.
  std::string Painted() {
    mList->mPainted.clear();
    View().InvalidateDataRect(Track().DataArea());
    App().PumpPendingEvents();
    std::string text;
    for (const auto& [top, name] : mList->mPainted) {
      const float y = top - View().DataPos().y;
      if (y < 100 && y + 19 > 0) text += name + "@" + std::to_string(int(y)) + " ";
    }
    return text;
  }
  std::string Nodes() {
    const QPoint corner = QApplication::focusWidget()->mapToGlobal(QPoint());
    std::string text;
    for (int i = 0; i < mNode->childCount(); ++i) {
      QAccessibleInterface* const row = mNode->child(i);
      if (mNode->indexOfChild(row) != i) text += "misplaced ";
      if (row->state().offscreen) continue;
      const int y = row->rect().y() - corner.y();
      text += NameOf(row) + "@" + std::to_string(y) + " ";
      // The node in the middle of the painted row is the row's first cell.
      QAccessibleInterface* const within = mNode->childAt(corner.x() + 50, corner.y() + y + 10);
      if (y >= 0 && y < 80 && (!within || within->parent() != row)) text += "missed ";
    }
    return text;
  }
  QAccessibleInterface* Row(int inIndex) { return mNode->child(inIndex); }
  void Do(int inIndex, const char* inAction) {
    Row(inIndex)->actionInterface()->doAction(inAction);
  }

  boost::intrusive_ptr<lumui::ui::OS_Window> mWindow = MakeWindow();
  boost::intrusive_ptr<tv::PlatformScrollView> mScroll = tv::PlatformScrollView::Create();
  PaintNotingList* mList = nullptr;
  std::map<char, Entry*> mEntries;
  QAccessibleInterface* mNode = nullptr;
};

TEST_F(ReadTrees, EachPaintedRowHasItsNode) {
  for (const bool ownGeometry : {false, true}) {
    Build("a [b c] d e [f] g h i", true, ownGeometry);
    const auto Check = [&](const std::string& inStart) {
      EXPECT_EQ(Painted().substr(0, inStart.size()), inStart);
      EXPECT_EQ(Nodes(), Painted());
    };
    Check("a1@0 d1@19 ");
    mList->ExpandNode(mEntries['a'], true);
    Check("a1@0 b1@19 c1@38 d1@57 ");
    mList->ExpandAll();
    View().DataPos(tv::Point(0, 30), true);
    Check("b1@-11 c1@8 d1@27 e1@46 ");
    mList->TakeOutEntry(mEntries['c']);
    mList->ResizeHierarchy();
    Check("b1@-11 d1@8 e1@27 f1@46 ");
    mList->SetSortColumn(1);
    Check("h1@-11 g1@8 e1@27 f1@46 ");
  }
}

TEST_F(ReadTrees, RowsTellTheirPlaceStateAndCells) {
  Build("a [b [c]] D", false);
  mList->ExpandNode(mEntries['a'], true);
  mList->SelectEntry(mEntries['b'], false);
  std::string rows;
  for (int i = 0; i < mNode->childCount(); ++i) {
    QAccessibleInterface* const row = Row(i);
    const QAccessible::State state = row->state();
    rows += NameOf(row) + "(" + row->text(QAccessible::Description).toStdString() + ")" +
            (state.expanded ? "-" : "") + (state.collapsed ? "+" : "") +
            (state.selectable ? "s" : "") + (state.selected ? "*" : "") +
            (state.focused ? "!" : "") + " " +
            row->actionInterface()->actionNames().join(' ').toStdString() + "\n";
  }
  EXPECT_EQ(rows,
            "(Level 1)- Collapse Show\n"
            "a1(Level 2)-s Collapse Select Show\n"
            "b1(Level 3)+s*! Expand Select Show\n"
            "D1(Level 2) Show\n");
  EXPECT_EQ(NameOf(mNode->focusChild()), "b1");
  std::string cells;
  for (int i = 0; i < Row(2)->childCount(); ++i) {
    QAccessibleInterface* const cell = Row(2)->child(i);
    const QPoint corner = QApplication::focusWidget()->mapToGlobal(QPoint());
    cells += NameOf(cell) + "/" + cell->text(QAccessible::Description).toStdString() + " " +
             std::to_string(cell->rect().x() - corner.x()) + "," +
             std::to_string(cell->rect().width()) + " ";
    EXPECT_EQ(Row(2)->indexOfChild(cell), i);
  }
  EXPECT_EQ(cells, "b1/First 0,100 b2/Second 100,60 ");
  QAccessibleInterface* const cell = Row(2)->child(1);
  mList->RemoveColumn(0);
  EXPECT_FALSE(cell->isValid());
  EXPECT_EQ(NameOf(Row(2)), "b2");
}

TEST_F(ReadTrees, ReadersActAndHearOfChangesAndMayHoldWhatHasGone) {
  Build("a [b c] d");
  std::string events;
  sEvents = &events;
  auto* const system = QGuiApplicationPrivate::platformIntegration()->accessibility();
  system->setActive(true);
  const auto before = QAccessible::installUpdateHandler(&NoteEvent);
  const auto Take = [&] { return std::exchange(events, std::string()); };

  Do(0, "Expand");
  EXPECT_EQ(Take(), "items state:a1 ");
  QAccessibleInterface* const held = Row(2);
  Do(2, "Select");
  EXPECT_TRUE(mEntries['c']->Selected(mList->GetSelectionManager()));
  EXPECT_EQ(Take(), "selection focus:c1 ");
  mList->GetSelectionManager()->SelectAll();
  EXPECT_EQ(Take(), "selection ");
  mList->SetSortColumn(0);
  EXPECT_EQ(Take(), "items ");
  EXPECT_EQ(NameOf(held) + std::to_string(mNode->indexOfChild(held)), "c12");
  Do(1, "Collapse");
  EXPECT_EQ(Take(), "items state:a1 ");
  // Closed away is as good as gone, until it is opened again. The platform has let go of it.
  EXPECT_EQ(mNode->childCount(), 2);
  mList->ExpandNode(mEntries['a'], false);
  QAccessibleInterface* const again = Row(2);
  EXPECT_EQ(NameOf(again), "c1");
  mList->CollapseNode(mEntries['a'], false);
  EXPECT_FALSE(again->isValid());
  mList->ExpandNode(mEntries['a'], false);
  EXPECT_TRUE(again->isValid());
  mList->TakeOutEntry(mEntries['c']);
  EXPECT_FALSE(again->isValid());
  EXPECT_EQ(mNode->indexOfChild(again), -1);
  EXPECT_TRUE(again->actionInterface()->actionNames().isEmpty());

  QAccessible::installUpdateHandler(before);
  system->setActive(false);
}

// A row of a plain tree is as wide as what is drawn of it.
TEST_F(ReadTrees, PlainTreesHaveRowsWithoutCells) {
  BasicTreeControlBase* tree = nullptr;
  std::auto_ptr<tv::Overlay> overlay(tree = new BasicTreeControlBase(&Track()));
  tree->SetFont(lumui::drawbot::FontP(new FixedFont));
  HierarchyEntryBase* const fruits = tree->AddNode(nullptr, U16("Fruits"));
  tree->AddNode(fruits, U16("Apple"));
  tree->BuildHierarchy();
  Track().InstallOverlay(overlay, false);
  View().UI_SetKeyboardFocus(0);
  tree->ExpandAll();
  mNode = QAccessible::queryAccessibleInterface(QApplication::focusWidget());
  ASSERT_EQ(mNode->childCount(), 2);
  EXPECT_EQ(NameOf(Row(1)), "Apple");
  EXPECT_EQ(Row(1)->childCount(), 0);
  // From the indent to the end of the highlight: 16, and 35 of text from 22 on, and 1.
  const QPoint corner = QApplication::focusWidget()->mapToGlobal(QPoint());
  EXPECT_EQ(Row(1)->rect(), QRect(corner + QPoint(16, 19), QSize(58, 19)));
  EXPECT_EQ(NameOf(mNode->childAt(corner.x() + 60, corner.y() + 19)), "Apple");
  EXPECT_EQ(mNode->childAt(corner.x() + 80, corner.y() + 25), nullptr);
  EXPECT_EQ(mNode->childAt(corner.x() + 20, corner.y() + 38), nullptr);
}

}  // namespace
