// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <string>
#include <tuple>

#include "lumui/drawbot/SupplierInterface.h"

namespace lumui::drawbot {

// The one supplier. It keeps the fonts that it has made, so that painters that ask for a font at
// every cell get the same one with the texts that it remembers; they go when the application object
// does, since fonts cannot outlive it.
class QtSupplier : public SupplierInterface {
 public:
  FontP NewFont(const char* inFamilyName, float inSize, FontStyle inStyle) const override;
  boost::intrusive_ptr<ImageInterface> NewImageFromFile(std::string_view inPath,
                                                        float inScale) const override;
  boost::intrusive_ptr<ImageInterface> NewImageFromBytes(std::string_view inBytes,
                                                         std::string_view inName,
                                                         float inScale) const override;
  boost::intrusive_ptr<ImageInterface> NewMultiScaleImage(
      const std::vector<boost::intrusive_ptr<ImageInterface>>& inImages) const override;
  boost::intrusive_ptr<Surface> NewSurface(float inWidth, float inHeight,
                                           float inScale) const override;

  void ForgetFonts() const { mFonts.clear(); }

 private:
  using FontKey = std::tuple<std::string, int, FontStyle>;

  void DropUnusedFonts() const;

  mutable std::map<FontKey, FontP> mFonts;
};

}  // namespace lumui::drawbot
