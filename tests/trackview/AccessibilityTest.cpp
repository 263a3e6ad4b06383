// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QtGui/private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <QAccessible>
#include <QApplication>
#include <QWidget>
#include <set>
#include <stdexcept>

#include "trackview/RealView.h"
#include "vek/trackview/AccessibleOverlay.h"

namespace {

using namespace vek::trackview;
using lumui::ui::AccessibleAction;
using lumui::ui::AccessibleChange;
using lumui::ui::AccessibleItem;
using lumui::ui::AccessibleRole;

// Rows 1 to mCount of 10 units, one below the other from (50, 60), each with two cells: those of
// row 2 are 20 and 21.
class Rows : public Overlay, public AccessibleOverlay {
 public:
  explicit Rows(std::set<ID>& outExpanded)
      : Overlay(kLayerDefault, kStateActive), mExpanded(outExpanded) {}

  int GetAccessibleChildCount(ID inParent) const override {
    return inParent == kRoot ? mCount : inParent < 10 ? 2 : 0;
  }
  ID GetAccessibleChild(ID inParent, int inIndex) const override {
    return inParent == kRoot ? static_cast<ID>(inIndex) + 1
                             : inParent * 10 + static_cast<ID>(inIndex);
  }
  ID GetAccessibleParent(ID inItem) const override { return inItem < 10 ? 0 : inItem / 10; }
  int GetAccessibleIndex(ID inItem) const override {
    return static_cast<int>(inItem < 10 ? inItem - 1 : inItem % 10);
  }
  bool DescribeAccessible(ID inItem, AccessibleItem& outItem) const override {
    if (inItem == 3) throw std::runtime_error("describe");
    if (static_cast<int>(RowOf(inItem)) > mCount) return false;
    outItem.role = inItem < 10 ? AccessibleRole::kTreeItem : AccessibleRole::kCell;
    outItem.name = lumcore::utility::ToUTF16("item " + std::to_string(inItem));
    outItem.rect = Rect(50, 50 + 10 * static_cast<float>(RowOf(inItem)), 40, 10);
    outItem.level = inItem == 2 ? 4 : 0;
    outItem.states = lumui::ui::kAccessibleExpandable;
    if (mExpanded.count(inItem) != 0) outItem.states |= lumui::ui::kAccessibleExpanded;
    outItem.actions = lumui::ui::kAccessibleExpand;
    return true;
  }
  ID GetAccessibleAt(const Point& inAt) const override {
    return Rect(50, 60, 40, 10 * float(mCount)).Contains(inAt) ? ID((inAt.y - 50) / 10) : kRoot;
  }
  ID GetAccessibleFocus() const override { return 2; }
  bool PerformAccessible(ID inItem, AccessibleAction) override {
    return mExpanded.insert(inItem).second;
  }
  using AccessibleOverlay::NotifyAccessible;

  int mCount = 2;

 private:
  static ID RowOf(ID inItem) { return inItem < 10 ? inItem : inItem / 10; }

  std::set<ID>& mExpanded;
};

std::string* sEvents = nullptr;

void NoteEvent(QAccessibleEvent* inEvent) {
  QAccessibleInterface* const from = inEvent->accessibleInterface();
  *sEvents += std::to_string(inEvent->type()) + "/" +
              (from ? from->text(QAccessible::Name).toStdString() : "none") + " ";
}

class AccessibleViews : public test_support::RealView {
 protected:
  AccessibleViews() {
    for (Rows*& rows : mRows) {
      std::auto_ptr<Overlay> overlay(rows = new Rows(mExpanded));
      Track().InstallOverlay(overlay, false);
    }
    // The widget of the view is the one that has the keyboard.
    mWidget = QApplication::focusWidget();
    mView = QAccessible::queryAccessibleInterface(mWidget);
  }
  static std::string NameOf(QAccessibleInterface* inItem) {
    return inItem ? inItem->text(QAccessible::Name).toStdString() : "none";
  }

  std::set<AccessibleOverlay::ID> mExpanded;
  Rows* mRows[2] = {};
  QWidget* mWidget = nullptr;
  QAccessibleInterface* mView = nullptr;
};

TEST_F(AccessibleViews, OfferTheItemsOfAllOverlays) {
  ASSERT_EQ(mView->childCount(), 4);
  mRows[0]->SetState(Overlay::kStateNoDraw);
  EXPECT_EQ(mView->childCount(), 2);
  mRows[0]->SetState(Overlay::kStateActive);
  QAccessibleInterface* const row = mView->child(3);
  EXPECT_EQ(NameOf(row) + " " + NameOf(row->child(1)), "item 2 item 21");
  EXPECT_EQ(row->child(2), nullptr);
  EXPECT_EQ(row->child(1)->parent(), row);
  EXPECT_EQ(row->parent(), mView);
  EXPECT_EQ(mView->indexOfChild(row), 3);
  EXPECT_EQ(mView->child(3), row);
  EXPECT_NE(mView->child(1), row);
  EXPECT_EQ(row->indexOfChild(row->child(1)), 1);
  EXPECT_EQ(row->role(), QAccessible::TreeItem);
  EXPECT_EQ(row->text(QAccessible::Description).toStdString(), "Level 4");
  // At scale 2 the corner of the view is the data point (50, 60).
  const QPoint corner = mWidget->mapToGlobal(QPoint());
  EXPECT_EQ(row->rect(), QRect(corner + QPoint(0, 20), QSize(80, 20)));
  EXPECT_EQ(NameOf(mView->childAt(corner.x() + 5, corner.y() + 25)), "item 2");
  EXPECT_EQ(mView->childAt(corner.x() + 5, corner.y() + 45), nullptr);
  EXPECT_FALSE(row->state().offscreen);
  View().DataPos(Point(50, 300), true);
  EXPECT_TRUE(row->state().offscreen);
  EXPECT_EQ(NameOf(mView->focusChild()), "item 2");
}

TEST_F(AccessibleViews, DoWhatReadersAskAndSurviveWhatHasGone) {
  QAccessibleInterface* const row = mView->child(3);
  EXPECT_TRUE(row->state().collapsed);
  EXPECT_EQ(row->actionInterface()->actionNames(), QStringList{"Expand"});
  row->actionInterface()->doAction("Collapse");
  EXPECT_TRUE(mExpanded.empty());
  row->actionInterface()->doAction("Expand");
  EXPECT_TRUE(row->state().expanded);
  mRows[1]->mCount = 1;
  EXPECT_FALSE(row->isValid());
  EXPECT_TRUE(row->state().invalid);
  EXPECT_EQ(NameOf(row), "");
  mRows[1]->mCount = 2;
  Track().RemoveOverlay(mRows[1]);
  EXPECT_FALSE(row->isValid());
  EXPECT_EQ(row->childCount(), 0);
  EXPECT_EQ(mView->childCount(), 2);
  mRows[0]->mCount = 3;
  EXPECT_FALSE(mView->child(2)->isValid());
  EXPECT_EQ(TakeErrors(), "describe");
}

TEST_F(AccessibleViews, TellReadersOfChanges) {
  std::string events;
  sEvents = &events;
  // As when a reader comes.
  auto* const system = QGuiApplicationPrivate::platformIntegration()->accessibility();
  system->setActive(true);
  const auto before = QAccessible::installUpdateHandler(&NoteEvent);
  mRows[0]->NotifyAccessible(Track(), AccessibleChange::kFocus, 1);
  mRows[1]->NotifyAccessible(Track(), AccessibleChange::kState, 2);
  mRows[1]->NotifyAccessible(Track(), AccessibleChange::kItems, AccessibleOverlay::kRoot);
  QAccessible::installUpdateHandler(before);
  system->setActive(false);
  const auto Event = [](QAccessible::Event inType) { return std::to_string(inType) + "/"; };
  EXPECT_EQ(events, Event(QAccessible::Focus) + "item 1 " + Event(QAccessible::StateChanged) +
                        "item 2 " + Event(QAccessible::ObjectReorder) + " ");
}

}  // namespace
