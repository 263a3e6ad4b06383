// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumcore/Strings.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/Image.h"
#include "lumui/skins/core/SkinManager.h"
#include "vek/config/Export.h"

namespace lumui::ui {
class Theme;
}

namespace vek::hierarchyview {

// How headers look where a skin is registered for them.
class VEK_API MultiColumnHeaderSkin : public lumui::skins::core::Skin {
 public:
  // The class name to register a skin under.
  static constexpr const char* kClassName = "vek::hierarchyview::MultiColumnHeaderView";

  ~MultiColumnHeaderSkin() override;

  // One column's cell without its title. The margins are those that the title keeps from the sides
  // and from above and below.
  virtual void DrawCell(lumui::drawbot::Drawbot& inDrawbot, lumui::ui::Theme const& inTheme,
                        lumui::drawbot::Drawbot::Rect const& inCell, float inSideMargin,
                        float inMargin) const = 0;
  // The arrow of the sort column, drawn in its own size; null for the plain triangle. The library's
  // own picture of that name, unless a skin has another.
  virtual boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetSortArrow(
      lumcore::UTF8String const& inName, lumui::drawbot::SupplierInterface const& inSupplier) const;
};

}  // namespace vek::hierarchyview
