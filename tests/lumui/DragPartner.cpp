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
// press drags, and which takes what is dropped if there are files in it. It tells on its output
// when it is ready and what has come of each drag.
namespace {

class Partner : public QWidget {
 public:
  Partner() {
    setAcceptDrops(true);
    setWindowFlag(Qt::FramelessWindowHint);
    setGeometry(20, 20, 100, 100);
  }

 protected:
  void mousePressEvent(QMouseEvent*) override {
    auto* const drag = new QDrag(this);
    auto* const sent = new QMimeData;
    sent->setText(QString::fromUtf8("w\xC3\xB6rd"));
    sent->setUrls({QUrl::fromLocalFile("/tmp/a b")});
    sent->setData("application/x-big", QByteArray(3 << 20, 'x'));
    drag->setMimeData(sent);
    Say("sent " + QByteArray::number(drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::CopyAction)));
  }
  void dragEnterEvent(QDragEnterEvent* inEvent) override {
    inEvent->acceptProposedAction();
    if (inEvent->source()) return;
    // Behind the answer.
    QTimer::singleShot(0, this, [] { Say("entered"); });
  }
  void dropEvent(QDropEvent* inEvent) override {
    const QMimeData& got = *inEvent->mimeData();
    if (!got.hasUrls()) {
      inEvent->ignore();
      return Say("got refused");
    }
    inEvent->acceptProposedAction();
    Say("got " + got.text().toUtf8() + "|" + got.urls().value(0).toString().toUtf8() + "|" +
        got.data("application/x-row") + "|" + QByteArray::number(inEvent->dropAction()));
  }
  void paintEvent(QPaintEvent*) override {
    if (!std::exchange(mReady, true)) QTimer::singleShot(0, this, [] { Say("ready"); });
  }

 private:
  static void Say(const QByteArray& inLine) {
    std::puts(inLine.constData());
    std::fflush(stdout);
  }

  bool mReady = false;
};

}  // namespace

int main(int inCount, char** inArguments) {
  QApplication application(inCount, inArguments);
  Partner partner;
  partner.show();
  return application.exec();
}
