// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "QtMapPeer.h"

#include <QApplication>
#include <QGraphicsItem>
#include <QGraphicsView>
#include <QPainterPath>
#include <QScrollBar>
#include <QStyleOptionGraphicsItem>

namespace {

constexpr qreal kBend = 22;
constexpr qreal kRound = 0.5523;
constexpr qreal kRadius = 8;
constexpr qreal kPadding = 12;
constexpr qreal kRootPadding = 20;
constexpr int kTextSizes[] = {17, 14, 13, 13};
constexpr qreal kLeastTextSize = 4;

// What all items of one level draw with.
struct Look {
  QFont font;
  QPen line;
  QBrush fill;
  QColor ink;
};

const Look& LookOf(std::size_t inLevel) {
  static const std::vector<Look> sLooks = [] {
    const QColor paper(Qt::white);
    const QColor accent(23, 95, 189);
    const auto mixed = [&](qreal inShare) {
      const auto mix = [inShare](int inA, int inB) { return int(inA + (inB - inA) * inShare); };
      return QColor(mix(paper.red(), accent.red()), mix(paper.green(), accent.green()),
                    mix(paper.blue(), accent.blue()));
    };
    std::vector<Look> looks;
    const qreal lines[] = {0.75, 0.5, 0.32, 0.32};
    const qreal fills[] = {1, 0.3, 0.14, 0.05};
    for (std::size_t level = 0; level < 4; ++level) {
      Look look;
      look.font.setPixelSize(kTextSizes[level]);
      look.font.setBold(level < 2);
      look.line = QPen(mixed(lines[level]), 2, Qt::SolidLine, Qt::FlatCap);
      look.fill = QBrush(mixed(fills[level]));
      look.ink = level == 0 ? Qt::white : Qt::black;
      looks.push_back(look);
    }
    return looks;
  }();
  return sLooks[inLevel];
}

// A box at the item's origin, the line that comes in and the trunk of those that go out.
class BoxItem final : public QGraphicsItem {
 public:
  BoxItem(const QtMapPeer::Box& inBox, const QtMapPeer::Box* inParent)
      : mBox(0, 0, inBox.width, inBox.height), mLevel(inBox.level) {
    setPos(inBox.x, inBox.y);
    const QFontMetricsF metrics(LookOf(mLevel).font);
    const qreal padding = mLevel == 0 ? kRootPadding : kPadding;
    mText = metrics.elidedText(QString::fromStdString(inBox.text), Qt::ElideRight,
                               inBox.width - 2 * padding);
    const qreal middle = inBox.height / 2;
    mBaseline =
        QPointF(padding, middle - (metrics.ascent() + metrics.descent()) / 2 + metrics.ascent());
    if (inParent) AddTwig(inParent->y + inParent->height / 2 - inBox.y, middle);
    if (inBox.hasChildren) {
      AddTrunk(middle, inBox.firstChildMiddle - inBox.y, -1);
      AddTrunk(middle, inBox.lastChildMiddle - inBox.y, 1);
    }
    mBounds = mBox.united(mTwig.boundingRect()).united(mTrunk.boundingRect());
    mBounds.adjust(-1, -1, 1, 1);
  }

  QRectF boundingRect() const override { return mBounds; }
  QPainterPath shape() const override {
    QPainterPath path;
    path.addRect(mBox);
    return path;
  }
  void paint(QPainter* inPainter, const QStyleOptionGraphicsItem*, QWidget*) override {
    const Look& look = LookOf(mLevel);
    inPainter->setBrush(Qt::NoBrush);
    if (!mTwig.isEmpty()) {
      inPainter->setPen(LookOf(mLevel - (mLevel > 0)).line);
      inPainter->drawPath(mTwig);
    }
    if (!mTrunk.isEmpty()) {
      inPainter->setPen(look.line);
      inPainter->drawPath(mTrunk);
    }
    inPainter->setPen(Qt::NoPen);
    inPainter->setBrush(look.fill);
    inPainter->drawRoundedRect(mBox, kRadius, kRadius);
    const qreal detail =
        QStyleOptionGraphicsItem::levelOfDetailFromTransform(inPainter->worldTransform());
    if (detail * kTextSizes[3] < kLeastTextSize) return;
    inPainter->setPen(look.ink);
    inPainter->setFont(look.font);
    inPainter->drawText(mBaseline, mText);
  }

 private:
  void AddTwig(qreal inParentMiddle, qreal inMiddle) {
    const qreal distance = inMiddle - inParentMiddle;
    if (qAbs(distance) < 2 * kBend) {
      mTwig.moveTo(-2 * kBend, inParentMiddle);
      mTwig.cubicTo(-kBend, inParentMiddle, -kBend, inMiddle, 0, inMiddle);
      return;
    }
    const qreal bend = inMiddle - (distance > 0 ? kBend : -kBend);
    mTwig.moveTo(-kBend, bend);
    mTwig.cubicTo(-kBend, bend + kRound * (inMiddle - bend), -kRound * kBend, inMiddle, 0,
                  inMiddle);
  }
  void AddTrunk(qreal inMiddle, qreal inEnd, qreal inSign) {
    const qreal bend = inMiddle + inSign * kBend;
    const qreal last = inEnd - inSign * kBend;
    if ((last - bend) * inSign < 0) return;
    const qreal start = mBox.width();
    mTrunk.moveTo(start, inMiddle);
    mTrunk.cubicTo(start + kRound * kBend, inMiddle, start + kBend, bend - inSign * kRound * kBend,
                   start + kBend, bend);
    mTrunk.lineTo(start + kBend, last);
  }

  QRectF mBox;
  QRectF mBounds;
  QString mText;
  QPointF mBaseline;
  QPainterPath mTwig;
  QPainterPath mTrunk;
  std::size_t mLevel;
};

}  // namespace

class QtMapPeer::Impl {
 public:
  Impl(int inWidth, int inHeight, const std::vector<Box>& inBoxes) {
    mScene.setBackgroundBrush(Qt::white);
    for (const Box& box : inBoxes) {
      const Box* const parent = box.parent < 0 ? nullptr : &inBoxes[std::size_t(box.parent)];
      mScene.addItem(new BoxItem(box, parent));
    }
    mView.setScene(&mScene);
    mView.setFrameShape(QFrame::NoFrame);
    mView.setRenderHint(QPainter::Antialiasing);
    mView.setTransformationAnchor(QGraphicsView::NoAnchor);
    // Each item sets all that it draws with.
    mView.setOptimizationFlags(QGraphicsView::DontSavePainterState |
                               QGraphicsView::DontAdjustForAntialiasing);
    mView.resize(inWidth, inHeight);
    mView.show();
    QApplication::processEvents();
  }

  QGraphicsScene mScene;
  QGraphicsView mView;
};

QtMapPeer::QtMapPeer(int inWidth, int inHeight, const std::vector<Box>& inBoxes)
    : mImpl(std::make_unique<Impl>(inWidth, inHeight, inBoxes)) {}

QtMapPeer::~QtMapPeer() = default;

void QtMapPeer::SetScale(double inScale) {
  mImpl->mView.setTransform(QTransform::fromScale(inScale, inScale));
}

void QtMapPeer::CenterOn(double inX, double inY) {
  mImpl->mView.centerOn(inX, inY);
}

void QtMapPeer::Scroll(int inX, int inY) {
  QScrollBar* const x = mImpl->mView.horizontalScrollBar();
  QScrollBar* const y = mImpl->mView.verticalScrollBar();
  x->setValue(x->value() + inX);
  y->setValue(y->value() + inY);
}

void QtMapPeer::InvalidateAll() {
  mImpl->mView.viewport()->update();
}

void QtMapPeer::Invalidate(int inX, int inY, int inWidth, int inHeight) {
  mImpl->mView.viewport()->update(inX, inY, inWidth, inHeight);
}

void QtMapPeer::Flush() {
  // What was put off to be done once is drawn as well.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
  QCoreApplication::sendPostedEvents(&mImpl->mView, QEvent::UpdateRequest);
}

bool QtMapPeer::HasItemAt(int inX, int inY) const {
  return mImpl->mView.itemAt(inX, inY) != nullptr;
}

void QtMapPeer::SavePicture(const std::string& inPath) {
  mImpl->mView.grab().save(QString::fromStdString(inPath));
}
