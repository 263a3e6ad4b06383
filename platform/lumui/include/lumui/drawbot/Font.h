// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <cstddef>

#include "lumcore/Strings.h"
#include "lumcore/utility/RefCounted.h"
#include "lumui/Export.h"

namespace lumui::drawbot {

class FontInterface;

// A cheap handle to a counted font; an empty one tests false and means "no font of its own".
using FontP = boost::intrusive_ptr<FontInterface>;

enum class FontStyle : unsigned char { kPlain, kBold, kItalic, kBoldItalic };

// A font of one family, size and style, and what it knows of the texts that it has drawn. The
// supplier makes fonts and hands out the same object for the same request. All lengths are in units
// of a drawbot, which are pixels at scale 1. A text is one line: line breaks and tabs in it count
// and draw as spaces, and ill-formed UTF-16 is allowed.
//
// Trees and lists ask for the same texts at every paint, so a font keeps the last few thousand with
// their widths and their glyphs ready to draw.
class LUMUI_API FontInterface : public lumcore::utility::RefCountedObject {
 public:
  ~FontInterface() override;

  // What the font was made from; the system may draw with another family where it has no such one.
  virtual const lumcore::UTF16String& GetFamilyName() const = 0;
  virtual float GetSize() const = 0;
  virtual FontStyle GetStyle() const = 0;

  // All positive: above the baseline, below it, and between two lines.
  virtual float GetAscent() const = 0;
  virtual float GetDescent() const = 0;
  virtual float GetLeading() const = 0;
  // Ascent, descent and leading together: the distance of two baselines.
  virtual float GetLineHeight() const = 0;

  // How far the text moves the pen on: what a text behind it starts at.
  virtual float MeasureWidth(const lumcore::UTF16String& inText) const = 0;
  // The same width without remembering it: for whole columns, whose thousands of texts would push
  // out those that are on the screen.
  virtual float MeasureWidthOnce(const lumcore::UTF16String& inText) const = 0;

  // At most kMaxCachedTexts.
  virtual std::size_t GetCachedTextCount() const = 0;

  // Full of texts of a row's length a font holds about 1.3 MB, and 7 MB once all were drawn.
  static constexpr std::size_t kMaxCachedTexts = 8192;
};

}  // namespace lumui::drawbot
