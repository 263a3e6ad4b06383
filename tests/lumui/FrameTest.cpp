// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/OS_Frame.h"

#include <QApplication>
#include <QIcon>
#include <QWidget>
#include <QWindow>

#include "UITest.h"
#include "lumui/ui/ModuleHandle.h"
#include "lumui/ui/OS_Menu.h"
#include "lumui/utility/InteractionRegistry.h"

// What Qt's own tests feed the window system's input through; declared in none of its headers.
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, const QPointF& local, const QPointF& global,
                                      Qt::MouseButtons state, Qt::MouseButton button,
                                      QEvent::Type type, Qt::KeyboardModifiers mods, int timestamp);

namespace lumui::test {

namespace {

using ui::OS_Frame;
using ui::OS_Window;

const int kHere = 0;  // in this module

class Frames : public UITest {
 protected:
  ~Frames() override { OS_Window::UI_Terminate(); }

  bool Register(const wchar_t* inName, int inMenu, int inIcon = 0) {
    OS_Frame::Class frame;
    frame.name = inName;
    frame.menuID = inMenu;
    frame.iconID = inIcon;
    frame.resources = ui::ModuleOfAddress(&kHere);
    return OS_Frame::Register(frame);
  }
};

TEST_F(Frames, BecomeTheWindowThatTakesThem) {
  EXPECT_FALSE(Register(nullptr, 0));
  EXPECT_FALSE(Register(L"", 0));
  EXPECT_TRUE(Register(L"Main", 0));
  EXPECT_TRUE(Register(L"Main", 4)) << "takes the place of the first";
  EXPECT_EQ(OS_Frame::Create(L"Other", L"", 0, 0, 0), nullptr);
  const HWND frame = OS_Frame::Create(L"Main", L"T\u00EFtle", 0, 300, 200);
  const HWND unused = OS_Frame::Create(L"Main", nullptr, 0xCF0000, 0, 0);
  ASSERT_TRUE(frame && unused && frame != unused);
  const boost::intrusive_ptr<OS_Window> window(new OS_Window(nullptr, false));
  EXPECT_TRUE(window->UI_TakeFrame(frame));
  EXPECT_EQ(OS_Window::UI_GetWindow(frame), nullptr);
  window->UI_ConstructWindow(nullptr);
  EXPECT_EQ(window->UI_GetHandle(), frame);
  EXPECT_EQ(OS_Window::UI_GetWindow(frame), window.get());
  EXPECT_EQ(window->UI_GetTitle(), U16("T\xC3\xAFtle"));
  EXPECT_EQ(window->UI_GetWindowStyleFlags(), 0u);
  EXPECT_EQ(ui::OS_Menu::GetItemCount(window->UI_GetMenu()), 0u);
  EXPECT_EQ(window->UI_GetLocalRectF().width, 300);
  EXPECT_EQ(window->UI_GetLocalRectF().height, 200);
  EXPECT_FALSE(window->UI_TakeFrame(unused)) << "has a native part";
  const boost::intrusive_ptr<OS_Window> second(new OS_Window(nullptr, false));
  EXPECT_FALSE(second->UI_TakeFrame(frame)) << "is gone";
  OS_Window::UI_Terminate();
  EXPECT_FALSE(second->UI_TakeFrame(unused));
  EXPECT_EQ(OS_Frame::Create(L"Main", L"", 0, 0, 0), nullptr);
}

TEST_F(Frames, HaveTheirIconsOutOfTheModule) {
  const auto iconOf = [&](int inIcon) {
    Register(L"Main", 0, inIcon);
    const boost::intrusive_ptr<OS_Window> window(new OS_Window(nullptr, false));
    window->UI_TakeFrame(OS_Frame::Create(L"Main", L"with an icon", 0xCF0000, 300, 200));
    window->UI_ConstructWindow(nullptr);
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->windowTitle() == "with an icon") return widget->windowIcon();
    }
    ADD_FAILURE() << "no window";
    return QIcon();
  };
  EXPECT_EQ(iconOf(7).pixmap(16, 16).toImage().pixelColor(8, 8), QColor(255, 0, 0));
  EXPECT_TRUE(iconOf(0).isNull());
  EXPECT_TRUE(iconOf(6).isNull()) << "the module has none of the number";
  EXPECT_EQ(TakeErrors(), "");
  EXPECT_TRUE(iconOf(8).isNull());
  EXPECT_NE(TakeErrors().find("ICON_8"), std::string::npos) << "damaged";
}

TEST_F(Frames, InteractionsCountOnceUnlessTheyPause) {
  const auto window = MakeWindow();
  auto& registry = utility::InteractionRegistry::Get();
  unsigned last = registry.GetCount();
  const auto more = [&] { return registry.GetCount() - std::exchange(last, registry.GetCount()); };
  lumui::testing::MoveMouse(*window, Point(5, 6));
  EXPECT_EQ(more(), 0u);
  lumui::testing::ClickMouse(*window, Point(5, 6));
  EXPECT_EQ(more(), 1u);
  lumui::testing::TapKey(*window, ui::KeyboardCode(0x80000041));
  EXPECT_EQ(more(), 1u);
  lumui::testing::TurnWheel(*window, Point(5, 6), Point(0, 1));
  EXPECT_EQ(more(), 1u);
  {
    const utility::ScPauseResumeInteractionRegistry outer;
    { const utility::ScPauseResumeInteractionRegistry inner; }
    lumui::testing::ClickMouse(*window, Point(50, 60));
  }
  EXPECT_EQ(more(), 0u);
  lumui::testing::ClickMouse(*window, Point(5, 6));
  EXPECT_EQ(more(), 1u);
}

TEST_F(Frames, PressesElsewhereAskTheHook) {
  const auto mine = MakeWindow();
  QWidget elsewhere;
  elsewhere.setGeometry(300, 300, 100, 50);
  elsewhere.show();
  QWidget popup(&elsewhere, Qt::Popup);
  popup.winId();
  bool swallow = false;
  std::vector<HWND> windows;
  App().SetForeignPressHook([&](const ui::ForeignPress& inPress) {
    Log(std::to_string(inPress.message) + "@" + std::to_string(inPress.screenPosition.x));
    windows.push_back(inPress.window);
    return swallow;
  });
  int time = 0;
  const auto press = [&](const QWidget& inWindow, Qt::MouseButton inButton) {
    QWindow* const native = inWindow.windowHandle();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      const bool down = type == QEvent::MouseButtonPress;
      qt_handleMouseEvent(native, QPointF(5, 6), QPointF(305, 306),
                          down ? Qt::MouseButtons(inButton) : Qt::MouseButtons(), inButton, type,
                          Qt::NoModifier, time += 10000);
    }
    return TakeLog();
  };
  EXPECT_EQ(press(elsewhere, Qt::LeftButton), "513@305");
  swallow = true;
  EXPECT_EQ(press(elsewhere, Qt::RightButton), "516@305");
  EXPECT_EQ(press(elsewhere, Qt::MiddleButton), "");
  EXPECT_EQ(press(popup, Qt::LeftButton), "");
  lumui::testing::ClickMouse(*mine, Point(5, 6));
  EXPECT_EQ(TakeLog(), "");
  App().SetForeignPressHook(nullptr);
  ASSERT_EQ(windows.size(), 2u);
  EXPECT_TRUE(windows[0] && windows[0] == windows[1]);
  EXPECT_EQ(OS_Window::UI_GetWindow(windows[0]), nullptr);
  EXPECT_NE(windows[0], mine->UI_GetHandle());
}

}  // namespace

}  // namespace lumui::test
