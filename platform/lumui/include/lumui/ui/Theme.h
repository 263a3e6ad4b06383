// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>

#include "lumcore/utility/RefCounted.h"
#include "lumui/Export.h"
#include "lumui/drawbot/Color.h"

namespace lumui::ui {

// The look of the interface by numbers: colours and text sizes that everything is drawn with, at a
// brightness that the user chooses. Whoever paints asks anew each time and remembers no colour, and
// learns of a change by a callback or by being repainted: all nodes are, when a change is told.
//
// There is one theme, which its subclass fills. It is of the user interface thread. Where it has
// the colours of the present controls (lumui/ui/ThemeColors.h), the standard controls follow it
// too; without a theme they look as the system has them.
class LUMUI_API Theme : public lumcore::utility::RefCountedObject {
 public:
  using ChangeCallback = boost::shared_ptr<boost::function<void()>>;

  enum Text { kTextMainLarge = 0, kTextMainSmall = 1, kTextTitle = 2 };
  enum FontSizeScheme { kFontSizesSmall = 0, kFontSizesRegular = 1, kFontSizesLarge = 2 };
  static constexpr int kFontSizeSchemes = 3;

  // Takes the theme over. It is what Get answers until Terminate, and null at other times.
  static void Initialize(Theme* inTheme);
  static void Terminate();
  static boost::intrusive_ptr<Theme> Get();

  // From 0, the darkest, to 1; values outside are cut off. Nobody is told: several changes may be
  // made before NotifyThemeChanged. Without a theme these do nothing, and the brightness is that of
  // GetDefaultBrightness.
  static void SetBrightness(float inBrightness);
  static float GetBrightness();
  // Gives the standard controls their colours, calls the callbacks and has every window painted
  // anew.
  static void NotifyThemeChanged();
  // The callback is cleared by its holder to unsubscribe. Callbacks outlive the theme.
  static void AddThemeChangedCallback(const ChangeCallback& inCallback);
  static void RemoveThemeChangedCallback(const ChangeCallback& inCallback);

  // A colour that the theme does not have is magenta, so that it is seen.
  drawbot::ColorRGBA GetColor(int inColor) const { return DoGetColor(inColor); }
  bool HasColor(int inColor) const { return DoHasColor(inColor); }
  // In units, by the scheme in use; the font's own size where the theme does not say.
  float GetTextSize(Text inText) const { return DoGetTextSize(inText); }
  void SetFontSizeScheme(FontSizeScheme inScheme) { mScheme = inScheme; }
  FontSizeScheme GetFontSizeScheme() const { return mScheme; }

 protected:
  explicit Theme(FontSizeScheme inScheme = kFontSizesRegular);
  ~Theme() override;

 private:
  virtual drawbot::ColorRGBA DoGetColor(int inColor) const = 0;
  virtual bool DoHasColor(int inColor) const = 0;
  virtual float DoGetTextSize(Text inText) const = 0;
  virtual void DoSetBrightness(float inBrightness) = 0;

  FontSizeScheme mScheme;
  float mBrightness;
};

// The position at which the interface starts: one of the four that theme documents have, by whether
// the system's own colours are light on dark or dark on light.
LUMUI_API float GetDefaultBrightness();

}  // namespace lumui::ui
