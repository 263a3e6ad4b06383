// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "UITest.h"
#include "lumcore/config/ThrowError.h"
#include "lumui/drawbot/Brush.h"
#include "lumui/drawbot/Color.h"

namespace lumui::test {

namespace {

namespace input = lumui::testing;

std::vector<std::string> sMessages;
LRESULT sCloseResult = 0;

void RecordMessage(ui::OS_Event* ioEvent) {
  sMessages.push_back(std::to_string(ioEvent->message) +
                      (ioEvent->message == ui::kMessageEndSession
                           ? "(" + std::to_string(ioEvent->wParam) + ")"
                           : ""));
  const bool asks =
      ioEvent->message == ui::kMessageClose || ioEvent->message == ui::kMessageQueryEndSession;
  if (asks) ioEvent->result = sCloseResult;
}

void ThrowAtMessage(ui::OS_Event*) {
  throw std::runtime_error("event function");
}

class Window : public UITest {
 protected:
  Window() {
    sMessages.clear();
    sCloseResult = 0;
  }
  std::string Messages() {
    std::string text;
    for (const std::string& message : sMessages)
      text += (text.empty() ? "" : " ") + message;
    sMessages.clear();
    return text;
  }
};

class FocusNode : public RecordingNode {
 public:
  FocusNode(const std::string& inName, LogFunction inLog) : RecordingNode(inName, inLog) {
    UI_SetWantsKeyboardFocus(true);
  }
};

}  // namespace

TEST_F(Window, StaysOpenWhereItsFunctionRefusesTheClose) {
  const auto window = MakeWindow(&RecordMessage);
  input::RequestClose(*window);
  EXPECT_EQ(Messages(), "16");
  EXPECT_NE(window->UI_GetHandle(), nullptr);
  sCloseResult = 1;
  const HWND handle = window->UI_GetHandle();
  EXPECT_EQ(ui::OS_Window::UI_GetWindow(handle), window.get());
  input::RequestClose(*window);
  EXPECT_EQ(Messages(), "16 2");
  EXPECT_EQ(window->UI_GetHandle(), nullptr);
  EXPECT_EQ(ui::OS_Window::UI_GetWindow(handle), nullptr);
}

TEST_F(Window, StaysOpenWhereItsFunctionThrowsAtTheClose) {
  const auto window = MakeWindow(&ThrowAtMessage);
  input::RequestClose(*window);
  EXPECT_NE(window->UI_GetHandle(), nullptr);
  EXPECT_EQ(TakeErrors(), "event function");
  window->UI_SetEventFunction(nullptr);
  input::RequestClose(*window);
  EXPECT_EQ(window->UI_GetHandle(), nullptr);
}

TEST_F(Window, TellsItsDestructionOnceForEachNativeWindow) {
  auto window = MakeWindow(&RecordMessage);
  const HWND first = window->UI_GetHandle();
  window->UI_DestroyWindow();
  window->UI_DestroyWindow();
  EXPECT_EQ(Messages(), "2");
  const lumcore::geom::RectT<int> rect(10, 20, 300, 150);
  window->UI_ConstructWindow(&rect);
  EXPECT_NE(window->UI_GetHandle(), first);
  EXPECT_EQ(window->UI_GetLocalRectF(), Rect(10, 20, 300, 150));
  window.reset();
  EXPECT_EQ(Messages(), "2");
}

TEST_F(Window, OneRefusalKeepsTheSessionGoing) {
  const auto open = MakeWindow();
  const auto refusing = MakeWindow(&RecordMessage);
  EXPECT_FALSE(input::EndSession());
  EXPECT_EQ(Messages(), "17 22(0)");
  EXPECT_FALSE(App().IsQuitting());
  sCloseResult = 1;
  // Another program refuses: the user goes on, and a quit from elsewhere is no end of the session.
  EXPECT_TRUE(input::AskSessionEnd());
  EXPECT_EQ(Messages(), "17");
  input::ClickMouse(*open, Point(5, 5));
  EXPECT_EQ(Messages(), "22(0)");
  QEvent quit(QEvent::Quit);
  QCoreApplication::sendEvent(QCoreApplication::instance(), &quit);
  App().PumpPendingEvents();
  EXPECT_EQ(Messages(), "");
  EXPECT_TRUE(App().IsQuitting());
  App().CancelQuit();
  EXPECT_TRUE(input::AskSessionEnd());
  EXPECT_EQ(Messages(), "17");
  EXPECT_TRUE(input::AskSessionEnd()) << "asked once more";
  EXPECT_EQ(Messages(), "22(0) 17");
  EXPECT_TRUE(input::EndSession());
  EXPECT_EQ(Messages(), "22(0) 17 22(1)");
  EXPECT_TRUE(App().IsQuitting());
  EXPECT_EQ(App().Run(), 0);
}

TEST_F(Window, StepsCannotTakeWhatComesThroughNoQueue) {
  const auto window = MakeWindow(&RecordMessage);
  App().SetEventSteps(
      [this](const ui::OS_Event& inEvent) {
        Log("pre" + std::to_string(inEvent.message));
        return false;
      },
      [this](const ui::OS_Event& inEvent) { Log("post" + std::to_string(inEvent.message)); });
  EXPECT_FALSE(input::EndSession());
  EXPECT_EQ(Messages(), "17 22(0)");
  window->UI_SendMessage(ui::kMessageDisplayChange, 0, 0);
  window->UI_SendMessage(ui::kMessageInitMenuPopup, 0, 0);
  window->UI_SendMessage(ui::kMessageCommand, 1, 0);
  window->UI_DestroyWindow();
  EXPECT_EQ(Messages(), "126 279 2");
  EXPECT_EQ(TakeLog(), "pre17 post17 pre22 post22 pre126 post126 pre279 post279 pre273 pre2 post2");
}

TEST_F(Window, TellsActivationOnceAndNotAfterTheFunctionIsCleared) {
  const auto function = boost::shared_ptr<boost::function<void(bool)>>(
      new boost::function<void(bool)>([this](bool inActive) { Log(inActive ? "front" : "back"); }));
  const auto window = MakeWindow();
  Manager().InstallApplicationActivationChangedFunction(function);
  input::ActivateWindow(nullptr);
  App().PumpPendingEvents();
  input::ActivateWindow(window.get());
  App().PumpPendingEvents();
  EXPECT_EQ(TakeLog(), "back front");
  function->clear();
  input::ActivateWindow(nullptr);
  App().PumpPendingEvents();
  EXPECT_EQ(TakeLog(), "");
}

TEST_F(Window, MayGoAsTheApplicationIsLeft) {
  const auto back = MakeWindow();
  const auto front = MakeWindow();
  const QPointer<QWidget> widget = QApplication::activeWindow();
  const auto function = boost::shared_ptr<boost::function<void(bool)>>(
      new boost::function<void(bool)>([&](bool inActive) {
        if (inActive) return;
        front->UI_DestroyWindow();
        App().PumpPendingEvents();
      }));
  Manager().InstallApplicationActivationChangedFunction(function);
  input::ActivateWindow(nullptr);
  EXPECT_EQ(front->UI_GetHandle(), nullptr);
  App().PumpPendingEvents();
  EXPECT_EQ(widget, nullptr);
  function->clear();
}

TEST_F(Window, TabWalksTheNodesThatWantTheFocusInTreeOrder) {
  const auto log = [this](const std::string& inWord) { Log(inWord); };
  const auto window = MakeWindow();
  std::vector<boost::intrusive_ptr<FocusNode>> nodes;
  for (const char* name : {"a", "b", "c", "d"})
    nodes.emplace_back(new FocusNode(name, log));
  window->UI_AddChild(nodes[0]);
  window->UI_AddChild(nodes[3]);
  nodes[0]->UI_AddChild(nodes[1]);
  window->UI_InsertChild(nodes[2], 1);
  nodes[2]->UI_SetDisabled(true);
  nodes[0]->UI_SetKeyboardFocus(ui::kFocusPointer);
  EXPECT_EQ(TakeLog(), "a:focus2");
  const ui::KeyboardCode tab(ui::KeyboardCode::kTab);
  const auto Walk = [&](ui::ModifierKeys inModifiers) {
    input::PressKey(*window, tab, inModifiers);
    TakeLog();
    return Manager().GetFocusNode() ? Text(Manager().GetFocusNode()->UI_GetNodeID()) : "none";
  };
  EXPECT_EQ(Walk(ui::ModifierKeys()), "b");
  EXPECT_EQ(Walk(ui::ModifierKeys()), "d");
  EXPECT_EQ(Walk(ui::ModifierKeys()), "a");
  EXPECT_EQ(Walk(ui::ModifierKeys(ui::kModShift)), "d");
  nodes[3]->mTakes = true;  // a node that takes the key keeps the focus
  EXPECT_EQ(Walk(ui::ModifierKeys()), "d");
  // A node that goes leaves the focus to nobody.
  window->UI_RemoveChild(nodes[3].get());
  EXPECT_FALSE(nodes[3]->UI_HasKeyboardFocus());
  EXPECT_EQ(Manager().GetFocusNode(), window.get());
}

TEST_F(Window, FocusChangesTellBothNodesAndTheReason) {
  const auto log = [this](const std::string& inWord) { Log(inWord); };
  const auto window = MakeWindow();
  const boost::intrusive_ptr<FocusNode> a(new FocusNode("a", log));
  const boost::intrusive_ptr<FocusNode> b(new FocusNode("b", log));
  EXPECT_FALSE(a->UI_SetKeyboardFocus(ui::kFocusOther));
  window->UI_AddChild(a);
  window->UI_AddChild(b);
  EXPECT_TRUE(a->UI_SetKeyboardFocus(ui::kFocusPointer));
  EXPECT_TRUE(b->UI_SetKeyboardFocus(ui::kFocusTab));
  EXPECT_EQ(TakeLog(), "a:focus2 a:blur1 b:focus1");
  input::ActivateWindow(nullptr);
  input::ActivateWindow(window.get());
  EXPECT_EQ(TakeLog(), "b:blur3 b:focus3");
}

TEST_F(Window, CoordinatesGoThroughEveryAncestor) {
  const auto window = MakeWindow();
  const boost::intrusive_ptr<ui::UI_SubView> outer(new ui::UI_SubView);
  const boost::intrusive_ptr<ui::UI_SubView> inner(new ui::UI_SubView);
  outer->UI_AddChild(inner);
  outer->UI_SetLocalRectF(Rect(10.5f, 20, 50, 50));
  inner->UI_SetLocalRectF(Rect(3, 4.4f, 10, 10));
  const auto there = [&] {
    lumcore::geom::PointT<int> point(1, 2);
    inner->UI_LocalToGlobal(point);
    return point;
  };
  // The same in and outside a window: 10.5 rounds up, 4.4 down.
  const lumcore::geom::PointT<int> inTree = there();
  window->UI_AddChild(outer);
  EXPECT_EQ(inTree, lumcore::geom::PointT<int>(3 + 1, 4 + 2));
  EXPECT_EQ(there(), lumcore::geom::PointT<int>(11 + 3 + 1, 20 + 4 + 2));
  lumcore::geom::PointT<int> back = there();
  inner->UI_GlobalToLocal(back);
  EXPECT_EQ(back, lumcore::geom::PointT<int>(1, 2));
}

TEST_F(Window, KeepsItsPlaceWhereOnlyTheSizeIsGiven) {
  const boost::intrusive_ptr<ui::OS_Window> window(new ui::OS_Window);
  window->UI_SetSize(320, 240);
  window->UI_Show(true);
  App().PumpPendingEvents();
  const Rect first = window->UI_GetLocalRectF();
  EXPECT_EQ(first.width, 320);
  EXPECT_EQ(first.height, 240);
  window->UI_SetLocalRectF(Rect(50, 60, 100, 100));
  window->UI_SetSize(200, 150);
  App().PumpPendingEvents();
  EXPECT_EQ(window->UI_GetLocalRectF(), Rect(50, 60, 200, 150));
  // A node without room keeps its rectangle and is of no size on the screen.
  const boost::intrusive_ptr<ui::UI_SubView> node(new ui::UI_SubView);
  node->UI_SetLocalRectF(Rect(5, 5, -10, 20));
  window->UI_AddChild(node);
  App().PumpPendingEvents();
  EXPECT_EQ(node->UI_GetLocalRectF(), Rect(5, 5, -10, 20));
}

TEST_F(Window, MayHaveAParentThatKeepsWindowsTogether) {
  const auto log = [this](const std::string& inWord) { Log(inWord); };
  const boost::intrusive_ptr<RecordingNode> keeper(new RecordingNode("keeper", log));
  const auto window = MakeWindow();
  const boost::intrusive_ptr<RecordingNode> node(new RecordingNode("node", log));
  keeper->UI_SetLocalRectF(Rect(7, 7, 70, 70));
  window->UI_AddChild(node);
  keeper->UI_AddChild(window);
  EXPECT_EQ(node->UI_GetWindowNode(), window.get());
  EXPECT_EQ(keeper->UI_GetWindowNode(), nullptr);
  node->UI_SetKeyboardFocus(ui::kFocusOther);
  TakeLog();
  // Events end with the window.
  input::PressKey(*window, ui::KeyboardCode(0x80000041));
  EXPECT_EQ(TakeLog(), "node:down(80000041) node:char(80000061)");
  lumcore::geom::PointT<int> point;
  node->UI_LocalToGlobal(point);
  EXPECT_EQ(point, lumcore::geom::PointT<int>());
}

TEST_F(Window, NodesNeverBecomeTheirOwnAncestors) {
  const boost::intrusive_ptr<ui::UI_SubView> outer(new ui::UI_SubView);
  const boost::intrusive_ptr<ui::UI_SubView> inner(new ui::UI_SubView);
  outer->UI_AddChild(inner);
  EXPECT_THROW(inner->UI_AddChild(outer), lumcore::config::Error);
  EXPECT_THROW(inner->UI_AddChild(inner), lumcore::config::Error);
  EXPECT_THROW(inner->UI_AddChild(nullptr), lumcore::config::Error);
  EXPECT_EQ(outer->UI_GetChildCount(), 1u);
}

TEST_F(Window, SavesItsPictureOrSaysWhyNot) {
  const auto window = MakeWindow();
  const std::string path = ::testing::TempDir() + "lumui_picture.png";
  std::remove(path.c_str());
  window->UI_SavePicture(U16(path));
  std::FILE* const file = std::fopen(path.c_str(), "rb");
  ASSERT_NE(file, nullptr);
  unsigned char start[4] = {};
  EXPECT_EQ(std::fread(start, 1, 4, file), 4u);
  std::fclose(file);
  EXPECT_EQ(std::string(reinterpret_cast<char*>(start), 4), "\x89PNG");
  std::remove(path.c_str());
  try {
    window->UI_SavePicture(U16("/no/such/folder/picture.png"));
    FAIL();
  } catch (const lumcore::config::Error& error) {
    EXPECT_NE(std::string(error.what()).find("/no/such/folder/picture.png"), std::string::npos);
  }
}

}  // namespace lumui::test
