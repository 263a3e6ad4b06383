// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

#include "UITest.h"
#include "lumui/drawbot/Brush.h"
#include "lumui/drawbot/Color.h"
#include "lumui/ui/InputCapture.h"

// What only shows from the window system's side: pixels, and windows that are not ours.
namespace lumui::test {

namespace {

namespace input = lumui::testing;

class NativeSide : public UITest {};

// Fills far more than its own rectangle.
class FilledNode : public ui::UI_SubView {
 public:
  explicit FilledNode(const drawbot::ColorRGBA& inColor) : mColor(inColor) {}
  void UI_Draw(drawbot::Drawbot* inDrawbot) const override {
    inDrawbot->FillRect(Rect(-500, -500, 1000, 1000), drawbot::Brush(mColor));
  }

 private:
  drawbot::ColorRGBA mColor;
};

}  // namespace

TEST_F(NativeSide, NodesDrawOverTheirParentsAndOnlyWithinThemselves) {
  const auto window = MakeWindow();
  const boost::intrusive_ptr<FilledNode> red(new FilledNode(drawbot::ColorRGBA(1, 0, 0, 1)));
  const boost::intrusive_ptr<FilledNode> green(new FilledNode(drawbot::ColorRGBA(0, 1, 0, 1)));
  const boost::intrusive_ptr<FilledNode> blue(new FilledNode(drawbot::ColorRGBA(0, 0, 1, 1)));
  red->UI_SetLocalRectF(Rect(10, 10, 50, 50));
  green->UI_SetLocalRectF(Rect(20, 20, 100, 20));  // longer than its parent
  blue->UI_SetLocalRectF(Rect(50, 50, 20, 20));
  red->UI_AddChild(green);
  window->UI_AddChild(blue);
  window->UI_InsertChild(red, 0);  // behind blue
  const QString path = QString::fromStdString(::testing::TempDir()) + "lumui_nodes.png";
  window->UI_SavePicture(U16(path.toStdString()));
  const QImage picture(path);
  QFile::remove(path);
  const auto at = [&](int inX, int inY) {
    return picture.pixelColor(inX, inY).name().toStdString();
  };
  const std::string outside = at(5, 5);
  EXPECT_EQ(at(15, 15), "#ff0000");
  EXPECT_EQ(at(35, 35), "#00ff00");
  EXPECT_EQ(at(59, 35), "#00ff00");
  EXPECT_EQ(at(60, 35), outside);
  EXPECT_EQ(at(55, 55), "#0000ff");
  EXPECT_EQ(at(69, 69), "#0000ff");
  EXPECT_EQ(at(70, 70), outside);
}

TEST_F(NativeSide, PopupTakesTheCaptureAway) {
  class Recording : public ui::InputCapture {
   public:
    using InputCapture::InputCapture;
    void DoEnd() override { ++mEnds; }
    int mEnds = 0;
  };
  const auto window = MakeWindow();
  const boost::intrusive_ptr<Recording> capture(new Recording(window.get()));
  Manager().BeginInputCapture(capture);
  QMenu menu;
  menu.addAction("item");
  menu.popup(QPoint(50, 50));
  EXPECT_EQ(capture->mEnds, 1);
  EXPECT_TRUE(capture->HasBeenCancelled());
  menu.close();
}

TEST_F(NativeSide, UnannouncedModalWindowIsClosedAndReported) {
  QDialog dialog;
  dialog.setWindowTitle("Surprise");
  EXPECT_EQ(dialog.exec(), QDialog::Rejected);
  EXPECT_NE(TakeErrors().find("\"Surprise\""), std::string::npos);
}

TEST_F(NativeSide, KeyThatAnotherControlTakesTypesNothingIntoNodes) {
  const auto window = MakeWindow();
  const boost::intrusive_ptr<RecordingNode> node(
      new RecordingNode("node", [this](const std::string& inWord) { Log(inWord); }));
  window->UI_AddChild(node);
  node->UI_SetKeyboardFocus(ui::kFocusOther);
  TakeLog();
  QLineEdit field(QApplication::focusWidget());
  field.show();
  field.setFocus();
  TakeLog();
  input::TypeText(*window, U16("ab"));
  EXPECT_EQ(field.text().toStdString(), "ab");
  EXPECT_EQ(TakeLog(), "");
}

}  // namespace lumui::test
