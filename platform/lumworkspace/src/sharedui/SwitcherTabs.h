// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTabBar>
#include <functional>
#include <optional>
#include <vector>

#include "lumcore/Strings.h"
#include "lumcore/geom/Point.h"

namespace lumworkspace::sharedui {

// The tabs of a workspace switcher. What the functions throw goes to the application's error
// function.
class SwitcherTabs final : public QTabBar {
 public:
  struct Functions {
    // At a later turn of the loop, as the window changes under the hand that presses a tab.
    std::function<void(const lumcore::UTF16String&)> apply;
    std::function<void(const std::vector<lumcore::UTF16String>&)> keepPlaces;  // from the left
    std::function<void(const lumcore::geom::PointT<int>&)> openMenu;           // of the screen
  };

  explicit SwitcherTabs(Functions inFunctions);

  // The current one may have no tab, or be empty. True if there are other tabs than before.
  bool Show(const std::vector<lumcore::UTF16String>& inNames,
            const lumcore::UTF16String& inCurrent);

 protected:
  QSize tabSizeHint(int inTab) const override;
  void initStyleOption(QStyleOptionTab* outOption, int inTab) const override;
  void mousePressEvent(QMouseEvent* inEvent) override;
  void wheelEvent(QWheelEvent* inEvent) override;

 private:
  std::vector<lumcore::UTF16String> GetNames() const;
  void Choose(int inTab);

  Functions mFunctions;
  lumcore::UTF16String mCurrent;
  std::optional<lumcore::UTF16String> mChosen;  // waits for its turn
};

}  // namespace lumworkspace::sharedui
