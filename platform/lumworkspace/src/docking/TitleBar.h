// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>
#include <functional>

class QLabel;
class QToolButton;

namespace lumworkspace::docking {

// The bar above a panel: its title, and buttons for its menu, for leaving the main window or coming
// back, and for closing. A press beside the buttons is the dock's, which is dragged by it.
class TitleBar : public QWidget {
 public:
  struct Actions {
    std::function<void(QWidget&)> openMenu;
    std::function<void()> toggleFloating;
    std::function<void()> close;  // empty where it must stay
  };

  TitleBar(QWidget* inParent, Actions inActions);

  void SetTitle(const QString& inTitle);
  void ShowMenuButton(bool inShow);
  void ShowFloating(bool inFloating);

 protected:
  void resizeEvent(QResizeEvent* inEvent) override;

 private:
  enum class Glyph { kMenu, kFloat, kClose };
  class Button;

  QToolButton* AddButton(Glyph inGlyph, const char* inNameKey);
  void FitText();

  QString mTitle;
  QLabel* mLabel;
  QToolButton* mMenuButton;
  QToolButton* mFloatButton;
};

}  // namespace lumworkspace::docking
