// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/skins/core/SkinManager.h"
#include "vek/config/Export.h"

namespace vek::hierarchyview {

// What a tree asks of the skin that is registered for it: numbers of theme colours, in place of
// those that it uses by itself.
class VEK_API TreeControlSkin : public lumui::skins::core::Skin {
 public:
  // The class name to register a skin under; it counts for every tree and tree list.
  static constexpr const char* kClassName = "vek::hierarchyview::TreeControlBase";

  ~TreeControlSkin() override;

  virtual int GetBackgroundColor() const = 0;
  virtual int GetRowSeparatorColor() const = 0;
  virtual int GetBorderColor() const = 0;
  virtual int GetSelectedRowColor() const = 0;
  virtual int GetInsertionFeedbackColor() const = 0;
  virtual int GetBoxFeedbackFillColor() const = 0;
  virtual int GetBoxFeedbackStrokeColor() const = 0;
};

}  // namespace vek::hierarchyview
