// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/controls/UI_InteractiveControlView.h"

namespace lumui::controls {

// How a button works and looks. The frame is drawn by the window system's style: the radius and the
// strokes are kept for the archive and for buttons that draw themselves.
struct ButtonOptions {
  bool changeFocusOnClick = false;
  bool notificationOnMouseDown = false;  // else when it is let go; a button that stays down always
  bool springLoaded = true;              // else a click puts it down, and the next one up
  bool defaultAppearance = false;        // as the one that Enter presses
  float contentOffsetX = 0;              // of the text or picture, in units
  float contentOffsetY = 0;
  float downOffsetX = 0;  // on top of that while it is down
  float downOffsetY = 0;
  float cornerRadius = 0;
  float strokeSize1 = 0;
  float strokeSize2 = 0;
};

// What the user presses, by a click, by the space bar when it has the keyboard, or by its mnemonic.
// A press is told as kChanged.
class LUMUI_API UI_Button : public UI_InteractiveControlView {
 public:
  ~UI_Button() override;

  void SetOptions(const ButtonOptions& inOptions);
  const ButtonOptions& GetOptions() const { return mOptions; }

  // Does what a click does. Nothing if the user could not click: disabled, or not visible.
  void Press();

 protected:
  explicit UI_Button(std::unique_ptr<ui::NodePeer> inPeer);
  void DoShowState() override;

 private:
  friend class ButtonPeer;
  void TellPressed();
  void HandlePressed();
  void HandleClicked();

  ButtonOptions mOptions;
};

}  // namespace lumui::controls
