// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <unordered_map>
#include <utility>
#include <vector>

#include "lumui/ui/Theme.h"

namespace lumui::ui {

// A theme that is a table of keyframes: each colour has values at some positions of brightness, and
// is blended between them. Documents fill it one after the other, each adding its colours to those
// before.
class LUMUI_API KeyframeThemeEditor final : public Theme {
 public:
  // One colour at one brightness. Hue is a fraction of the circle; all parts go from 0 to 1. A grey
  // has no hue: it takes that of the colour it is blended with.
  struct KeyFrame {
    float position = 0.0f;
    float hue = 0.0f;
    float saturation = 0.0f;
    float value = 0.0f;
    float alpha = 1.0f;
    bool isGrey = true;
    bool hold = false;  // stays as it is up to the next position, without a blend
  };

  // Colours below inFixedColors stand in a table, since they are asked for most; any other number
  // may be used as well. inTexts is the count of text kinds, inScheme the scheme at the start.
  KeyframeThemeEditor(int inFixedColors, int inTexts, int inScheme);
  ~KeyframeThemeEditor() override;

  // A frame at a position that the colour already has replaces that one. A negative number is a
  // contract failure.
  void SetKeyFrame(int inColor, const KeyFrame& inFrame);
  // As if the colour had never had a frame.
  void RemoveKeyFrames(int inColor);
  // Both from 0; a text or scheme that is not known is a contract failure.
  void SetTextSize(int inText, int inScheme, float inSize);
  int GetTextCount() const { return mTexts; }

 private:
  using Frames = std::vector<KeyFrame>;  // by ascending position

  drawbot::ColorRGBA DoGetColor(int inColor) const override;
  bool DoHasColor(int inColor) const override;
  float DoGetTextSize(Text inText) const override;
  void DoSetBrightness(float inBrightness) override;

  // A colour at the present brightness, found out when it is first asked for: documents set far
  // more of them than any window shows.
  struct Entry {
    Frames frames;  // none for a colour that is not known
    drawbot::ColorRGBA color;
    bool isResolved = false;
  };

  Entry* FindEntry(int inColor) const;

  mutable std::vector<Entry> mFixed;
  mutable std::unordered_map<int, Entry> mFurther;
  std::map<std::pair<int, int>, float> mTextSizes;  // by text and scheme
  int mTexts;
  float mPosition;
};

}  // namespace lumui::ui
