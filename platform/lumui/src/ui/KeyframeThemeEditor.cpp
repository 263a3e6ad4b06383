// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/KeyframeThemeEditor.h"

#include <algorithm>
#include <cmath>

#include "lumcore/debug/Contract.h"
#include "lumui/ui/Fonts.h"

namespace lumui::ui {

using drawbot::ColorRGBA;
using KeyFrame = KeyframeThemeEditor::KeyFrame;

namespace {

constexpr std::size_t kUsualFrames = 4;  // two families with two ends
constexpr ColorRGBA kUnknownColor(1.0f, 0.0f, 1.0f);

float Blend(float inFrom, float inTo, float inShare) {
  return inFrom + (inTo - inFrom) * inShare;
}

// Along the shorter arc of the circle.
float BlendHue(float inFrom, float inTo, float inShare) {
  float arc = inTo - inFrom;
  arc -= std::round(arc);
  const float hue = inFrom + arc * inShare;
  return hue - std::floor(hue);
}

KeyFrame Between(const KeyFrame& inFrom, const KeyFrame& inTo, float inPosition) {
  if (inFrom.hold) return inFrom;
  const float share = (inPosition - inFrom.position) / (inTo.position - inFrom.position);
  KeyFrame frame = inFrom;
  frame.hue =
      BlendHue(inFrom.isGrey ? inTo.hue : inFrom.hue, inTo.isGrey ? inFrom.hue : inTo.hue, share);
  frame.saturation = Blend(inFrom.saturation, inTo.saturation, share);
  frame.value = Blend(inFrom.value, inTo.value, share);
  frame.alpha = Blend(inFrom.alpha, inTo.alpha, share);
  return frame;
}

// There is at least one frame, and they ascend.
KeyFrame FrameAt(const std::vector<KeyFrame>& inFrames, float inPosition) {
  const auto behind =
      std::upper_bound(inFrames.begin(), inFrames.end(), inPosition,
                       [](float inAt, const KeyFrame& inFrame) { return inAt < inFrame.position; });
  if (behind == inFrames.begin()) return inFrames.front();
  if (behind == inFrames.end()) return inFrames.back();
  return Between(*(behind - 1), *behind, inPosition);
}

ColorRGBA ToColor(const KeyFrame& inFrame) {
  // One part of the colour: how far its own hue lies from the frame's, in sixths of the circle.
  const auto part = [&inFrame](float inSixth) {
    const float distance = std::fmod(inSixth + inFrame.hue * 6.0f, 6.0f);
    const float lack = std::max(0.0f, std::min({distance, 4.0f - distance, 1.0f}));
    return inFrame.value * (1.0f - inFrame.saturation * lack);
  };
  return ColorRGBA(part(5.0f), part(3.0f), part(1.0f), inFrame.alpha);
}

}  // namespace

KeyframeThemeEditor::KeyframeThemeEditor(int inFixedColors, int inTexts, int inScheme)
    : Theme(static_cast<FontSizeScheme>(inScheme)),
      mFixed(static_cast<std::size_t>(std::max(inFixedColors, 0))),
      mTexts(inTexts),
      mPosition(GetDefaultBrightness()) {}

KeyframeThemeEditor::~KeyframeThemeEditor() = default;

void KeyframeThemeEditor::SetKeyFrame(int inColor, const KeyFrame& inFrame) {
  LUM_INPUT_CONTRACT(inColor >= 0);
  const auto index = static_cast<std::size_t>(inColor);
  Entry& entry = index < mFixed.size() ? mFixed[index] : mFurther[inColor];
  entry.isResolved = false;
  Frames& frames = entry.frames;
  if (frames.empty()) frames.reserve(kUsualFrames);
  const auto place = std::lower_bound(
      frames.begin(), frames.end(), inFrame.position,
      [](const KeyFrame& inOther, float inPosition) { return inOther.position < inPosition; });
  if (place != frames.end() && place->position == inFrame.position) {
    *place = inFrame;
  } else {
    frames.insert(place, inFrame);
  }
}

void KeyframeThemeEditor::RemoveKeyFrames(int inColor) {
  if (Entry* const entry = FindEntry(inColor)) *entry = Entry();
}

void KeyframeThemeEditor::SetTextSize(int inText, int inScheme, float inSize) {
  LUM_INPUT_CONTRACT(inText >= 0 && inText < mTexts);
  LUM_INPUT_CONTRACT(inScheme >= 0 && inScheme < kFontSizeSchemes);
  mTextSizes[{inText, inScheme}] = inSize;
}

ColorRGBA KeyframeThemeEditor::DoGetColor(int inColor) const {
  Entry* const entry = FindEntry(inColor);
  if (!entry) return kUnknownColor;
  if (!entry->isResolved) {
    entry->color = ToColor(FrameAt(entry->frames, mPosition));
    entry->isResolved = true;
  }
  return entry->color;
}

bool KeyframeThemeEditor::DoHasColor(int inColor) const {
  return FindEntry(inColor) != nullptr;
}

float KeyframeThemeEditor::DoGetTextSize(Text inText) const {
  const auto found = mTextSizes.find({inText, GetFontSizeScheme()});
  return found == mTextSizes.end() ? GetFontSize(0) : found->second;
}

void KeyframeThemeEditor::DoSetBrightness(float inBrightness) {
  mPosition = inBrightness;
  for (Entry& entry : mFixed)
    entry.isResolved = false;
  for (auto& [color, entry] : mFurther)
    entry.isResolved = false;
}

// Null for a colour without frames.
KeyframeThemeEditor::Entry* KeyframeThemeEditor::FindEntry(int inColor) const {
  if (inColor < 0) return nullptr;
  const auto index = static_cast<std::size_t>(inColor);
  Entry* entry = nullptr;
  if (index < mFixed.size()) {
    entry = &mFixed[index];
  } else {
    const auto found = mFurther.find(inColor);
    if (found != mFurther.end()) entry = &found->second;
  }
  return entry && !entry->frames.empty() ? entry : nullptr;
}

}  // namespace lumui::ui
