// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QTimer>
#include <QUrl>
#include <QWidget>
#include <cstdio>
#include <utility>

// Another program, at the other end of a drag: a window in the corner of the screen from which a
// press drags, and which takes what is dropped if there are files in it, with the effect that its
// argument names. It tells on its output when it is ready, what the pointer does, and what has come
// of each drag.
namespace {

class Partner : public QWidget {
 public:
  explicit Partner(const QByteArray& inTakes)
      : mTakes(inTakes == "copy"   ? Qt::CopyAction
               : inTakes == "move" ? Qt::MoveAction
               : inTakes == "link" ? Qt::LinkAction
                                   : Qt::IgnoreAction) {
    setAcceptDrops(true);
    setMouseTracking(true);
    setWindowFlag(Qt::FramelessWindowHint);
    setGeometry(20, 20, 100, 100);
  }

 protected:
  void mouseMoveEvent(QMouseEvent*) override { Say("pointer"); }
  void mousePressEvent(QMouseEvent*) override {
    Say("pressed");
    auto* const drag = new QDrag(this);
    auto* const sent = new QMimeData;
    sent->setText(QString::fromUtf8("w\xC3\xB6rd"));
    sent->setUrls({QUrl::fromLocalFile("/tmp/a b")});
    sent->setData("application/x-big", QByteArray(3 << 20, 'x'));
    drag->setMimeData(sent);
    Say("sent " + QByteArray::number(drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::CopyAction)));
  }
  void dragEnterEvent(QDragEnterEvent* inEvent) override { Accept(*inEvent); }
  void dragMoveEvent(QDragMoveEvent* inEvent) override {
    Accept(*inEvent);
    if (!inEvent->source()) Say("over");
  }
  void dropEvent(QDropEvent* inEvent) override {
    const QMimeData& got = *inEvent->mimeData();
    if (!got.hasUrls()) {
      inEvent->ignore();
      return Say("got refused");
    }
    Accept(*inEvent);
    Say("got " + got.text().toUtf8() + "|" + got.urls().value(0).toString().toUtf8() + "|" +
        got.data("application/x-row") + "|" + QByteArray::number(inEvent->dropAction()));
  }
  void paintEvent(QPaintEvent*) override {
    if (!std::exchange(mReady, true)) QTimer::singleShot(0, this, [] { Say("ready"); });
  }

 private:
  void Accept(QDropEvent& ioEvent) const {
    ioEvent.acceptProposedAction();
    if (mTakes != Qt::IgnoreAction) ioEvent.setDropAction(mTakes);
  }
  static void Say(const QByteArray& inLine) {
    std::puts(inLine.constData());
    std::fflush(stdout);
  }

  const Qt::DropAction mTakes;
  bool mReady = false;
};

}  // namespace

int main(int inCount, char** inArguments) {
  QApplication application(inCount, inArguments);
  Partner partner(application.arguments().value(1).toUtf8());
  partner.show();
  return application.exec();
}
